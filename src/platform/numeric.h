// Rounding and narrowing, in one place. A float becomes an integer by rounding to nearest, ties to
// even, unless floor is asked for; a 16-bit or 32-bit overflow is a run-time failure, never silent.
#pragma once

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

#include "platform/failure.h"

namespace ombrelia {

// Nearest whole number, ties to even. The value must fit 64 bits.
inline std::int64_t roundToEven(double value) {
#ifdef __wasm__
    return static_cast<std::int64_t>(__builtin_rint(value));  // an instruction, and no call
#else
    return std::llrint(value);
#endif
}

// The same for |value| below 2^31, in a form of which the compiler makes several at once: the sum
// with 1.5 * 2^52 has no digits after the point, and its lowest bits are the result.
inline std::int32_t roundSmallToEven(double value) {
    constexpr double kShift = 6755399441055744.0;
    const double shifted = value + kShift;
    std::int64_t bits = 0;  // std::bit_cast is missing in some libraries
    std::memcpy(&bits, &shifted, sizeof bits);
    return static_cast<std::int32_t>(bits);
}

// Largest whole number not above value. The value must fit 64 bits.
inline std::int64_t floorToWhole(double value) {
    return static_cast<std::int64_t>(std::floor(value));
}

// A whole number as a narrower type; throws OverflowFailure outside its range.
template <typename Narrow>
Narrow narrowTo(std::int64_t value) {
    if (value < std::numeric_limits<Narrow>::min() || value > std::numeric_limits<Narrow>::max()) {
        throwOverflow(static_cast<double>(value), 8 * static_cast<int>(sizeof(Narrow)));
    }
    return static_cast<Narrow>(value);
}

// Rounds to nearest, ties to even, into 16 or 32 bits; throws OverflowFailure for what does not fit
// and for what is not a number.
template <typename Narrow>
Narrow roundTo(double value) {
    constexpr double kLow = static_cast<double>(std::numeric_limits<Narrow>::min()) - 0.5;
    constexpr double kHigh = static_cast<double>(std::numeric_limits<Narrow>::max()) + 0.5;
    if (!(value >= kLow && value <= kHigh)) {
        throwOverflow(value, 8 * static_cast<int>(sizeof(Narrow)));
    }
    return narrowTo<Narrow>(roundToEven(value));
}

inline std::int16_t roundToInt16(double value) {
    return roundTo<std::int16_t>(value);
}

inline std::int32_t roundToInt32(double value) {
    return roundTo<std::int32_t>(value);
}

// Rounds down into 16 bits; throws OverflowFailure for what does not fit.
inline std::int16_t floorToInt16(double value) {
    return roundTo<std::int16_t>(std::floor(value));
}

}  // namespace ombrelia
