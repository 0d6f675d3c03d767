#include "terrain/prepared_ring.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "platform/numeric.h"
#include "platform/wide_vectors.h"

namespace ombrelia {

namespace {

constexpr int kPartBits = 16;  // a cell has 2^16 parts
constexpr std::int32_t kParts = 1 << kPartBits;
constexpr std::int32_t kPartMask = kParts - 1;

// Rounding puts a sample at most 1.5 parts, and a trace, beside its place. Where a border of cells
// is no further away, the cell is computed exactly.
constexpr int kDoubt = 2;

// Samples that are looked through when one of them is in doubt.
constexpr std::size_t kBlock = 240;

// The radius for which every offset fits 16 bits.
constexpr int kMostRadius = 126;

OMBRELIA_IN_BOTH std::uint16_t isDoubtful(std::uint16_t parts) {
    const auto moved = static_cast<std::uint16_t>(parts + kDoubt);
    return static_cast<std::uint16_t>(moved <= 2 * kDoubt ? 1 : 0);
}

// What the loops over the samples of one block read and write.
struct Block {
    const std::int16_t* columns;
    const std::int16_t* rows;
    const std::int16_t* ringOffsets;
    const std::uint16_t* partsX;
    const std::uint16_t* partsY;
    std::size_t count;
    std::uint16_t partX, partY;
    std::int16_t shift;                         // from the centre's cell to the anchor
    std::int16_t firstX, lastX, firstY, lastY;  // cells of the map, from the centre's
    std::int16_t* offsets;
    std::int16_t* isOnMap;
};

// Axes on which a sample lies too near to a border of cells to be sure.
struct Doubts {
    std::uint16_t x, y;
};

OMBRELIA_IN_BOTH Doubts findOffsets(const Block& block) {
    const std::uint16_t partX = block.partX;
    const std::uint16_t partY = block.partY;
    const std::int16_t shift = block.shift;
    std::uint16_t doubtsX = 0;
    std::uint16_t doubtsY = 0;
    for (std::size_t n = 0; n < block.count; ++n) {
        const auto x = static_cast<std::uint16_t>(block.partsX[n] + partX);
        const auto y = static_cast<std::uint16_t>(block.partsY[n] + partY);
        doubtsX = static_cast<std::uint16_t>(doubtsX | isDoubtful(x));
        doubtsY = static_cast<std::uint16_t>(doubtsY | isDoubtful(y));
        const std::int16_t right = x < partX ? std::int16_t{1} : std::int16_t{0};
        const std::int16_t below = y < partY ? std::int16_t{HeightGrid::kSide} : std::int16_t{0};
        block.offsets[n] = static_cast<std::int16_t>(block.ringOffsets[n] + right + below + shift);
    }
    return {doubtsX, doubtsY};
}

// -1 for first..last, 0 for another.
OMBRELIA_IN_BOTH std::int16_t maskWithin(std::int16_t cell, std::int16_t first, std::int16_t last) {
    const std::int16_t isAbove = cell >= first ? std::int16_t{-1} : std::int16_t{0};
    const std::int16_t isBelow = cell <= last ? std::int16_t{-1} : std::int16_t{0};
    return static_cast<std::int16_t>(isAbove & isBelow);
}

// One axis: which samples lie within first..last, if those of the other axis do.
OMBRELIA_IN_BOTH void keepWithin(const std::int16_t* cells, const std::uint16_t* parts,
                                 std::size_t count, std::uint16_t part, std::int16_t first,
                                 std::int16_t last, std::int16_t* isOnMap) {
    for (std::size_t n = 0; n < count; ++n) {
        const auto sum = static_cast<std::uint16_t>(parts[n] + part);
        const std::int16_t next = sum < part ? std::int16_t{1} : std::int16_t{0};
        const auto cell = static_cast<std::int16_t>(cells[n] + next);
        isOnMap[n] = static_cast<std::int16_t>(isOnMap[n] & maskWithin(cell, first, last));
    }
}

OMBRELIA_IN_BOTH void leaveOutside(const Block& block) {
    std::fill_n(block.isOnMap, block.count, std::int16_t{-1});
    keepWithin(block.columns, block.partsX, block.count, block.partX, block.firstX, block.lastX,
               block.isOnMap);
    keepWithin(block.rows, block.partsY, block.count, block.partY, block.firstY, block.lastY,
               block.isOnMap);
    for (std::size_t n = 0; n < block.count; ++n) {
        block.offsets[n] = static_cast<std::int16_t>(block.offsets[n] & block.isOnMap[n]);
    }
}

OMBRELIA_IN_BOTH Doubts findIn(const Block& block, bool areAllOnMap) {
    const Doubts doubts = findOffsets(block);
    if (!areAllOnMap) {
        leaveOutside(block);
    }
    return doubts;
}

OMBRELIA_WIDE Doubts findWide(const Block& block, bool areAllOnMap) {
    return findIn(block, areAllOnMap);
}

// A distance that no sample has is as good as any larger one.
std::int16_t cutDistance(int cells) {
    return static_cast<std::int16_t>(std::clamp(cells, -2 * kMostRadius, 2 * kMostRadius));
}

}  // namespace

PreparedRing::PreparedRing(int radius, const Directions& directions)
    : radius_(radius), directions_(&directions) {
    if (std::abs(radius) > kMostRadius) {
        throwOverflow(radius, kPartBits);
    }
    for (std::size_t n = 0; n < directions.size(); ++n) {
        const std::int32_t x = roundToInt32(radius * directions.cosines()[n] * kParts);
        const std::int32_t y = roundToInt32(radius * directions.sines()[n] * kParts);
        columns_.push_back(static_cast<std::int16_t>(x >> kPartBits));
        rows_.push_back(static_cast<std::int16_t>(y >> kPartBits));
        partsX_.push_back(static_cast<std::uint16_t>(x & kPartMask));
        partsY_.push_back(static_cast<std::uint16_t>(y & kPartMask));
        offsets_.push_back(static_cast<std::int16_t>(columns_[n] + HeightGrid::kSide * rows_[n]));
        if ((isDoubtful(partsX_[n]) | isDoubtful(partsY_[n])) != 0) {
            doubtful_.push_back(n);
        }
    }
}

PreparedRing::Centre PreparedRing::centreAt(double x, double y) const {
    const int column = floorToInt(x);
    const int row = floorToInt(y);
    const int side = checkedMapSide();
    return {x,
            y,
            column,
            row,
            static_cast<std::uint16_t>((x - column) * kParts),
            static_cast<std::uint16_t>((y - row) * kParts),
            std::clamp(column, 0, side),
            std::clamp(row, 0, side)};
}

void PreparedRing::correct(const Centre& centre, std::size_t n, NearCells& cells) const {
    const int side = checkedMapSide();
    const int px = floorToInt(centre.x + radius_ * directions_->cosines()[n]);
    const int py = floorToInt(centre.y + radius_ * directions_->sines()[n]);
    const bool isOnMap = px >= 0 && px <= side && py >= 0 && py <= side;
    const int offset = px - centre.anchorColumn + HeightGrid::kSide * (py - centre.anchorRow);
    cells.isOnMap[n] = isOnMap ? std::int16_t{-1} : std::int16_t{0};
    cells.offsets[n] = isOnMap ? static_cast<std::int16_t>(offset) : std::int16_t{0};
}

bool PreparedRing::isInDoubt(const Centre& centre, std::size_t n) const {
    return (isDoubtful(static_cast<std::uint16_t>(partsX_[n] + centre.partX)) |
            isDoubtful(static_cast<std::uint16_t>(partsY_[n] + centre.partY))) != 0;
}

// Those of one block.
void PreparedRing::correctDoubts(const Centre& centre, std::size_t first, NearCells& cells) const {
    const std::size_t behind = std::min(first + kBlock, size());
    for (std::size_t n = first; n < behind; ++n) {
        if (isInDoubt(centre, n)) {
            correct(centre, n, cells);
        }
    }
}

void PreparedRing::find(double x, double y, NearCells& cells) const {
    const Centre centre = centreAt(x, y);
    const int side = checkedMapSide();
    const int reach = std::abs(radius_) + 1;
    cells.anchor = centre.anchorColumn + HeightGrid::kSide * centre.anchorRow;
    cells.areAllOnMap = centre.column >= reach && centre.column <= side - reach &&
                        centre.row >= reach && centre.row <= side - reach;
    cells.offsets.resize(size());
    cells.isOnMap.resize(size());
    const int shift =
        centre.column - centre.anchorColumn + HeightGrid::kSide * (centre.row - centre.anchorRow);
    for (std::size_t first = 0; first < size(); first += kBlock) {
        const std::size_t count = std::min(kBlock, size() - first);
        const Block block{columns_.data() + first,
                          rows_.data() + first,
                          offsets_.data() + first,
                          partsX_.data() + first,
                          partsY_.data() + first,
                          count,
                          centre.partX,
                          centre.partY,
                          static_cast<std::int16_t>(shift),
                          cutDistance(-centre.column),
                          cutDistance(side - centre.column),
                          cutDistance(-centre.row),
                          cutDistance(side - centre.row),
                          cells.offsets.data() + first,
                          cells.isOnMap.data() + first};
        const Doubts doubts = hasWideVectors() ? findWide(block, cells.areAllOnMap)
                                               : findIn(block, cells.areAllOnMap);
        // Around a whole place many samples lie near a border, always the same.
        if ((doubts.x != 0 && centre.partX != 0) || (doubts.y != 0 && centre.partY != 0)) {
            correctDoubts(centre, first, cells);
        }
    }
    if (centre.partX == 0 || centre.partY == 0) {
        for (const std::size_t n : doubtful_) {
            correct(centre, n, cells);
        }
    }
}

}  // namespace ombrelia
