// The innermost loop of a refresh: one row of the map onto one row of the back buffer.
#pragma once

#include <array>
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

// The colours of the heights 0..255: whole pixels, and the same taken apart.
struct CellColors {
    CellColors() = default;

    // Takes 256 pixels apart, which must stay where they are.
    explicit CellColors(const Pixel* pixels);

    const Pixel* whole = nullptr;
    std::array<std::uint8_t, 256> blue{}, green{}, red{};
};

// Paints the cells that differ from their shadows and gives them those; heights in 0..255. Without
// a branch: which cells differ is often as good as chance.
void paintCells(const CellRow& row, const CellColors& colors);

}  // namespace ombrelia
