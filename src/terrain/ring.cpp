#include "terrain/ring.h"

#include "core/angles.h"
#include "platform/wide_vectors.h"

namespace ombrelia {

namespace {

constexpr int kDegrees = 360;

// What the loops over the directions of one circle read.
struct Circle {
    double x, y, r;
    const double* cosines;
    const double* sines;
    std::size_t count;
};

OMBRELIA_IN_BOTH void cellsInside(const Circle& circle, std::int32_t* cells) {
    const auto [x, y, r, cosines, sines, count] = circle;
    for (std::size_t n = 0; n < count; ++n) {
        const double px = wholeBelow(x + r * cosines[n]);
        const double py = wholeBelow(y + r * sines[n]);
        cells[n] = integerOf(px + HeightGrid::kSide * py);
    }
}

OMBRELIA_IN_BOTH void cellsAcrossTheBorder(const Circle& circle, double side, std::int32_t* cells) {
    const auto [x, y, r, cosines, sines, count] = circle;
    for (std::size_t n = 0; n < count; ++n) {
        const double px = wholeBelow(x + r * cosines[n]);
        const double py = wholeBelow(y + r * sines[n]);
        double cell = px + HeightGrid::kSide * py;
        cell = px < 0 ? RingCells::kOutside : cell;
        cell = px > side ? RingCells::kOutside : cell;
        cell = py < 0 ? RingCells::kOutside : cell;
        cell = py > side ? RingCells::kOutside : cell;
        cells[n] = integerOf(cell);
    }
}

OMBRELIA_WIDE void findWide(const Circle& circle, bool isInside, double side, std::int32_t* cells) {
    if (isInside) {
        cellsInside(circle, cells);
    } else {
        cellsAcrossTheBorder(circle, side, cells);
    }
}

void findNarrow(const Circle& circle, bool isInside, double side, std::int32_t* cells) {
    if (isInside) {
        cellsInside(circle, cells);
    } else {
        cellsAcrossTheBorder(circle, side, cells);
    }
}

// Whether every cell within reach of a coordinate is on the map.
bool reachesInside(double middle, double reach, int side) {
    return middle - reach >= 1 && middle + reach <= side - 1;
}

}  // namespace

Directions Directions::fromTable(int firstThirds, int stepThirds, int count) {
    Directions made;
    made.cosines_.reserve(static_cast<std::size_t>(count));
    made.sines_.reserve(static_cast<std::size_t>(count));
    for (int n = 0; n < count; ++n) {
        const int entry = kZeroAngle + firstThirds + n * stepThirds;
        made.add(CosTable(entry), SinTable(entry));
    }
    return made;
}

Directions wholeDegrees(int step) {
    return Directions::fromTable(kThirdsInDegree, kThirdsInDegree * step,
                                 (kDegrees + step - 1) / step);
}

std::span<const std::int32_t> RingCells::find(double x, double y, double r,
                                              const Directions& directions, double reach) {
    const std::size_t count = directions.size();
    cells_.resize(count);
    const int side = checkedMapSide();
    const Circle circle{x, y, r, directions.cosines(), directions.sines(), count};
    const bool isInside = reachesInside(x, reach, side) && reachesInside(y, reach, side);
    if (hasWideVectors()) {
        findWide(circle, isInside, side, cells_.data());
    } else {
        findNarrow(circle, isInside, side, cells_.data());
    }
    return {cells_.data(), count};
}

std::span<const std::int32_t> RingCells::changesAt(double x, double y, double r,
                                                   const Directions& directions) {
    static_cast<void>(find(x, y, r, directions, r));
    constexpr std::int32_t kNone = -2;
    std::int32_t before = kNone;
    std::size_t kept = 0;
    // Without a branch: most samples are left out, but which cannot be foretold.
    for (const std::int32_t cell : cells_) {
        cells_[kept] = cell;
        kept += cell != before ? 1U : 0U;
        before = cell;
    }
    return {cells_.data(), kept};
}

int checkedMapSide() {
    static_cast<void>(HeightMap(MapSize, MapSize));
    return MapSize;
}

}  // namespace ombrelia
