#include "platform/plain_picture.h"

#include <algorithm>
#include <cstdlib>

namespace ombrelia {

void PlainPicture::pixel(std::int64_t x, std::int64_t y, Color color) {
    if (x >= 0 && x < width_ && y >= 0 && y < height_) {
        pixels_[static_cast<std::size_t>(y * width_ + x)] = pixelOf(color);
    }
}

void PlainPicture::line(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2,
                        int lineWidth, Color color) {
    const bool isSteep = std::llabs(y2 - y1) > std::llabs(x2 - x1);
    const std::int64_t a1 = isSteep ? y1 : x1;
    const std::int64_t a2 = isSteep ? y2 : x2;
    const std::int64_t b1 = isSteep ? x1 : y1;
    const std::int64_t b2 = isSteep ? x2 : y2;
    const int count = isSteep ? height_ : width_;
    const std::int64_t before = (lineWidth - 1) / 2;
    // Only places of the long axis that the picture has.
    for (std::int64_t a = std::max<std::int64_t>(std::min(a1, a2), 0);
         a <= std::min<std::int64_t>(std::max(a1, a2), count - 1); ++a) {
        // |b - b1| is the nearest whole number to share * length, halves up. 80-bit numbers hold
        // the products of 33-bit ones only up to rounding, so whole numbers are split.
        const std::int64_t length = std::llabs(a2 - a1);
        const std::int64_t rise = std::llabs(b2 - b1);
        std::int64_t offset = 0;
        if (length != 0) {
            __extension__ using Wide = __int128;
            const Wide twice = 2 * static_cast<Wide>(std::llabs(a - a1)) * rise + length;
            offset = static_cast<std::int64_t>(twice / (2 * static_cast<Wide>(length)));
        }
        const std::int64_t b = b2 < b1 ? b1 - offset : b1 + offset;
        for (int n = 0; n < lineWidth; ++n) {
            const std::int64_t across = b - before + n;
            isSteep ? pixel(across, a, color) : pixel(a, across, color);
        }
    }
}

void PlainPicture::polygon(const std::vector<Corner>& corners, Color color) {
    __extension__ using Wide = __int128;
    const auto inPicture = [](std::int64_t place, int side) {
        return static_cast<int>(std::clamp<std::int64_t>(place, 0, side));
    };
    const auto isLeft = [](const Corner& a, const Corner& b) { return a.x < b.x; };
    const auto isAbove = [](const Corner& a, const Corner& b) { return a.y < b.y; };
    const auto [left, right] = std::minmax_element(corners.begin(), corners.end(), isLeft);
    const auto [top, bottom] = std::minmax_element(corners.begin(), corners.end(), isAbove);
    for (int y = inPicture(top->y, height_); y < inPicture(bottom->y, height_); ++y) {
        for (int x = inPicture(left->x, width_); x < inPicture(right->x, width_); ++x) {
            bool isInside = false;
            for (std::size_t n = 0; n < corners.size(); ++n) {
                Corner a = corners[n];
                Corner b = corners[(n + 1) % corners.size()];
                if (a.y > b.y) {
                    std::swap(a, b);
                }
                if (y < a.y || y >= b.y) {
                    continue;
                }
                // The edge crosses the row of centres at or left of this centre, in halves:
                // a.x + (y + 1/2 - a.y) (b.x - a.x) / (b.y - a.y) <= x + 1/2.
                const Wide height = b.y - a.y;
                const Wide crossing = 2 * static_cast<Wide>(a.x) * height +
                                      (2 * static_cast<Wide>(y - a.y) + 1) * (b.x - a.x);
                if (crossing <= (2 * static_cast<Wide>(x) + 1) * height) {
                    isInside = !isInside;
                }
            }
            if (isInside) {
                pixel(x, y, color);
            }
        }
    }
}

}  // namespace ombrelia
