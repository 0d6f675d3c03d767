// One circle of samples that is used around very many places: where its samples lie is kept in
// whole parts of a cell, so that finding their cells takes a few additions of short numbers.
#pragma once

#include <cstdint>
#include <vector>

#include "terrain/ring.h"

namespace ombrelia {

// The cells of a circle's samples around one place.
struct NearCells {
    std::int32_t anchor = 0;            // subscript in HeightMap's data of a cell of the map
    std::vector<std::int16_t> offsets;  // from there, by sample; 0 for those beyond the map
    std::vector<std::int16_t> isOnMap;  // -1 or 0, by sample; all -1 if areAllOnMap
    bool areAllOnMap = false;           // isOnMap is then not written
};

class PreparedRing {
  public:
    // radius up to 126; throws OverflowFailure beyond. The directions must outlive the circle.
    PreparedRing(int radius, const Directions& directions);

    std::size_t size() const { return directions_->size(); }

    // The same cells as RingCells::at gives, into memory that is lent for them.
    void find(double x, double y, NearCells& cells) const;

  private:
    struct Centre {
        double x, y;
        int column, row;             // of the cell
        std::uint16_t partX, partY;  // inside the cell, in parts
        int anchorColumn, anchorRow;
    };

    Centre centreAt(double x, double y) const;
    void correct(const Centre& centre, std::size_t n, NearCells& cells) const;
    bool isInDoubt(const Centre& centre, std::size_t n) const;
    void correctDoubts(const Centre& centre, std::size_t first, NearCells& cells) const;

    int radius_;
    const Directions* directions_;
    // By sample: the whole cells from the centre's and the parts beyond them.
    std::vector<std::int16_t> columns_, rows_;
    std::vector<std::uint16_t> partsX_, partsY_;
    std::vector<std::int16_t> offsets_;  // of columns_ and rows_
    std::vector<std::size_t> doubtful_;  // samples in doubt around a whole place
};

}  // namespace ombrelia
