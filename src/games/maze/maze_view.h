// The maze in perspective: from world units to pixels, from colour numbers to brushes, and the two
// operations of which every picture is made. z is height above the floor.
#pragma once

#include <array>
#include <span>

#include "games/maze/maze_directions.h"
#include "games/maze/maze_state.h"
#include "platform/color.h"
#include "platform/surface.h"

namespace ombrelia::maze {

struct MazeCorner {
    double x, y;
};
using MazeQuad = std::array<MazeCorner, 4>;
using MazeTriangle = std::array<MazeCorner, 3>;

inline constexpr double kWallHeight = 2;

// Numbers of colours.
enum MazeShade : int {
    kShadeFloor = 6,
    kShadeFront = 7,
    kShadeTop = 12,
    kShadeLeftTrack = 13,
    kShadeTrack = 14,
    kShadeSolution = 15,
    kShadeCount = 16
};

// A brush or pen by the number of a palette entry has this flag; otherwise it is a plain colour.
inline constexpr Color kPaletteIndexFlag = 0x1000000;

// What a screen with a palette is asked for.
struct MazePalette {
    static constexpr std::uint8_t kNoCollapse = 4;  // a colour of its own, whatever others have
    struct Entry {
        std::uint8_t red, green, blue, flags;
        bool operator==(const Entry&) const = default;
    };
    std::array<Entry, kShadeCount> entries{};
};

// On what is painted: a screen of plain colours or one with a palette.
class MazePainter {
  public:
    virtual ~MazePainter() = default;
    virtual void clear() = 0;
    virtual void fill(std::span<const PixelPoint> corners, Color brush) = 0;
    virtual void line(PixelPoint from, PixelPoint to, Color pen) = 0;
    // On a screen with a palette: once, then around everything that paints.
    virtual void createPalette(const MazePalette& /*palette*/) {}
    virtual void selectPalette() {}
    virtual void restorePalette() {}
};

// What the pictures are painted on: the window's surface, or what a test puts in its place.
MazePainter& mazePainter();
void setMazePainter(MazePainter* painter);

// Selects the palette for as long as it lives, on a screen that has one.
class PaletteInUse {
  public:
    PaletteInUse();
    ~PaletteInUse();
    PaletteInUse(const PaletteInUse&) = delete;
    PaletteInUse& operator=(const PaletteInUse&) = delete;
};

// Decides whether this screen needs a palette, and fills ColorTable.
void SetupPalette();

// What a brush of this number is, on the screen in use.
Color brushOf(int index);

// The view for a style, from TiltDegrees and the window's size as they stand.
void ComputeView(MazeStyle style);

PixelPoint ProjectMazePoint(double x, double y, double z);

// Both ends lie at the height of the walls' tops.
void DrawMazeLine(double x1, double y1, double x2, double y2, int color);

// A face with one height for each corner.
void FillFace(std::span<const MazeCorner> corners, std::span<const double> heights, int color);

// On the floor, and on the walls' tops.
void FillFlat(std::span<const MazeCorner> corners, double z, int color);

// The upright face over the edge from one corner to another.
void FillUpright(const MazeCorner& from, const MazeCorner& to, int color);

// A block standing on a quadrilateral: the front and the top, or the side that shows.
void DrawBlockFront(const MazeQuad& quad, int color);
void DrawBlockSides(const MazeQuad& quad);

// A corner piece: the side that shows, or its front and top.
void DrawCornerSides(const MazeTriangle& triangle);
void DrawCornerFront(const MazeTriangle& triangle, int color);

}  // namespace ombrelia::maze
