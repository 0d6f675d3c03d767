#include "desk/navigation_gestures.h"

#include <algorithm>

#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "platform/numeric.h"
#include "views/map2d/map_transform.h"
#include "views/view3d/draw_terrain.h"

namespace ombrelia {

namespace {

constexpr double kNearestZoom = 195;
constexpr double kFarthestZoom = -400;
constexpr float kZoomPerPixel = 2;

bool isAdvanced() {
    return isOn(button::k3DMode) && isOn(button::kAdvanced3D);
}

bool isMotionTool(int tool) {
    return GroupCurrent(group::kMotion3D) == tool;
}

void selectMotionTool(int tool) {
    const int old = GroupCurrent(group::kMotion3D);
    OptionStates(tool).State = kOn;
    OptionStates(old).State = kUp;
    DrawButton(old);
    DrawButton(tool);
    GroupCurrent(group::kMotion3D) = static_cast<std::int16_t>(tool);
}

// Way since the last step; the place is kept.
float takeWay(std::int16_t& last, float now) {
    const float way = now - last;
    last = roundToInt16(now);
    return way;
}

struct Way {
    float x, y;
};
Way takeWay(float x, float y) {
    const Way way{x - StrokeX(1), y - StrokeY(1)};
    beginNavigation(x, y);
    return way;
}

void turnBy(std::int16_t& angle, float degrees) {
    int turned = roundToInt16(static_cast<float>(angle) - degrees);
    while (turned >= 360) {
        turned -= 360;
    }
    while (turned < 0) {
        turned += 360;
    }
    angle = static_cast<std::int16_t>(turned);
}

void rotate(float x, float y) {
    const Way way = takeWay(x, y);
    turnBy(ViewYaw, way.x);
    turnBy(ViewTilt, way.y);
}

void pan(float x, float y) {
    const Way way = takeWay(x, y);
    ViewPanX = roundToInt16(static_cast<float>(ViewPanX) + way.x);
    ViewPanY = roundToInt16(static_cast<float>(ViewPanY) + way.y);
}

void zoom(float x) {
    ViewZoom += kZoomPerPixel * takeWay(StrokeX(1), x);
    ViewZoom = std::clamp(ViewZoom, kFarthestZoom, kNearestZoom);
}

std::int16_t pointerPixelX() {
    return floorToInt16(Form1.PointerX);
}

std::int16_t pointerPixelY() {
    return floorToInt16(Form1.PointerY);
}

// Makes another member the current one of its group, both painted.
void exchange(int off, int on) {
    OptionStates(off).State = kUp;
    OptionStates(on).State = kOn;
    DrawButton(off);
    DrawButton(on);
    GroupCurrent(OptionStates(on).Group) = static_cast<std::int16_t>(on);
}

}  // namespace

void switchMotionTool(bool isLeft, bool isRight) {
    if (!isAdvanced() || DoubleClickPending != 0) {
        return;
    }
    if (isLeft && !isMotionTool(button::kRotate3D)) {
        selectMotionTool(button::kRotate3D);
    }
    if (isRight && !isMotionTool(button::kZoom3D)) {
        selectMotionTool(button::kZoom3D);
    }
}

void beginNavigation(float x, float y) {
    StrokeX(1) = roundToInt16(x);
    StrokeY(1) = roundToInt16(y);
}

void navigate(float x, float y) {
    if (isOn(button::kRotate3D)) {
        rotate(x, y);
    }
    if (isOn(button::kPan3D)) {
        pan(x, y);
    }
    if (isOn(button::kZoom3D)) {
        zoom(x);
    }
    DrawQuickGrid();
}

bool takePanTool() {
    if (isMotionTool(button::kPan3D) || !isAdvanced()) {
        return false;
    }
    selectMotionTool(button::kPan3D);
    return true;
}

void beginMapZoom() {
    DragPixelX = pointerPixelX();
}

void dragMapZoom() {
    const std::int16_t x = pointerPixelX();
    MapZoom = roundToInt16(MapZoom - (x - DragPixelX));
    ApplyMapTransform();
    DragPixelX = x;
}

void beginMapPanDrag() {
    beginMapPan();
    DragPixelX = pointerPixelX();
    DragPixelY = pointerPixelY();
}

void dragMapPan() {
    const std::int16_t x = pointerPixelX();
    const std::int16_t y = pointerPixelY();
    MapPanY = roundToInt16(MapPanY + (y - DragPixelY));
    MapPanX = roundToInt16(MapPanX + (x - DragPixelX));
    ApplyMapPan();
    DragPixelX = x;
    DragPixelY = y;
}

void swapPanAndZoom() {
    if (isOn(button::kZoom2D)) {
        exchange(button::kZoom2D, button::kPan2D);
    } else if (isOn(button::kPan2D)) {
        exchange(button::kPan2D, button::kZoom2D);
    }
}

}  // namespace ombrelia
