// The maze's own random numbers: eight decimal digits, and a ring of sums that they start.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace ombrelia::maze {

// p0 first.
using SeedDigits = std::array<std::uint8_t, 8>;

// Digits of a text's first eight characters, right-aligned; 8 in the places left free.
SeedDigits digitsOf(const std::string& seed);

void ScrambleSeed(SeedDigits& digits);

// An odometer with p0 the lowest digit; a carry out of p7 is dropped.
void IncrementSeed(SeedDigits& digits);

// Each number is the sum of the eight before it, modulo kModulus.
template <int kModulus>
class MazeRandom {
  public:
    explicit MazeRandom(const SeedDigits& digits) {
        for (std::size_t i = 0; i < ring_.size(); ++i) {
            ring_[i] = digits[i] + 1;
            sum_ += ring_[i];
        }
        sum_ %= kModulus;
    }

    // 0..kModulus - 1.
    int operator()() {
        // The sum of the next eight is this one's double less the number that leaves the ring; a
        // number once in the ring lies below the modulus.
        const int drawn = sum_;
        int next = 2 * sum_ - ring_[oldest_];
        next += next < 0 ? kModulus : 0;
        next -= next >= kModulus ? kModulus : 0;
        ring_[oldest_] = drawn;
        oldest_ = (oldest_ + 1) % ring_.size();
        sum_ = next;
        return drawn;
    }

  private:
    std::array<int, 8> ring_{};
    std::size_t oldest_ = 0;
    int sum_ = 0;
};

}  // namespace ombrelia::maze
