#include "games/worm/worm.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <string>

#include "core/windows/form2.h"
#include "games/worm/board.h"
#include "games/worm/worm_state.h"
#include "platform/key_codes.h"
#include "platform/numeric.h"
#include "platform/services.h"
#include "platform/window_life.h"

namespace ombrelia::worm {

namespace {

constexpr std::int16_t kStartCell = 3;
constexpr std::int16_t kStartLength = 4;
constexpr std::int16_t kMealLength = 2;
constexpr std::int16_t kBrightest = 255;
constexpr std::int16_t kDarkest = 30;
constexpr int kFadeStep = 10;
constexpr int kFadeMilliseconds = 30;
constexpr int kMarginWidth = 10;  // of the window around its cells, pixels
constexpr int kMarginHeight = 20;

double randomFloat() {
    float u = 0;
    services().random->draw(std::span(&u, 1));
    return u;
}

void reseed() {
    services().random->seedFromClock();
}

void grow(std::int16_t& value, int by) {
    value = narrowTo<std::int16_t>(value + by);
}

Color colorOfParts(int red, int green, int blue) {
    const auto part = [](int value) {
        return static_cast<unsigned>(std::clamp(value, 0, int{kBrightest}));
    };
    return rgb(part(red), part(green), part(blue));
}

void beginNextLevel() {
    grow(Level, 1);
    BuildLevel(Level);
    ShowBoard();
    ResetWorm();
    if (Level == kLastBarredLevel) {
        Form2.Label1.Visible = true;
    }
}

int randomCell() {
    return static_cast<int>(floorToWhole(randomFloat() * BoardSize)) + 1;
}

void moveHead() {
    switch (Heading) {
        case kHeadUp:
            grow(HeadY, -1);
            break;
        case kHeadRight:
            grow(HeadX, 1);
            break;
        case kHeadDown:
            grow(HeadY, 1);
            break;
        case kHeadLeft:
            grow(HeadX, -1);
            break;
        default:
            break;
    }
}

bool isOnBoard(int x, int y) {
    return x >= 0 && x <= kLastBoard && y >= 0 && y <= kLastBoard;
}

bool hasHit() {
    return !isOnBoard(HeadX, HeadY) || Board(HeadX, HeadY) != kCellEmpty;
}

bool isAtFood() {
    return Form2.Label2.Left == HeadX * CellSize && Form2.Label2.Top == HeadY * CellSize;
}

void keepInRange(std::int16_t& component, std::int16_t& delta) {
    if (component >= kDarkest && component <= kBrightest) {
        return;
    }
    component = std::clamp(component, kDarkest, kBrightest);
    delta = roundToInt16(randomFloat() * 7 - 4);
}

void driftColor() {
    reseed();
    grow(ColorR, DeltaR);
    // Required: green drifts against its delta (green_drifts_against_its_delta).
    grow(ColorG, -DeltaG);
    grow(ColorB, DeltaB);
    keepInRange(ColorR, DeltaR);
    keepInRange(ColorG, DeltaG);
    keepInRange(ColorB, DeltaB);
}

void shiftTrail() {
    for (int i = WormLength - 1; i >= 1; --i) {
        TrailX(i + 1) = TrailX(i);
        TrailY(i + 1) = TrailY(i);
    }
    TrailX(1) = HeadX;
    TrailY(1) = HeadY;
}

void eraseTail() {
    const int x = TrailX(WormLength);
    const int y = TrailY(WormLength);
    if (Board(x, y) != kCellWall) {
        paintCell(x, y, Form2.Picture1.Canvas.Background);
        Board(x, y) = kCellEmpty;
    }
}

void drawStartColors() {
    reseed();
    for (std::int16_t* component : {&ColorR, &ColorG, &ColorB}) {
        *component = roundToInt16(randomFloat() * 255 + 1);
    }
    for (std::int16_t* delta : {&DeltaR, &DeltaG, &DeltaB}) {
        *delta = roundToInt16(randomFloat() * 7 - 3);
    }
}

void paintWorm(Color color) {
    for (int i = 1; i < WormLength; ++i) {
        paintCell(TrailX(i), TrailY(i), color);
    }
}

void fadeWorm() {
    int parts[3] = {ColorR, ColorG, ColorB};
    bool isBright = true;
    while (isBright) {
        paintWorm(colorOfParts(parts[0], parts[1], parts[2]));
        refreshControl(Form2);
        isBright = false;
        for (int& part : parts) {
            part -= part > kFadeStep ? kFadeStep : 0;
            isBright = isBright || part > kFadeStep;
        }
        services().desktop->sleep(kFadeMilliseconds);
    }
}

// A key and the heading that it asks for; refused while the worm goes the opposite way.
struct Turn {
    int keyCode;
    std::int16_t heading, opposite;
};
constexpr Turn kTurns[] = {
    {key::kLeft, kHeadLeft, kHeadRight},
    {key::kUp, kHeadUp, kHeadDown},
    {key::kRight, kHeadRight, kHeadLeft},
    {key::kDown, kHeadDown, kHeadUp},
};

}  // namespace

void openWormGame() {
    showWindow(Form2);
}

void ResetWorm() {
    ItemIndex = 0;
    PlaceItem();
    HeadX = kStartCell;
    HeadY = kStartCell;
    WormLength = kStartLength;
    for (int x = 1; x <= BoardSize; ++x) {
        for (int y = 1; y <= BoardSize; ++y) {
            if (Board(x, y) == kCellWorm) {
                Board(x, y) = kCellEmpty;
            }
        }
    }
    Heading = kHeadRight;
}

void PlaceItem() {
    reseed();
    grow(ItemIndex, 1);
    if (ItemIndex == kFoodPictures) {
        beginNextLevel();
        return;
    }
    int x = 0;
    int y = 0;
    do {
        reseed();
        x = randomCell();
        y = randomCell();
    } while (Board(x, y) != kCellEmpty);
    Form2.Label2.Left = x * CellSize;
    Form2.Label2.Top = y * CellSize;
    Form2.Label2.Face = Form2.Arr(ItemIndex - 1).Face;
}

bool LoseLife() {
    fadeWorm();
    grow(Lives, -1);
    ResetWorm();
    return Lives == 0;
}

void Form2_Load(EventArgs& /*args*/) {
    resetWormState();
    Form2.Width = CellSize * BoardSize + CellSize + kMarginWidth;
    Form2.Height = CellSize * BoardSize + CellSize + kMarginHeight;
    // Required: the first item is placed before there are walls
    // (the_first_item_may_lie_on_a_wall_to_be).
    ResetWorm();
    BuildLevel(Level);
    ShowBoard();
    drawStartColors();
}

void Form2_Timer(EventArgs& /*args*/) {
    Form2.Caption = "Lives: " + std::to_string(Lives) + "   Level: " + std::to_string(Level);
    moveHead();
    const bool isOver = hasHit() && LoseLife();
    if (isAtFood()) {
        PlaceItem();
        grow(WormLength, kMealLength);
    }
    Board(HeadX, HeadY) = kCellWorm;
    driftColor();
    paintCell(HeadX, HeadY, colorOfParts(ColorR, ColorG, ColorB));
    shiftTrail();
    eraseTail();
    if (isOver) {
        unloadWindow(Form2);
    }
}

void Form2_KeyDown(EventArgs& args) {
    if (HeadX == LastTurnX && HeadY == LastTurnY) {
        return;
    }
    for (const Turn& turn : kTurns) {
        if (args.KeyCode == turn.keyCode && Heading != turn.opposite) {
            Heading = turn.heading;
            break;
        }
    }
    // Required: a key that turns nothing uses up the turn too (any_key_uses_up_the_turn).
    LastTurnX = HeadX;
    LastTurnY = HeadY;
}

void Label41_DblClick(EventArgs& /*args*/) {
    openWormGame();
}

}  // namespace ombrelia::worm
