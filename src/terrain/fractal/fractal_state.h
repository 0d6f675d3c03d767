// Working state of the fractal generator; reused between runs, written by the generator alone.
#pragma once

#include <cstdint>
#include <vector>

namespace ombrelia {

inline std::int16_t FractalSide = 0;       // cells on a side of the lattice, 2..256, a power of two
inline std::vector<double> FractalValues;  // lattice point (i, j) at j + (FractalSide + 1) * i
inline std::vector<std::uint8_t> FractalBytes;  // three bytes a lattice point
inline std::int16_t FractalPart = 0;            // passes done, for the progress text
inline std::int16_t FractalParts = 0;           // passes of the lattice, for the progress text

}  // namespace ombrelia
