#include "terrain/canyon_wall.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

#include "core/angles.h"
#include "platform/numeric.h"
#include "platform/wide_vectors.h"

namespace ombrelia {

namespace {

// Circles of radius `above` and more have their samples so many half degrees apart.
struct Spacing {
    int above;
    int halfDegrees;
};
constexpr Spacing kSpacingTable[] = {{30, 1}, {20, 2}, {-1, 4}};

// From 0 degrees on; the table has thirds of a degree, half degrees go to the nearest.
Directions everyHalfDegrees(int halfDegrees) {
    Directions made;
    for (int n = 0; n < 2 * kThirdsInTurn / kThirdsInDegree; n += halfDegrees) {
        const int entry = kZeroAngle + static_cast<int>(roundToEven(n * 1.5));
        made.add(CosTable(entry), SinTable(entry));
    }
    return made;
}

constexpr std::uint32_t kWhole = 1U << 16U;  // of shares

// Samples of a circle as the loop that looks for chances to cut reads them.
struct Grounds {
    const std::int16_t* __restrict heights;
    const std::int16_t* __restrict tops;
    const std::int16_t* __restrict isOnMap;  // none: all are
    std::size_t count;
    std::int16_t floor;
    std::uint16_t share;
};

// Where a wall may be below the ground. Its height is reckoned in 256ths, each step rounded down,
// and rounded as the height itself would be at most: what is no chance is surely no cut. And stays
// none while other samples make the ground lower: a wall that is not below some ground is not below
// lower ground either.
template <bool kHasOutside>
OMBRELIA_IN_BOTH void markChances(const Grounds& grounds, std::uint8_t* __restrict chances) {
    const auto [heights, tops, isOnMap, count, floor, share] = grounds;
    for (std::size_t n = 0; n < count; ++n) {
        const std::int16_t rim = std::max(heights[n], tops[n]);
        const auto above = static_cast<std::uint16_t>((rim - floor) << 8);
        const auto climbed = static_cast<std::uint16_t>((std::uint32_t{above} * share) >> 16U);
        const auto wall = static_cast<std::int16_t>((climbed + 127) >> 8);
        const auto ground = static_cast<std::int16_t>(heights[n] - floor);
        std::int16_t isChance = ground > wall ? std::int16_t{1} : std::int16_t{0};
        isChance = rim > 255 ? std::int16_t{1} : isChance;
        if constexpr (kHasOutside) {
            isChance = static_cast<std::int16_t>(isChance & isOnMap[n]);
        }
        chances[n] = static_cast<std::uint8_t>(isChance);
    }
}

void markNarrow(const Grounds& grounds, std::uint8_t* chances) {
    if (grounds.isOnMap == nullptr) {
        markChances<false>(grounds, chances);
    } else {
        markChances<true>(grounds, chances);
    }
}

OMBRELIA_WIDE void markWide(const Grounds& grounds, std::uint8_t* chances) {
    if (grounds.isOnMap == nullptr) {
        markChances<false>(grounds, chances);
    } else {
        markChances<true>(grounds, chances);
    }
}

// The heights at these offsets, several in a round: the counting costs as much as the work.
void takeHeights(const std::int16_t* from, const std::int16_t* offsets, std::size_t count,
                 std::int16_t* heights) {
    std::size_t n = 0;
    for (; n + 4 <= count; n += 4) {
        const std::int16_t first = from[offsets[n]];
        const std::int16_t second = from[offsets[n + 1]];
        const std::int16_t third = from[offsets[n + 2]];
        const std::int16_t fourth = from[offsets[n + 3]];
        heights[n] = first;
        heights[n + 1] = second;
        heights[n + 2] = third;
        heights[n + 3] = fourth;
    }
    for (; n < count; ++n) {
        heights[n] = from[offsets[n]];
    }
}

// Calls visit(n) for each n whose byte is 1, not 0, in order; there are 8 bytes more than count.
template <typename Visit>
void forEachSet(const std::uint8_t* bytes, std::size_t count, Visit visit) {
    for (std::size_t first = 0; first < count; first += sizeof(std::uint64_t)) {
        std::uint64_t word = 0;
        std::memcpy(&word, bytes + first, sizeof word);
        if constexpr (std::endian::native == std::endian::big) {
            word = __builtin_bswap64(word);
        }
        for (; word != 0; word &= word - 1) {
            visit(first + static_cast<std::size_t>(std::countr_zero(word)) / 8);
        }
    }
}

}  // namespace

CanyonWall::CanyonWall(int bank, int edge) : bank_(bank), edge_(edge), before_(HeightMap) {
    for (std::size_t n = 0; n < fans_.size(); ++n) {
        Fan& fan = fans_[n];
        fan.directions = everyHalfDegrees(kSpacingTable[n].halfDegrees);
        fan.rim.emplace_back(bank + edge, fan.directions);
        fan.tops.resize(fan.directions.size());
    }
    for (int number = 0; number <= edge; ++number) {
        rings_.push_back(makeRing(number));
    }
    const std::size_t most = fans_[0].directions.size();
    grounds_.resize(most);
    chances_.resize(most + sizeof(std::uint64_t));
}

CanyonWall::Ring CanyonWall::makeRing(int number) {
    const double t = -(90 + number * (180.0 / edge_));
    const double climb = std::sin(t * kShortPi / 180);  // (the_wall_uses_a_short_pi)
    const double share = std::floor((1 + climb) / 2 * kWhole);
    Ring ring{PreparedRing(bank_ + number, fanFor(bank_ + number).directions),
              climb,
              static_cast<std::uint16_t>(std::clamp(share, 0.0, kWhole - 1.0)),
              false,
              {}};
    for (int top = SeaLevel; top < kHeights; ++top) {
        const std::int16_t wall = roundToInt16(wallHeight(climb, top));
        ring.walls[static_cast<std::size_t>(top)] = wall;
        ring.canCut = ring.canCut || wall < top;
    }
    return ring;
}

double CanyonWall::wallHeight(double climb, int top) {
    const double half = (top - SeaLevel) / 2.0;
    return half * climb + half + SeaLevel;
}

CanyonWall::Fan& CanyonWall::fanFor(int r) {
    std::size_t n = 0;
    while (r <= kSpacingTable[n].above) {
        ++n;
    }
    return fans_[n];
}

void CanyonWall::readRim(Fan& fan, double x, double y) {
    fan.rim.front().find(x, y, cells_);
    const std::int16_t* before = before_.data();
    const std::int16_t lowest = SeaLevel;
    if (cells_.areAllOnMap) {
        before += cells_.anchor;
        takeHeights(before, cells_.offsets.data(), fan.tops.size(), fan.tops.data());
        for (std::int16_t& top : fan.tops) {
            top = std::max(top, lowest);
        }
        return;
    }
    const int radius = bank_ + edge_;
    const int side = checkedMapSide();
    const double* cosines = fan.directions.cosines();
    const double* sines = fan.directions.sines();
    for (std::size_t n = 0; n < fan.tops.size(); ++n) {
        const int ox = std::clamp(floorToInt(x + radius * cosines[n]), 0, side);
        const int oy = std::clamp(floorToInt(y + radius * sines[n]), 0, side);
        fan.tops[n] = std::max(before[ox + HeightGrid::kSide * oy], lowest);
    }
}

void CanyonWall::carveAt(double x, double y) {
    const Fan* readFor = nullptr;
    for (int number = 0; number <= edge_; ++number) {
        Fan& fan = fanFor(bank_ + number);
        if (&fan != readFor) {
            readRim(fan, x, y);
            readFor = &fan;
        }
        const Ring& ring = rings_[static_cast<std::size_t>(number)];
        if (ring.canCut) {
            carveRing(ring, fan, x, y);
        }
    }
}

void CanyonWall::findChances(const Ring& ring, const Fan& fan) {
    const std::int16_t* heights = HeightMap.data() + cells_.anchor;
    const std::size_t count = ring.samples.size();
    takeHeights(heights, cells_.offsets.data(), count, grounds_.data());
    const Grounds grounds{
        grounds_.data(), fan.tops.data(), cells_.areAllOnMap ? nullptr : cells_.isOnMap.data(),
        count,           SeaLevel,        ring.share};
    if (hasWideVectors()) {
        markWide(grounds, chances_.data());
    } else {
        markNarrow(grounds, chances_.data());
    }
    std::fill_n(chances_.data() + count, sizeof(std::uint64_t), std::uint8_t{0});
}

void CanyonWall::carveRing(const Ring& ring, const Fan& fan, double x, double y) {
    ring.samples.find(x, y, cells_);
    findChances(ring, fan);
    std::int16_t* heights = HeightMap.data() + cells_.anchor;
    forEachSet(chances_.data(), ring.samples.size(),
               [&](std::size_t n) { cut(ring, fan.tops[n], heights[cells_.offsets[n]]); });
}

void CanyonWall::cut(const Ring& ring, std::int16_t top, std::int16_t& ground) const {
    if (ground <= SeaLevel) {
        return;  // no wall is lower than the floor
    }
    const int rim = std::max(top, ground);
    if (rim < kHeights) {
        // Rounded, it is below the ground only if the height itself is.
        if (const std::int16_t wall = ring.walls[static_cast<std::size_t>(rim)]; wall < ground) {
            ground = wall;
        }
    } else if (const double h = wallHeight(ring.climb, rim); h <= kHeights - 1 && h < ground) {
        ground = roundToInt16(h);
    }
}

}  // namespace ombrelia
