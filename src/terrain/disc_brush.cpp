#include "terrain/disc_brush.h"

#include <algorithm>
#include <cmath>

namespace ombrelia {

namespace {

// Far above every rounding error of a sample's place on the map, far below a visible distance.
constexpr double kMargin = 1e-9;

constexpr int kSlices = 8;  // of a part, on each axis

using SliceSet = std::uint64_t;  // squares of a part: bit x + 8 * y for the slices x and y
constexpr SliceSet kAllSlices = ~SliceSet{0};

// The two cells that a coordinate can fall into while the centre moves through one part of its own
// cell: the lower one surely in the first slices, the higher one surely in the last ones.
class Reach {
  public:
    Reach(double offset, double partLow, double partSize) {
        low_ = floorToInt(partLow + offset - kMargin);
        high_ = floorToInt(partLow + partSize + offset + kMargin);
        if (low_ == high_) {
            return;
        }
        const double border = (high_ - offset - partLow) * (kSlices / partSize);
        constexpr double kSliceMargin = kMargin * 64;
        surelyLow_ = std::clamp(floorToInt(border - kSliceMargin), 0, kSlices);
        surelyHigh_ = std::clamp(floorToInt(border + kSliceMargin) + 1, 0, kSlices);
    }

    // Calls visit(cell, first slice, slice behind the last) for each cell.
    template <typename Visit>
    void forEachCell(Visit visit) const {
        visit(low_, 0, surelyLow_);
        if (high_ != low_) {
            visit(high_, surelyHigh_, kSlices);
        }
    }

  private:
    int low_, high_;
    int surelyLow_ = kSlices;
    int surelyHigh_ = kSlices;
};

// Bits first..behind - 1, each repeated for kSlices rows.
SliceSet columns(int first, int behind) {
    constexpr SliceSet kOneOfEachRow = 0x0101010101010101;
    return kOneOfEachRow * ((1U << static_cast<unsigned>(behind)) - 1U) &
           ~(kOneOfEachRow * ((1U << static_cast<unsigned>(first)) - 1U));
}

SliceSet rowsBefore(int row) {
    return row == kSlices ? kAllSlices : (SliceSet{1} << static_cast<unsigned>(kSlices * row)) - 1;
}

SliceSet rows(int first, int behind) {
    return rowsBefore(behind) & ~rowsBefore(first);
}

// A square of cells around the centre's, each with the slices in which it is surely hit.
class Marks {
  public:
    explicit Marks(int reach)
        : reach_(reach),
          side_(2 * reach + 1),
          marks_(static_cast<std::size_t>(side_) * static_cast<std::size_t>(side_)) {}

    int reach() const { return reach_; }
    bool isSure(int x, int y) const { return marks_[offset(x, y)] == kAllSlices; }

    void add(const Reach& x, const Reach& y) {
        y.forEachCell([&](int cellY, int firstY, int behindY) {
            const SliceSet inRows = rows(firstY, behindY);
            x.forEachCell([&](int cellX, int firstX, int behindX) {
                marks_[offset(cellX, cellY)] |= inRows & columns(firstX, behindX);
            });
        });
    }

    // Whether a sample with this reach can hit nothing but cells that are hit anyway.
    bool isNeedless(const Reach& x, const Reach& y) const {
        bool areAllSure = true;
        y.forEachCell([&](int cellY, int, int) {
            x.forEachCell(
                [&](int cellX, int, int) { areAllSure = areAllSure && isSure(cellX, cellY); });
        });
        return areAllSure;
    }

  private:
    std::size_t offset(int x, int y) const {
        return static_cast<std::size_t>(x + reach_ + side_ * (y + reach_));
    }

    int reach_;
    int side_;
    std::vector<SliceSet> marks_;
};

}  // namespace

DiscBrush::DiscBrush(int rings, int stepDegrees)
    : rings_(std::max(rings, 0)), directions_(wholeDegrees(stepDegrees)) {}

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
        for (int r = 1; r <= rings_; ++r) {
            for (std::size_t n = 0; n < directions_.size(); ++n) {
                const double dx = r * directions_.cosines()[n];
                const double dy = r * directions_.sines()[n];
                visit(dx, dy, Reach(dx, partX * kPart, kPart), Reach(dy, partY * kPart, kPart));
            }
        }
    };
    Marks marks(rings_ + 2);
    forEachSample([&](double, double, const Reach& x, const Reach& y) { marks.add(x, y); });
    forEachSample([&](double dx, double dy, const Reach& x, const Reach& y) {
        if (!marks.isNeedless(x, y)) {
            stencil.loose.add(dx, dy);
        }
    });
    for (int y = -marks.reach(); y <= marks.reach(); ++y) {
        for (int x = -marks.reach(); x <= marks.reach(); ++x) {
            const int first = x;
            while (x <= marks.reach() && marks.isSure(x, y)) {
                ++x;
            }
            if (x > first) {
                stencil.runs.push_back({static_cast<std::int16_t>(y),
                                        static_cast<std::int16_t>(first),
                                        static_cast<std::int16_t>(x - 1)});
            }
        }
    }
}

}  // namespace ombrelia
