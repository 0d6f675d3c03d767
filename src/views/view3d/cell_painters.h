// The painters of single map points in perspective, one for each style. Each projects the heights
// as they stand and looks their colours up afterwards, which clamps them in place.
#pragma once

#include <span>

#include "platform/color.h"
#include "platform/surface.h"

namespace ombrelia {

// Lines from the point to its neighbours step cells further down and to the right, in the colours
// of their far ends. A step below 0 counts as its amount. The scale of MapView counts, and its
// DrawWidth.
void DrawLineCell(int x, int y, int step, double centre);

// One pixel, whatever the DrawWidth.
void DrawDotCell(int x, int y, int step, double centre);

// The cell between the point and its neighbours in the colour of its lower left corner; nothing if
// a neighbour lies behind the map.
void DrawPolygonCell(int x, int y, int step, double centre);

// Fills a polygon of four pixel corners on MapView.
void FillCell(std::span<const PixelPoint, 4> points, Color color);

// A coordinate rounded down to a whole pixel; beyond 32 bits it is the nearest 32-bit number.
std::int32_t wholePixel(double place);

}  // namespace ombrelia
