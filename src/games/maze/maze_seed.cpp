#include "games/maze/maze_seed.h"

#include <algorithm>

namespace ombrelia::maze {

namespace {

constexpr int kScrambleRounds = 8;
constexpr std::uint8_t kFreeDigit = 8;

constexpr std::array<std::uint8_t, 100> DigitTableA = {
    4, 1, 2, 8, 8, 9, 9, 6, 5, 7, 2, 1, 2, 9, 8, 8, 6, 3, 5, 1, 9, 5, 4, 4, 9,
    8, 6, 0, 8, 0, 6, 0, 2, 4, 1, 9, 2, 0, 7, 4, 7, 3, 0, 0, 2, 6, 8, 9, 4, 0,
    8, 3, 2, 3, 2, 5, 2, 4, 6, 9, 7, 9, 1, 3, 5, 7, 1, 1, 4, 5, 8, 1, 6, 0, 5,
    7, 8, 2, 3, 3, 7, 3, 5, 1, 7, 5, 4, 0, 3, 6, 3, 7, 7, 1, 9, 4, 0, 5, 6, 6,
};
constexpr std::array<std::uint8_t, 100> DigitTableB = {
    1, 2, 2, 1, 5, 5, 4, 6, 4, 6, 4, 4, 5, 6, 6, 3, 0, 9, 6, 5, 7, 2, 0, 9, 3,
    4, 2, 3, 9, 1, 9, 9, 9, 3, 8, 9, 3, 4, 1, 5, 0, 5, 2, 7, 0, 8, 8, 0, 4, 5,
    0, 3, 6, 8, 1, 7, 8, 8, 7, 1, 3, 2, 7, 7, 1, 8, 0, 3, 7, 5, 2, 6, 4, 0, 9,
    9, 7, 7, 4, 6, 2, 0, 0, 1, 7, 3, 6, 6, 1, 1, 2, 4, 5, 9, 8, 2, 8, 8, 3, 5,
};

}  // namespace

SeedDigits digitsOf(const std::string& seed) {
    SeedDigits digits;
    digits.fill(kFreeDigit);
    const std::size_t count = std::min(seed.size(), digits.size());
    for (std::size_t i = 0; i < count; ++i) {
        const auto code = static_cast<unsigned char>(seed[i]);
        digits[digits.size() - count + i] = static_cast<std::uint8_t>(code % 10);
    }
    return digits;
}

void ScrambleSeed(SeedDigits& p) {
    for (int round = 0; round < kScrambleRounds; ++round) {
        const auto pair = [&p](int tens, int ones) {
            return static_cast<std::size_t>(p[static_cast<std::size_t>(tens)] * 10 +
                                            p[static_cast<std::size_t>(ones)]);
        };
        const std::size_t a = pair(1, 0);
        const std::size_t b = pair(3, 2);
        const std::size_t c = pair(5, 4);
        const std::size_t d = pair(7, 6);
        p = {DigitTableB[b], DigitTableA[c], DigitTableB[c], DigitTableB[a],
             DigitTableA[b], DigitTableB[d], DigitTableA[a], DigitTableA[d]};
    }
}

void IncrementSeed(SeedDigits& digits) {
    for (std::uint8_t& digit : digits) {
        if (++digit <= 9) {
            return;
        }
        digit = 0;
    }
}

}  // namespace ombrelia::maze
