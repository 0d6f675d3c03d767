// The square style's picture, and which slice comes next.
#include "games/maze/maze_picture.h"

#include "games/maze/maze_view.h"

namespace ombrelia::maze {

namespace {

// Relative to a room's top left corner.
constexpr double kT = kThickness;
constexpr MazeQuad kPost = {{{0, 0}, {kT, 0}, {kT, kT}, {0, kT}}};
constexpr MazeQuad kWallAlongX = {{{kT, 0}, {1, 0}, {1, kT}, {kT, kT}}};
constexpr MazeQuad kWallAlongY = {{{0, kT}, {kT, kT}, {kT, 1}, {0, 1}}};

MazeQuad loaded(MazeQuad quad) {
    for (MazeCorner& corner : quad) {
        corner.y += RowOffset;
    }
    return quad;
}

void moveOn(MazeQuad& quad) {
    for (MazeCorner& corner : quad) {
        corner.x += 1;
    }
}

bool isWall(int x) {
    return MazePage(x, DrawRow) == kMazeWall;
}

void paintFloor() {
    const MazeQuad floor = {{{0, 0}, {ViewXMax, 0}, {ViewXMax, ViewYMax}, {0, ViewYMax}}};
    FillFlat(floor, 0, kShadeFloor);
}

// The sides of every block of the row that stands on this quad.
void paintSides(MazeQuad quad) {
    for (int x = 0; x <= MaxX; x += 2) {
        if (isWall(x)) {
            DrawBlockSides(quad);
        }
        moveOn(quad);
    }
}

void paintFront(MazeQuad& quad, int x) {
    if (isWall(x)) {
        DrawBlockFront(quad, kShadeFront);
    }
    moveOn(quad);
}

// Posts and the walls between them.
void paintPostRow() {
    paintSides(loaded(kPost));
    MazeQuad post = loaded(kPost);
    MazeQuad wall = loaded(kWallAlongX);
    for (int x = 0; x <= MaxX; ++x) {
        paintFront(x % 2 == 0 ? post : wall, x);
    }
}

// Rooms and the walls between them.
void paintRoomRow() {
    paintSides(loaded(kWallAlongY));
    MazeQuad wall = loaded(kWallAlongY);
    for (int x = 0; x <= MaxX; x += 2) {
        paintFront(wall, x);
    }
}

void paintSquareRows() {
    paintPostRow();
    ++DrawRow;
    if (DrawRow <= MaxY) {
        paintRoomRow();
        ++DrawRow;
        RowOffset += 1;
    }
    if (DrawRow > MaxY) {
        DrawState = kMazeReady;
    }
}

}  // namespace

void beginMazePicture(MazeStyle style) {
    DrawRow = 0;
    SubRow = 0;
    RowOffset = 0;
    if (style == MazeStyle::Hexagonal) {
        beginHexPicture();
        DrawState = kMazeBands;
    } else {
        paintFloor();
        DrawState = kMazeWalls;
    }
}

void paintMazeSlice(MazeStyle style) {
    if (style == MazeStyle::Square) {
        paintSquareRows();
    } else if (DrawState == kMazeBands) {
        paintHexBands();
    } else if (DrawState == kMazeCaps) {
        paintHexCaps();
    } else {
        paintHexRow();
    }
}

}  // namespace ombrelia::maze
