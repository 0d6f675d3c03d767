#include "games/worm/worm_state.h"

namespace ombrelia::worm {

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
