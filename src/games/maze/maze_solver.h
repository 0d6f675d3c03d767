// The way through the maze, and the choice among mazes.
#pragma once

#include <string>

#include "games/maze/maze_state.h"

namespace ombrelia::maze {

// Marks the solution of a carved MazePage with kMazeTrack, all else that is open with kMazeOpen.
// roomsInSolution: rooms on it, both ends included; adjacency: walls that a room of it shares with
// the outside or with another room of it.
void SolveMaze(MazeStyle style, std::int16_t& roomsInSolution, std::int16_t& adjacency);

// Fills MazePage with the best of the mazes that can be tried in this time, a quarter of a second:
// of those whose solution visits a third of the rooms the least adjacent, then the longest, then
// the earliest. Does not yield.
void CreateMaze(const std::string& seedString, MazeStyle style, double seconds);

// Time that CreateMaze is given.
inline constexpr double kMazeSearchSeconds = 0.25;

}  // namespace ombrelia::maze
