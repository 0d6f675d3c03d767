#include "desk/tool_gestures.h"

#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/color_display.h"
#include "core/color_ramp.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/option_strip_table.h"
#include "core/windows/form1.h"
#include "desk/map_operation.h"
#include "desk/navigation_gestures.h"
#include "platform/numeric.h"
#include "terrain/canyon.h"
#include "terrain/mountain.h"
#include "terrain/plain.h"
#include "terrain/raise_lower.h"
#include "terrain/stroke.h"

namespace ombrelia {

namespace {

constexpr int kLastOfStroke = 599;
constexpr int kStartsOfLine = 5;  // times that the line's start is stored
constexpr int kMarkerWidth = 4;
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

bool isInMap(const MapPlace& at) {
    const auto side = static_cast<float>(MapSize);
    return at.x >= 0 && at.x <= side && at.y >= 0 && at.y <= side;
}

void pickHeight(const MapPlace& at) {
    if (isInMap(at)) {
        DrawHeight =
            HeightMap(static_cast<int>(roundToEven(at.x)), static_cast<int>(roundToEven(at.y)));
    }
    UpdatePickedColor();
}

// Press.

void beginCamera(const MapPlace& at) {
    MouseState = kGestureNavigate3D;
    beginNavigation(at.x, at.y);
}

void beginShaping(const MapPlace& /*at*/) {
    MouseState = kGestureShape;
}

void beginShapingWithoutMotion(const MapPlace& at) {
    if (!isOn(button::kRotate3D) && !isOn(button::kPan3D) && !isOn(button::kZoom3D)) {
        beginShaping(at);
    }
}

void beginPencil(const MapPlace& at) {
    StrokeCount = 1;
    MouseState = kGesturePencil;
    // Required: stored, not counted: the first move takes its place
    // (the_first_move_takes_the_place_of_the_press).
    storePoint(StrokeCount, at.x, at.y);
    pencilDot(at.x, at.y);
}

void beginCanyon(const MapPlace& /*at*/) {
    MouseState = kGestureCanyon;
    StrokeCount = 1;
}

void beginWavy(const MapPlace& /*at*/) {
    MouseState = kGestureWavy;
}

void beginPick(const MapPlace& at) {
    MouseState = kGesturePick;
    pickHeight(at);
}

void beginLine(const MapPlace& at) {
    MouseState = kGestureLine;
    for (int n = 1; n <= kStartsOfLine; ++n) {
        storePoint(n, at.x, at.y);
    }
    StrokeCount = kStartsOfLine + 1;
    Line& line = Form1.Line1;
    line.BorderWidth = 2 * SliderValues(slider::kLineThickness).Value - 1;
    line.BorderColor = HeightToColor(DrawHeight);
    line.X1 = line.X2 = viewX(at.x);
    line.Y1 = line.Y2 = viewY(at.y);
    line.Visible = true;
}

void showMarker(const MapPlace& /*at*/) {
    if (!isOn(button::kLine)) {
        Form1.Line1.BorderWidth = kMarkerWidth;
        Form1.Line1.BorderColor = kMarkerColor;
    }
}

void exchangeMapTools(const MapPlace& at) {
    if (at.button == MouseButton::Right) {
        swapPanAndZoom();
    }
}

void beginZoom(const MapPlace& /*at*/) {
    MouseState = kGestureMapZoom;
    beginMapZoom();
}

void beginPan(const MapPlace& /*at*/) {
    MouseState = kGestureMapPan;
    beginMapPanDrag();
}

// Move. False when the path is full.

bool moveCanyon(const MapPlace& at) {
    const int last = StrokeCount - 1;
    // Required: one sum is compared, so a step along an anti-diagonal is passed over
    // (a_step_along_the_anti_diagonal_is_passed_over).
    if (at.x + at.y == static_cast<float>(StrokeX(last) + StrokeY(last))) {
        return true;
    }
    if (isPathFull()) {
        return false;
    }
    storePoint(StrokeCount, at.x, at.y);
    dot(at.x, at.y, kCanyonDot);
    ++StrokeCount;
    return true;
}

bool movePick(const MapPlace& at) {
    pickHeight(at);
    return true;
}

bool movePencil(const MapPlace& at) {
    if (isPathFull()) {
        return false;
    }
    addPoint(at.x, at.y);
    pencilDot(at.x, at.y);
    return true;
}

bool moveLine(const MapPlace& at) {
    Form1.Line1.X2 = viewX(at.x);
    Form1.Line1.Y2 = viewY(at.y);
    return true;
}

bool moveRaise(const MapPlace& at) {
    RaiseTerrain(at.x, at.y);
    return true;
}

bool moveLower(const MapPlace& at) {
    LowerTerrain(at.x, at.y);
    return true;
}

bool moveZoom(const MapPlace& /*at*/) {
    dragMapZoom();
    return true;
}

bool movePan(const MapPlace& /*at*/) {
    dragMapPan();
    return true;
}

bool moveCamera(const MapPlace& at) {
    navigate(at.x, at.y);
    return true;
}

// Release.

template <void build(std::int16_t x, std::int16_t y)>
void buildAt(const MapPlace& at) {
    operate([at] { build(floorToInt16(at.x), floorToInt16(at.y)); });
}

void releaseCanyon(const MapPlace& /*at*/) {
    operate(CarveCanyon);
}

void releasePencil(const MapPlace& at) {
    pencilDot(at.x, at.y);
    operate([] { DrawStroke(kPencilStroke); });
}

void releaseLine(const MapPlace& at) {
    if (MouseState != kGestureLine) {
        return;
    }
    storePoint(StrokeCount, at.x, at.y);
    Form1.Line1.Visible = false;
    operate([] { DrawStroke(kLineStroke); });
}

// Each row is asked in its turn whether its button is on, since one before it may have changed
// that.
constexpr int kWhateverIsOn = -1;

struct PressRow {
    int button;
    void (*press)(const MapPlace&);
};
constexpr PressRow kPresses[] = {
    {button::k3DMode, beginCamera},    {kWhateverIsOn, beginShapingWithoutMotion},
    {button::kRaise, beginShaping},    {button::kLower, beginShaping},
    {button::kPencil, beginPencil},    {button::kCanyon, beginCanyon},
    {button::kWavy, beginWavy},        {button::kColorPicker, beginPick},
    {button::kLine, beginLine},        {kWhateverIsOn, showMarker},
    {kWhateverIsOn, exchangeMapTools}, {button::kZoom2D, beginZoom},
    {button::kPan2D, beginPan},
};

struct MoveRow {
    int button;
    MouseGesture gesture;  // the one that must be running
    bool (*move)(const MapPlace&);
};
constexpr MoveRow kMoves[] = {
    {button::kCanyon, kGestureCanyon, moveCanyon},
    {button::kColorPicker, kGesturePick, movePick},
    {button::kPencil, kGesturePencil, movePencil},
    {button::kLine, kGestureLine, moveLine},
    {button::kRaise, kGestureShape, moveRaise},
    {button::kLower, kGestureShape, moveLower},
    {button::kZoom2D, kGestureMapZoom, moveZoom},
    {button::kPan2D, kGestureMapPan, movePan},
    {button::k3DMode, kGestureNavigate3D, moveCamera},
};

struct ReleaseRow {
    int button;
    void (*release)(const MapPlace&);
};
constexpr ReleaseRow kReleases[] = {
    {button::kMountain, buildAt<BuildMountain>},
    {button::kPlain, buildAt<BuildPlain>},
    {button::kCanyon, releaseCanyon},
    {button::kColorPicker, pickHeight},
    {button::kPencil, releasePencil},
    {button::kLine, releaseLine},
};

}  // namespace

void pressTools(const MapPlace& at) {
    for (const PressRow& row : kPresses) {
        if (row.button == kWhateverIsOn || isOn(row.button)) {
            row.press(at);
        }
    }
}

bool moveTools(const MapPlace& at) {
    for (const MoveRow& row : kMoves) {
        if (isOn(row.button) && MouseState == row.gesture && !row.move(at)) {
            return false;
        }
    }
    return true;
}

void releaseTools(const MapPlace& at) {
    for (const ReleaseRow& row : kReleases) {
        if (isOn(row.button)) {
            row.release(at);
        }
    }
}

}  // namespace ombrelia
