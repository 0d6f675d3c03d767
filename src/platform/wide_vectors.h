// A second copy of a loop for processors with wider vectors. A kernel is written once, marked
// OMBRELIA_IN_BOTH, and called from two plain procedures, of which one is marked OMBRELIA_WIDE; the
// compiler makes both, each step rounds as in the other, and hasWideVectors() picks at run time.
#pragma once

#if defined(__x86_64__) && defined(__GNUC__)
#define OMBRELIA_IN_BOTH inline __attribute__((always_inline))
#define OMBRELIA_WIDE __attribute__((target("avx2")))
#else
#define OMBRELIA_IN_BOTH inline
#define OMBRELIA_WIDE
#endif

namespace ombrelia {

inline bool hasWideVectors() {
#if defined(__x86_64__) && defined(__GNUC__)
    return __builtin_cpu_supports("avx2") != 0;
#else
    return false;
#endif
}

}  // namespace ombrelia
