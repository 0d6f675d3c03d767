#include "core/desk/tool_gestures.h"

#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/color_ramp.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "platform/numeric.h"
#include "terrain/canyon.h"
#include "terrain/mountain.h"
#include "terrain/plain.h"
#include "terrain/raise_lower.h"
#include "terrain/stroke.h"

namespace ombrelia {

namespace {

constexpr int kLineThicknessSlider = 2;
constexpr int kLastOfStroke = 599;
constexpr int kStartsOfLine = 5;  // times that the line's start is stored
constexpr int kMarkerWidth = 4;
constexpr Color kMarkerColor = rgb(255, 0, 0);
constexpr Color kCanyonDot = rgb(255, 255, 255);

// Cells back to the scale of MapView.
float viewX(float x) {
    return x * (Form1.MapView.Canvas.ScaleWidth / static_cast<float>(MapSize));
}

float viewY(float y) {
    return y * (Form1.MapView.Canvas.ScaleHeight / static_cast<float>(MapSize));
}

void storePoint(int subscript, float x, float y) {
    StrokeX(subscript) = roundToInt16(x);
    StrokeY(subscript) = roundToInt16(y);
}

bool isPathFull() {
    return StrokeCount > kLastOfStroke;
}

void addPoint(float x, float y) {
    storePoint(StrokeCount, x, y);
    ++StrokeCount;
}

void dot(float x, float y, Color color) {
    Form1.MapView.Canvas.dot(viewX(x), viewY(y), color);
}

void pencilDot(float x, float y) {
    dot(x, y, HeightToColor(DrawHeight));
}

bool isNoMotionOn() {
    return !isOn(button::kRotate3D) && !isOn(button::kPan3D) && !isOn(button::kZoom3D);
}

void beginLine(float x, float y) {
    for (int n = 1; n <= kStartsOfLine; ++n) {
        storePoint(n, x, y);
    }
    StrokeCount = kStartsOfLine + 1;
    Line& line = Form1.Line1;
    line.BorderWidth = 2 * SliderValues(kLineThicknessSlider).Value - 1;
    line.BorderColor = HeightToColor(DrawHeight);
    line.X1 = line.X2 = viewX(x);
    line.Y1 = line.Y2 = viewY(y);
    line.Visible = true;
}

}  // namespace

void pressShapingTools(float x, float y) {
    if (isOn(button::kRaise) || isNoMotionOn() || isOn(button::kLower)) {
        MouseState = kGestureShape;
    }
    if (isOn(button::kPencil)) {
        StrokeCount = 1;
        MouseState = kGesturePencil;
        // Required: stored, not counted: the first move takes its place
        // (the_first_move_takes_the_place_of_the_press).
        storePoint(StrokeCount, x, y);
        pencilDot(x, y);
    }
    if (isOn(button::kCanyon)) {
        MouseState = kGestureCanyon;
        StrokeCount = 1;
    }
    if (isOn(button::kWavy)) {
        MouseState = kGestureWavy;
    }
}

void pressLineTool(float x, float y) {
    if (isOn(button::kLine)) {
        MouseState = kGestureLine;
        beginLine(x, y);
    } else {
        Form1.Line1.BorderWidth = kMarkerWidth;
        Form1.Line1.BorderColor = kMarkerColor;
    }
}

bool moveCanyonTool(float x, float y) {
    if (!isOn(button::kCanyon) || MouseState != kGestureCanyon) {
        return true;
    }
    const int last = StrokeCount - 1;
    // Required: one sum is compared, so a step along an anti-diagonal is passed over
    // (a_step_along_the_anti_diagonal_is_passed_over).
    if (x + y == static_cast<float>(StrokeX(last) + StrokeY(last))) {
        return true;
    }
    if (isPathFull()) {
        return false;
    }
    storePoint(StrokeCount, x, y);
    dot(x, y, kCanyonDot);
    ++StrokeCount;
    return true;
}

bool moveDrawingTools(float x, float y) {
    if (isOn(button::kPencil) && MouseState == kGesturePencil) {
        if (isPathFull()) {
            return false;
        }
        addPoint(x, y);
        pencilDot(x, y);
    }
    if (isOn(button::kLine) && MouseState == kGestureLine) {
        Form1.Line1.X2 = viewX(x);
        Form1.Line1.Y2 = viewY(y);
    }
    if (isOn(button::kRaise) && MouseState == kGestureShape) {
        RaiseTerrain(x, y);
    }
    if (isOn(button::kLower) && MouseState == kGestureShape) {
        LowerTerrain(x, y);
    }
    return true;
}

void releaseObjectTools(float x, float y) {
    if (isOn(button::kMountain)) {
        BuildMountain(floorToInt16(x), floorToInt16(y));
    }
    if (isOn(button::kPlain)) {
        BuildPlain(floorToInt16(x), floorToInt16(y));
    }
    if (isOn(button::kCanyon)) {
        CarveCanyon();
    }
}

void releaseDrawingTools(float x, float y) {
    if (isOn(button::kPencil)) {
        pencilDot(x, y);
        DrawStroke(kPencilStroke);
    }
    if (isOn(button::kLine) && MouseState == kGestureLine) {
        storePoint(StrokeCount, x, y);
        Form1.Line1.Visible = false;
        DrawStroke(kLineStroke);
    }
}

}  // namespace ombrelia
