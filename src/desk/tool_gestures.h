// The terrain tools' share of the gestures on MapView. Each call belongs at its place in the order
// of the press, the move and the release; (x, y) are cells.
#pragma once

namespace ombrelia {

// Press: raise, lower, pencil, canyon, wavy canyon.
void pressShapingTools(float x, float y);

// Press: the line; the other tools get their marker instead.
void pressLineTool(float x, float y);

// Move. False when the path is full: the handler then returns at once.
bool moveCanyonTool(float x, float y);

// Move: pencil, line, raise, lower. False when the path is full: the handler then returns at once.
bool moveDrawingTools(float x, float y);

// Release: mountain, plain, canyon.
void releaseObjectTools(float x, float y);

// Release: pencil, line.
void releaseDrawingTools(float x, float y);

}  // namespace ombrelia
