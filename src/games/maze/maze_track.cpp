#include "games/maze/maze_track.h"

#include "core/windows/maze_window.h"

namespace ombrelia::maze {

namespace {

constexpr double r = kRoot3;
constexpr double kSquareStart = 0.625;  // half of 1.25
constexpr double kSquareDoor = 0.125;
constexpr double kHexStep = 1.5;  // across, to a room in the next column

bool isTrack(std::uint8_t cell) {
    return cell == kMazeTrack || cell == kMazeLeft;
}

// A value of the page, a wall outside it.
int cellAt(const MazeGrid& page, int x, int y) {
    return page.has(x, y) ? page(x, y) : kMazeWall;
}

struct TrackRoom {
    MazeStyle style;
    int x, y;
    MazeCorner at;
};

// Half the way from a room to the next one.
MazeCorner halfWay(const TrackRoom& room, const MazeDelta& delta) {
    if (room.style == MazeStyle::Square) {
        return {room.at.x + delta.x / 2.0, room.at.y + delta.y / 2.0};
    }
    const double across = delta.x == 0 ? 0 : (delta.x > 0 ? kHexStep / 2 : -kHexStep / 2);
    const double part = delta.x == 0 ? 2 : 4;
    return {room.at.x + across, room.at.y + (delta.y > 0 ? r / part : -r / part)};
}

void drawBetween(const MazeCorner& from, const MazeCorner& to, int color) {
    DrawMazeLine(from.x, from.y, to.x, to.y, color);
}

void drawEntrance(const TrackRoom& room) {
    const MazeCorner edge =
        room.style == MazeStyle::Square ? MazeCorner{room.at.x, kSquareDoor} : MazeCorner{1.0, 0};
    drawBetween(edge, room.at, kShadeTrack);
}

void drawExit(const TrackRoom& room) {
    const double y = room.style == MazeStyle::Square ? ViewYMax : room.at.y + r / 2;
    drawBetween(room.at, {room.at.x, y}, kShadeTrack);
}

void drawTrackOf(const TrackRoom& room, const MazeDelta& delta) {
    const int x1 = room.x + delta.x;
    const int y1 = room.y + delta.y;
    if (cellAt(UserPage, x1, y1) == kMazeWall) {
        return;
    }
    if (y1 == 0) {
        drawEntrance(room);
        return;
    }
    if (y1 == MaxY) {
        if (Won != kMazeNo) {
            drawExit(room);
        }
        return;
    }
    const int x2 = x1 + delta.x;
    const int y2 = y1 + delta.y;
    if (x2 <= 0 || x2 >= MaxX || y2 <= 0 || y2 >= MaxY || !isTrack(UserPage(x2, y2))) {
        return;
    }
    const bool isForward = UserPage(room.x, room.y) == kMazeTrack && UserPage(x2, y2) == kMazeTrack;
    drawBetween(room.at, halfWay(room, delta), isForward ? kShadeTrack : kShadeLeftTrack);
}

void drawTrackOf(const TrackRoom& room) {
    if (!isTrack(UserPage(room.x, room.y))) {
        return;
    }
    for (const MazeDelta& delta : directionsOf(room.style)) {
        drawTrackOf(room, delta);
    }
}

void drawSquareTrack() {
    double fy = kSquareStart;
    for (int y = 1; y < MaxY; y += 2) {
        double fx = kSquareStart;
        for (int x = 1; x < MaxX; x += 2) {
            drawTrackOf({MazeStyle::Square, x, y, {fx, fy}});
            fx += 1;
        }
        fy += 1;
    }
}

void drawHexTrack() {
    constexpr double kUnitWidth = 3;
    double fy = r / 2;
    for (int y = 2; y < MaxY; y += 2) {
        const bool isUpper = y % 4 == 2;
        double fx = isUpper ? 1.0 : 2.5;
        for (int x = isUpper ? 3 : 7; x < MaxX; x += 8) {
            drawTrackOf({MazeStyle::Hexagonal, x, y, {fx, fy}});
            fx += kUnitWidth;
        }
        fy += r / 2;
    }
}

// One room of the solution and where the way came from.
struct SolutionPlace {
    int x, y;
    int previousX, previousY;
    MazeCorner at;
};

// Draws to the next room; false at the exit, and where no way leads on.
bool drawSolutionStep(MazeStyle style, SolutionPlace& place) {
    for (const MazeDelta& delta : directionsOf(style)) {
        const int x2 = place.x + 2 * delta.x;
        const int y2 = place.y + 2 * delta.y;
        if (cellAt(MazePage, place.x + delta.x, place.y + delta.y) != kMazeTrack ||
            (x2 == place.previousX && y2 == place.previousY)) {
            continue;
        }
        const bool isInside = y2 < MaxY;
        const MazeCorner to = isInside ? worldStep(style, place.at, place.x, place.y, x2, y2)
                                       : MazeCorner{place.at.x, ViewYMax};
        drawBetween(place.at, to, kShadeSolution);
        place = {x2, y2, place.x, place.y, to};
        return isInside;
    }
    return false;
}

}  // namespace

MazeStyle styleInUse() {
    return frm3DMaze.mnuStyleItem(0).Checked ? MazeStyle::Hexagonal : MazeStyle::Square;
}

std::span<const MazeDelta> directionsOf(MazeStyle style) {
    if (style == MazeStyle::Square) {
        return kSquareDeltas;
    }
    return kHexDeltas;
}

MazeCorner worldStep(MazeStyle style, MazeCorner from, int x, int y, int x2, int y2) {
    if (style == MazeStyle::Square) {
        const int columns = (x2 - x) / 2;
        const int rows = (y2 - y) / 2;
        return {from.x + columns, from.y + rows};
    }
    const double across = x2 > x ? kHexStep : -kHexStep;
    switch (y2 - y) {
        case -4:
            return {from.x, from.y - r};
        case 4:
            return {from.x, from.y + r};
        case -2:
            return {from.x + across, from.y - r / 2};
        default:
            return {from.x + across, from.y + r / 2};
    }
}

void setStartPosition(MazeStyle style) {
    const bool isSquare = style == MazeStyle::Square;
    UserX = isSquare ? 1 : 3;
    UserY = isSquare ? 1 : 2;
    UserFloatX = isSquare ? kSquareStart : 1.0;
    UserFloatY = isSquare ? kSquareStart : r / 2;
}

void clearUserPage(MazeStyle style) {
    for (int x = 0; x <= MazePage.maxX(); ++x) {
        for (int y = 0; y <= MazePage.maxY(); ++y) {
            UserPage(x, y) = MazePage(x, y) != kMazeWall ? kMazeOpen : kMazeWall;
        }
    }
    setStartPosition(style);
    UserPage(UserX, UserY) = kMazeTrack;
}

void drawUserTrack(MazeStyle style) {
    if (style == MazeStyle::Square) {
        drawSquareTrack();
    } else {
        drawHexTrack();
    }
}

void drawSolution(MazeStyle style) {
    if (MazePage.isEmpty()) {
        return;  // before the first tick
    }
    const bool isSquare = style == MazeStyle::Square;
    const MazeCorner door = isSquare ? MazeCorner{kSquareStart, kSquareDoor} : MazeCorner{1.0, 0};
    SolutionPlace place = isSquare ? SolutionPlace{1, 1, 1, -1, {kSquareStart, kSquareStart}}
                                   : SolutionPlace{3, 2, 3, -2, {1.0, r / 2}};
    drawBetween(door, place.at, kShadeSolution);
    // The bound holds where the page is not of this style: between a change of style and the tick
    // that makes the new maze.
    for (int i = 0; i <= NumRooms && drawSolutionStep(style, place); ++i) {
    }
}

}  // namespace ombrelia::maze
