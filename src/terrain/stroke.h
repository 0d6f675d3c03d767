// Pencil and line: a stroke of one height along the recorded points.
#pragma once

#include <cstdint>

namespace ombrelia {

// Which tool recorded the points.
inline constexpr std::int16_t kPencilStroke = 0;
inline constexpr std::int16_t kLineStroke = 1;

// Draws the recorded points 1..StrokeCount - 1 at DrawHeight into HeightMap; thickness and height
// are read anew at every step. Shows progress, yields, can be stopped after each step; refreshes if
// that is wished. Fewer than two points draw nothing.
void DrawStroke(std::int16_t mode);

}  // namespace ombrelia
