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

inline std::int16_t CellSize = 0;    // pixels to a cell, 30
inline std::int16_t BoardSize = 0;   // N: the walled board has the cells 1..N, 16
inline std::int16_t Lives = 0;       // 0..5; LoseLife
inline std::int16_t Level = 0;       // from 1; PlaceItem
inline std::int16_t ItemIndex = 0;   // food items shown so far in this life, 0..18; PlaceItem
inline std::int16_t HeadX = 0;       // cells, -1..101; tick, ResetWorm
inline std::int16_t HeadY = 0;       // cells, -1..101; tick, ResetWorm
inline std::int16_t Heading = 0;     // 1..4; keys, ResetWorm
inline std::int16_t WormLength = 0;  // cells, from 4; tick, ResetWorm
inline std::int16_t LastTurnX = 0;   // cells, the head at the last key that counted; keys
inline std::int16_t LastTurnY = 0;

// Cells of the worm, the newest at 1. Entries beyond WormLength are what an earlier worm left.
inline CheckedArray<std::int16_t, 1, kLastTrail> TrailX;
inline CheckedArray<std::int16_t, 1, kLastTrail> TrailY;

inline std::int16_t ColorR = 0;  // 30..255 after the first tick, 1..256 before; tick
inline std::int16_t ColorG = 0;
inline std::int16_t ColorB = 0;
inline std::int16_t DeltaR = 0;  // drift at a tick, -4..4; tick
inline std::int16_t DeltaG = 0;  // goes the other way: it is taken off
inline std::int16_t DeltaB = 0;

// Cells (x, y) as WormCell. Beside the walled board 0 and N + 1..100 are there too.
inline CheckedGrid<std::int16_t, kLastBoard> Board;      // in play; ShowBoard, tick
inline CheckedGrid<std::int16_t, kLastBoard> NextBoard;  // BuildLevel

// All of it as a game begins.
void resetWormState();

}  // namespace ombrelia::worm
