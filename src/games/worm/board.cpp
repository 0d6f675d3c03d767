#include "games/worm/board.h"

#include "core/windows/form2.h"
#include "games/worm/worm_state.h"
#include "platform/window_life.h"

namespace ombrelia::worm {

namespace {

constexpr int kFadeStep = 10;
constexpr int kFirstBarredLevel = 2;

// A half and the quarters of the board's side, in cells.
struct Marks {
    double a, b, c;
};

bool isBar(int x, int y, const Marks& m) {
    return y == m.a && m.b < x && x < m.c;
}

bool isCross(int x, int y, const Marks& m) {
    return isBar(x, y, m) || (x == m.a && m.b < y && y < m.c);
}

bool isPinwheel(int x, int y, const Marks& m) {
    return (y == m.b && x < m.a) || (y == m.c && x > m.a) || (x == m.c && y < m.a) ||
           (x == m.b && y > m.a);
}

using WallTest = bool (*)(int x, int y, const Marks& marks);
constexpr WallTest kWallTests[] = {isBar, isCross, isPinwheel};  // from kFirstBarredLevel on

// The two colours of a cross-fade.
struct Fade {
    int in[3] = {0, 0, 0};
    int out[3] = {0, 200, 0};
    static constexpr int kInTarget[3] = {255, 50, 255};

    // One step on; false when nothing is left to fade.
    bool step() {
        bool isMoving = false;
        for (int n = 0; n < 3; ++n) {
            if (kInTarget[n] - in[n] >= kFadeStep) {
                in[n] += kFadeStep;
            }
            if (out[n] >= kFadeStep) {
                out[n] -= kFadeStep;
            }
            isMoving = isMoving || kInTarget[n] - in[n] >= kFadeStep || out[n] >= kFadeStep;
        }
        return isMoving;
    }
};

Color packed(const int (&parts)[3]) {
    return rgb(static_cast<unsigned>(parts[0]), static_cast<unsigned>(parts[1]),
               static_cast<unsigned>(parts[2]));
}

Color colorBetween(bool isOldWall, bool isNewWall, const Fade& fade) {
    if (isOldWall && isNewWall) {
        return packed(Fade::kInTarget);
    }
    if (isOldWall) {
        return packed(fade.out);
    }
    return isNewWall ? packed(fade.in) : rgb(0, 0, 0);
}

void paintFade(const Fade& fade) {
    for (int x = 1; x <= BoardSize; ++x) {
        for (int y = 1; y <= BoardSize; ++y) {
            if (Board(x, y) == kCellWorm) {
                Board(x, y) = kCellEmpty;
            }
            paintCell(x, y,
                      colorBetween(Board(x, y) == kCellWall, NextBoard(x, y) == kCellWall, fade));
        }
    }
}

}  // namespace

void BuildLevel(int level) {
    const int n = BoardSize;
    for (int i = 0; i <= n; ++i) {
        NextBoard(i, 0) = kCellWall;
        NextBoard(i, n) = kCellWall;
        NextBoard(0, i) = kCellWall;
        NextBoard(n, i) = kCellWall;
    }
    if (level < kFirstBarredLevel || level > kLastBarredLevel) {
        return;
    }
    const Marks marks{n / 2.0, n / 4.0, 3 * n / 4.0};
    const WallTest isWall = kWallTests[level - kFirstBarredLevel];
    for (int x = 1; x < n; ++x) {
        for (int y = 1; y < n; ++y) {
            NextBoard(x, y) = isWall(x, y, marks) ? kCellWall : kCellEmpty;
        }
    }
}

void ShowBoard() {
    showWindow(Form2);
    Fade fade;
    bool isMoving = true;
    while (isMoving) {
        paintFade(fade);
        refreshControl(Form2);
        isMoving = fade.step();
    }
    // Required: row 0 and column 0 stay open (the_head_can_leave_through_row_0).
    for (int x = 1; x <= BoardSize; ++x) {
        for (int y = 1; y <= BoardSize; ++y) {
            Board(x, y) = NextBoard(x, y);
        }
    }
}

void paintCell(int x, int y, Color color) {
    const int left = x * CellSize;
    const int top = y * CellSize;
    Form2.Picture1.Canvas.box(left, top, left + CellSize - 1, top + CellSize - 1, color);
}

}  // namespace ombrelia::worm
