#include "views/view3d/cell_painters.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "core/color_ramp.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "platform/numeric.h"
#include "views/view3d/projection.h"

namespace ombrelia {

namespace {

// The place of the last point; one that lies in the plane of the eye takes over parts of it.
class Projector {
  public:
    explicit Projector(double centre) : centre_(centre) {}

    PixelPoint operator()(int x, int y) {
        ProjectPoint(RotatePoint(x, y, HeightMap(x, y) / 2.0, centre_), x_, y_);
        x_ -= MapSize;
        return {wholePixel(x_), wholePixel(y_)};
    }

  private:
    double centre_;
    double x_ = 0;
    double y_ = 0;
};

// Three components that stay as they are where a height has no colour.
struct Components {
    double r = 0, g = 0, b = 0;

    Color at(int x, int y) {
        HeightToRGB(HeightMap(x, y), r, g, b);
        return packRounded(r, g, b);
    }
};

void drawLine(PixelPoint from, PixelPoint to, Color color) {
    Form1.MapView.Canvas.line(from.x, from.y, to.x, to.y, color);
}

}  // namespace

std::int32_t wholePixel(double place) {
    constexpr double kLow = std::numeric_limits<std::int32_t>::min();
    constexpr double kHigh = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(floorToWhole(std::clamp(place, kLow, kHigh)));
}

// Required: a neighbour at subscript MapSize, behind the map, is drawn
// (a_line_reaches_the_column_behind_the_map).
void DrawLineCell(int x, int y, int step, double centre) {
    const int d = std::abs(step);
    Projector project(centre);
    Components color;
    const PixelPoint near = project(x, y);
    color.at(x, y);
    if (y + d <= MapSize) {
        const PixelPoint far = project(x, y + d);
        drawLine(near, far, color.at(x, y + d));
    }
    if (x + d <= MapSize) {
        const PixelPoint far = project(x + d, y);
        drawLine(near, far, color.at(x + d, y));
    }
}

void DrawDotCell(int x, int y, int /*step*/, double centre) {
    Projector project(centre);
    Components color;
    const PixelPoint place = project(x, y);
    Form1.MapView.Canvas.setPixel(place.x, place.y, color.at(x, y));
}

void DrawPolygonCell(int x, int y, int step, double centre) {
    const int d = std::abs(step);
    Projector project(centre);
    std::array<PixelPoint, 4> corners;
    corners[0] = project(x, y);
    if (y + d > MapSize || x + d > MapSize) {
        return;
    }
    corners[1] = project(x, y + d);
    corners[2] = project(x + d, y + d);
    corners[3] = project(x + d, y);
    FillCell(corners, HeightToColor(HeightMap(x, y + d)));
}

void FillCell(std::span<const PixelPoint, 4> points, Color color) {
    Form1.MapView.Canvas.polygon(points, color);
}

}  // namespace ombrelia
