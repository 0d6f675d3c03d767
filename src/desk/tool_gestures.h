// What the tools do on MapView: a row each for press, move and release, in the order in which they
// are asked.
#pragma once

#include "platform/control.h"

namespace ombrelia {

// Where the mouse is: cells in the view from above, scale units in perspective.
struct MapPlace {
    float x, y;
    MouseButton button = MouseButton::None;
};

void pressTools(const MapPlace& at);

// False when a path is full: the handler then returns at once.
[[nodiscard]] bool moveTools(const MapPlace& at);

void releaseTools(const MapPlace& at);

}  // namespace ombrelia
