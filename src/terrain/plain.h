// The plain object: a disc levelled to the height of its centre.
#pragma once

#include <cstdint>

namespace ombrelia {

// Levels the circles of radius 1..size around (x, y) to the height at (x, y), which must lie in
// 0..257.
void levelDisc(int x, int y, int size);

// The object at a released pointer; reads the slider Size, refreshes if that is wished. Neither
// yields nor shows progress.
void BuildPlain(std::int16_t x, std::int16_t y);

}  // namespace ombrelia
