#include <gtest/gtest.h>

#include "games/maze/maze_grid.h"

namespace ombrelia::maze {

namespace {

TEST(MazeGridPage, its_four_corners_are_the_last_cells) {
    MazeGrid grid;
    grid.allocate(6, 4);
    grid(6, 4) = kMazeOpen;
    const MazeGrid& same = grid;
    EXPECT_EQ(same(6, 4), kMazeOpen);
    EXPECT_EQ(same(0, 0), kMazeWall);
    for (const auto& [x, y] : {std::pair{-1, 0}, {7, 0}, {0, -1}, {0, 5}}) {
        EXPECT_FALSE(same.has(x, y));
        EXPECT_THROW(same(x, y), SubscriptFailure) << x << ' ' << y;
        EXPECT_THROW(grid(x, y), SubscriptFailure) << x << ' ' << y;
    }
}

TEST(MazeGridPage, the_rim_reads_as_track) {
    MazeGrid grid;
    grid.allocate(6, 4);
    const MazeGrid& same = grid;
    for (const auto& [x, y] : {std::pair{-2, -2}, {-1, 2}, {7, 2}, {8, 6}, {3, -1}, {3, 5}}) {
        EXPECT_EQ(same.data()[same.offset(x, y)], kMazeTrack) << x << ' ' << y;
    }
    EXPECT_EQ(same.data()[same.offset(3, 2)], kMazeWall);
}

}  // namespace

}  // namespace ombrelia::maze
