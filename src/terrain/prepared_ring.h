// One circle of samples that is used around very many places: where its samples lie is kept in
// whole parts of a cell, so that finding their cells takes a few additions.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "terrain/ring.h"

namespace ombrelia {

class PreparedRing {
  public:
    // radius up to 126; throws OverflowFailure beyond. The directions must outlive the circle.
    PreparedRing(int radius, const Directions& directions);

    // The same cells as RingCells::at gives, into a vector that is lent for them.
    std::span<const std::int32_t> at(double x, double y, std::vector<std::int32_t>& cells) const;

  private:
    struct Centre {
        int column, row;            // of the cell
        std::int32_t partX, partY;  // inside the cell, in parts
        bool isInside;              // the whole circle lies on the map
    };

    // The find procedures say on which axes a sample lies too near to a border of cells to be sure.
    Centre centreAt(double x, double y) const;
    unsigned findInside(const Centre& centre, std::int32_t* cells) const;
    unsigned findAcrossTheBorder(const Centre& centre, std::int32_t* cells) const;
    void correct(double x, double y, std::size_t n, std::int32_t* cells) const;
    void correctDoubts(double x, double y, const Centre& centre, unsigned doubts,
                       std::int32_t* cells) const;

    int radius_;
    const Directions* directions_;
    std::vector<std::int32_t> partsX_;
    std::vector<std::int32_t> partsY_;
    std::vector<std::size_t> doubtful_;  // samples in doubt around a whole place
};

}  // namespace ombrelia
