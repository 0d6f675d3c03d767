// The command "Generate": fractal terrain over the whole map.
#pragma once

#include <cstdint>

namespace ombrelia {

// Reads the sliders Smoothness, Height and Detail, fills HeightMap, refreshes if that is wished.
void GenerateCommand();

// h: decay of the noise from level to level, 0.1..2.0. height: added to every height, 20..200; read
// anew for every column. Detail is read from its slider.
void GenerateFractalTerrain(double& h, std::int16_t& height);

}  // namespace ombrelia
