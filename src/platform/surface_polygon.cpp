// Polygons of a surface.
#include <algorithm>
#include <array>
#include <utility>

#include "platform/even_steps.h"
#include "platform/failure.h"
#include "platform/narrow_polygon.h"
#include "platform/surface.h"

namespace ombrelia {

namespace {

using namespace raster;

// The first pixel whose centre is not left of an edge, row after row downwards.
template <typename Int, typename Product>
struct Edge {
    Int top, bottom;  // rows top..bottom - 1 have a crossing
    EvenSteps<Int> steps;

    Edge() = default;
    Edge(PixelPoint a, PixelPoint b, Int firstRow) {
        if (a.y > b.y) {
            std::swap(a, b);
        }
        top = a.y;
        bottom = b.y;
        if (bottom <= firstRow || top == bottom) {
            bottom = top;
            return;
        }
        const Product dx = static_cast<Product>(b.x) - a.x;
        const Product dy = static_cast<Product>(b.y) - a.y;
        const Product rows = std::max<Product>(static_cast<Product>(firstRow) - a.y, 0);
        steps.template start<Product>((2 * rows + 1) * dx + dy - 1, 2 * dx, 2 * dy);
        steps.whole += static_cast<Int>(a.x);
    }
};

template <typename Int, typename Product>
class PolygonFiller {
  public:
    PolygonFiller(std::span<const PixelPoint> corners, const Ground& ground) : ground_(ground) {
        PixelPoint before = corners.back();
        for (const PixelPoint& corner : corners) {
            edges_[at(count_)] = Edge<Int, Product>(before, corner, 0);
            levels_[at(count_)] = corner.y;
            ++count_;
            before = corner;
        }
        sortFew(levels_, at(count_));
    }

    // Between two corners' levels the same edges are crossed.
    void fill() {
        for (int n = 0; n + 1 < count_; ++n) {
            const Int top = std::max<Int>(levels_[at(n)], 0);
            const Int bottom = std::min<Int>(levels_[at(n + 1)], static_cast<Int>(ground_.height));
            if (top < bottom) {
                fillRows(top, bottom);
            }
        }
    }

  private:
    using Active = std::array<EvenSteps<Int>*, Surface::kMostCorners>;

    static std::size_t at(int n) { return static_cast<std::size_t>(n); }

    void fillRows(Int top, Int bottom) {
        Active active;
        int crossings = 0;
        for (int n = 0; n < count_; ++n) {
            if (edges_[at(n)].top <= top && edges_[at(n)].bottom >= bottom) {
                active[at(crossings++)] = &edges_[at(n)].steps;
            }
        }
        if (crossings == 2) {
            fillBetween(*active[0], *active[1], top, bottom);
            return;
        }
        for (Int y = top; y < bottom; ++y) {
            fillSorted(active, crossings, y);
        }
    }

    void fillBetween(EvenSteps<Int>& one, EvenSteps<Int>& other, Int top, Int bottom) {
        EvenSteps<Int> a = one;
        EvenSteps<Int> b = other;
        for (Int y = top; y < bottom; ++y) {
            ground_.fill(y, std::min(a.whole, b.whole), std::max(a.whole, b.whole));
            a.step();
            b.step();
        }
        one = a;
        other = b;
    }

    void fillSorted(Active& active, int crossings, Int y) {
        std::array<Int, Surface::kMostCorners> places;
        for (int n = 0; n < crossings; ++n) {
            places[at(n)] = active[at(n)]->whole;
            active[at(n)]->step();
        }
        sortFew(places, at(crossings));
        for (int n = 0; n + 1 < crossings; n += 2) {
            ground_.fill(y, places[at(n)], places[at(n + 1)]);
        }
    }

    const Ground& ground_;
    std::array<Edge<Int, Product>, Surface::kMostCorners> edges_;
    std::array<Int, Surface::kMostCorners> levels_;
    int count_ = 0;
};

struct Bounds {
    std::int32_t left, top, right, bottom;
};

// Two pairs first: all comparisons of four corners but two can be made at once.
Bounds boundsOf(std::span<const PixelPoint, 4> corners) {
    const Range x1 = sorted(corners[0].x, corners[1].x);
    const Range x2 = sorted(corners[2].x, corners[3].x);
    const Range y1 = sorted(corners[0].y, corners[1].y);
    const Range y2 = sorted(corners[2].y, corners[3].y);
    return {std::min(x1.low, x2.low), std::min(y1.low, y2.low), std::max(x1.high, x2.high),
            std::max(y1.high, y2.high)};
}

Bounds boundsOf(std::span<const PixelPoint> corners) {
    Bounds bounds{corners[0].x, corners[0].y, corners[0].x, corners[0].y};
    for (const PixelPoint& corner : corners) {
        bounds.left = std::min(bounds.left, corner.x);
        bounds.right = std::max(bounds.right, corner.x);
        bounds.top = std::min(bounds.top, corner.y);
        bounds.bottom = std::max(bounds.bottom, corner.y);
    }
    return bounds;
}

// From one coordinate to a larger one.
std::uint32_t distance(std::int32_t from, std::int32_t to) {
    return static_cast<std::uint32_t>(to) - static_cast<std::uint32_t>(from);
}

template <std::size_t Extent>
bool fillPolygon(std::span<const PixelPoint, Extent> corners, const Ground& ground) {
    const Bounds bounds = boundsOf(corners);
    const std::uint32_t width = distance(bounds.left, bounds.right);
    const std::uint32_t height = distance(bounds.top, bounds.bottom);
    if (width == 0 || height == 0 || bounds.left >= ground.width || bounds.top >= ground.height ||
        bounds.right <= 0 || bounds.bottom <= 0) {
        return false;
    }
    if (bounds.left < -kFarthest || bounds.right > kFarthest || bounds.top < -kFarthest ||
        bounds.bottom > kFarthest) {
        PolygonFiller<std::int64_t, Wide>(corners, ground).fill();
        return true;
    }
    if constexpr (Extent == 4) {
        constexpr std::uint32_t kNarrow = 4;
        if (width <= std::min(std::max(kNarrow, height), kMostColumns) &&
            fillNarrow(corners, ground, bounds.left, bounds.right)) {
            return true;
        }
    }
    // Products of two coordinates fit 32 bits.
    PolygonFiller<std::int32_t, std::int32_t>(corners, ground).fill();
    return true;
}

}  // namespace

void Surface::polygon(std::span<const PixelPoint> corners, Color color) {
    if (corners.size() < 3 || corners.size() > kMostCorners) {
        throwSubscript(static_cast<long>(corners.size()), 3, kMostCorners);
    }
    const Ground ground{pixels_.data(), width_, height_, pixelOf(color)};
    const bool isInside = corners.size() == 4 ? fillPolygon(corners.first<4>(), ground)
                                              : fillPolygon(corners, ground);
    if (isInside) {
        changed();
    }
}

}  // namespace ombrelia
