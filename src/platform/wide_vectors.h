// Further copies of a loop for processors with wider vectors. A kernel is written once, marked
// OMBRELIA_IN_BOTH, and called from two plain procedures, of which one is marked OMBRELIA_WIDE; the
// compiler makes both, each step rounds as in the other, and hasWideVectors() picks at run time.
// The rare loop that is worth a way of its own, marked OMBRELIA_BYTE_TABLES, asks hasByteTables().
#pragma once

#if defined(__x86_64__) && defined(__GNUC__)
#define OMBRELIA_HAS_WIDE 1
#define OMBRELIA_IN_BOTH inline __attribute__((always_inline))
#define OMBRELIA_WIDE __attribute__((target("avx2")))
#define OMBRELIA_BYTE_TABLES __attribute__((target("avx512f,avx512bw,avx512vl,avx512vbmi")))
#else
#define OMBRELIA_HAS_WIDE 0
#define OMBRELIA_IN_BOTH inline
#define OMBRELIA_WIDE
#define OMBRELIA_BYTE_TABLES
#endif

namespace ombrelia {

// What a processor's vectors can do; each holds what stands before it.
enum class Vectors {
    Narrow,
    Avx2,   // of 32 bytes
    Avx512  // of 64 bytes, each byte of which can be looked up in a table of vectors
};

// What this processor can do.
inline Vectors ownVectors() {
#if OMBRELIA_HAS_WIDE
    if (__builtin_cpu_supports("avx512vbmi") != 0 && __builtin_cpu_supports("avx512bw") != 0 &&
        __builtin_cpu_supports("avx512vl") != 0) {
        return Vectors::Avx512;
    }
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
inline bool hasByteTables() {
    return usedVectors >= Vectors::Avx512;
}

}  // namespace ombrelia
