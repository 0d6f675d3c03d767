#include "terrain/fractal/fractal_terrain.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "core/angles.h"
#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/objects.h"
#include "core/option_strip_table.h"
#include "core/progress.h"
#include "platform/numeric.h"
#include "platform/services.h"
#include "terrain/fractal/fractal_lattice.h"
#include "terrain/fractal/fractal_state.h"
#include "views/map2d/update_map_view.h"

namespace ombrelia {

namespace {

constexpr int kLatticeExtent = 256;  // map points that the lattice is laid over
constexpr int kLowestDetail = 1;
constexpr int kHighestDetail = 8;
constexpr int kLastPoint = HeightGrid::kLast;
constexpr int kBytesLast = 203162;  // last subscript of FractalBytes

// Height of a lattice point from the sum of its three bytes.
std::int16_t heightOf(int byteSum, int height) {
    const double t = height + (byteSum / 3.0 - 150);
    std::int16_t result = 0;
    if (t > 255) {
        result = 255;
    } else if (t >= 0) {
        result = roundToInt16(t);
    }
    return result == 0 ? std::int16_t{1} : result;
}

// heightOf for every value of the first byte, for the lattice's own points.
class HeightLookup {
  public:
    void update(int height) {
        if (height == height_) {
            return;
        }
        height_ = height;
        for (std::size_t byte = 0; byte < heights_.size(); ++byte) {
            heights_[byte] = heightOf(2 * static_cast<int>(byte) + kThirdLatticeByte, height);
        }
    }
    std::int16_t operator()(const std::uint8_t* bytes) const {
        return bytes[2] == kThirdLatticeByte ? heights_[bytes[0]]
                                             : heightOf(bytes[0] + bytes[1] + bytes[2], *height_);
    }

  private:
    std::optional<int> height_;  // that heights_ were made for
    std::array<std::int16_t, kHeights> heights_{};
};

// One column of the lattice; bytes that lie beyond the map are passed over.
void placeColumn(int x, int step, const std::uint8_t* bytes, const HeightLookup& lookup) {
    if (x > MapSize) {
        return;
    }
    const int last = std::min<int>(MapSize, kLatticeExtent);
    std::int16_t* cell = &HeightMap(x, 1);
    for (int y = 1; y <= last; y += step, bytes += 3, cell += step * HeightGrid::kSide) {
        *cell = lookup(bytes);
    }
}

// Lays the bytes over the map, column by column. False when it was stopped.
bool placeHeights(int step, const std::int16_t& height) {
    announceFractalPart(FractalPart + 1, kLatticeExtent);
    HeightLookup lookup;
    const std::uint8_t* bytes = FractalBytes.data();
    for (int x = 0; x <= kLatticeExtent; x += step) {
        lookup.update(height);
        placeColumn(x, step, bytes, lookup);
        bytes += 3 * (kLatticeExtent / step);
        LongRun::yieldAt(x);
        if (LongRun::noteStop()) {
            return false;
        }
    }
    return true;
}

// Blend weights across one lattice cell: a raised sine from 0 towards 1. Required: a pi of five
// decimals (interpolation_uses_short_pi).
std::array<double, 128> blendWeights(int step) {
    std::array<double, 128> weights{};
    for (int k = 0; k < step; ++k) {
        const double share = static_cast<double>(k) / step;
        weights[static_cast<std::size_t>(k)] =
            (std::sin((share * 180 - 90) * (kShortPi / 180)) + 1) / 2;
    }
    return weights;
}

struct Corners {
    double a, b, c, e;
};

// Heights at the corners of the block at (x, y); what lies outside, or is 0, has stand-ins.
Corners cornersOf(int x, int y, int step) {
    const std::int16_t own = HeightMap(x, y);
    const auto corner = [&](int cx, int cy) {
        const bool isInside = cx <= kLastPoint && cy <= kLastPoint;
        const std::int16_t found = isInside ? HeightMap(cx, cy) : HeightMap(x, step);
        return static_cast<double>(found == 0 ? own : found);
    };
    return {static_cast<double>(own), corner(x + step, y), corner(x, y + step),
            corner(x + step, y + step)};
}

// Required: the block is written one row above the lattice row that it starts from
// (blocks_land_one_row_higher).
void blendBlock(int x, int y, int step, const std::array<double, 128>& weights) {
    const Corners corners = cornersOf(x, y, step);
    for (int p = x; p <= x + step - 1 && p <= kLastPoint; ++p) {
        const double wx = weights[static_cast<std::size_t>(p - x)];
        const double top = (1 - wx) * corners.a + wx * corners.b;
        const double bottom = (1 - wx) * corners.c + wx * corners.e;
        for (int q = y; q <= y + step - 1 && q <= kLastPoint; ++q) {
            const double wy = weights[static_cast<std::size_t>(q - y)];
            HeightMap(p, q - 1) = roundToInt16((1 - wy) * top + wy * bottom);
        }
    }
}

// Fills the map between the lattice's points. False when it was stopped.
bool blendBetween(int step) {
    announceFractalPart(FractalPart + 2, kLatticeExtent);
    const auto weights = blendWeights(step);
    for (int x = 0; x <= kLastPoint; x += step) {
        for (int y = 1; y <= kLastPoint; y += step) {
            blendBlock(x, y, step, weights);
            LongRun::yieldAt(x);
        }
        if (LongRun::noteStop()) {
            return false;
        }
    }
    return true;
}

void prepareArrays() {
    const std::size_t size = static_cast<std::size_t>(FractalSide) + 1;
    FractalValues.assign(size * size + 1, 0.0);
    FractalBytes.assign(kBytesLast + 1, 0);
}

}  // namespace

void GenerateCommand() {
    const LongRun run;  // which leaves the tools to the refresh or the tick
    double h = SliderValues(slider::kSmoothness).Value / 10.0;
    GenerateFractalTerrain(h, SliderValues(slider::kFractalHeight).Value);
    if (isOn(button::kAutoRefresh)) {
        RefreshAfterEdit();
    }
}

void GenerateFractalTerrain(double& h, std::int16_t& height) {
    const int detail = SliderValues(slider::kDetail).Value;
    if (detail < kLowestDetail || detail > kHighestDetail) {
        throwSubscript(detail, kLowestDetail, kHighestDetail);
    }
    FractalSide = roundToInt16(std::pow(2.0, detail));
    prepareArrays();
    services().random->seedFromClock();
    FillFractalValues(FractalValues, FractalSide, 5, 1.0, h);
    if (LongRun::noteStop()) {
        return;
    }
    // Required: a stop in here takes effect after the first column of the heights
    // (a_stop_among_the_bytes_writes_one_column).
    static_cast<void>(FractalValuesToBytes(FractalValues, FractalSide, FractalBytes));
    const int step = kLatticeExtent / FractalSide;
    if (!placeHeights(step, height)) {
        return;
    }
    if (FractalSide != kLatticeExtent && !blendBetween(step)) {
        return;
    }
    LongRun::tellEnd();
}

}  // namespace ombrelia
