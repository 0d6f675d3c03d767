// Helpers of the tests that play the maze.
#pragma once

#include "games/maze/maze_test.h"
#include "games/maze/maze_track.h"
#include "platform/dispatch.h"

namespace ombrelia::maze {

struct KeyOf {
    int code, padCode;
};
// By direction.
inline constexpr KeyOf kHexKeys[] = {{36, 103}, {35, 97}, {38, 104}, {40, 98}, {33, 105}, {34, 99}};
inline constexpr KeyOf kSquareKeys[] = {{37, 100}, {40, 98}, {39, 102}, {38, 104}};

inline const KeyOf* keysOf(MazeStyle style) {
    return style == MazeStyle::Hexagonal ? kHexKeys : kSquareKeys;
}

class MazePlay : public MazeTest {
  protected:
    static void choose(MenuItem& item) { deliver(item, Event::Click); }
    static bool hasMenus() {
        return frm3DMaze.mnuActionItem(1).Enabled && frm3DMaze.mnuActionItem(2).Enabled;
    }

    // The direction of the solution's next room, not back to where the player came from.
    static int nextDirection(MazeStyle style, int fromX, int fromY) {
        int d = 0;
        for (const MazeDelta& delta : directionsOf(style)) {
            const int x1 = UserX + delta.x;
            const int y1 = UserY + delta.y;
            if (y1 > 0 && MazePage(x1, y1) == kMazeTrack &&
                (x1 + delta.x != fromX || y1 + delta.y != fromY)) {
                return d;
            }
            ++d;
        }
        return -1;
    }

    // Walks the solution to its end; the number of steps.
    int walkOut(MazeStyle style, bool isPad) {
        int steps = 0;
        int fromX = 0;
        int fromY = 0;
        while (Won == 0 && steps < 5000) {
            const int d = nextDirection(style, fromX, fromY);
            fromX = UserX;
            fromY = UserY;
            key(isPad ? keysOf(style)[d].padCode : keysOf(style)[d].code);
            ++steps;
        }
        return steps;
    }

    // A maze whose first room has a wall towards another room.
    void openBesideWall(MazeStyle style) {
        open(style);
        finish();
        for (int width = 300; directionWhere(style, false) < 0; width += 30) {
            deliverResize(frm3DMaze, width, 320);
            finish();
        }
    }

    // A direction that the room at the player lets pass, or one that it does not; -1: none.
    static int directionWhere(MazeStyle style, bool isOpen) {
        int d = 0;
        for (const MazeDelta& delta : directionsOf(style)) {
            const int x2 = UserX + 2 * delta.x;
            const int y2 = UserY + 2 * delta.y;
            if (x2 > 0 && x2 < MaxX && y2 > 0 && y2 < MaxY &&
                (UserPage(UserX + delta.x, UserY + delta.y) != kMazeWall) == isOpen) {
                return d;
            }
            ++d;
        }
        return -1;
    }

    static int opposite(MazeStyle style, int d) {
        return style == MazeStyle::Square ? (d + 2) % 4 : 5 - d;
    }
};

inline constexpr MazeStyle kStyles[] = {MazeStyle::Square, MazeStyle::Hexagonal};

}  // namespace ombrelia::maze
