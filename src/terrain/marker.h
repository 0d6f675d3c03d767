// The line over the map as a one-pixel marker that follows the work.
#pragma once

namespace ombrelia {

// Puts the marker on a place of the map, cells.
void moveMarker(double x, double y);

}  // namespace ombrelia
