// The gesture machine of MapView and the picker strip.
#pragma once

#include "platform/control.h"

namespace ombrelia {

void MapView_MouseDown(EventArgs& args);
void MapView_MouseMove(EventArgs& args);
void MapView_MouseUp(EventArgs& args);
void MapView_DblClick(EventArgs& args);
void Picker_MouseDown(EventArgs& args);
void Picker_MouseMove(EventArgs& args);
void Picker_MouseUp(EventArgs& args);

// Cuts a place to 0..MapSize on both axes. result: 1 when it lies beyond the same edge as the last
// time, otherwise 0.
void ClampToMap(float& x, float& y, std::int16_t& result);

}  // namespace ombrelia
