#include "views/map2d/map_transform.h"

#include "core/editor_state.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "platform/numeric.h"
#include "platform/window_life.h"

namespace ombrelia {

namespace {

constexpr int kZoomLimit = -345;

// Keeps one pan value inside the zoomed map; scaleLength is the scale's size on that axis.
void clampPan(std::int16_t& pan, float scaleLength) {
    if (pan + MapZoom > 0) {
        pan = narrowTo<std::int16_t>(-MapZoom);
    }
    if (static_cast<float>(pan + MapZoom) + scaleLength < kViewSide) {
        pan = roundToInt16(static_cast<double>(kViewSide - MapZoom) - scaleLength);
    }
}

void clampPans() {
    const Surface& view = Form1.MapView.Canvas;
    clampPan(MapPanY, view.ScaleHeight);
    clampPan(MapPanX, view.ScaleWidth);
}

void moveScale() {
    Surface& view = Form1.MapView.Canvas;
    view.ScaleTop = static_cast<float>(MapPanY + MapZoom);
    view.ScaleLeft = static_cast<float>(MapPanX + MapZoom);
}

// Required: both copies are made; the first paints with the scale of before
// (both_copies_are_made_under_zoom).
void copyWithOldScale() {
    Surface& view = Form1.MapView.Canvas;
    const double p = MapPanX + MapZoom;
    const double q = MapPanY + MapZoom;
    const double dx = (-2 * p) / MapSize + kViewSide;
    const double dy = (-2 * q) / MapSize + kViewSide;
    view.stretchedCopy(Form1.Mapview2.Canvas, {-p, -q, kViewSide, kViewSide},
                       {-p / dx, -q / dy, kViewSide / dx, kViewSide / dy});
}

void copyWithNewScale() {
    Surface& view = Form1.MapView.Canvas;
    const float sx = view.ScaleWidth / static_cast<float>(MapSize);
    const float sy = view.ScaleHeight / static_cast<float>(MapSize);
    view.stretchedCopy(Form1.Mapview2.Canvas,
                       {-view.ScaleLeft, -view.ScaleTop, kViewSide, kViewSide},
                       {-view.ScaleLeft / sx, -view.ScaleTop / sy, kViewSide / sx, kViewSide / sy});
}

}  // namespace

void ApplyMapTransform() {
    Surface& view = Form1.MapView.Canvas;
    if (MapZoom > 0) {
        MapZoom = 0;
    }
    if (MapZoom < kZoomLimit) {
        MapZoom = kZoomLimit;
    }
    view.ScaleWidth = static_cast<float>(kViewSide - 2 * MapZoom);
    view.ScaleHeight = static_cast<float>(kViewSide - 2 * MapZoom);
    clampPans();
    if (view.ScaleTop <= 0) {
        copyWithOldScale();
    }
    moveScale();
    if (view.ScaleTop <= 0) {
        copyWithNewScale();
    }
    refreshControl(Form1.MapBack);
    refreshControl(Form1.MapView);
}

void ApplyMapPan() {
    clampPans();
    moveScale();
    refreshControl(Form1.MapBack);
    refreshControl(Form1.MapView);
}

void beginMapPan() {
    Surface& view = Form1.MapView.Canvas;
    const double side = MapSize;
    view.stretchedCopy(Form1.Mapview2.Canvas, {0, 0, view.ScaleWidth, view.ScaleHeight},
                       {0, 0, side, side});
    refreshControl(Form1.MapView);
}

float cellX(float u) {
    return u / (Form1.MapView.Canvas.ScaleWidth / static_cast<float>(MapSize));
}

float cellY(float v) {
    return v / (Form1.MapView.Canvas.ScaleHeight / static_cast<float>(MapSize));
}

}  // namespace ombrelia
