#include "terrain/ring.h"

namespace ombrelia {

namespace {

constexpr int kTableMiddle = 1080;  // entry of 0 degrees
constexpr int kThirds = 3;          // entries to a degree
constexpr int kDegrees = 360;

}  // namespace

Directions Directions::fromTable(int firstThirds, int stepThirds, int count) {
    Directions made;
    made.cosines_.reserve(static_cast<std::size_t>(count));
    made.sines_.reserve(static_cast<std::size_t>(count));
    for (int n = 0; n < count; ++n) {
        const int entry = kTableMiddle + firstThirds + n * stepThirds;
        made.add(CosTable(entry), SinTable(entry));
    }
    return made;
}

Directions wholeDegrees(int step) {
    return Directions::fromTable(kThirds, kThirds * step, (kDegrees + step - 1) / step);
}

std::span<const std::int32_t> RingCells::at(double x, double y, double r,
                                            const Directions& directions) {
    const std::size_t count = directions.size();
    cells_.resize(count);
    const int side = checkedMapSide();
    const double* cosines = directions.cosines();
    const double* sines = directions.sines();
    std::int32_t* cells = cells_.data();
    for (std::size_t n = 0; n < count; ++n) {
        const int px = floorToInt(x + r * cosines[n]);
        const int py = floorToInt(y + r * sines[n]);
        const bool isOutside = static_cast<int>(px < 0) + (px > side) + (py < 0) + (py > side) != 0;
        cells[n] = isOutside ? kOutside : px + HeightGrid::kSide * py;
    }
    return {cells, count};
}

int checkedMapSide() {
    static_cast<void>(HeightMap(MapSize, MapSize));
    return MapSize;
}

}  // namespace ombrelia
