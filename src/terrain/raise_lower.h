// Raise and lower: a cone around the pointer at each move of a drag, painted at once.
#pragma once

namespace ombrelia {

// (x, y): the pointer in cells; outside the map nothing happens. The amount is read from the tool's
// slider.
void RaiseTerrain(float x, float y);
void LowerTerrain(float x, float y);

}  // namespace ombrelia
