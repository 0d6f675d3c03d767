// The random source of the real program: a small fast generator with single-precision results.
#pragma once

#include <array>
#include <cstdint>

#include "platform/services.h"

namespace ombrelia {

// xoshiro128+ by D. Blackman and S. Vigna (public domain, 2018), seeded through splitmix64.
class GeneratorRandom : public RandomSource {
  public:
    GeneratorRandom() { seedFromClock(); }
    void seedFromClock() override;
    void draw(std::span<float> draws) override;

    // A fixed start, for measurements.
    void seed(std::uint64_t start);

  private:
    std::array<std::uint32_t, 4> state_{};
};

}  // namespace ombrelia
