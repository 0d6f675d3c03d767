#include "core/color_ramp.h"

#include <string>

#include "platform/numeric.h"

namespace ombrelia {

namespace {

constexpr int kMetreOrigin = 31;  // the height that reads "0m"

// The first row that contains h, or 0.
int rowOf(std::int16_t h) {
    for (int row = 1; row <= ColorTable::kRows; ++row) {
        if (h >= ColorRange(row, 1, 0) && h <= ColorRange(row, 2, 0)) {
            return row;
        }
    }
    return 0;
}

}  // namespace

void HeightToRGB(std::int16_t& h, double& r, double& g, double& b) {
    if (h > 255) {
        h = 255;
    }
    if (h < 0) {
        h = 0;
    }
    const int row = rowOf(h);
    if (row == 0) {
        return;
    }
    const double low = ColorRange(row, 1, 0);
    const double high = ColorRange(row, 2, 0);
    // Required: a row of one height leaves the colour of before
    // (a_row_of_one_height_leaves_the_colour_alone).
    if (high - low == 0) {
        return;
    }
    const double t = (h - low) / (high - low);
    r = t * ColorRange(row, 2, 1) + (1 - t) * ColorRange(row, 1, 1);
    g = t * ColorRange(row, 2, 2) + (1 - t) * ColorRange(row, 1, 2);
    b = t * ColorRange(row, 2, 3) + (1 - t) * ColorRange(row, 1, 3);
}

Color packRounded(double r, double g, double b) {
    return rgb(static_cast<unsigned>(roundToEven(r)), static_cast<unsigned>(roundToEven(g)),
               static_cast<unsigned>(roundToEven(b)));
}

Color HeightToColor(std::int16_t& h) {
    double r = 0;
    double g = 0;
    double b = 0;
    HeightToRGB(h, r, g, b);
    return packRounded(r, g, b);
}

std::string metresText(int height) {
    return std::to_string((height - kMetreOrigin) * kMetresPerStep) + "m";
}

void ColorLookup::update() {
    if (isFilled_ && table_ == ColorRange) {
        return;
    }
    table_ = ColorRange;
    isFilled_ = true;
    isComplete_ = true;
    for (std::size_t i = 0; i < pixels_.size(); ++i) {
        auto h = static_cast<std::int16_t>(i);
        double r = 0;
        double g = 0;
        double b = 0;
        HeightToRGB(h, r, g, b);
        const int row = rowOf(h);
        hasColor_[i] = row != 0 && ColorRange(row, 1, 0) != ColorRange(row, 2, 0);
        isComplete_ = isComplete_ && hasColor_[i];
        pixels_[i] = hasColor_[i] ? pixelOf(packRounded(r, g, b)) : 0;
    }
}

}  // namespace ombrelia
