#include "core/color_ramp.h"

#include <algorithm>
#include <array>
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

// The colours between the two ends of a row.
class RowColors {
  public:
    explicit RowColors(int row) : low_(ColorRange(row, 1, 0)), span_(ColorRange(row, 2, 0) - low_) {
        for (int component = 1; component <= 3; ++component) {
            const auto n = static_cast<std::size_t>(component - 1);
            atLow_[n] = ColorRange(row, 1, component);
            atHigh_[n] = ColorRange(row, 2, component);
        }
    }

    bool hasAny() const { return span_ != 0; }

    void at(int h, double& r, double& g, double& b) const {
        const double t = (h - low_) / span_;
        r = t * atHigh_[0] + (1 - t) * atLow_[0];
        g = t * atHigh_[1] + (1 - t) * atLow_[1];
        b = t * atHigh_[2] + (1 - t) * atLow_[2];
    }

  private:
    double low_, span_;
    std::array<double, 3> atLow_{};
    std::array<double, 3> atHigh_{};
};

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
    // Required: a row of one height leaves the colour of before
    // (a_row_of_one_height_leaves_the_colour_alone).
    if (const RowColors colors(row); colors.hasAny()) {
        colors.at(h, r, g, b);
    }
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
    pixels_.fill(0);
    hasColor_.fill(false);
    // The first row that contains a height counts, so it comes last.
    for (int row = ColorTable::kRows; row >= 1; --row) {
        takeRow(row);
    }
    isComplete_ = std::find(hasColor_.begin(), hasColor_.end(), false) == hasColor_.end();
}

void ColorLookup::takeRow(int row) {
    const RowColors colors(row);
    const int last = std::min<int>(ColorRange(row, 2, 0), 255);
    for (int h = std::max<int>(ColorRange(row, 1, 0), 0); h <= last; ++h) {
        const auto i = static_cast<std::size_t>(h);
        hasColor_[i] = colors.hasAny();
        pixels_[i] = 0;
        if (colors.hasAny()) {
            double r = 0;
            double g = 0;
            double b = 0;
            colors.at(h, r, g, b);
            pixels_[i] = pixelOf(packRounded(r, g, b));
        }
    }
}

}  // namespace ombrelia
