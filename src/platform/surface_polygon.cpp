// Polygons of a surface.
#include <algorithm>
#include <array>
#include <utility>

#include "platform/even_steps.h"
#include "platform/failure.h"
#include "platform/surface.h"

namespace ombrelia {

namespace {

template <typename Int, std::size_t Most>
void sortFew(std::array<Int, Most>& items, std::size_t count) {
    for (std::size_t n = 1; n < count; ++n) {
        const Int item = items[n];
        std::size_t hole = n;
        for (; hole > 0 && items[hole - 1] > item; --hole) {
            items[hole] = items[hole - 1];
        }
        items[hole] = item;
    }
}

// Where edges pass through a line of pixels; one more is written than counts.
using Passings = std::array<std::int32_t, Surface::kMostCorners + 1>;

// Most lines are passed twice.
void sortPassings(Passings& places, std::size_t count) {
    if (count > 2) {
        sortFew(places, count);
    } else if (count == 2) {
        const auto [lower, upper] = std::minmax({places[0], places[1]});
        places[0] = lower;
        places[1] = upper;
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

// Columns of a shape that is filled downwards, at most.
constexpr std::uint32_t kMostColumns = 64;

// A quotient by 2 * columns as a product: 2^32 / (2 * columns), rounded up.
constexpr std::array<std::int64_t, kMostColumns + 1> kReciprocals = [] {
    std::array<std::int64_t, kMostColumns + 1> reciprocals{};
    for (std::size_t columns = 1; columns <= kMostColumns; ++columns) {
        const auto divisor = static_cast<std::int64_t>(2 * columns);
        reciprocals[columns] = ((std::int64_t{1} << 32U) + divisor - 1) / divisor;
    }
    return reciprocals;
}();

// The first row that lies below an edge, column after column, by the same rule: a centre on the
// edge belongs to what is on its right. Coordinates have 13 bits, so the products are exact.
class SteepEdge {
  public:
    SteepEdge() = default;
    SteepEdge(const PixelPoint& one, const PixelPoint& other, std::int32_t firstColumn) {
        const PixelPoint& a = one.x < other.x ? one : other;
        const PixelPoint& b = one.x < other.x ? other : one;
        const std::int32_t dy = b.y - a.y;
        columns_ = b.x - a.x;
        column_ = firstColumn - a.x;
        upper_ = std::min(a.y, b.y);
        reciprocal_ = kReciprocals[static_cast<std::size_t>(columns_)];
        growth_ = 2 * dy;
        // Above 0 on the whole edge.
        numerator_ = (2 * column_ + 1) * dy + columns_ + (dy < 0 ? -2 * columns_ * dy - 1 : 0);
    }

    // Whether the edge passes through the present column, and where.
    bool isHere() const {
        return static_cast<std::uint32_t>(column_) < static_cast<std::uint32_t>(columns_);
    }
    std::int32_t row() const {
        return upper_ + static_cast<std::int32_t>((numerator_ * reciprocal_) >> 32U);
    }

    void step() {
        ++column_;
        numerator_ += growth_;
    }

  private:
    std::int32_t columns_;
    std::int32_t column_;  // from the edge's first
    std::int32_t upper_;
    std::int32_t growth_;
    std::int64_t numerator_;
    std::int64_t reciprocal_;
};

void fillColumn(const Ground& ground, std::int32_t x, std::int32_t top, std::int32_t bottom) {
    const std::int32_t first = std::max(top, 0);
    const std::int32_t end = std::min(bottom, ground.height);
    Pixel* at = ground.pixels + static_cast<std::ptrdiff_t>(first) * ground.width + x;
    for (std::int32_t y = first; y < end; ++y, at += ground.width) {
        *at = ground.color;
    }
}

// A shape of few columns, filled downwards. The number of corners is best known when compiling.
// Which edges pass through a column is as good as chance, so there is no branch for it.
template <std::size_t Extent>
void fillNarrow(std::span<const PixelPoint, Extent> corners, const Ground& ground,
                std::int32_t left, std::int32_t right) {
    std::array<SteepEdge, Surface::kMostCorners> edges;
    const std::int32_t first = std::max(left, 0);
    PixelPoint before = corners.back();
    for (std::size_t n = 0; n < corners.size(); ++n) {
        edges[n] = SteepEdge(before, corners[n], first);
        before = corners[n];
    }
    for (std::int32_t x = first; x < std::min(right, ground.width); ++x) {
        Passings rows;
        std::size_t crossings = 0;
        for (std::size_t n = 0; n < corners.size(); ++n) {
            rows[crossings] = edges[n].row();
            crossings += edges[n].isHere() ? 1U : 0U;
            edges[n].step();
        }
        sortPassings(rows, crossings);
        for (std::size_t n = 0; n + 1 < crossings; n += 2) {
            fillColumn(ground, x, rows[n], rows[n + 1]);
        }
    }
}

// Where the four edges pass between two neighbouring lines of places, sorted; how many do. Which
// edges they are is as good as chance, so there is no branch for it.
template <typename IsBefore, typename PlaceOf>
std::size_t findPassings(std::span<const PixelPoint, 4> corners, IsBefore isBefore, PlaceOf placeOf,
                         Passings& places) {
    std::size_t count = 0;
    PixelPoint before = corners[3];
    for (const PixelPoint& corner : corners) {
        const bool isFirst = isBefore(before);
        places[count] = isFirst ? placeOf(before, corner) : placeOf(corner, before);
        count += isFirst != isBefore(corner) ? 1U : 0U;
        before = corner;
    }
    sortPassings(places, count);
    return count;
}

// A shape of one column: an edge passes half way between its ends, down from there if it falls.
void fillOneColumn(std::span<const PixelPoint, 4> corners, const Ground& ground,
                   std::int32_t left) {
    Passings rows;
    const std::size_t count = findPassings(
        corners, [left](const PixelPoint& corner) { return corner.x == left; },
        [](const PixelPoint& a, const PixelPoint& b) {
            return (a.y + b.y + (b.y >= a.y ? 1 : 0)) >> 1;
        },
        rows);
    for (std::size_t n = 0; n + 1 < count; n += 2) {
        fillColumn(ground, left, rows[n], rows[n + 1]);
    }
}

// A shape of one row.
void fillOneRow(std::span<const PixelPoint, 4> corners, const Ground& ground, std::int32_t top) {
    Passings columns;
    const std::size_t count = findPassings(
        corners, [top](const PixelPoint& corner) { return corner.y == top; },
        [](const PixelPoint& a, const PixelPoint& b) { return (a.x + b.x) >> 1; }, columns);
    for (std::size_t n = 0; n + 1 < count; n += 2) {
        ground.fill(top, columns[n], columns[n + 1]);
    }
}

struct Bounds {
    std::int32_t left, top, right, bottom;
};
// The smaller and the larger of two numbers.
struct Range {
    std::int32_t low, high;

    Range(std::int32_t a, std::int32_t b) : low(b < a ? b : a), high(b < a ? a : b) {}
};

// Two pairs first: all comparisons of four corners but two can be made at once.
Bounds boundsOf(std::span<const PixelPoint, 4> corners) {
    const Range x1(corners[0].x, corners[1].x);
    const Range x2(corners[2].x, corners[3].x);
    const Range y1(corners[0].y, corners[1].y);
    const Range y2(corners[2].y, corners[3].y);
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
    constexpr std::uint32_t kNarrow = 4;
    if (bounds.left < -kSmall || bounds.right > kSmall || bounds.top < -kSmall ||
        bounds.bottom > kSmall) {
        PolygonFiller<std::int64_t, Wide>(corners, ground).fill();
        return true;
    }
    if constexpr (Extent == 4) {
        if (width == 1) {
            fillOneColumn(corners, ground, bounds.left);
            return true;
        }
        if (height == 1) {
            fillOneRow(corners, ground, bounds.top);
            return true;
        }
    }
    if (width <= std::min(std::max(kNarrow, height), kMostColumns)) {
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
