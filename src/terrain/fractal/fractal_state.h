// Working state of the fractal generator; reused between runs, written by the generator alone.
#pragma once

#include <cstdint>
#include <vector>

namespace ombrelia {

extern std::int16_t FractalSide;           // cells on a side of the lattice, 2..256, a power of two
extern std::vector<double> FractalValues;  // lattice point (i, j) at j + (FractalSide + 1) * i
extern std::vector<std::uint8_t> FractalBytes;  // three bytes a lattice point
extern std::int16_t FractalPart;                // passes done, for the progress text
extern std::int16_t FractalParts;               // passes of the lattice, for the progress text

}  // namespace ombrelia
