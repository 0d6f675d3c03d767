#include "terrain/canyon_wall.h"

#include <algorithm>
#include <cmath>

#include "platform/numeric.h"

namespace ombrelia {

namespace {

constexpr double kPi = 3.14159;  // Required: five decimals (the_wall_uses_a_short_pi)
constexpr int kTurnThirds = 1080;
constexpr int kTableMiddle = 1080;

// Circles of radius `above` and more have their samples so many half degrees apart.
struct Spacing {
    int above;
    int halfDegrees;
};
constexpr Spacing kSpacingTable[] = {{30, 1}, {20, 2}, {-1, 4}};

// From 0 degrees on; the table has thirds of a degree, half degrees go to the nearest.
Directions everyHalfDegrees(int halfDegrees) {
    Directions made;
    for (int n = 0; n < 2 * kTurnThirds / 3; n += halfDegrees) {
        const int entry = kTableMiddle + static_cast<int>(roundToEven(n * 1.5));
        made.add(CosTable(entry), SinTable(entry));
    }
    return made;
}

}  // namespace

CanyonWall::CanyonWall(int bank, int edge) : bank_(bank), edge_(edge), before_(HeightMap) {
    for (std::size_t n = 0; n < fans_.size(); ++n) {
        fans_[n].directions = everyHalfDegrees(kSpacingTable[n].halfDegrees);
        fans_[n].tops.resize(fans_[n].directions.size());
    }
    for (int ring = 0; ring <= edge; ++ring) {
        rings_.emplace_back(bank + ring, fanFor(bank + ring).directions);
        const double t = -(90 + ring * (180.0 / edge));
        climbs_.push_back(std::sin(t * kPi / 180));
        auto& heights = walls_.emplace_back();
        for (int top = SeaLevel; top < kHeights; ++top) {
            heights[static_cast<std::size_t>(top)] = roundToInt16(wallHeight(ring, top));
        }
    }
}

double CanyonWall::wallHeight(int ring, int top) const {
    const double half = (top - SeaLevel) / 2.0;
    return half * climbs_[static_cast<std::size_t>(ring)] + half + SeaLevel;
}

CanyonWall::Fan& CanyonWall::fanFor(int r) {
    std::size_t n = 0;
    while (r <= kSpacingTable[n].above) {
        ++n;
    }
    return fans_[n];
}

void CanyonWall::readRim(Fan& fan, double x, double y) const {
    const int radius = bank_ + edge_;
    const int side = checkedMapSide();
    const double* cosines = fan.directions.cosines();
    const double* sines = fan.directions.sines();
    const std::int16_t* before = before_.data();
    for (std::size_t n = 0; n < fan.tops.size(); ++n) {
        const int ox = std::clamp(floorToInt(x + radius * cosines[n]), 0, side);
        const int oy = std::clamp(floorToInt(y + radius * sines[n]), 0, side);
        fan.tops[n] = std::max(before[ox + HeightGrid::kSide * oy], SeaLevel);
    }
}

void CanyonWall::carveAt(double x, double y) {
    const Fan* readFor = nullptr;
    for (int ring = 0; ring <= edge_; ++ring) {
        Fan& fan = fanFor(bank_ + ring);
        if (&fan != readFor) {
            readRim(fan, x, y);
            readFor = &fan;
        }
        carveRing(ring, x, y);
    }
}

void CanyonWall::carveRing(int ring, double x, double y) {
    const Fan& fan = fanFor(bank_ + ring);
    const auto cells = rings_[static_cast<std::size_t>(ring)].at(x, y, cells_);
    const auto& walls = walls_[static_cast<std::size_t>(ring)];
    std::int16_t* heights = HeightMap.data();
    const std::int16_t lowest = SeaLevel;
    for (std::size_t n = 0; n < cells.size(); ++n) {
        if (cells[n] == RingCells::kOutside) {
            continue;
        }
        std::int16_t& ground = heights[cells[n]];
        if (ground <= lowest) {
            continue;  // no wall is lower than the floor
        }
        const int top = std::max(fan.tops[n], ground);
        if (top < kHeights) {
            // Rounded, it is below the ground only if the height itself is.
            if (const std::int16_t wall = walls[static_cast<std::size_t>(top)]; wall < ground) {
                ground = wall;
            }
        } else if (const double h = wallHeight(ring, top); h <= kHeights - 1 && h < ground) {
            ground = roundToInt16(h);
        }
    }
}

}  // namespace ombrelia
