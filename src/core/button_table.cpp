#include "core/button_table.h"

#include <algorithm>

#include "core/button_numbers.h"

namespace ombrelia {

namespace {

constexpr std::int16_t kYes = -1;

constexpr ButtonStart tool(std::int16_t number, std::int16_t group, std::int16_t state,
                           const char* name) {
    return {number, kind::kPicture, kYes, kYes, group, state, name};
}
constexpr ButtonStart push(std::int16_t number, std::int16_t kind, const char* name) {
    return {number, kind, 0, 0, 0, kUp, name};
}
constexpr ButtonStart steep(std::int16_t number, std::int16_t group, std::int16_t state,
                            const char* name) {
    return {number, kind::kSmall, kYes, kYes, group, state, name};
}
constexpr ButtonStart check(std::int16_t number, std::int16_t state, const char* name) {
    return {number, kind::kOption, kYes, 0, 0, state, name};
}

constexpr ButtonStart kRows[] = {
    tool(button::kPencil, group::kTools, kUp, "Pencil tool"),
    tool(button::kLine, group::kTools, kUp, "Line tool"),
    tool(button::kRaise, group::kTools, kUp, "Raise Terrain tool"),
    tool(button::kLower, group::kTools, kUp, "Lower Terrain tool"),
    tool(button::kFractal, group::kTools, kUp, "Fractal Terrain tool"),
    tool(button::k2DMode, group::kViewMode, kOn, "2D Mode"),
    tool(button::k3DMode, group::kViewMode, kUp, "3D Mode"),
    tool(button::kColorPicker, group::kTools, kOn, "Color Picker tool"),
    tool(button::kMountain, group::kTools, kUp, "Mountain tool"),
    tool(button::kCanyon, group::kTools, kUp, "Canyon tool"),
    tool(button::kPlain, group::kTools, kUp, "Plain tool"),
    push(button::kClose, kind::kClose, "Close"),
    push(button::kUpdate2D, kind::kStand, "Update 2D"),
    push(button::kImport, kind::kStand, "Import"),
    push(button::kSave, kind::kStand, "Save"),
    push(button::kNewMap, kind::kStand, "New Map"),
    push(button::kOptions, kind::kStand, "Options"),
    push(button::kExit, kind::kStand, "Exit"),
    push(button::kMenu, kind::kStand, "Menu"),
    push(button::kDraw3D, kind::kStand, "Draw 3D"),
    push(button::kGenerate, kind::kStand, "Generate"),
    push(button::kAbout, kind::kStand, "About"),
    push(button::kStop, kind::kPicture, "Stop"),
    push(button::kHelp, kind::kPicture, "Help"),
    push(button::kRedrawColors, kind::kOk, "Redraw with the new colors"),
    push(button::kMinimize, kind::kMinimize, "Minimize"),
    push(button::kAddColor, kind::kStand, "Add Color"),
    push(button::kDeleteColor, kind::kStand, "Delete Color"),
    tool(button::kStyleLine, group::kStyle3D, kUp, "Line Mode"),
    tool(button::kStyleDot, group::kStyle3D, kUp, "Dot Mode"),
    steep(button::kMountainVertical, group::kMountainSides, kUp, "Vertical"),
    steep(button::kMountainVerySteep, group::kMountainSides, kUp, "Very Steep"),
    steep(button::kMountainSlightlySteep, group::kMountainSides, kUp, "Slightly Steep"),
    steep(button::kMountainSmooth, group::kMountainSides, kOn, "Smooth"),
    steep(button::kCanyonVertical, group::kCanyonEdges, kUp, "Vertical"),
    steep(button::kCanyonVerySteep, group::kCanyonEdges, kUp, "Very Steep"),
    steep(button::kCanyonSlightlySteep, group::kCanyonEdges, kOn, "Slightly Steep"),
    steep(button::kCanyonSmooth, group::kCanyonEdges, kUp, "Smooth"),
    tool(button::kStylePolygon, group::kStyle3D, kOn, "Polygon Mode"),
    tool(button::kRotate3D, group::kMotion3D, kOn, "Rotate the 3D map"),
    tool(button::kPan3D, group::kMotion3D, kUp, "Pan the 3D map"),
    tool(button::kZoom3D, group::kMotion3D, kUp, "Zoom the 3D map"),
    tool(button::kPan2D, group::kTools, kUp, "Pan the map"),
    tool(button::kZoom2D, group::kTools, kUp, "Zoom the map"),
    tool(button::kWavy, group::kTools, kUp, "Wavy terrain"),
    tool(button::kMountainRange, group::kTools, kUp, "Mountain ranges"),
    tool(button::kRiver, group::kTools, kUp, "River"),
    tool(button::kVolcano, group::kTools, kUp, "Volcano"),
    check(button::kRiverInMiddle, kOn, "River in the middle"),
    check(button::kOnlyLower, kOn, "Only change lower heights"),
    check(button::kUseCursors, kUp, "Use Cursors"),
    {button::kColorCursors, kind::kOption, kYes, kYes, group::kCursorColors, kOn, "Color"},
    {button::kBlackWhiteCursors, kind::kOption, kYes, kYes, group::kCursorColors, kUp,
     "Black && White"},
    check(button::kUseSounds, kOn, "Use Button Sounds"),
    check(button::kAutoRefresh, kOn, "Automatically refresh after event"),
    check(button::kStepRefresh, kUp, "Use Step Res"),
    check(button::kStep20, kOn, "20:1"),
    check(button::kStep10, kUp, "10:1"),
    check(button::kStep5, kOn, "5:1"),
    check(button::kStep2, kOn, "2:1"),
    check(button::kStep1, kOn, "1:1"),
    check(button::kShowHelpBox, kOn, "Show HelpBox"),
    check(button::kAdvanced3D, kUp, "Advanced 3D Editing mode"),
};

}  // namespace

std::span<const ButtonStart> buttonStarts() {
    return kRows;
}

const ButtonStart* buttonStart(int number) {
    const auto* row = std::find_if(std::begin(kRows), std::end(kRows),
                                   [number](const ButtonStart& r) { return r.number == number; });
    return row == std::end(kRows) ? nullptr : row;
}

}  // namespace ombrelia
