// The pictures of the maze written a second time: every face of a picture in its order, as the text
// that NotingPainter makes of it, without ticks.
#pragma once

#include <string>
#include <vector>

#include "games/maze/plain_maze.h"

namespace ombrelia::maze {

std::vector<std::string> plainPicture(const PlainMaze& maze, int widthPixels, int heightPixels,
                                      double tiltDegrees);

}  // namespace ombrelia::maze
