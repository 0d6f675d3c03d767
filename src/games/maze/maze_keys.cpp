// The player's walk by the keyboard.
#include <algorithm>
#include <iterator>

#include "core/windows/maze_window.h"
#include "games/maze/maze_events.h"
#include "games/maze/maze_track.h"

namespace ombrelia::maze {

namespace {

constexpr int kKeyA = 65;
constexpr int kKeyB = 66;
constexpr int kNowhere = -1;

// Virtual key codes of a key and of its twin on the number pad, and where it leads.
struct KeyRow {
    int code, padCode;
    int hexDirection, squareDirection;
};

constexpr KeyRow kKeys[] = {
    {36, 103, 0, kNowhere}, {35, 97, 1, kNowhere}, {38, 104, 2, 3},        {40, 98, 3, 1},
    {33, 105, 4, kNowhere}, {34, 99, 5, kNowhere}, {37, 100, kNowhere, 0}, {39, 102, kNowhere, 2},
};

const KeyRow* rowOf(int code) {
    const auto* row = std::find_if(std::begin(kKeys), std::end(kKeys), [code](const KeyRow& r) {
        return code == r.code || code == r.padCode;
    });
    return row == std::end(kKeys) ? nullptr : row;
}

bool mayMove() {
    return DrawState == kMazeReady && Won == kMazeNo &&
           (Solved == kMazeNo || ShowedSolutionByKey == 1) && !UserPage.isEmpty();
}

bool isWayOpen(int x1, int y1) {
    return x1 > 0 && x1 < MaxX && y1 > 0 && y1 <= MaxY &&
           (UserPage(x1, y1) != kMazeWall || WallWalkArmed == 1);
}

void leaveMaze() {
    DrawMazeLine(UserFloatX, UserFloatY, UserFloatX, ViewYMax, kShadeTrack);
    Won = kMazeYes;
    frm3DMaze.Text1.Caption = "Congratulations!";
}

void enterRoom(MazeStyle style, int x2, int y2) {
    int color = kShadeTrack;
    if (UserPage(x2, y2) == kMazeTrack) {
        color = kShadeLeftTrack;
        UserPage(UserX, UserY) = kMazeLeft;
    } else {
        UserPage(x2, y2) = kMazeTrack;
    }
    const MazeCorner to = worldStep(style, {UserFloatX, UserFloatY}, UserX, UserY, x2, y2);
    DrawMazeLine(UserFloatX, UserFloatY, to.x, to.y, color);
    UserX = static_cast<std::int16_t>(x2);
    UserY = static_cast<std::int16_t>(y2);
    UserFloatX = to.x;
    UserFloatY = to.y;
}

// False if the step would leave the page.
bool move(MazeStyle style, int direction) {
    const MazeDelta delta = directionsOf(style)[static_cast<std::size_t>(direction)];
    const int x1 = UserX + delta.x;
    const int y1 = UserY + delta.y;
    if (!isWayOpen(x1, y1)) {
        return true;
    }
    const int x2 = x1 + delta.x;
    const int y2 = y1 + delta.y;
    if (y2 >= MaxY) {
        leaveMaze();
        return true;
    }
    if (!UserPage.has(x2, y2)) {
        return false;
    }
    enterRoom(style, x2, y2);
    return true;
}

// The arming keys, which no text mentions.
void hiddenKey(int code) {
    if (code == kKeyA) {
        WallWalkArmed = 1;
    } else if (code == kKeyB) {
        Solved = kMazeYes;
        ShowedSolutionByKey = 1;
        drawSolution(styleInUse());
    }
}

}  // namespace

void frm3DMaze_KeyDown(EventArgs& args) {
    hiddenKey(args.KeyCode);
    const KeyRow* row = mayMove() ? rowOf(args.KeyCode) : nullptr;
    if (row != nullptr) {
        args.KeyCode = 0;
        const MazeStyle style = styleInUse();
        const int direction =
            style == MazeStyle::Hexagonal ? row->hexDirection : row->squareDirection;
        if (direction != kNowhere && !move(style, direction)) {
            return;
        }
    }
    if (args.KeyCode != kKeyA) {
        WallWalkArmed = 0;
    }
}

}  // namespace ombrelia::maze
