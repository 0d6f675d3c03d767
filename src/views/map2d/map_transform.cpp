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

// Required: both copies count; the first paints with the scale of before
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

// Where the second copy reads, in pixels of the back buffer.
Surface::Area sourceOfNewScale(float left, float top) {
    const Surface& view = Form1.MapView.Canvas;
    const float sx = view.ScaleWidth / static_cast<float>(MapSize);
    const float sy = view.ScaleHeight / static_cast<float>(MapSize);
    return {-left / sx, -top / sy, kViewSide / sx, kViewSide / sy};
}

void copyWithNewScale() {
    Surface& view = Form1.MapView.Canvas;
    view.stretchedCopy(Form1.Mapview2.Canvas,
                       {-view.ScaleLeft, -view.ScaleTop, kViewSide, kViewSide},
                       sourceOfNewScale(view.ScaleLeft, view.ScaleTop));
}

// Whether every pixel of the first copy is painted over by the second: the scale stays, so both
// have the same place, and all that the second reads is there.
bool isFirstCopyLost() {
    const Surface& view = Form1.MapView.Canvas;
    const Surface& buffer = Form1.Mapview2.Canvas;
    const auto left = static_cast<float>(MapPanX + MapZoom);
    const auto top = static_cast<float>(MapPanY + MapZoom);
    const Surface::Area source = sourceOfNewScale(left, top);
    return view.ScaleLeft == left && view.ScaleTop == top && buffer.hasPixelScale() &&
           source.x >= 0 && source.y >= 0 && source.x + source.width <= buffer.width() &&
           source.y + source.height <= buffer.height();
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
    if (view.ScaleTop <= 0 && !isFirstCopyLost()) {
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
