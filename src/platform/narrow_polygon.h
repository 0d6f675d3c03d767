// Polygons of few columns, filled downwards: almost all cells of a landscape in perspective.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/color.h"
#include "platform/surface.h"

namespace ombrelia::raster {

// Sorts the first count items, which are few.
template <typename Int, std::size_t Most>
void sortFew(std::array<Int, Most>& items, std::size_t count) {
    for (std::size_t n = 1; n < count; ++n) {
        const Int item = items[n];
        std::size_t hole = n;
        for (; hole > 0 && items[hole - 1] > item; --hole) {
            items[hole] = items[hole - 1];
        }
        items[hole] = item;
    }
}

// The smaller and the larger of two numbers.
struct Range {
    std::int32_t low, high;
};

inline Range sorted(std::int32_t a, std::int32_t b) {
    return {b < a ? b : a, b < a ? a : b};
}

// The image as a polygon's rows are written to it.
struct Ground {
    Pixel* pixels;
    int width, height;
    Pixel color;

    void fill(std::int64_t y, std::int64_t left, std::int64_t right) const {
        const int x1 = static_cast<int>(std::max<std::int64_t>(left, 0));
        const int x2 = static_cast<int>(std::min<std::int64_t>(right, width));
        Pixel* at = pixels + static_cast<std::ptrdiff_t>(y) * width;
        for (int x = x1; x < x2; ++x) {
            at[x] = color;
        }
    }
};

// Columns of a shape that is filled downwards, at most, and its farthest coordinate.
inline constexpr std::uint32_t kMostColumns = 64;
inline constexpr std::int32_t kFarthest = 8191;

// Fills a shape of the columns left..right - 1, some of them within the ground. False where
// processors of this kind have no such way; nothing is filled then.
bool fillNarrow(std::span<const PixelPoint, 4> corners, const Ground& ground, std::int32_t left,
                std::int32_t right);

}  // namespace ombrelia::raster
