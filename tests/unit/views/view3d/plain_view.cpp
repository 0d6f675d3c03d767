#include "views/view3d/plain_view.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "core/color_ramp.h"
#include "core/editor_state.h"
#include "core/objects.h"

namespace ombrelia {

namespace {

double arctanDegrees(double t) {
    return std::atan(t) * (180 / 3.14159);
}

// Entry k + 1080 belongs to k thirds of a degree.
struct PlainTables {
    std::vector<double> sines, cosines;

    PlainTables() {
        for (int k = -1080; k <= 1080; ++k) {
            sines.push_back(std::sin((k / 3.0) * (3.14159 / 180)));
            cosines.push_back(std::cos((k / 3.0) * (3.14159 / 180)));
        }
    }
};

const PlainTables& tables() {
    static const PlainTables filled;
    return filled;
}

double tableCosine(int third) {
    return tables().cosines.at(static_cast<std::size_t>(third + 1080));
}

double tableSine(int third) {
    return tables().sines.at(static_cast<std::size_t>(third + 1080));
}

}  // namespace

PlainTurned plainTurn(double x, double y, double z, double centre) {
    const double dx = x - centre;
    const double dy = y - centre;
    double a = arctanDegrees(dx != 0 ? dy / dx : dy / (dx + 0.0002));
    if (dx >= 0) {
        a = a + 180;
    }
    a = a + ViewYaw;
    while (a > 360) {
        a = a - 360;
    }
    const double r = std::sqrt(dx * dx + dy * dy);
    const int k = static_cast<int>(std::floor(3 * a));
    const double rx = r * tableCosine(k);
    const double ry = r * tableSine(k);
    double b = arctanDegrees(ry != 0 ? z / ry : z / (ry + 0.0002));
    if (ry >= 0) {
        b = b + 180;
    }
    b = b + ViewTilt;
    while (b > 360) {
        b = b - 360;
    }
    const double s = std::sqrt(ry * ry + z * z);
    const int m = static_cast<int>(std::nearbyint(3 * b));
    return {rx, s * tableCosine(m), s * tableSine(m)};
}

void plainProject(const PlainTurned& point, PlainPlace& place) {
    const double A = point.across + ViewPanX;
    const double B = point.up - ViewPanY;
    const double D = point.depth + ViewZoom - 100;
    const double q = 256 - D;
    if (q != 0) {
        place.X = MapSize + 256 * A / q;
        place.Y = MapSize - 256 * B / q;
    }
    place.Y = place.Y - 80 + ViewOffset;
    place.X = place.X + MapSize / 2.0 + ViewOffset;
}

namespace {

std::int64_t floored(double value) {
    constexpr double kLow = std::numeric_limits<std::int32_t>::min();
    constexpr double kHigh = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int64_t>(std::clamp(std::floor(value), kLow, kHigh));
}

// One painter call: the place is carried from point to point.
class PlainCell {
  public:
    explicit PlainCell(PlainPicture& picture) : picture_(picture) {}

    PlainPicture::Corner corner(int x, int y) {
        const double centre = MapSize / 2.0 + 0.2;
        plainProject(plainTurn(x, y, HeightMap(x, y) / 2.0, centre), place_);
        place_.X = place_.X - MapSize;
        return {floored(place_.X), floored(place_.Y)};
    }

    Color colorAt(int x, int y) {
        HeightToRGB(HeightMap(x, y), r_, g_, b_);
        return packRounded(r_, g_, b_);
    }

    void drawLines(int x, int y, int d, int lineWidth) {
        const PlainPicture::Corner p = corner(x, y);
        colorAt(x, y);
        if (y + d <= MapSize) {
            const PlainPicture::Corner q = corner(x, y + d);
            picture_.line(p.x, p.y, q.x, q.y, lineWidth, colorAt(x, y + d));
        }
        if (x + d <= MapSize) {
            const PlainPicture::Corner q = corner(x + d, y);
            picture_.line(p.x, p.y, q.x, q.y, lineWidth, colorAt(x + d, y));
        }
    }

    void drawDot(int x, int y) {
        const PlainPicture::Corner p = corner(x, y);
        picture_.pixel(p.x, p.y, colorAt(x, y));
    }

    void drawPolygon(int x, int y, int d) {
        const PlainPicture::Corner p0 = corner(x, y);
        if (y + d <= MapSize && x + d <= MapSize) {
            const PlainPicture::Corner p1 = corner(x, y + d);
            const PlainPicture::Corner p2 = corner(x + d, y + d);
            const PlainPicture::Corner p3 = corner(x + d, y);
            picture_.polygon({p0, p1, p2, p3}, HeightToColor(HeightMap(x, y + d)));
        }
    }

  private:
    PlainPicture& picture_;
    PlainPlace place_;
    double r_ = 0, g_ = 0, b_ = 0;
};

std::vector<int> walkOf(int last, int d, bool isAscending) {
    std::vector<int> walk;
    if (isAscending) {
        for (int n = 0; n <= last; n += d) {
            walk.push_back(n);
        }
    } else {
        for (int n = last; n >= 0; n -= d) {
            walk.push_back(n);
        }
    }
    return walk;
}

}  // namespace

PlainPicture plainDrawing(int step, PlainStyle style, int lineWidth) {
    PlainPicture picture(257, 257);
    if (MapSize == 257 || MapSize == 193 || MapSize == 129 || MapSize == 65) {
        ViewOffset = static_cast<std::int16_t>((257 - MapSize) / 2);
    }
    bool isAscending = ViewYaw >= 135 && ViewYaw <= 314;
    const bool isByColumns =
        (ViewYaw >= 45 && ViewYaw <= 134) || (ViewYaw >= 225 && ViewYaw <= 314);
    if (ViewTilt < 91 || ViewTilt >= 271) {
        isAscending = !isAscending;
    }
    const std::vector<int> walk = walkOf(MapSize - 1, step, isAscending);
    for (const int outer : walk) {
        for (const int inner : walk) {
            const int x = isByColumns ? outer : inner;
            const int y = isByColumns ? inner : outer;
            PlainCell cell(picture);
            if (style == PlainStyle::Line) {
                cell.drawLines(x, y, step, lineWidth);
            } else if (style == PlainStyle::Dot) {
                cell.drawDot(x, y);
            } else {
                cell.drawPolygon(x, y, step);
            }
        }
    }
    return picture;
}

}  // namespace ombrelia
