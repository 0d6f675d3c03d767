// The lattice of the fractal generator: a diamond-square midpoint displacement with uneven
// averages.
#pragma once

#include <cstdint>
#include <vector>

namespace ombrelia {

// Average for the middle of a diamond at (i, j), whose corners stand s away; S points a row, E = S
// - 1 is the lattice's last subscript.
double AverageDiamondNeighbours(int i, int j, int s, int S, int E, const double* v);

// Fills the lattice of cells + 1 points a side, level by level. seed is not used. h: decay of the
// noise, 0.1..2.0. Yields after each row; returns early, values as they are, when StopFlag is 1.
void FillFractalValues(std::vector<double>& values, std::int16_t cells, std::int32_t seed,
                       double heightScale, double h);

// The last of the three bytes of every lattice point: 229.5 rounded.
inline constexpr std::uint8_t kThirdLatticeByte = 230;

// Maps the lattice to bytes 102..230 around its mean; yields after each row. False if it was
// stopped.
[[nodiscard]] bool FractalValuesToBytes(const std::vector<double>& values, std::int16_t cells,
                                        std::vector<std::uint8_t>& bytes);

// Puts "Generating Fractal Part part/parts" into the progress panel.
void announceFractalPart(int part, std::int32_t total);

}  // namespace ombrelia
