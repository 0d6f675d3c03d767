// The digits of a seed as the plain second way takes them.
#pragma once

#include <algorithm>

#include "games/maze/maze_seed.h"
#include "games/maze/plain_maze.h"

namespace ombrelia::maze {

inline PlainDigits plain(const SeedDigits& digits) {
    PlainDigits out;
    std::copy(digits.begin(), digits.end(), out.begin());
    return out;
}

}  // namespace ombrelia::maze
