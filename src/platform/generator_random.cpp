#include "platform/generator_random.h"

#include <bit>
#include <chrono>

namespace ombrelia {

void GeneratorRandom::seedFromClock() {
    seed(static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count()));
}

void GeneratorRandom::seed(std::uint64_t start) {
    for (std::uint32_t& word : state_) {
        start += 0x9E3779B97F4A7C15U;
        std::uint64_t mixed = start;
        mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
        mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
        word = static_cast<std::uint32_t>(mixed ^ (mixed >> 31U));
    }
}

void GeneratorRandom::draw(std::span<float> draws) {
    auto [s0, s1, s2, s3] = state_;
    for (float& value : draws) {
        const std::uint32_t result = s0 + s3;
        const std::uint32_t shifted = s1 << 9U;
        s2 ^= s0;
        s3 ^= s1;
        s1 ^= s2;
        s0 ^= s3;
        s2 ^= shifted;
        s3 = std::rotl(s3, 11);
        // The upper 24 bits: every float is exact and below 1.
        value = static_cast<float>(static_cast<std::int32_t>(result >> 8U)) * 0x1.0p-24F;
    }
    state_ = {s0, s1, s2, s3};
}

}  // namespace ombrelia
