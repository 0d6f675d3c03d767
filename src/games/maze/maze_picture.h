// The pictures of both styles, painted from the far edge to the near one, a slice at each tick.
#pragma once

#include "games/maze/maze_state.h"

namespace ombrelia::maze {

// The first slice: templates, and the floor of the square style. Sets DrawState to the next one's.
void beginMazePicture(MazeStyle style);

// One slice in state bands, caps or walls; moves DrawRow, DrawColumn, SubRow and RowOffset on, and
// DrawState where a phase has ended.
void paintMazeSlice(MazeStyle style);

// The hexagonal style's own; its pieces in work are kept between ticks.
void beginHexPicture();
void paintHexBands();
void paintHexCaps();
void paintHexRow();

}  // namespace ombrelia::maze
