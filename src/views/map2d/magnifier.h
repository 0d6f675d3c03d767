// The readout and the magnifier beside the map.
#pragma once

namespace ombrelia {

// Shows the height at (x, y) and a 5 x 5 sample of the cells from there. Cells as floats; outside
// 0..MapSize the readout stays and samples repeat the colour before them.
void showUnderPointer(float x, float y);

}  // namespace ombrelia
