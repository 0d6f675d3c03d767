// Everything that the worm game remembers. Each load of its window sets all of it anew; afterwards
// the game's own procedures write it alone.
#pragma once

#include <cstdint>

#include "platform/checked_array.h"

namespace ombrelia::worm {

// What a cell holds.
enum WormCell : std::int16_t { kCellEmpty = 0, kCellWorm = 1, kCellWall = 2 };

// Where the head goes at a tick.
enum WormHeading : std::int16_t { kHeadUp = 1, kHeadRight = 2, kHeadDown = 3, kHeadLeft = 4 };

inline constexpr int kLastTrail = 100;
inline constexpr int kLastBoard = 100;

extern std::int16_t CellSize;    // pixels to a cell, 30
extern std::int16_t BoardSize;   // N: the walled board has the cells 1..N, 16
extern std::int16_t Lives;       // 0..5; LoseLife
extern std::int16_t Level;       // from 1; PlaceItem
extern std::int16_t ItemIndex;   // food items shown so far in this life, 0..18; PlaceItem
extern std::int16_t HeadX;       // cells, -1..101; tick, ResetWorm
extern std::int16_t HeadY;       // cells, -1..101; tick, ResetWorm
extern std::int16_t Heading;     // 1..4; keys, ResetWorm
extern std::int16_t WormLength;  // cells, from 4; tick, ResetWorm
extern std::int16_t LastTurnX;   // cells, the head at the last key that counted; keys
extern std::int16_t LastTurnY;

// Cells of the worm, the newest at 1. Entries beyond WormLength are what an earlier worm left.
extern CheckedArray<std::int16_t, 1, kLastTrail> TrailX;
extern CheckedArray<std::int16_t, 1, kLastTrail> TrailY;

extern std::int16_t ColorR;  // 30..255 after the first tick, 1..256 before; tick
extern std::int16_t ColorG;
extern std::int16_t ColorB;
extern std::int16_t DeltaR;  // drift at a tick, -4..4; tick
extern std::int16_t DeltaG;  // goes the other way: it is taken off
extern std::int16_t DeltaB;

// Cells (x, y) as WormCell. Beside the walled board 0 and N + 1..100 are there too.
extern CheckedGrid<std::int16_t, kLastBoard> Board;      // in play; ShowBoard, tick
extern CheckedGrid<std::int16_t, kLastBoard> NextBoard;  // BuildLevel

// All of it as a game begins.
void resetWormState();

}  // namespace ombrelia::worm
