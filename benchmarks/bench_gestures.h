// The dearest gesture of each terrain tool, for the product's tables and for the slow second world.
#pragma once

#include <cstdint>

#include "core/objects.h"
#include "terrain/slow_world.h"

namespace ombrelia {

inline constexpr int kLongestPath = 599;  // points that are recorded at most
inline constexpr int kDragMoves = 500;

// The editor with a map of this size, every tool at its dearest setting, no refresh after an edit.
void openToolDesk(int mapSize);

// The slow world with the same settings; its yields cost what the product's cost.
slow::World slowToolWorld(int mapSize);

// Hills and valleys without a random source, 0..255, over all cells.
void layGround();
void layGround(slow::World& world);

// A path of so many points that goes over the whole map to and fro, from edge to edge.
void recordPath(int points);
void recordPath(slow::World& world, int points);

// A straight line from (0, 0) to (last, last).
void recordDiagonal(int last);
void recordDiagonal(slow::World& world, int last);

// Places of the moves of a drag.
float dragX(int move);
float dragY(int move);

// Samples that the tools visit in these gestures: every place times every angle times every ring.
// A path's are counted for its recorded points.
double pencilSamples(int thickness);
double lineSamples(int thickness);
double canyonSamples(int bank, int edge, int river);
double mountainSamples(int topSize, int side);

}  // namespace ombrelia
