#include "games/worm/worm_state.h"

namespace ombrelia::worm {

std::int16_t CellSize = 0;
std::int16_t BoardSize = 0;
std::int16_t Lives = 0;
std::int16_t Level = 0;
std::int16_t ItemIndex = 0;
std::int16_t HeadX = 0;
std::int16_t HeadY = 0;
std::int16_t Heading = 0;
std::int16_t WormLength = 0;
std::int16_t LastTurnX = 0;
std::int16_t LastTurnY = 0;
CheckedArray<std::int16_t, 1, kLastTrail> TrailX;
CheckedArray<std::int16_t, 1, kLastTrail> TrailY;
std::int16_t ColorR = 0;
std::int16_t ColorG = 0;
std::int16_t ColorB = 0;
std::int16_t DeltaR = 0;
std::int16_t DeltaG = 0;
std::int16_t DeltaB = 0;
CheckedGrid<std::int16_t, kLastBoard> Board;
CheckedGrid<std::int16_t, kLastBoard> NextBoard;

namespace {

constexpr std::int16_t kCellPixels = 30;
constexpr std::int16_t kBoardCells = 16;
constexpr std::int16_t kFirstLives = 5;

}  // namespace

void resetWormState() {
    CellSize = kCellPixels;
    BoardSize = kBoardCells;
    Lives = kFirstLives;
    Level = 1;
    ItemIndex = 0;
    HeadX = 0;
    HeadY = 0;
    Heading = 0;
    WormLength = 0;
    LastTurnX = 0;
    LastTurnY = 0;
    TrailX.fill(0);
    TrailY.fill(0);
    ColorR = 0;
    ColorG = 0;
    ColorB = 0;
    DeltaR = 0;
    DeltaG = 0;
    DeltaB = 0;
    Board.fill(0);
    NextBoard.fill(0);
}

}  // namespace ombrelia::worm
