// The games share no name with the map or with each other: all their headers go into one source.
#include <gtest/gtest.h>
#include <type_traits>

#include "core/objects.h"
#include "games/maze/maze_events.h"
#include "games/maze/maze_state.h"
#include "games/maze/maze_view.h"
#include "games/worm/board.h"
#include "games/worm/worm.h"
#include "games/worm/worm_state.h"

namespace ombrelia {

TEST(BothGames, each_has_its_own_colour_table) {
    const ColorTable ofTheMap;
    EXPECT_EQ(ofTheMap(1, 1, 0), 0);
    EXPECT_FALSE((std::is_same_v<ColorTable, decltype(maze::ColorTable)>));
    EXPECT_NE(static_cast<const void*>(&maze::ColorTable), static_cast<const void*>(&ColorRange));
}

}  // namespace ombrelia
