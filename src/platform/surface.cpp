#include "platform/surface.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

#include "platform/large_memory.h"
#include "platform/numeric.h"
#include "platform/wide_vectors.h"

namespace ombrelia {

void Surface::setSize(int width, int height) {
    width_ = std::max(0, width);
    height_ = std::max(0, height);
    scaleToPixels();
    const std::size_t count = static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_);
    if (count > pixels_.capacity()) {
        pixels_ = {};
        pixels_.reserve(count);
        preferLargePages(pixels_.data(), count * sizeof(Pixel));
    }
    pixels_.assign(count, ground());
    changed();
}

void Surface::scaleToPixels() {
    ScaleLeft = 0;
    ScaleTop = 0;
    ScaleWidth = static_cast<float>(width_);
    ScaleHeight = static_cast<float>(height_);
}

void Surface::exchangeImage(Surface& other) {
    pixels_.swap(other.pixels_);
    std::swap(width_, other.width_);
    std::swap(height_, other.height_);
    for (Surface* surface : {this, &other}) {
        surface->scaleToPixels();
        surface->changed();
    }
}

Pixel Surface::ground() const {
    return ShowsGround ? pixelOf(Background) & 0x00FFFFFFU : pixelOf(Background);
}

void Surface::clear() {
    std::fill(pixels_.begin(), pixels_.end(), ground());
    changed();
}

Pixel* Surface::row(int y) {
    return pixels_.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width_);
}

const Pixel* Surface::row(int y) const {
    return pixels_.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width_);
}

void Surface::setPixel(int x, int y, Color color) {
    if (x < 0 || y < 0 || x >= width_ || y >= height_) {
        return;
    }
    row(y)[x] = pixelOf(color);
    changed();
}

bool Surface::hasPixelScale() const {
    return ScaleLeft == 0 && ScaleTop == 0 && ScaleWidth == static_cast<float>(width_) &&
           ScaleHeight == static_cast<float>(height_);
}

void Surface::dot(double u, double v, Color color) {
    const std::int64_t x = roundToEven(pixelX(u));
    const std::int64_t y = roundToEven(pixelY(v));
    fillPixels(x, y, x, y, color);
}

void Surface::box(double u1, double v1, double u2, double v2, Color color) {
    const auto [left, right] = std::minmax({roundToEven(pixelX(u1)), roundToEven(pixelX(u2))});
    const auto [top, bottom] = std::minmax({roundToEven(pixelY(v1)), roundToEven(pixelY(v2))});
    fillPixels(left, top, right, bottom, color);
}

void Surface::fillPixels(std::int64_t left, std::int64_t top, std::int64_t right,
                         std::int64_t bottom, Color color) {
    const int x1 = static_cast<int>(std::max<std::int64_t>(left, 0));
    const int x2 = static_cast<int>(std::min<std::int64_t>(right, width_ - 1));
    const int y1 = static_cast<int>(std::max<std::int64_t>(top, 0));
    const int y2 = static_cast<int>(std::min<std::int64_t>(bottom, height_ - 1));
    if (x1 > x2) {
        return;
    }
    const Pixel pixel = pixelOf(color);
    for (int y = y1; y <= y2; ++y) {
        std::fill(row(y) + x1, row(y) + x2 + 1, pixel);
    }
    changed();
}

namespace {

// A stretch of pixels on one axis of the target and what it takes from the source's.
struct Stretch {
    int first, count;  // pixels of the target
    double targetStart, targetLength, sourceStart, sourceLength;
};

// Source pixels under the centres of the target's; may lie outside the source.
OMBRELIA_IN_BOTH void findSources(const Stretch& stretch, std::int32_t* sources) {
    for (int n = 0; n < stretch.count; ++n) {
        const int i = stretch.first + n;
        const double share = (i + 0.5 - stretch.targetStart) / stretch.targetLength;
        double place = stretch.sourceStart + share * stretch.sourceLength;
        place = place > -1.0 ? place : -1.0;
        place = place < 1.0e6 ? place : 1.0e6;
        const auto whole = static_cast<std::int32_t>(place);
        sources[n] = whole - (whole > place ? 1 : 0);
    }
}

OMBRELIA_WIDE void findSourcesWide(const Stretch& stretch, std::int32_t* sources) {
    findSources(stretch, sources);
}

// The sources of a stretch, in memory that is lent for them.
const std::int32_t* sourcesOf(const Stretch& stretch, std::vector<std::int32_t>& memory) {
    memory.resize(static_cast<std::size_t>(stretch.count));
    if (hasWideVectors()) {
        findSourcesWide(stretch, memory.data());
    } else {
        findSources(stretch, memory.data());
    }
    return memory.data();
}

// First and one-past-last pixel whose centre lies in start..start + length, cut to 0..size.
struct PixelSpan {
    int first, end;
};
PixelSpan pixelsInside(double start, double length, int size) {
    const auto cut = [size](double edge) {
        return static_cast<int>(std::clamp(std::ceil(edge - 0.5), 0.0, static_cast<double>(size)));
    };
    return {cut(start), cut(start + length)};
}

// Copies one row through the column table; whole runs at once where the columns follow each other.
void copyRow(Pixel* to, const Pixel* from, int fromWidth, const std::int32_t* columns, int count) {
    if (count > 0 && columns[0] >= 0 && columns[count - 1] < fromWidth) {
        if (columns[count - 1] - columns[0] == count - 1) {
            std::memcpy(to, from + columns[0], static_cast<std::size_t>(count) * sizeof(Pixel));
        } else if (columns[0] == columns[count - 1]) {
            std::fill(to, to + count, from[columns[0]]);
        } else {
            for (int i = 0; i < count; ++i) {
                to[i] = from[columns[i]];
            }
        }
        return;
    }
    for (int i = 0; i < count; ++i) {
        if (columns[i] >= 0 && columns[i] < fromWidth) {
            to[i] = from[columns[i]];
        }
    }
}

}  // namespace

void Surface::stretchedCopy(const Surface& source, const Area& to, const Area& from) {
    const double toX = pixelX(to.x);
    const double toY = pixelY(to.y);
    const double toWidth = to.width * width_ / ScaleWidth;
    const double toHeight = to.height * height_ / ScaleHeight;
    const double fromX = source.pixelX(from.x);
    const double fromY = source.pixelY(from.y);
    const double fromWidth = from.width * source.width_ / source.ScaleWidth;
    const double fromHeight = from.height * source.height_ / source.ScaleHeight;
    const PixelSpan across = pixelsInside(toX, toWidth, width_);
    const PixelSpan down = pixelsInside(toY, toHeight, height_);
    const int columns = across.end - across.first;
    const int rows = down.end - down.first;
    if (columns <= 0 || rows <= 0) {
        return;
    }
    const std::int32_t* sourceX =
        sourcesOf({across.first, columns, toX, toWidth, fromX, fromWidth}, sourceColumns_);
    const std::int32_t* sourceY =
        sourcesOf({down.first, rows, toY, toHeight, fromY, fromHeight}, sourceRows_);
    for (int n = 0; n < rows; ++n) {
        if (sourceY[n] >= 0 && sourceY[n] < source.height_) {
            copyRow(row(down.first + n) + across.first, source.row(sourceY[n]), source.width_,
                    sourceX, columns);
        }
    }
    changed();
}

}  // namespace ombrelia
