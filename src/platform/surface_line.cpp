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

// A pixel, and one more for each step, all of them on the picture. The distances are in pixels of
// the image's memory.
void drawThin(Pixel* at, const EvenSteps<std::int64_t>& steps, std::int64_t count,
              std::int64_t alongStep, std::int64_t acrossStep, Pixel pixel) {
    // Without a jump: which step carries over cannot be foretold.
    const std::int64_t plainStep = alongStep + steps.wholeStep * acrossStep;
    std::int64_t rest = steps.rest;
    *at = pixel;
    for (std::int64_t n = 0; n < count; ++n) {
        rest += steps.restStep - steps.divisor;
        const std::int64_t isShort = rest >> 63;  // all bits, or none
        rest += steps.divisor & isShort;
        at += plainStep + (acrossStep & ~isShort);
        *at = pixel;
    }
}

}  // namespace

void Surface::line(double u1, double v1, double u2, double v2, Color color) {
    linePixels({nearestPixel(pixelX(u1)), nearestPixel(pixelY(v1))},
               {nearestPixel(pixelX(u2)), nearestPixel(pixelY(v2))}, color);
}

void Surface::linePixels(PixelPoint from, PixelPoint to, Color color) {
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
    if (DrawWidth == 1 && low >= 0 && high < side) {
        const std::int64_t row = width_;
        const std::int64_t place = line.along + line.alongSign * range.first;
        Pixel* at = pixels_.data() + (line.isSteep ? place * row + start : start * row + place);
        const std::int64_t alongStep = line.alongSign * (line.isSteep ? row : 1);
        const std::int64_t acrossStep = line.acrossSign * (line.isSteep ? 1 : row);
        drawThin(at, steps, range.last - range.first, alongStep, acrossStep, pixelOf(color));
        changed();
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
