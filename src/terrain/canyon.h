// The canyon object: a valley along the recorded points, with a flat floor, sloping walls and, if
// that is wished, a river.
#pragma once

namespace ombrelia {

// Carves along the points 1..StrokeCount - 1; reads sliders and options, shows progress, yields,
// can be stopped between segments; refreshes if that is wished.
void CarveCanyon();

}  // namespace ombrelia
