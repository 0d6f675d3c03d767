// Small surfaces written as rows of letters.
#pragma once

#include <string>
#include <vector>

#include "pixel_at.h"
#include "platform/surface.h"

namespace ombrelia {

inline constexpr Color kRed = rgb(255, 0, 0);
inline constexpr Color kBlue = rgb(0, 0, 255);

// The image as letters: '.' black, 'r' red, 'b' blue, '?' anything else.
inline std::vector<std::string> lettersOf(const Surface& surface) {
    std::vector<std::string> rows;
    for (int y = 0; y < surface.height(); ++y) {
        std::string row;
        for (int x = 0; x < surface.width(); ++x) {
            const auto color = static_cast<Color>(pixelAt(surface, x, y));
            row += color == 0 ? '.' : color == kRed ? 'r' : color == kBlue ? 'b' : '?';
        }
        rows.push_back(row);
    }
    return rows;
}

inline Surface surfaceOf(int width, int height) {
    Surface surface;
    surface.setSize(width, height);
    return surface;
}

}  // namespace ombrelia
