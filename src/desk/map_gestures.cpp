#include "desk/map_gestures.h"

#include <cmath>

#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/color_display.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "desk/button_events.h"
#include "desk/navigation_gestures.h"
#include "desk/tool_gestures.h"
#include "panels/hints.h"
#include "platform/numeric.h"
#include "platform/window_life.h"
#include "views/map2d/magnifier.h"
#include "views/map2d/map_transform.h"

namespace ombrelia {

namespace {

bool is3D() {
    return isOn(button::k3DMode);
}

MapPlace placeOf(const EventArgs& args) {
    if (is3D()) {
        return {args.X, args.Y, args.Button};
    }
    return {cellX(args.X), cellY(args.Y), args.Button};
}

// Ends a drag that stayed beyond an edge, at the cut place scaled back.
void releaseAt(const EventArgs& args, const MapPlace& place) {
    const Surface& view = Form1.MapView.Canvas;
    EventArgs release = args;
    if (!is3D()) {
        release.X = place.x * (view.ScaleWidth / static_cast<float>(MapSize));
        release.Y = place.y * (view.ScaleHeight / static_cast<float>(MapSize));
    }
    MapView_MouseUp(release);
}

}  // namespace

void ClampToMap(float& x, float& y, std::int16_t& result) {
    const auto s = static_cast<float>(MapSize);
    const int across = x > s ? 1 : (x < 0 ? -1 : 0);
    const int down = y > s ? 1 : (y < 0 ? -1 : 0);
    // Zone by row (above, in range, below) and column (left, in range, right).
    constexpr std::int16_t kZones[3][3] = {{6, 5, 7}, {4, 0, 1}, {8, 2, 3}};
    const std::int16_t zone = kZones[down + 1][across + 1];
    if (across != 0) {
        x = across > 0 ? s : 0;
    }
    if (down != 0) {
        y = down > 0 ? s : 0;
    }
    result = zone != LastEdgeZone || zone == 0 ? std::int16_t{0} : std::int16_t{1};
    LastEdgeZone = zone;
}

void MapView_MouseDown(EventArgs& args) {
    const MapPlace place = placeOf(args);
    switchMotionTool(args.Button == MouseButton::Left, args.Button == MouseButton::Right);
    DoubleClickPending = 0;
    DownX = place.x;
    DownY = place.y;
    pressTools(place);
}

void MapView_MouseMove(EventArgs& args) {
    aboutMap();
    MapPlace place = placeOf(args);
    clearHover();
    std::int16_t isStayingOutside = 0;
    if (!is3D()) {
        ClampToMap(place.x, place.y, isStayingOutside);
    }
    if (MouseState != kGestureNone && isStayingOutside == 1) {
        releaseAt(args, place);
    }
    showUnderPointer(place.x, place.y);
    if (moveTools(place) && MouseState != kGestureNone) {
        refreshControl(Form1.MapView);
    }
}

void MapView_MouseUp(EventArgs& args) {
    MapPlace place = placeOf(args);
    std::int16_t ignored = 0;
    ClampToMap(place.x, place.y, ignored);
    releaseTools(place);
    MouseState = kGestureNone;
}

void MapView_DblClick(EventArgs& args) {
    if (!takePanTool()) {
        return;
    }
    DoubleClickPending = 1;
    args.Button = MouseButton::Left;
    args.X = DownX;
    args.Y = DownY;
    MapView_MouseDown(args);
}

namespace {

void pickFromStrip(float y) {
    DrawHeight = roundToInt16(255 - static_cast<double>(y));
    UpdatePickedColor();
}

// Required: the two limits differ (the_picker_drag_ends_at_253).
constexpr float kDragLimit = 253;
constexpr float kReleaseLimit = 255;

}  // namespace

void Picker_MouseDown(EventArgs& args) {
    MouseState = kGesturePickerDrag;
    pickFromStrip(args.Y);
}

void Picker_MouseMove(EventArgs& args) {
    ShowHint(kPickerHint);
    if (MouseState != kGesturePickerDrag) {
        return;
    }
    if (args.Y >= 0 && args.Y < kDragLimit) {
        pickFromStrip(args.Y);
    } else {
        MouseState = kGestureNone;
    }
}

void Picker_MouseUp(EventArgs& args) {
    if (args.Y >= 0 && args.Y < kReleaseLimit) {
        pickFromStrip(args.Y);
    }
    MouseState = kGestureNone;
}

}  // namespace ombrelia
