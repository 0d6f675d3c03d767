// The maze: its size, and the depth-first carver.
#pragma once

#include "games/maze/maze_seed.h"
#include "games/maze/maze_state.h"

namespace ombrelia::maze {

// Sets NumColumns, NumRows, MaxX, MaxY and NumRooms for an inner size in twips, bar and text line
// taken off. Throws OverflowFailure for a width of 0 and for more rooms than 16 bits count.
void ComputeMazeSize(MazeStyle style, double widthTwips, double heightTwips);

// The same from NumColumns and NumRows as they stand.
void completeMazeSize(MazeStyle style);

// Allocates the three arrays for the size in force.
void allocateMaze();

// Carves MazePage, which has the size in force, from eight digits.
void GenerateMaze(MazeStyle style, const SeedDigits& digits);

}  // namespace ombrelia::maze
