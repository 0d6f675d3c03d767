// The maze written a second time, step by step and without any shortcut: pages with every bound
// tested, tables of permutations filled by nested choices, a ring that is moved along.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace ombrelia::maze {

using PlainDigits = std::array<int, 8>;

PlainDigits plainDigits(const std::string& seed);
PlainDigits plainScrambled(PlainDigits digits);
PlainDigits plainIncremented(PlainDigits digits);

class PlainRandom {
  public:
    PlainRandom(const PlainDigits& digits, int modulus);
    int next();

  private:
    std::array<int, 8> ring_{};
    int modulus_;
};

struct PlainStep {
    int x, y;
    bool operator==(const PlainStep&) const = default;
};

// Row n: the deltas in the order of the n-th permutation.
std::vector<std::vector<PlainStep>> plainDeltas(bool isHex);

struct PlainMaze {
    bool isHex = false;
    int columns = 0;
    int rows = 0;
    int maxX = 0;
    int maxY = 0;
    int rooms = 0;
    std::vector<std::vector<int>> page;  // page[x][y]
    int roomsInSolution = 0;
    int adjacency = 0;

    bool operator==(const PlainMaze&) const = default;
};

// A maze without a page, for an inner size in twips; and for a number of columns and rows.
PlainMaze plainSize(bool isHex, double w, double h);
PlainMaze plainSizeOf(bool isHex, int columns, int rows);

void plainGenerate(PlainMaze& maze, const PlainDigits& digits);
void plainSolve(PlainMaze& maze);

// The best of this many candidates from a seed text.
PlainMaze plainCreate(PlainMaze size, const std::string& seed, int candidates);

}  // namespace ombrelia::maze
