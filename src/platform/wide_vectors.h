// Further copies of a loop for processors with wider vectors. A kernel is written once, marked
// OMBRELIA_IN_BOTH, and called from two plain procedures, of which one is marked OMBRELIA_WIDE; the
// compiler makes both, each step rounds as in the other, and hasWideVectors() picks at run time.
#pragma once

#include <cstdint>

#include "platform/numeric.h"

#if defined(__x86_64__) && defined(__GNUC__)
#define OMBRELIA_HAS_WIDE 1
#define OMBRELIA_IN_BOTH inline __attribute__((always_inline))
#define OMBRELIA_WIDE __attribute__((target("avx2")))
#else
#define OMBRELIA_HAS_WIDE 0
#define OMBRELIA_IN_BOTH inline
#define OMBRELIA_WIDE
#endif

namespace ombrelia {

// What a processor's vectors can do; each holds what stands before it.
enum class Vectors {
    Narrow,
    Avx2  // of 32 bytes
};

// What this processor can do.
inline Vectors ownVectors() {
#if OMBRELIA_HAS_WIDE
    if (__builtin_cpu_supports("avx2") != 0) {
        return Vectors::Avx2;
    }
#endif
    return Vectors::Narrow;
}

// What is used of it: all, but for tests, which lower it to run as on a lesser processor.
inline Vectors usedVectors = ownVectors();

inline bool hasWideVectors() {
    return usedVectors >= Vectors::Avx2;
}

// To and from whole numbers, of |value| below 2^31, in a form of which the compiler makes several
// at once.

// The largest whole number not above value.
OMBRELIA_IN_BOTH double wholeBelow(double value) {
#ifdef __wasm_simd128__
    return __builtin_floor(value);  // one instruction
#else
    constexpr double kShift = 6755399441055744.0;  // the sum has no digits after the point
    const double nearest = (value + kShift) - kShift;
    return nearest - (nearest > value ? 1.0 : 0.0);
#endif
}

// A whole number, or 0 of -0.
OMBRELIA_IN_BOTH std::int32_t integerOf(double whole) {
#ifdef __wasm_simd128__
    return roundSmallToEven(whole);  // no instruction makes two integers of two doubles
#else
    return static_cast<std::int32_t>(whole);
#endif
}

}  // namespace ombrelia
