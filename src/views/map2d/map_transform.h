// The viewport MapView as a stretched copy of the back buffer Mapview2, under zoom and pan.
#pragma once

#include "core/objects.h"

namespace ombrelia {

// Side of the viewport and of the back buffer, pixels.
inline constexpr int kViewSide = kLargeSize;

// Clamps zoom and pan, sets the scale of MapView from them and copies the back buffer.
void ApplyMapTransform();

// Clamps the pan and moves the scale; copies nothing.
void ApplyMapPan();

// One copy of the whole map at the start of a pan drag.
void beginMapPan();

// A point of MapView's scale as a place in cells, in single precision; not rounded.
float cellX(float u);
float cellY(float v);

}  // namespace ombrelia
