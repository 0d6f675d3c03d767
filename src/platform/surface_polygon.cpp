// Polygons of a surface.
#include <algorithm>
#include <array>
#include <utility>

#include "platform/even_steps.h"
#include "platform/failure.h"
#include "platform/surface.h"

namespace ombrelia {

namespace {

template <typename Int>
void sortFew(std::array<Int, Surface::kMostCorners>& items, std::size_t count) {
    for (std::size_t n = 1; n < count; ++n) {
        const Int item = items[n];
        std::size_t hole = n;
        for (; hole > 0 && items[hole - 1] > item; --hole) {
            items[hole] = items[hole - 1];
        }
        items[hole] = item;
    }
}

// The image as a polygon's rows are written to it.
struct Ground {
    Pixel* pixels;
    int width, height;
    Pixel color;

    void fill(std::int64_t y, std::int64_t left, std::int64_t right) const {
        const int x1 = static_cast<int>(std::max<std::int64_t>(left, 0));
        const int x2 = static_cast<int>(std::min<std::int64_t>(right, width));
        Pixel* at = pixels + static_cast<std::ptrdiff_t>(y) * width;
        for (int x = x1; x < x2; ++x) {
            at[x] = color;
        }
    }
};

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

// The first row that lies below an edge in the column of centres x, by the same rule: a centre on
// the edge belongs to what is on its right. a.x <= x < b.x; products fit 32 bits.
inline std::int32_t rowBelow(PixelPoint a, PixelPoint b, std::int32_t x) {
    const std::int32_t dx = b.x - a.x;
    const std::int32_t dy = b.y - a.y;
    const std::int32_t tie = dy < 0 ? 1 : 0;
    if (dx == 1) {
        return a.y + ((dy + 1 - tie) >> 1);
    }
    const std::int32_t n = (2 * (x - a.x) + 1) * dy + dx - tie;
    const std::int32_t quotient = n / (2 * dx);
    return a.y + (n % (2 * dx) < 0 ? quotient - 1 : quotient);
}

void fillColumn(const Ground& ground, std::int32_t x, std::int32_t top, std::int32_t bottom) {
    const std::int32_t first = std::max(top, 0);
    const std::int32_t end = std::min(bottom, ground.height);
    Pixel* at = ground.pixels + static_cast<std::ptrdiff_t>(first) * ground.width + x;
    for (std::int32_t y = first; y < end; ++y, at += ground.width) {
        *at = ground.color;
    }
}

// A shape of few columns, filled downwards. The number of corners is best known when compiling.
template <std::size_t Extent>
void fillNarrow(std::span<const PixelPoint, Extent> corners, const Ground& ground,
                std::int32_t left, std::int32_t right) {
    for (std::int32_t x = std::max(left, 0); x < std::min(right, ground.width); ++x) {
        std::array<std::int32_t, Surface::kMostCorners> rows;
        std::size_t crossings = 0;
        PixelPoint before = corners.back();
        for (const PixelPoint& corner : corners) {
            if (before.x <= x && x < corner.x) {
                rows[crossings++] = rowBelow(before, corner, x);
            } else if (corner.x <= x && x < before.x) {
                rows[crossings++] = rowBelow(corner, before, x);
            }
            before = corner;
        }
        if (crossings > 2) {
            sortFew(rows, crossings);
        }
        for (std::size_t n = 0; n + 1 < crossings; n += 2) {
            fillColumn(ground, x, std::min(rows[n], rows[n + 1]), std::max(rows[n], rows[n + 1]));
        }
    }
}

struct Bounds {
    std::int32_t left, top, right, bottom;
};
template <std::size_t Extent>
Bounds boundsOf(std::span<const PixelPoint, Extent> corners) {
    Bounds bounds{corners[0].x, corners[0].y, corners[0].x, corners[0].y};
    for (const PixelPoint& corner : corners) {
        bounds.left = std::min(bounds.left, corner.x);
        bounds.right = std::max(bounds.right, corner.x);
        bounds.top = std::min(bounds.top, corner.y);
        bounds.bottom = std::max(bounds.bottom, corner.y);
    }
    return bounds;
}

// Whether the only pixel between four corners belongs to them: an odd number of edges passes left
// of its centre or through it. Edges that join two corners on the right pass on its right.
bool isSinglePixelInside(std::span<const PixelPoint, 4> corners, const Bounds& bounds) {
    unsigned right = 0;
    unsigned bottom = 0;
    for (unsigned n = 0; n < 4; ++n) {
        right |= (corners[n].x == bounds.right ? 1U : 0U) << n;
        bottom |= (corners[n].y == bounds.bottom ? 1U : 0U) << n;
    }
    const auto next = [](unsigned bits) { return (bits >> 1U) | ((bits & 1U) << 3U); };
    const unsigned passing = (bottom ^ next(bottom)) & ~(right & next(right));
    return (0x6996U >> (passing & 15U) & 1U) != 0;  // odd number of bits
}

template <std::size_t Extent>
bool fillPolygon(std::span<const PixelPoint, Extent> corners, const Ground& ground) {
    const Bounds bounds = boundsOf(corners);
    const std::int64_t width = static_cast<std::int64_t>(bounds.right) - bounds.left;
    const std::int64_t height = static_cast<std::int64_t>(bounds.bottom) - bounds.top;
    if (width == 0 || height == 0 || bounds.left >= ground.width || bounds.top >= ground.height ||
        bounds.right <= 0 || bounds.bottom <= 0) {
        return false;
    }
    if constexpr (Extent == 4) {
        if (width == 1 && height == 1) {
            if (isSinglePixelInside(corners, bounds)) {
                ground
                    .pixels[static_cast<std::ptrdiff_t>(bounds.top) * ground.width + bounds.left] =
                    ground.color;
            }
            return true;
        }
    }
    // Up to here products of two coordinates fit 32 bits.
    constexpr std::int32_t kSmall = 8191;
    constexpr std::int64_t kNarrow = 4;
    if (bounds.left < -kSmall || bounds.right > kSmall || bounds.top < -kSmall ||
        bounds.bottom > kSmall) {
        PolygonFiller<std::int64_t, Wide>(corners, ground).fill();
    } else if (width <= std::max(kNarrow, height)) {
        fillNarrow(corners, ground, bounds.left, bounds.right);
    } else {
        PolygonFiller<std::int32_t, std::int32_t>(corners, ground).fill();
    }
    return true;
}

}  // namespace

void Surface::polygon(std::span<const PixelPoint> corners, Color color) {
    if (corners.size() < 3 || corners.size() > kMostCorners) {
        throw SubscriptFailure(static_cast<long>(corners.size()), 3, kMostCorners);
    }
    const Ground ground{pixels_.data(), width_, height_, pixelOf(color)};
    const bool isInside = corners.size() == 4 ? fillPolygon(corners.first<4>(), ground)
                                              : fillPolygon(corners, ground);
    if (isInside) {
        changed();
    }
}

}  // namespace ombrelia
