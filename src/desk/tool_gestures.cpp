#include "desk/tool_gestures.h"

#include <functional>

#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/color_ramp.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/progress.h"
#include "core/windows/form1.h"
#include "platform/dispatch.h"
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
constexpr int kFirstGestureKey = 200;  // of what waits; commands have their numbers below

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

// The recorded points, which the next gesture overwrites.
struct RecordedPath {
    CheckedArray<std::int16_t, 0, 600> x = StrokeX;
    CheckedArray<std::int16_t, 0, 600> y = StrokeY;
    std::int16_t count = StrokeCount;

    void bringBack() const {
        StrokeX = x;
        StrokeY = y;
        StrokeCount = count;
    }
};

// An import leaves the map enabled while it writes the heights: what a gesture begins in there is
// done after it, along the path as it was.
void operate(const std::function<void()>& operation) {
    if (ImportRunning == 0) {
        operation();
        return;
    }
    // No import can be stopped, and its refresh shall not be.
    const std::int16_t stop = StopFlag;
    putOff(kFirstGestureKey + GesturesPutOff, [operation, path = RecordedPath()] {
        forgetStop();
        path.bringBack();
        operation();
    });
    StopFlag = stop;
    ++GesturesPutOff;
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
        operate([=] { BuildMountain(floorToInt16(x), floorToInt16(y)); });
    }
    if (isOn(button::kPlain)) {
        operate([=] { BuildPlain(floorToInt16(x), floorToInt16(y)); });
    }
    if (isOn(button::kCanyon)) {
        operate(CarveCanyon);
    }
}

void releaseDrawingTools(float x, float y) {
    if (isOn(button::kPencil)) {
        pencilDot(x, y);
        operate([] { DrawStroke(kPencilStroke); });
    }
    if (isOn(button::kLine) && MouseState == kGestureLine) {
        storePoint(StrokeCount, x, y);
        Form1.Line1.Visible = false;
        operate([] { DrawStroke(kLineStroke); });
    }
}

}  // namespace ombrelia
