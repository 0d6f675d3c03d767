#include "terrain/raise_lower.h"

#include <cstdint>
#include <span>

#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/color_ramp.h"
#include "core/objects.h"
#include "core/option_strip_table.h"
#include "core/windows/form1.h"
#include "platform/numeric.h"
#include "platform/window_life.h"
#include "terrain/ring.h"
#include "views/map2d/map_transform.h"
#include "views/view3d/cell_painters.h"
#include "views/view3d/projection.h"

namespace ombrelia {

namespace {

constexpr int kHighest = 255;
constexpr int kParts = 15;       // of the peak, for the step from ring to ring
constexpr int kLowerRings = 10;  // Required: fewer than the bump's (a_pit_is_narrower_than_a_bump)
constexpr int kSampleDegrees = 5;  // between two samples

bool isEditedIn3D() {
    return !isOn(button::kRotate3D) && !isOn(button::kPan3D) && !isOn(button::kZoom3D);
}

// Shows changed cells on both pictures, or in perspective on the view alone; a height without a
// colour takes the one of before.
class CellPainter {
  public:
    // The height that the next cells have; the look-up clamps it.
    void take(std::int16_t& height) {
        HeightToRGB(height, r_, g_, b_);
        color_ = packRounded(r_, g_, b_);
    }

    bool isIn3D() const { return isIn3D_; }

    static void paintIn3D(int x, int y) {
        DrawLineCell(x, y, SliderValues(slider::kResolution).Value, viewCentre());
    }

    void paintIn2D(int x, int y) const {
        if (MapSize == kViewSide) {
            Form1.MapView.Canvas.setPixel(x, y, color_);
        } else {
            const double left = x * scale_;
            const double top = y * scale_;
            Form1.MapView.Canvas.box(left, top, left + scale_, top + scale_, color_);
        }
        Form1.Mapview2.Canvas.setPixel(x, y, color_);
    }

  private:
    bool isIn3D_ = isEditedIn3D();
    double scale_ = static_cast<double>(kViewSide) / MapSize;
    double r_ = 0;
    double g_ = 0;
    double b_ = 0;
    Color color_ = rgb(0, 0, 0);
};

// Height under the pointer changed by the amount; 0 outside the map.
int peakAt(float x, float y, int amount) {
    const auto side = static_cast<float>(MapSize);
    if (!(x >= 0 && x <= side && y >= 0 && y <= side)) {
        return 0;
    }
    const int ground =
        HeightMap(static_cast<int>(roundToEven(x)), static_cast<int>(roundToEven(y)));
    return narrowTo<std::int16_t>(ground + amount);
}

// Gives the cells of one circle for which needs(height) holds the new height, and paints each.
template <typename Needs, typename Paint>
void writeCells(std::span<const std::int32_t> cells, std::int16_t height, CellPainter& painter,
                Needs needs, Paint paint) {
    std::int16_t* heights = HeightMap.data();
    bool hasColor = false;
    for (const std::int32_t cell : cells) {
        if (cell == RingCells::kOutside || !needs(heights[cell])) {
            continue;
        }
        if (!hasColor) {
            painter.take(height);
            hasColor = true;
        }
        heights[cell] = height;
        paint(cell % HeightGrid::kSide, cell / HeightGrid::kSide);
    }
}

template <typename Needs>
void writeRing(std::span<const std::int32_t> cells, std::int16_t height, CellPainter& painter,
               Needs needs) {
    if (painter.isIn3D()) {
        writeCells(cells, height, painter, needs, CellPainter::paintIn3D);
    } else {
        writeCells(cells, height, painter, needs,
                   [&painter](int x, int y) { painter.paintIn2D(x, y); });
    }
}

void raiseRing(std::span<const std::int32_t> cells, int current, CellPainter& painter) {
    if (current > kHighest) {
        writeRing(cells, kHighest, painter, [](std::int16_t) { return true; });
    } else {
        writeRing(cells, static_cast<std::int16_t>(current), painter,
                  [current](std::int16_t ground) { return current > ground; });
    }
}

void lowerRing(std::span<const std::int32_t> cells, int current, CellPainter& painter) {
    if (current < 0) {
        writeRing(cells, 0, painter, [](std::int16_t) { return true; });
    } else {
        writeRing(cells, static_cast<std::int16_t>(current), painter,
                  [current](std::int16_t ground) { return current < ground; });
    }
}

int stepFor(int peak) {
    return floorToInt(static_cast<double>(peak) / kParts);
}

Directions sampleDirections() {
    return wholeDegrees(kSampleDegrees);
}

// These loops have nothing to clear away, which in a browser would make every call of theirs dear;
// so they are not to become a part of what has.
[[gnu::noinline]] void raiseRings(float x, float y, int peak, const Directions& directions,
                                  RingCells& ring) {
    const double slope = static_cast<double>(peak) / kParts;
    const int rings = floorToInt(peak / slope);
    CellPainter painter;
    int current = peak;
    for (int r = 1; r <= rings; ++r) {
        raiseRing(ring.at(x, y, r, directions), current, painter);
        refreshControl(Form1.MapView);
        current -= stepFor(peak);
        if (current < 0) {
            return;
        }
    }
}

[[gnu::noinline]] void lowerRings(float x, float y, int peak, const Directions& directions,
                                  RingCells& ring) {
    CellPainter painter;
    int current = peak;
    for (int r = 1; r <= kLowerRings; ++r) {
        lowerRing(ring.at(x, y, r, directions), current, painter);
        refreshControl(Form1.MapView);
        current += stepFor(peak);
        if (current > kHighest) {
            return;
        }
    }
}

}  // namespace

void RaiseTerrain(float x, float y) {
    const int peak = peakAt(x, y, SliderValues(slider::kRaiseAmount).Value);
    if (peak == 0) {
        return;
    }
    const Directions directions = sampleDirections();
    RingCells ring;
    raiseRings(x, y, peak, directions, ring);
}

void LowerTerrain(float x, float y) {
    const int peak = peakAt(x, y, -SliderValues(slider::kLowerAmount).Value);
    if (peak == 0) {
        return;
    }
    const Directions directions = sampleDirections();
    RingCells ring;
    lowerRings(x, y, peak, directions, ring);
}

}  // namespace ombrelia
