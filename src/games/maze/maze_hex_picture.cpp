// The hexagonal style's picture: floor in bands, floor at the far and near edges, then walls.
#include "games/maze/maze_picture.h"
#include "games/maze/maze_view.h"

namespace ombrelia::maze {

namespace {

// Measures of one repeating unit, 3.0 wide and r deep.
constexpr double r = kRoot3;
constexpr double t = kThickness;
constexpr double P = t / r + 0.5;
constexpr double Q = (1 - t / r) / 2;
constexpr double S = (t / r + 1) * 1.5;
constexpr double U = t / r + 2;
constexpr double V = 2 - t / (2 * r);
constexpr double W = r * t / 2;
constexpr double a = r / 2;
constexpr double b = r / 2 + t;
constexpr double c = (r + t) / 2;
constexpr double d = r + t / 2;
constexpr double e = t / 2;

constexpr double kUnitWidth = 3;

constexpr std::array<MazeTriangle, 4> HexWallTriangles = {{
    {{{0, b}, {0, a}, {W, c}}},
    {{{Q, e}, {P, 0}, {P, t}}},
    {{{1.5, t}, {1.5, 0}, {S, e}}},
    {{{V, c}, {U, a}, {U, b}}},
}};

constexpr std::array<MazeQuad, 6> HexWallQuads = {{
    {{{W, c}, {P, r}, {Q, d}, {0, b}}},
    {{{0, a}, {Q, e}, {P, t}, {W, c}}},
    {{{P, 0}, {1.5, 0}, {1.5, t}, {P, t}}},
    {{{S, e}, {U, a}, {V, c}, {1.5, t}}},
    {{{U, a}, {kUnitWidth, a}, {kUnitWidth, b}, {U, b}}},
    {{{1.5, r}, {V, c}, {U, b}, {S, d}}},
}};

// Floor strips or caps as they move across the picture. Written by the painters below alone.
std::array<MazeQuad, 4> WorkQuads{};

template <typename Shape>
void shift(Shape& shape, double dx, double dy) {
    for (MazeCorner& corner : shape) {
        corner.x += dx;
        corner.y += dy;
    }
}

void loadCaps() {
    WorkQuads[0] = {{{Q, e}, {P, 0}, {1.5, 0}, {S, e}}};
    WorkQuads[1] = {{{0, a}, {Q, e}, {S, e}, {U, a}}};
    WorkQuads[2] = {{{0, b}, {0, a}, {U, a}, {U, b}}};
}

// What a step of the walk along a row does.
enum class Piece { CornerSides, CornerFront, Wall };

struct WalkStep {
    int subRow;
    int walk;  // 0 first, 1 second
    int xMod;
    Piece piece;
    std::size_t shape;
    int color;
};

constexpr WalkStep kWalkSteps[] = {
    {0, 0, 2, Piece::CornerSides, 1, 0}, {0, 0, 4, Piece::CornerSides, 2, 0},
    {0, 1, 2, Piece::CornerFront, 1, 8}, {0, 1, 3, Piece::Wall, 2, 7},
    {0, 1, 4, Piece::CornerFront, 2, 5}, {1, 0, 1, Piece::Wall, 1, 4},
    {1, 0, 5, Piece::Wall, 3, 10},       {2, 0, 0, Piece::CornerSides, 0, 0},
    {2, 0, 6, Piece::CornerSides, 3, 0}, {2, 1, 0, Piece::CornerFront, 0, 5},
    {2, 1, 6, Piece::CornerFront, 3, 8}, {2, 1, 7, Piece::Wall, 4, 7},
    {3, 0, 1, Piece::Wall, 0, 10},       {3, 0, 5, Piece::Wall, 5, 4},
};

// The shapes of one walk: loaded at its begin, moved on from unit to unit.
class Walk {
  public:
    Walk() { move(0, RowOffset); }

    void nextUnit() { move(kUnitWidth, 0); }

    void paint(const WalkStep& step, int x) const {
        if (step.piece == Piece::CornerSides) {
            DrawCornerSides(triangles_[step.shape]);
        } else if (step.piece == Piece::CornerFront) {
            DrawCornerFront(triangles_[step.shape], step.color);
        } else if (MazePage(x, DrawRow) == kMazeWall) {
            DrawBlockFront(quads_[step.shape], step.color);
        }
    }

  private:
    void move(double dx, double dy) {
        for (MazeTriangle& triangle : triangles_) {
            shift(triangle, dx, dy);
        }
        for (MazeQuad& quad : quads_) {
            shift(quad, dx, dy);
        }
    }

    std::array<MazeTriangle, 4> triangles_ = HexWallTriangles;
    std::array<MazeQuad, 6> quads_ = HexWallQuads;
};

void walkRow(int number) {
    Walk walk;
    int xMod = 0;
    for (int x = 0; x <= MaxX; ++x) {
        for (const WalkStep& step : kWalkSteps) {
            if (step.subRow == SubRow && step.walk == number && step.xMod == xMod) {
                walk.paint(step, x);
            }
        }
        if (++xMod == 8) {
            xMod = 0;
            walk.nextUnit();
        }
    }
}

}  // namespace

void beginHexPicture() {
    const double X = ViewXMax;
    WorkQuads[0] = {{{P, 0}, {X - P, 0}, {X - P, t}, {P, t}}};
    WorkQuads[1] = {{{0, a}, {X, a}, {X - P, t}, {P, t}}};
    WorkQuads[2] = {{{0, a}, {X, a}, {X, b}, {0, b}}};
    WorkQuads[3] = {{{0, b}, {X, b}, {X - P, r}, {P, r}}};
}

void paintHexBands() {
    if (DrawRow > 0) {
        FillFlat(WorkQuads[0], 0, kShadeFloor);
        FillFlat(WorkQuads[1], 0, kShadeFloor);
    }
    FillFlat(WorkQuads[2], 0, kShadeFloor);
    if (DrawRow < MaxY - 4) {
        FillFlat(WorkQuads[3], 0, kShadeFloor);
    }
    for (MazeQuad& strip : WorkQuads) {
        shift(strip, 0, r);
    }
    DrawRow = static_cast<std::int16_t>(DrawRow + 4);
    if (DrawRow > MaxY - 1) {
        loadCaps();
        DrawColumn = 0;
        DrawState = kMazeCaps;
    }
}

void paintHexCaps() {
    for (std::size_t i = 0; i < 3; ++i) {
        MazeQuad& cap = WorkQuads[i];
        FillFlat(cap, 0, kShadeFloor);
        MazeQuad mirrored = cap;
        for (MazeCorner& corner : mirrored) {
            corner.y = ViewYMax - corner.y;
        }
        FillFlat(mirrored, 0, kShadeFloor);
        shift(cap, kUnitWidth, 0);
    }
    DrawColumn = static_cast<std::int16_t>(DrawColumn + 8);
    if (DrawColumn > MaxX) {
        DrawRow = 0;
        SubRow = 0;
        RowOffset = 0;
        DrawState = kMazeWalls;
    }
}

void paintHexRow() {
    walkRow(0);
    walkRow(1);
    if (++SubRow == 4) {
        SubRow = 0;
        RowOffset += r;
    }
    ++DrawRow;
    if (DrawRow > MaxY) {
        DrawState = kMazeReady;
    }
}

}  // namespace ombrelia::maze
