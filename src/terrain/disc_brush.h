// A disc of full circles stamped at many places with one and the same effect on each cell. The
// cells inside are known beforehand and go row by row; only samples near the rim are computed.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "core/objects.h"
#include "terrain/ring.h"

namespace ombrelia {

class DiscBrush {
  public:
    // Circles of radius 1..rings with a sample every stepDegrees from 1 degree on.
    DiscBrush(int rings, int stepDegrees);

    int rings() const { return rings_; }

    // Calls effect(first cell, count) for runs of cells in a row, so that each cell of the map
    // which has a sample is covered at least once and no other. The effect must bear repetition
    // and any order.
    template <typename Effect>
    void stamp(double x, double y, Effect effect) {
        const int column = floorToInt(x);
        const int row = floorToInt(y);
        const Stencil* stencil = stencilFor(x - column, y - row);
        if (stencil == nullptr) {
            stampSamples(x, y, effect);
            return;
        }
        const int side = checkedMapSide();
        std::int16_t* heights = HeightMap.data();
        for (const Run& run : stencil->runs) {
            const int py = row + run.y;
            const int first = std::max(column + run.first, 0);
            const int last = std::min(column + run.last, side);
            if (py >= 0 && py <= side && first <= last) {
                effect(heights + first + HeightGrid::kSide * py, last - first + 1);
            }
        }
        for (const std::int32_t cell : ring_.atOffsets(x, y, stencil->loose, rings_)) {
            if (cell != RingCells::kOutside) {
                effect(heights + cell, 1);
            }
        }
    }

  private:
    // Cells first..last of the row y, relative to the cell of the centre.
    struct Run {
        std::int16_t y, first, last;
    };
    // What holds for every centre in one part of a cell: cells that are surely hit, and the samples
    // whose cell has to be computed.
    struct Stencil {
        int uses = 0;
        std::vector<Run> runs;
        Directions loose;
    };

    static constexpr int kParts = 4;  // of a cell, on each axis

    // The stencil for a centre with these fractions, or none as long as its making does not pay.
    const Stencil* stencilFor(double fractionX, double fractionY);
    void make(Stencil& stencil, int partX, int partY) const;

    template <typename Effect>
    void stampSamples(double x, double y, Effect effect) {
        for (int r = 1; r <= rings_; ++r) {
            for (const std::int32_t cell : ring_.at(x, y, r, directions_)) {
                if (cell != RingCells::kOutside) {
                    effect(HeightMap.data() + cell, 1);
                }
            }
        }
    }

    int rings_;
    Directions directions_;
    RingCells ring_;
    std::array<Stencil, static_cast<std::size_t>(kParts) * kParts> stencils_;
};

}  // namespace ombrelia
