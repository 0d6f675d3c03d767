// The mouse on the map where it moves the view: the camera of the perspective, pan and zoom from
// above.
#pragma once

namespace ombrelia {

// A press in the advanced mode picks the tool: left rotates, right zooms. No change in the press
// that a double click makes.
void switchMotionTool(bool isLeft, bool isRight);

// Begins a drag at a place in view pixels; an OverflowFailure beyond 16 bits.
void beginNavigation(float x, float y);

// One step of the drag: turns, moves or zooms the camera and draws the quick grid. A pan beyond 16
// bits is an OverflowFailure.
void navigate(float x, float y);

// The advanced mode's double click takes the pan tool; false if nothing is to happen.
[[nodiscard]] bool takePanTool();

// The map from above: a drag by the pointer's place in the window zooms or pans it.
void beginMapZoom();
void dragMapZoom();
void beginMapPanDrag();
void dragMapPan();

// Of pan and zoom from above the other one, if one of them is on.
void swapPanAndZoom();

}  // namespace ombrelia
