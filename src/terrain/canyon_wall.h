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
    static constexpr int kSpacings = 3;

    // Directions of one spacing, with the height of the rim in each around the present place.
    struct Fan {
        Directions directions;
        std::vector<PreparedRing> rim;  // one, once the directions are known
        std::vector<std::int16_t> tops;
    };

    // One circle of the wall.
    struct Ring {
        PreparedRing samples;
        double climb;         // -1..1
        std::uint16_t share;  // of the way from the floor up to the rim, at most, in 1 / 65536
        bool canCut;          // some height gets lower by it
        std::array<std::int16_t, kHeights> walls;  // by the height of the rim
    };

    Fan& fanFor(int r);
    Ring makeRing(int number);
    void readRim(Fan& fan, double x, double y);
    void carveRing(const Ring& ring, const Fan& fan, double x, double y);
    void findChances(const Ring& ring, const Fan& fan);
    void cut(const Ring& ring, std::int16_t top, std::int16_t& ground) const;
    static double wallHeight(double climb, int top);

    int bank_;
    int edge_;
    HeightGrid before_;
    std::array<Fan, kSpacings> fans_;
    std::vector<Ring> rings_;
    NearCells cells_;
    std::vector<std::int16_t> grounds_;  // under the samples of the present circle
    std::vector<std::uint8_t> chances_;  // by sample: 0 if it surely cuts nothing
};

}  // namespace ombrelia
