// Lines of a surface.
#include <algorithm>
#include <cstdlib>
#include <limits>

#include "platform/even_steps.h"
#include "platform/numeric.h"
#include "platform/surface.h"

namespace ombrelia {

namespace {

std::int32_t nearestPixel(double place) {
    constexpr double kLow = std::numeric_limits<std::int32_t>::min();
    constexpr double kHigh = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(roundToEven(std::clamp(place, kLow, kHigh)));
}

// A line told by its longer axis (along) and the other one (across).
struct LineCourse {
    bool isSteep;
    std::int64_t along, across;  // of the first end
    std::int64_t length, rise;
    int alongSign, acrossSign;
};

LineCourse courseOf(PixelPoint from, PixelPoint to) {
    const std::int64_t dx = static_cast<std::int64_t>(to.x) - from.x;
    const std::int64_t dy = static_cast<std::int64_t>(to.y) - from.y;
    const std::int64_t width = std::llabs(dx);
    const std::int64_t height = std::llabs(dy);
    const int signX = dx < 0 ? -1 : 1;
    const int signY = dy < 0 ? -1 : 1;
    if (height > width) {
        return {true, from.y, from.x, height, width, signY, signX};
    }
    return {false, from.x, from.y, width, height, signX, signY};
}

// The steps of a line that lie on the picture's side along its longer axis.
struct StepRange {
    std::int64_t first, last;
};
StepRange stepsInside(const LineCourse& line, int side) {
    const std::int64_t toFar = side - 1 - line.along;
    if (line.alongSign > 0) {
        return {std::max<std::int64_t>(0, -line.along), std::min(line.length, toFar)};
    }
    return {std::max<std::int64_t>(0, -toFar), std::min(line.length, line.along)};
}

EvenSteps<std::int64_t> stepsAcross(const LineCourse& line, std::int64_t first) {
    EvenSteps<std::int64_t> steps;
    if (line.length == 0) {
        return steps;
    }
    if (line.length < (std::int64_t{1} << 30)) {
        steps.start<std::int64_t>(2 * first * line.rise + line.length, 2 * line.rise,
                                  2 * line.length);
    } else {
        steps.start<Wide>(2 * static_cast<Wide>(first) * line.rise + line.length, 2 * line.rise,
                          2 * line.length);
    }
    return steps;
}

// Offset across after a number of steps.
std::int64_t riseAt(const LineCourse& line, std::int64_t step) {
    return stepsAcross(line, step).whole;
}

// A line of one pixel that lies on the picture, in short numbers and without a division.
void drawThinInside(Pixel* pixels, std::int32_t width, PixelPoint from, PixelPoint to,
                    Pixel pixel) {
    const std::int32_t dx = to.x - from.x;
    const std::int32_t dy = to.y - from.y;
    const std::int32_t columns = std::abs(dx);
    const std::int32_t rows = std::abs(dy);
    const std::int32_t stepX = dx < 0 ? -1 : 1;
    const std::int32_t stepY = dy < 0 ? -width : width;
    const bool isSteep = rows > columns;
    const std::int32_t length = isSteep ? rows : columns;
    const std::int32_t rise = 2 * (isSteep ? columns : rows);
    const std::int32_t alongStep = isSteep ? stepY : stepX;
    const std::int32_t acrossStep = isSteep ? stepX : stepY;
    Pixel* at = pixels + static_cast<std::ptrdiff_t>(from.y) * width + from.x;
    *at = pixel;
    std::int32_t rest = -length;  // of an even step, less a whole one
    // Without a branch: which step carries over cannot be foretold.
    for (std::int32_t n = 0; n < length; ++n) {
        rest += rise;
        const std::int32_t isShort = rest >> 31;  // all bits, or none
        rest -= 2 * length & ~isShort;
        at += alongStep + (acrossStep & ~isShort);
        *at = pixel;
    }
}

}  // namespace

void Surface::line(double u1, double v1, double u2, double v2, Color color) {
    linePixels({nearestPixel(pixelX(u1)), nearestPixel(pixelY(v1))},
               {nearestPixel(pixelX(u2)), nearestPixel(pixelY(v2))}, color);
}

void Surface::linePixels(PixelPoint from, PixelPoint to, Color color) {
    const auto isInside = [this](PixelPoint place) {
        return place.x >= 0 && place.x < width_ && place.y >= 0 && place.y < height_;
    };
    if (DrawWidth == 1 && isInside(from) && isInside(to)) {
        drawThinInside(pixels_.data(), width_, from, to, pixelOf(color));
        changed();
        return;
    }
    const LineCourse line = courseOf(from, to);
    const StepRange range = stepsInside(line, line.isSteep ? height_ : width_);
    if (range.first > range.last) {
        return;
    }
    const std::int64_t before = (DrawWidth - 1) / 2;
    const std::int64_t after = DrawWidth - 1 - before;
    const std::int64_t side = line.isSteep ? width_ : height_;
    EvenSteps<std::int64_t> steps = stepsAcross(line, range.first);
    const std::int64_t start = line.across + line.acrossSign * steps.whole;
    const std::int64_t end = range.last == line.length
                                 ? line.across + line.acrossSign * line.rise
                                 : line.across + line.acrossSign * riseAt(line, range.last);
    const auto [low, high] = std::minmax(start, end);
    if (high + after < 0 || low - before >= side) {
        return;
    }
    for (std::int64_t n = range.first; n <= range.last; ++n, steps.step()) {
        const std::int64_t a = line.along + line.alongSign * n;
        const std::int64_t b = line.across + line.acrossSign * steps.whole;
        if (line.isSteep) {
            fillPixels(b - before, a, b + after, a, color);
        } else {
            fillPixels(a, b - before, a, b + after, color);
        }
    }
}

}  // namespace ombrelia
