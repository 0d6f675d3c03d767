#include "terrain/mountain.h"

#include <cmath>
#include <span>
#include <utility>

#include "core/angles.h"
#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/objects.h"
#include "core/option_strip_table.h"
#include "core/progress.h"
#include "platform/numeric.h"
#include "terrain/ring.h"
#include "views/map2d/update_map_view.h"

namespace ombrelia {

namespace {

constexpr double kRadian = kShortPi / 180;  // Required (the_far_flank_uses_a_short_pi)

struct Steepness {
    int button;
    int divisor;  // of the height, for the width of the flank
};
constexpr Steepness kSteepnesses[] = {{button::kMountainVerySteep, 18},
                                      {button::kMountainSlightlySteep, 9},
                                      {button::kMountainSmooth, 3}};

int sideFor(int height) {
    for (const Steepness& row : kSteepnesses) {
        if (isOn(row.button)) {
            return static_cast<int>(floorToWhole(static_cast<double>(height) / row.divisor));
        }
    }
    return 0;
}

// Every sample of one circle gets the same height, so neither the order within it matters nor how
// often a cell comes.
void placeRing(std::span<const std::int32_t> cells, double height, bool onlyRaises) {
    const std::int16_t rounded = roundToInt16(height);
    std::int16_t* heights = HeightMap.data();
    for (const std::int32_t cell : cells) {
        if (cell != RingCells::kOutside && (!onlyRaises || height > heights[cell])) {
            heights[cell] = rounded;
        }
    }
}

bool shapeTop(int x, int y, const MountainShape& shape, RingCells& ring) {
    const Directions directions = Directions::fromTable(0, 3, 361);
    for (int r = 1; r <= shape.topSize; ++r) {
        placeRing(ring.changesAt(x, y, r, directions), shape.height, shape.onlyRaises);
        LongRun::yieldAt(r);
        if (LongRun::noteStop()) {
            return false;
        }
    }
    return true;
}

// Directions of the flank: finer the further out.
class FlankDirections {
  public:
    const Directions& at(int r) {
        if (r > kFinestFrom) {
            return finest();
        }
        if (r > kFinerFrom) {
            return made(finer_, kFinerCount, [](int n) { return fromTable(n * 0.2); });
        }
        return made(coarse_, kCoarseCount, [](int n) { return fromTable(n * 0.5); });
    }

  private:
    static constexpr int kFinerFrom = 40;
    static constexpr int kFinestFrom = 60;
    static constexpr int kCoarseCount = 721;
    static constexpr int kFinerCount = 1801;
    static constexpr int kFinestCount = 3601;

    static std::pair<double, double> fromTable(double degrees) {
        const int entry = kZeroAngle + static_cast<int>(roundToEven(kThirdsInDegree * degrees));
        return {CosTable(entry), SinTable(entry)};
    }

    template <typename Vector>
    static const Directions& made(Directions& directions, int count, Vector vector) {
        if (directions.size() == 0) {
            for (int n = 0; n < count; ++n) {
                const auto [cosine, sine] = vector(n);
                directions.add(cosine, sine);
            }
        }
        return directions;
    }

    // 7202 sines and cosines, the same for every mountain.
    static const Directions& finest() {
        static const Directions made = [] {
            Directions directions;
            for (int n = 0; n < kFinestCount; ++n) {
                const double angle = n * 0.1 * kRadian;
                directions.add(std::cos(angle), std::sin(angle));
            }
            return directions;
        }();
        return made;
    }

    Directions coarse_, finer_;
};

bool shapeFlank(int x, int y, const MountainShape& shape, RingCells& ring) {
    FlankDirections directions;
    const double half = (shape.height - SeaLevel) / 2.0;
    for (int r = shape.topSize; r <= shape.topSize + shape.side; ++r) {
        const double t = 90 + (r - shape.topSize) * (180.0 / shape.side);
        const double h = half * std::sin(t * kRadian) + half + SeaLevel;
        placeRing(ring.changesAt(x, y, r, directions.at(r)), h, shape.onlyRaises);
        if (h < 0) {
            return true;
        }
        if (LongRun::noteStop()) {
            return false;
        }
        LongRun::yieldAt(r);
    }
    return true;
}

}  // namespace

bool shapeMountain(int x, int y, const MountainShape& shape) {
    RingCells ring;
    if (!shapeTop(x, y, shape, ring)) {
        return false;
    }
    return shape.side == 0 || shapeFlank(x, y, shape, ring);
}

void BuildMountain(std::int16_t x, std::int16_t y) {
    forgetStop();
    const LongRun run;
    const int height = SliderValues(slider::kMountainHeight).Value;
    const MountainShape shape{height, SliderValues(slider::kMountainTop).Value, sideFor(height),
                              isOn(button::kOnlyLower)};
    LongRun::announce("Calculating Your Mountain", shape.side + shape.topSize);
    if (!shapeMountain(x, y, shape)) {
        return;
    }
    LongRun::tellEnd();
    run.giveToolsBack();
    if (isOn(button::kAutoRefresh)) {
        RefreshAfterEdit();
    }
}

}  // namespace ombrelia
