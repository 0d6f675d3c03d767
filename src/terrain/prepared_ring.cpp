#include "terrain/prepared_ring.h"

#include <cstdlib>

#include "platform/numeric.h"

namespace ombrelia {

namespace {

constexpr int kPartBits = 24;  // a cell has 2^24 parts
constexpr std::int32_t kParts = 1 << kPartBits;

// Rounding puts a sample at most 1.5 parts, and a trace, beside its place. Where a border of cells
// is no further away, the cell is computed exactly.
constexpr std::int32_t kDoubt = 2;

bool isDoubtful(std::int32_t parts) {
    return ((parts + kDoubt) & (kParts - 1)) <= 2 * kDoubt;
}

// Axes on which some sample of a circle is in doubt.
constexpr unsigned kDoubtX = 1;
constexpr unsigned kDoubtY = 2;

unsigned doubtsOf(std::int32_t partsX, std::int32_t partsY) {
    return (isDoubtful(partsX) ? kDoubtX : 0U) | (isDoubtful(partsY) ? kDoubtY : 0U);
}

// y * HeightGrid::kSide in steps of which the compiler makes several at once.
std::int32_t rowStart(std::int32_t y) {
    static_assert(HeightGrid::kSide == 256 + 2);
    return (y << 8) + (y << 1);
}

}  // namespace

PreparedRing::PreparedRing(int radius, const Directions& directions)
    : radius_(radius), directions_(&directions) {
    // A radius that leaves no room for the sums fails here.
    static_cast<void>(roundToInt32((std::abs(radius) + 1.0) * kParts));
    for (std::size_t n = 0; n < directions.size(); ++n) {
        partsX_.push_back(roundToInt32(radius * directions.cosines()[n] * kParts));
        partsY_.push_back(roundToInt32(radius * directions.sines()[n] * kParts));
        if (doubtsOf(partsX_[n], partsY_[n]) != 0) {
            doubtful_.push_back(n);
        }
    }
}

PreparedRing::Centre PreparedRing::centreAt(double x, double y) const {
    const int column = floorToInt(x);
    const int row = floorToInt(y);
    const int reach = std::abs(radius_) + 1;
    const int side = checkedMapSide();
    return {column, row, static_cast<std::int32_t>((x - column) * kParts),
            static_cast<std::int32_t>((y - row) * kParts),
            column >= reach && column <= side - reach && row >= reach && row <= side - reach};
}

unsigned PreparedRing::findInside(const Centre& centre, std::int32_t* cells) const {
    const std::int32_t* partsX = partsX_.data();
    const std::int32_t* partsY = partsY_.data();
    const std::int32_t middle = centre.column + rowStart(centre.row);
    const std::int32_t partX = centre.partX;
    const std::int32_t partY = centre.partY;
    unsigned doubts = 0;
    const std::size_t count = partsX_.size();
    for (std::size_t n = 0; n < count; ++n) {
        const std::int32_t x = partsX[n] + partX;
        const std::int32_t y = partsY[n] + partY;
        doubts |= doubtsOf(x, y);
        cells[n] = middle + (x >> kPartBits) + rowStart(y >> kPartBits);
    }
    return doubts;
}

unsigned PreparedRing::findAcrossTheBorder(const Centre& centre, std::int32_t* cells) const {
    const std::int32_t* partsX = partsX_.data();
    const std::int32_t* partsY = partsY_.data();
    const std::int32_t side = checkedMapSide();
    const auto [column, row, partX, partY, isInside] = centre;
    unsigned doubts = 0;
    const std::size_t count = partsX_.size();
    for (std::size_t n = 0; n < count; ++n) {
        const std::int32_t x = partsX[n] + partX;
        const std::int32_t y = partsY[n] + partY;
        doubts |= doubtsOf(x, y);
        const std::int32_t px = column + (x >> kPartBits);
        const std::int32_t py = row + (y >> kPartBits);
        std::int32_t cell = px + rowStart(py);
        cell = px < 0 ? RingCells::kOutside : cell;
        cell = px > side ? RingCells::kOutside : cell;
        cell = py < 0 ? RingCells::kOutside : cell;
        cell = py > side ? RingCells::kOutside : cell;
        cells[n] = cell;
    }
    return doubts;
}

void PreparedRing::correct(double x, double y, std::size_t n, std::int32_t* cells) const {
    const int side = checkedMapSide();
    const int px = floorToInt(x + radius_ * directions_->cosines()[n]);
    const int py = floorToInt(y + radius_ * directions_->sines()[n]);
    const bool isOnMap = px >= 0 && px <= side && py >= 0 && py <= side;
    cells[n] = isOnMap ? px + rowStart(py) : RingCells::kOutside;
}

void PreparedRing::correctDoubts(double x, double y, const Centre& centre, unsigned doubts,
                                 std::int32_t* cells) const {
    const bool areListed = ((doubts & kDoubtX) == 0 || centre.partX == 0) &&
                           ((doubts & kDoubtY) == 0 || centre.partY == 0);
    if (areListed) {
        for (const std::size_t n : doubtful_) {
            correct(x, y, n, cells);
        }
        return;
    }
    for (std::size_t n = 0; n < partsX_.size(); ++n) {
        if (doubtsOf(partsX_[n] + centre.partX, partsY_[n] + centre.partY) != 0) {
            correct(x, y, n, cells);
        }
    }
}

std::span<const std::int32_t> PreparedRing::at(double x, double y,
                                               std::vector<std::int32_t>& cells) const {
    cells.resize(partsX_.size());
    const Centre centre = centreAt(x, y);
    const unsigned doubts = centre.isInside ? findInside(centre, cells.data())
                                            : findAcrossTheBorder(centre, cells.data());
    if (doubts != 0) {
        correctDoubts(x, y, centre, doubts, cells.data());
    }
    return cells;
}

}  // namespace ombrelia
