// The worm's board: the walls of each level, and the cross-fade from one level to the next.
#pragma once

#include "platform/color.h"

namespace ombrelia::worm {

// The last level with walls of its own inside.
inline constexpr int kLastBarredLevel = 4;

// Writes the walls of a level, from 1, into NextBoard. Level 1 and all above 4 leave the inner
// cells as they were.
void BuildLevel(int level);

// Shows the window and fades from Board to NextBoard, picture by picture, without a pause for other
// events; then copies the cells 1..N. A worm that stands on Board is gone at the first picture.
void ShowBoard();

// Fills a cell of the window's ground; nothing of it outside the window.
void paintCell(int x, int y, Color color);

}  // namespace ombrelia::worm
