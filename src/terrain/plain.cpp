#include "terrain/plain.h"

#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/objects.h"
#include "core/option_strip_table.h"
#include "terrain/ring.h"
#include "views/map2d/update_map_view.h"

namespace ombrelia {

void levelDisc(int x, int y, int size) {
    const std::int16_t flat = HeightMap(x, y);
    const Directions directions = wholeDegrees();
    std::int16_t* heights = HeightMap.data();
    RingCells ring;
    for (int r = 1; r <= size; ++r) {
        for (const std::int32_t cell : ring.at(x, y, r, directions)) {
            if (cell != RingCells::kOutside) {
                heights[cell] = flat;
            }
        }
    }
}

void BuildPlain(std::int16_t x, std::int16_t y) {
    levelDisc(x, y, SliderValues(slider::kPlainSize).Value);
    if (isOn(button::kAutoRefresh)) {
        RefreshAfterEdit();
    }
}

}  // namespace ombrelia
