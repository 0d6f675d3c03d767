// Chance with a seed: the same seed gives the same choices on every machine.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>

namespace ombrelia::monkey {

class Chance {
  public:
    explicit Chance(std::uint64_t seed) : state_(mixed(seed + kStep)) {}

    // 0..count - 1; count is at least 1.
    int below(int count) { return static_cast<int>(next() % static_cast<std::uint64_t>(count)); }

    // low..high, both included.
    int between(int low, int high) { return low + below(high - low + 1); }

    bool percent(int share) { return below(100) < share; }

    // Small numbers often, large ones up to 2^bits rarely.
    int skewed(int bits) { return below(1 << between(0, bits)); }

    template <typename Table>
    auto& oneOf(Table& table) {
        return table[static_cast<std::size_t>(below(static_cast<int>(std::size(table))))];
    }

  private:
    static constexpr std::uint64_t kStep = 0x9E3779B97F4A7C15U;

    static std::uint64_t mixed(std::uint64_t bits) {
        bits = (bits ^ (bits >> 30U)) * 0xBF58476D1CE4E5B9U;
        bits = (bits ^ (bits >> 27U)) * 0x94D049BB133111EBU;
        return bits ^ (bits >> 31U);
    }

    std::uint64_t next() {
        state_ += kStep;
        return mixed(state_);
    }

    std::uint64_t state_;
};

}  // namespace ombrelia::monkey
