// Lines over the maze: the player's track and the solution; and where a step leads in world units.
#pragma once

#include <span>

#include "games/maze/maze_directions.h"
#include "games/maze/maze_view.h"

namespace ombrelia::maze {

// The style that the menu has checked.
MazeStyle styleInUse();

// Its directions, in the order of their numbers.
std::span<const MazeDelta> directionsOf(MazeStyle style);

// World position of the room at the page's (x2, y2), reached from the room at (x, y) at from.
MazeCorner worldStep(MazeStyle style, MazeCorner from, int x, int y, int x2, int y2);

// Sets the player to the first room.
void setStartPosition(MazeStyle style);

// Rebuilds UserPage from MazePage: no track but the first room, where the player stands.
void clearUserPage(MazeStyle style);

// The whole track, each room the half ways to its walls.
void drawUserTrack(MazeStyle style);

// From the entrance to the exit, along the solution's cells.
void drawSolution(MazeStyle style);

}  // namespace ombrelia::maze
