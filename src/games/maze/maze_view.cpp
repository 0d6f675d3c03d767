#include "games/maze/maze_view.h"

#include <algorithm>
#include <cmath>

#include "core/windows/maze_window.h"
#include "platform/numeric.h"
#include "platform/services.h"

namespace ombrelia::maze {

namespace {

constexpr int kRampLength = 13;
constexpr int kPlainColorBits = 31;
constexpr int kLineWidth = 2;

MazePalette::Entry paletteEntry(int index) {
    constexpr std::uint8_t kFlags = MazePalette::kNoCollapse;
    switch (index) {
        case kShadeLeftTrack:
            return {255, 255, 0, kFlags};
        case kShadeTrack:
            return {0, 255, 0, kFlags};
        case kShadeSolution:
            return {255, 0, 0, kFlags};
        default: {
            const auto value = static_cast<std::uint8_t>(index * 256 / kRampLength);
            return {value, value, value, kFlags};
        }
    }
}

// Required: the walls are red where the screen has plain colours, grey where it has a palette
// (shades_are_red_without_a_palette_and_grey_with_one).
Color plainColor(int index) {
    const MazePalette::Entry entry = paletteEntry(index);
    return index < kRampLength ? rgb(entry.red, 0, 0) : rgb(entry.red, entry.green, entry.blue);
}

class WindowPainter : public MazePainter {
  public:
    void clear() override { canvas().clear(); }

    void fill(std::span<const PixelPoint> corners, Color brush) override {
        canvas().polygon(corners, shown(brush));
    }

    void line(PixelPoint from, PixelPoint to, Color pen) override {
        canvas().DrawWidth = kLineWidth;
        canvas().linePixels(from, to, shown(pen));
    }

    void createPalette(const MazePalette& palette) override { palette_ = palette; }

  private:
    static Surface& canvas() { return frm3DMaze.Picture.Canvas; }

    Color shown(Color brush) const {
        const MazePalette::Entry& entry = palette_.entries[brush % kShadeCount];
        return brush < kPaletteIndexFlag ? brush : rgb(entry.red, entry.green, entry.blue);
    }

    MazePalette palette_;
};

MazePainter& windowPainter() {
    static WindowPainter painter;
    return painter;
}

// The painter in force; none: the window's own. Written by setMazePainter alone.
MazePainter* painterInForce = nullptr;

// Inner size of the picture, bar and text line taken off, pixels.
double pictureWidth() {
    return frm3DMaze.Width - frm3DMaze.VScroll1.Width;
}
double pictureHeight() {
    return frm3DMaze.Height - frm3DMaze.Text1.Height;
}

}  // namespace

MazePainter& mazePainter() {
    return painterInForce != nullptr ? *painterInForce : windowPainter();
}

void setMazePainter(MazePainter* painter) {
    painterInForce = painter;
}

PaletteInUse::PaletteInUse() {
    if (UsesPalette != kMazeNo) {
        mazePainter().selectPalette();
    }
}

PaletteInUse::~PaletteInUse() {
    if (UsesPalette != kMazeNo) {
        mazePainter().restorePalette();
    }
}

void SetupPalette() {
    const DisplayColors display = services().desktop->displayColors();
    const int bits = display.planes * display.bitsPerPixel;
    const bool isShort =
        bits < kPlainColorBits && (1L << bits) - display.fixedColors >= kShadeCount;
    UsesPalette = isShort ? kMazeYes : kMazeNo;
    MazePalette palette;
    for (int i = 0; i < kShadeCount; ++i) {
        palette.entries[static_cast<std::size_t>(i)] = paletteEntry(i);
        ColorTable(i) = plainColor(i);
    }
    if (UsesPalette != kMazeNo) {
        mazePainter().createPalette(palette);
    }
}

Color brushOf(int index) {
    return UsesPalette != kMazeNo ? kPaletteIndexFlag + static_cast<Color>(index)
                                  : ColorTable(index);
}

void ComputeView(MazeStyle style) {
    const double tilt = TiltDegrees * std::atan(1.0) / 45;
    SinTilt = std::sin(tilt);
    CosTilt = std::cos(tilt);
    if (style == MazeStyle::Square) {
        ViewXMax = NumColumns + kThickness;
        ViewYMax = NumRows + kThickness;
    } else {
        const int wholeSides = (NumColumns - 1) * 3 / 2;  // an odd number of columns leaves no rest
        ViewXMax = wholeSides + 2 + kThickness / kRoot3;
        ViewYMax = NumRows * kRoot3 + kThickness;
    }
    ScaleX = (pictureWidth() - 1) / ((ViewXMax / (ViewXMax - 2)) * ViewXMax);
    ViewXOffset = (2 / (ViewXMax - 2)) * (ViewXMax / 2);
    ScaleY = (pictureHeight() - 1) / std::sqrt(ViewYMax * ViewYMax + 4);
    RelDist = std::max(ViewXMax, ViewYMax);
}

PixelPoint ProjectMazePoint(double x, double y, double z) {
    const double depth = (ViewYMax - y) * CosTilt - SinTilt * z;
    const double height = (ViewYMax - y) * SinTilt + z * CosTilt;
    const double py = ((height - ViewYMax / 2) * RelDist) / (depth + RelDist) + ViewYMax / 2;
    const double px =
        ((x - ViewXMax / 2) * RelDist) / (depth + RelDist) + ViewXMax / 2 + ViewXOffset;
    return {roundToInt32(std::floor(px * ScaleX)),
            roundToInt32(pictureHeight() - std::floor(py * ScaleY))};
}

void DrawMazeLine(double x1, double y1, double x2, double y2, int color) {
    const PaletteInUse palette;
    mazePainter().line(ProjectMazePoint(x1, y1, kWallHeight), ProjectMazePoint(x2, y2, kWallHeight),
                       brushOf(color));
}

void FillFace(std::span<const MazeCorner> corners, std::span<const double> heights, int color) {
    std::array<PixelPoint, 4> points{};
    for (std::size_t i = 0; i < corners.size(); ++i) {
        points[i] = ProjectMazePoint(corners[i].x, corners[i].y, heights[i]);
    }
    mazePainter().fill(std::span(points).first(corners.size()), brushOf(color));
}

void FillFlat(std::span<const MazeCorner> corners, double z, int color) {
    const std::array<double, 4> heights = {z, z, z, z};
    FillFace(corners, heights, color);
}

void FillUpright(const MazeCorner& from, const MazeCorner& to, int color) {
    const MazeQuad face = {from, to, to, from};
    const std::array<double, 4> heights = {kWallHeight, kWallHeight, 0, 0};
    FillFace(face, heights, color);
}

void DrawBlockFront(const MazeQuad& quad, int color) {
    FillUpright(quad[3], quad[2], color);
    FillFlat(quad, kWallHeight, kShadeTop);
}

void DrawBlockSides(const MazeQuad& quad) {
    constexpr int kLeftFace = 10;
    constexpr int kRightFace = 4;
    if (2 * quad[0].x > ViewXMax) {
        FillUpright(quad[0], quad[3], kLeftFace);
    }
    if (2 * quad[1].x < ViewXMax) {
        FillUpright(quad[2], quad[1], kRightFace);
    }
}

void DrawCornerSides(const MazeTriangle& triangle) {
    constexpr int kRightFace = 3;
    constexpr int kLeftFace = 9;
    if (ViewXMax / 2 > triangle[1].x && triangle[1].x > triangle[0].x) {
        FillUpright(triangle[2], triangle[1], kRightFace);
    }
    if (ViewXMax / 2 < triangle[1].x && triangle[1].x < triangle[2].x) {
        FillUpright(triangle[1], triangle[0], kLeftFace);
    }
}

void DrawCornerFront(const MazeTriangle& triangle, int color) {
    FillUpright(triangle[0], triangle[2], color);
    FillFlat(triangle, kWallHeight, kShadeTop);
}

}  // namespace ombrelia::maze
