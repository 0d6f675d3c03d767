// The innermost loop of a refresh: one row of the map onto one row of the back buffer.
#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/color.h"

namespace ombrelia {

// One row of the map; the picture has pixels for its first columns alone.
struct CellRow {
    std::int16_t* heights;
    std::int16_t* shadows;
    Pixel* pixels;
    std::size_t columns, cells;
};

// Whether some cell differs from its shadow.
bool isDirty(const CellRow& row);

// Whether every height is in 0..255.
bool isInRange(const CellRow& row);

// Paints the cells that differ from their shadows and gives them those; heights in 0..255, colors
// those of the heights. Without a branch: which cells differ is often as good as chance.
void paintCells(const CellRow& row, const Pixel* colors);

}  // namespace ombrelia
