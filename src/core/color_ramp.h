// From heights to colours through ColorRange.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/objects.h"
#include "platform/color.h"

namespace ombrelia {

// The colour of height h by linear interpolation in the first row that contains it. Clamps h itself
// to 0..255. Leaves r, g, b untouched where the row has a single height or no row contains h.
// Results are fractional, 0..255.
void HeightToRGB(std::int16_t& h, double& r, double& g, double& b);

// The same, rounded to nearest (ties to even) and packed; black where HeightToRGB gives nothing.
Color HeightToColor(std::int16_t& h);

// Three components as HeightToRGB gives them, rounded and packed.
Color packRounded(double r, double g, double b);

// Height as the text of its metres: (h - SeaLevel of 31) * 13, then "m".
std::string metresText(int height);

// All 256 heights looked up at once, for loops over many cells: the same colours as HeightToRGB.
class ColorLookup {
  public:
    // Looks everything up anew if ColorRange differs from the last time.
    void update();

    bool hasColor(int height) const { return hasColor_[static_cast<std::size_t>(height)]; }
    Pixel pixel(int height) const { return pixels_[static_cast<std::size_t>(height)]; }

    // The pixels of 0..255 in a row.
    const Pixel* data() const { return pixels_.data(); }

    // Whether each of 0..255 has a colour of its own.
    bool isComplete() const { return isComplete_; }

  private:
    ColorTable table_;
    void takeRow(int row);

    bool isFilled_ = false;
    bool isComplete_ = false;
    std::array<Pixel, kHeights> pixels_{};
    std::array<bool, kHeights> hasColor_{};
};

}  // namespace ombrelia
