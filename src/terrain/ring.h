// Circles of samples around a place on the map, as every tool draws them: a radius, some
// directions, and the cell under each end, rounded down.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "core/objects.h"

namespace ombrelia {

// Largest whole number not above value; |value| below 2^31. In a form of which the compiler makes
// several at once.
inline int floorToInt(double value) {
    const int whole = static_cast<int>(value);
    return whole - (value < whole ? 1 : 0);
}

// Unit vectors in the order in which a tool takes its samples.
class Directions {
  public:
    // count directions from firstThirds on, stepThirds apart, thirds of a degree 0..kThirdsInTurn.
    [[nodiscard]] static Directions fromTable(int firstThirds, int stepThirds, int count);

    // One more direction.
    void add(double cosine, double sine) {
        cosines_.push_back(cosine);
        sines_.push_back(sine);
    }

    std::size_t size() const { return cosines_.size(); }
    const double* cosines() const { return cosines_.data(); }
    const double* sines() const { return sines_.data(); }

  private:
    std::vector<double> cosines_;
    std::vector<double> sines_;
};

// Every whole degree 1..360, as most circles are drawn.
[[nodiscard]] Directions wholeDegrees(int step = 1);

// Subscripts in HeightMap's data of the samples of one circle; kOutside for those beyond the map.
class RingCells {
  public:
    static constexpr std::int32_t kOutside = -1;

    // The circle of radius r around (x, y) on a map of 0..MapSize; holds until the next call.
    [[nodiscard]] std::span<const std::int32_t> at(double x, double y, double r,
                                                   const Directions& directions) {
        return find(x, y, r, directions, r);
    }

    // The same, but of samples that follow one another in one cell only the first.
    [[nodiscard]] std::span<const std::int32_t> changesAt(double x, double y, double r,
                                                          const Directions& directions);

    // The places (x, y) + offset, none of which is further than reach away on either axis.
    [[nodiscard]] std::span<const std::int32_t> atOffsets(double x, double y,
                                                          const Directions& offsets, double reach) {
        return find(x, y, 1, offsets, reach);
    }

  private:
    std::span<const std::int32_t> find(double x, double y, double r, const Directions& directions,
                                       double reach);

    std::vector<std::int32_t> cells_;
};

// MapSize, once it is proven that HeightMap has the cell (MapSize, MapSize).
int checkedMapSide();

}  // namespace ombrelia
