// The walls of a canyon: around each place of the path circles whose heights climb along half a
// sine from the floor's edge to the ground as it was at the outer rim.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "core/objects.h"
#include "terrain/prepared_ring.h"
#include "terrain/ring.h"

namespace ombrelia {

class CanyonWall {
  public:
    // bank: radius of the floor; edge: width of the wall, 1 and above. Keeps the ground as it is
    // now for the rim.
    CanyonWall(int bank, int edge);
    CanyonWall(const CanyonWall&) = delete;
    CanyonWall& operator=(const CanyonWall&) = delete;

    // Cuts the walls around one place; never fills.
    void carveAt(double x, double y);

  private:
    static constexpr int kHeights = 256;
    static constexpr int kSpacings = 3;

    // Directions of one spacing, with the height of the rim in each around the present place.
    struct Fan {
        Directions directions;
        std::vector<std::int16_t> tops;
    };

    Fan& fanFor(int r);
    void readRim(Fan& fan, double x, double y) const;
    void carveRing(int ring, double x, double y);
    double wallHeight(int ring, int top) const;

    int bank_;
    int edge_;
    HeightGrid before_;
    std::array<Fan, kSpacings> fans_;
    std::vector<PreparedRing> rings_;
    std::vector<std::int32_t> cells_;
    std::vector<double> climbs_;                             // -1..1 for each ring
    std::vector<std::array<std::int16_t, kHeights>> walls_;  // by ring, then by height of the rim
};

}  // namespace ombrelia
