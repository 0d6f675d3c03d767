#include "desk/navigation_gestures.h"

#include <algorithm>

#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "platform/numeric.h"
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

}  // namespace ombrelia
