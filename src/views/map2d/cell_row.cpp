#include "views/map2d/cell_row.h"

#include <algorithm>
#include <cstring>

#include "platform/wide_vectors.h"

namespace ombrelia {

namespace {

OMBRELIA_IN_BOTH bool areAllInRange(const std::int16_t* heights, std::size_t cells) {
    unsigned short outside = 0;
    for (std::size_t x = 0; x < cells; ++x) {
        outside = static_cast<unsigned short>(outside | static_cast<unsigned short>(heights[x]));
    }
    return outside <= 0xFF;
}

OMBRELIA_IN_BOTH void paintAll(const CellRow& row, const Pixel* __restrict colors) {
    const std::int16_t* __restrict heights = row.heights;
    const std::int16_t* __restrict shadows = row.shadows;
    Pixel* __restrict pixels = row.pixels;
    for (std::size_t x = 0; x < row.columns; ++x) {
        const Pixel pixel = colors[static_cast<std::uint8_t>(heights[x])];
        pixels[x] = shadows[x] == heights[x] ? pixels[x] : pixel;
    }
    std::copy_n(heights, row.cells, row.shadows);
}

OMBRELIA_WIDE bool isInRangeWide(const CellRow& row) {
    return areAllInRange(row.heights, row.cells);
}

OMBRELIA_WIDE void paintWide(const CellRow& row, const Pixel* colors) {
    paintAll(row, colors);
}

}  // namespace

bool isDirty(const CellRow& row) {
    return std::memcmp(row.heights, row.shadows, row.cells * sizeof(std::int16_t)) != 0;
}

bool isInRange(const CellRow& row) {
    return hasWideVectors() ? isInRangeWide(row) : areAllInRange(row.heights, row.cells);
}

void paintCells(const CellRow& row, const Pixel* colors) {
    if (hasWideVectors()) {
        paintWide(row, colors);
    } else {
        paintAll(row, colors);
    }
}

}  // namespace ombrelia
