#include "terrain/disc_brush.h"

#include <algorithm>
#include <cmath>

namespace ombrelia {

namespace {

// Far above every rounding error of a sample's place on the map, far below a visible distance.
constexpr double kMargin = 1e-9;

// Cells that a coordinate can fall into while the centre moves through one part of its own cell.
struct Reach {
    int low, high;

    Reach(double offset, double partLow, double partHigh)
        : low(floorToInt(partLow + offset - kMargin)),
          high(floorToInt(partHigh + offset + kMargin)) {}

    bool isOne() const { return low == high; }
};

// A square of cells around the centre's, each marked or not.
class Marks {
  public:
    explicit Marks(int reach)
        : reach_(reach),
          side_(2 * reach + 1),
          marks_(static_cast<std::size_t>(side_) * static_cast<std::size_t>(side_)) {}

    int reach() const { return reach_; }
    void mark(int x, int y) { marks_[offset(x, y)] = 1; }
    bool has(int x, int y) const { return marks_[offset(x, y)] != 0; }

    bool hasAll(const Reach& x, const Reach& y) const {
        return has(x.low, y.low) && has(x.high, y.low) && has(x.low, y.high) && has(x.high, y.high);
    }

  private:
    std::size_t offset(int x, int y) const {
        return static_cast<std::size_t>(x + reach_ + side_ * (y + reach_));
    }

    int reach_;
    int side_;
    std::vector<char> marks_;
};

}  // namespace

DiscBrush::DiscBrush(int rings, int stepDegrees)
    : rings_(rings), directions_(wholeDegrees(stepDegrees)) {}

const DiscBrush::Stencil* DiscBrush::stencilFor(double fractionX, double fractionY) {
    const auto partX = static_cast<int>(fractionX * kParts);
    const auto partY = static_cast<int>(fractionY * kParts);
    Stencil& stencil = stencils_[static_cast<std::size_t>(partX + kParts * partY)];
    constexpr int kUsesThatPay = 2;
    if (stencil.uses < kUsesThatPay) {
        ++stencil.uses;
        if (stencil.uses < kUsesThatPay) {
            return nullptr;
        }
        make(stencil, partX, partY);
    }
    return &stencil;
}

void DiscBrush::make(Stencil& stencil, int partX, int partY) const {
    constexpr double kPart = 1.0 / kParts;
    const auto forEachSample = [&](auto visit) {
        for (int r = rings_; r >= 1; --r) {
            for (std::size_t n = 0; n < directions_.size(); ++n) {
                const Sample sample{r * directions_.cosines()[n], r * directions_.sines()[n]};
                visit(sample, Reach(sample.x, partX * kPart, (partX + 1) * kPart),
                      Reach(sample.y, partY * kPart, (partY + 1) * kPart));
            }
        }
    };
    Marks marks(rings_ + 2);
    forEachSample([&](const Sample&, const Reach& x, const Reach& y) {
        if (x.isOne() && y.isOne()) {
            marks.mark(x.low, y.low);
        }
    });
    forEachSample([&](const Sample& sample, const Reach& x, const Reach& y) {
        if (!marks.hasAll(x, y)) {
            stencil.loose.push_back(sample);
        }
    });
    for (int y = -marks.reach(); y <= marks.reach(); ++y) {
        for (int x = -marks.reach(); x <= marks.reach(); ++x) {
            if (!marks.has(x, y)) {
                continue;
            }
            const int first = x;
            while (x < marks.reach() && marks.has(x + 1, y)) {
                ++x;
            }
            stencil.runs.push_back({static_cast<std::int16_t>(y), static_cast<std::int16_t>(first),
                                    static_cast<std::int16_t>(x)});
        }
    }
}

}  // namespace ombrelia
