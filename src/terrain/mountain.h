// The mountain object: a flat round top and a flank that falls to the sea along half a sine.
#pragma once

#include <cstdint>

namespace ombrelia {

struct MountainShape {
    int height = 0;           // of the top, 50..255
    int topSize = 0;          // radius of the top, points
    int side = 0;             // width of the flank, points; 0: a sheer edge
    bool onlyRaises = false;  // leaves ground that is higher as it is
};

// Builds it around (x, y), circle by circle, with a yield after each. False if it was stopped.
[[nodiscard]] bool shapeMountain(int x, int y, const MountainShape& shape);

// The object at a released pointer; reads sliders and options, shows progress, refreshes if that
// is wished.
void BuildMountain(std::int16_t x, std::int16_t y);

}  // namespace ombrelia
