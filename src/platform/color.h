// Colours as the logic holds them.
#pragma once

#include <cstdint>

namespace ombrelia {

// A packed colour: red in the lowest byte, then green, then blue.
using Color = std::uint32_t;

// A pixel of a surface's image: 0xFFRRGGBB.
using Pixel = std::uint32_t;

// Packs three components 0..255.
constexpr Color rgb(unsigned red, unsigned green, unsigned blue) {
    return (red & 0xFFU) | ((green & 0xFFU) << 8U) | ((blue & 0xFFU) << 16U);
}

constexpr unsigned redOf(Color color) {
    return color & 0xFFU;
}
constexpr unsigned greenOf(Color color) {
    return (color >> 8U) & 0xFFU;
}
constexpr unsigned blueOf(Color color) {
    return (color >> 16U) & 0xFFU;
}

constexpr Pixel pixelOf(Color color) {
    return 0xFF000000U | (redOf(color) << 16U) | (greenOf(color) << 8U) | blueOf(color);
}
constexpr Color colorOf(Pixel pixel) {
    return rgb(pixel >> 16U, pixel >> 8U, pixel);
}

}  // namespace ombrelia
