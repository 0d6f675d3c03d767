// The editor's buttons: a row each, in the order in which they are laid out. What a button is, how
// it starts, where it stands, what is said of it, and whether a running operation locks it. What
// its release executes: desk/run_command.cpp; what a tool does on the map: desk/tool_gestures.cpp.
// Odd spellings in the sentences are the program's own.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>

#include "core/button_numbers.h"
#include "core/option_strip_table.h"
#include "core/windows/form1.h"

namespace ombrelia {

// The fields of its record at the start; what is not named is 0.
struct ButtonStart {
    std::int16_t kind;
    std::int16_t latching;
    std::int16_t exclusive;
    std::int16_t group;
    std::int16_t state;
};

// Units from the inner corner of a frame of the window, of an option page, or of the window itself.
struct ButtonPlace {
    PictureBox Form1Window::*frame;
    int page;
    double left, top;
    double textWidth;  // of the text beside a check box
};

struct ButtonRow {
    int number;
    ButtonStart start;
    ButtonPlace place;
    Picture icon = Picture::None;
    const char* name;  // on its face or beside it; what assistive technology says
    const char* hint;
    const char* mapHint = nullptr;  // what the map adds while the button is on
    bool isLocked = false;          // while an operation runs
    int shows = page::kNone;        // the page that a tool shows, if it is not that of its number
};

namespace button {

inline constexpr std::int16_t kYes = -1;
inline constexpr bool kLocked = true;

consteval ButtonStart push(std::int16_t kind) {
    return {kind, 0, 0, 0, kUp};
}
consteval ButtonStart check(std::int16_t state) {
    return {kind::kOption, kYes, 0, 0, state};
}
// One of a group of which one is on.
consteval ButtonStart oneOf(std::int16_t group, std::int16_t state,
                            std::int16_t kind = kind::kPicture) {
    return {kind, kYes, kYes, group, state};
}

consteval ButtonPlace in(PictureBox Form1Window::*frame, double left, double top) {
    return {frame, page::kNone, left, top, 0};
}
consteval ButtonPlace inWindow(double left, double top) {
    return {nullptr, page::kNone, left, top, 0};
}
consteval ButtonPlace onPage(int page, double left, double top, double textWidth = 0) {
    return {nullptr, page, left, top, textWidth};
}

// The same sentence for mountain and canyon.
inline constexpr const char* kVerticalHint = "Sets the steepness of the edges to Vertical.";
inline constexpr const char* kVerySteepHint = "Sets the steepness of the edges to Very Steep";
inline constexpr const char* kSlightlySteepHint =
    "Sets the steepness of the edges to Slighly Steep";
inline constexpr const char* kSmoothHint = "Sets the steepness of the edges to Smooth";

inline constexpr ButtonRow kRows[] = {
    // The title bar.
    {kMinimize, push(kind::kMinimize), inWindow(727, 2), Picture::None, "Minimize",
     "When clicked, this button will minimize the editor."},
    {kClose, push(kind::kClose), inWindow(748, 2), Picture::None, "Close",
     "This is the close button. Click it to quit the program."},
    // The kind of view.
    {k2DMode, oneOf(group::kViewMode, kOn), in(&Form1Window::ViewFrame, 2, 15), Picture::Mode2d,
     "2D Mode",
     "This is the 2D Mode button. Click it, and your viewport will switch to the 2D view of your "
     "map. You also have the option of redrawing the map.",
     nullptr, kLocked},
    {k3DMode, oneOf(group::kViewMode, kUp), in(&Form1Window::ViewFrame, 47, 15), Picture::Mode3d,
     "3D Mode",
     "This is the 3D Mode button. Click it, and you can see a 3D representation of your map. "
     "Choose a tool from above, and click && drag on the map to move around the 3D map. When you "
     "wish to see it in better quality, click DRAW 3D",
     nullptr, kLocked},
    // Motion of the map from above.
    {kPan2D, oneOf(group::kTools, kUp), in(&Form1Window::TwoFrame, 23, 15), Picture::LensPan,
     "Pan the map",
     "Click here to pan the map around the screen. Right-Click to select the zoom tool above."},
    {kZoom2D, oneOf(group::kTools, kUp), in(&Form1Window::TwoFrame, 66, 15), Picture::LensZoom,
     "Zoom the map",
     "Click here to zoom the map in and out. Right-Click on the map to select the pan tool below."},
    // Motion of the perspective.
    {kRotate3D, oneOf(group::kMotion3D, kOn), in(&Form1Window::ThreeFrame, 2, 15),
     Picture::MotionRotate, "Rotate the 3D map",
     "Click here, and then click && drag on the map to rotate around your 3D map.",
     "If you click && drag now, you will rotate around the 3D object."},
    {kPan3D, oneOf(group::kMotion3D, kUp), in(&Form1Window::ThreeFrame, 45, 15), Picture::MotionPan,
     "Pan the 3D map",
     "Click here, and then click && drag on the map to pan it up&&down, left&&right.",
     "If you click && drag now, you will pan the 3D object around the screen."},
    {kZoom3D, oneOf(group::kMotion3D, kUp), in(&Form1Window::ThreeFrame, 88, 15),
     Picture::MotionZoom, "Zoom the 3D map",
     "Click here, and then click && drag on the map to zoom in and out.",
     "If you click && drag now, you will zoom in or out on the 3D object."},
    // What shows a page of the strip.
    {kMenu, push(kind::kStand), in(&Form1Window::MenuFrame, 25, 20), Picture::None, "Menu",
     "Click here to get a pop-down menu of choices like Save and Import."},
    {kOptions, push(kind::kStand), in(&Form1Window::MenuFrame, 151, 20), Picture::None, "Options",
     "Click here to set various options of the program."},
    // The light and the help.
    {kStop, push(kind::kPicture), in(&Form1Window::LightFrame, 2, 15), Picture::Traffic, "Stop",
     "When showing a red light, click here to stop the current operation."},
    {kHelp, push(kind::kPicture), in(&Form1Window::LightFrame, 49, 15), Picture::ToolHelp, "Help",
     "Click here for Help!"},
    // The tools, then the objects.
    {kPencil, oneOf(group::kTools, kUp), in(&Form1Window::ToolFrame, 1, 15), Picture::ToolPencil,
     "Pencil tool",
     "This is the Pencil tool. You can set the width of your pencil in the properties box, and "
     "set your color with the color picker. Then click && drag on the map to draw.",
     "If you click && drag now, you will draw a pencil line."},
    {kLine, oneOf(group::kTools, kUp), in(&Form1Window::ToolFrame, 44, 15), Picture::ToolLine,
     "Line tool",
     "This is the Line tool. You can set the width of the line in the properties box, and set "
     "your color with the color picker. Then click && drag on the map to draw a line.",
     "If you click && drag now, you will draw a line.", kLocked},
    {kRaise, oneOf(group::kTools, kUp), in(&Form1Window::ToolFrame, 87, 15), Picture::ToolRaise,
     "Raise Terrain tool",
     "This is the Raise Terrain tool. Click && drag on the map to raise the level of the terrain "
     "at the click point. To raise it higher, keep holding the mouse button and move it around.",
     "If you click && drag now, you will be raising the terrain.", kLocked},
    {kLower, oneOf(group::kTools, kUp), in(&Form1Window::ToolFrame, 1, 57), Picture::ToolLower,
     "Lower Terrain tool",
     "This is the Lower Terrain tool. Click && drag on the map to lower the level of the terrain "
     "at the click point. To lower it more, keep holding the mouse button and move it around.",
     "If you click && drag now, you will be lowering the terrain.", kLocked},
    {kColorPicker, oneOf(group::kTools, kOn), in(&Form1Window::ToolFrame, 44, 57),
     Picture::ToolPicker, "Color Picker tool",
     "This is the Color Picker tool. When you click on the map, it will select the color of that "
     "point for you.",
     "If you click now, the color you clicked on will become seleced in the color picker.",
     kLocked},
    {kFractal, oneOf(group::kTools, kUp), in(&Form1Window::ToolFrame, 87, 57), Picture::ToolFractal,
     "Fractal Terrain tool",
     "This is the Fractal Terrain tool. It will create random terrain, with a set height and "
     "roughness. WARNING: It fills the entire map, erasing all of your current work.",
     "If you click now, nothing will happen.", kLocked},
    {kMountain, oneOf(group::kTools, kUp), in(&Form1Window::ToolFrame, 1, 114),
     Picture::ToolMountain, "Mountain tool",
     "This is the mountain tool. It will generate a mountain with a set height, steepness, and "
     "top size.",
     "If you click now, you will generate a mountain at this spot with your specified settings.",
     kLocked},
    {kCanyon, oneOf(group::kTools, kUp), in(&Form1Window::ToolFrame, 44, 114), Picture::ToolCanyon,
     "Canyon tool",
     "This is the canyon tool. It will create a canyon on your map, which is a path carved by a "
     "river over millions of years. You can choose the steepness of the edges, aswell as whether "
     "or not a river is in the middle. Click && drag on the map to create one.",
     "If you click && drag now, you will generate a canyon along the line you drag.", kLocked},
    {kPlain, oneOf(group::kTools, kUp), in(&Form1Window::ToolFrame, 87, 114), Picture::ToolPlain,
     "Plain tool",
     "This is the plain tool. It will create a circle with a pre-defined radius based on the "
     "height of the clickpoint. Useful for making areas in your map where cities can be built.",
     "If you click now, you will generate a plain with a height of the point where you clicked.",
     kLocked},
    {kWavy, oneOf(group::kTools, kUp), in(&Form1Window::ToolFrame, 1, 156), Picture::ToolWavy,
     "Wavy terrain",
     "This tool will be available in a future version. It will generate wavy terrain, kind of "
     "like an egg carton.",
     nullptr, kLocked, page::kCanyon},
    {kMountainRange, oneOf(group::kTools, kUp), in(&Form1Window::ToolFrame, 44, 156),
     Picture::ToolMountainRange, "Mountain ranges",
     "This tool will be available in a future version. It will generate mountain ranges. Get "
     "your skiing gear, rockies here we come!",
     nullptr, kLocked},
    {kRiver, oneOf(group::kTools, kUp), in(&Form1Window::ToolFrame, 87, 156), Picture::ToolRiver,
     "River",
     "This tool will be available in a future version. It will generate a river following a "
     "basic path, and create random widths, twists, and turns. Just like a real river!",
     nullptr, kLocked},
    {kVolcano, oneOf(group::kTools, kUp), in(&Form1Window::ToolFrame, 1, 198), Picture::ToolVolcano,
     "Volcano",
     "This tool will be available in a future version. It will generate a volcano (sorry no "
     "lava). Wouldn't you like to live next to Mount St. Helens?",
     nullptr, kLocked},
    // The pages.
    {kGenerate, push(kind::kStand), onPage(page::kFractal, 85, 86), Picture::None, "Generate",
     "Click here to generate the fractal terrain, with the settings you have chosen."},
    {kUpdate2D, push(kind::kStand), onPage(page::k2DView, 85, 54), Picture::None, "Update 2D",
     "When clicked, this button will re-draw the 2-dimensional viewport. Use if the graphics are "
     "not correct."},
    {kStyleLine, oneOf(group::kStyle3D, kUp), onPage(page::k3DView, 10, 76), Picture::StyleLine,
     "Line Mode", "When chosen, this option will draw the 3D Map in Line Mode."},
    {kStyleDot, oneOf(group::kStyle3D, kUp), onPage(page::k3DView, 54, 76), Picture::StyleDot,
     "Dot Mode", "When chosen, this option will draw the 3D Map in Dot Mode."},
    {kStylePolygon, oneOf(group::kStyle3D, kOn), onPage(page::k3DView, 98, 76),
     Picture::StylePolygon, "Polygon Mode",
     "When chosen, this option will draw the 3D Map in Polygon Mode."},
    {kDraw3D, push(kind::kStand), onPage(page::k3DView, 160, 82), Picture::None, "Draw 3D",
     "Click here to draw a higher-quality 3D version of your map, with the settings you "
     "specified."},
    {kMountainVertical, oneOf(group::kMountainSides, kUp, kind::kSmall),
     onPage(page::kMountain, 106, 63), Picture::SteepVertical, "Vertical", kVerticalHint},
    {kMountainVerySteep, oneOf(group::kMountainSides, kUp, kind::kSmall),
     onPage(page::kMountain, 140, 63), Picture::SteepVery, "Very Steep", kVerySteepHint},
    {kMountainSlightlySteep, oneOf(group::kMountainSides, kUp, kind::kSmall),
     onPage(page::kMountain, 174, 63), Picture::SteepSlightly, "Slightly Steep",
     kSlightlySteepHint},
    {kMountainSmooth, oneOf(group::kMountainSides, kOn, kind::kSmall),
     onPage(page::kMountain, 208, 63), Picture::SteepSmooth, "Smooth", kSmoothHint},
    {kCanyonVertical, oneOf(group::kCanyonEdges, kUp, kind::kSmall), onPage(page::kCanyon, 106, 63),
     Picture::SteepVertical, "Vertical", kVerticalHint},
    {kCanyonVerySteep, oneOf(group::kCanyonEdges, kUp, kind::kSmall),
     onPage(page::kCanyon, 140, 63), Picture::SteepVery, "Very Steep", kVerySteepHint},
    {kCanyonSlightlySteep, oneOf(group::kCanyonEdges, kOn, kind::kSmall),
     onPage(page::kCanyon, 174, 63), Picture::SteepSlightly, "Slightly Steep", kSlightlySteepHint},
    {kCanyonSmooth, oneOf(group::kCanyonEdges, kUp, kind::kSmall), onPage(page::kCanyon, 208, 63),
     Picture::SteepSmooth, "Smooth", kSmoothHint},
    {kNewMap, push(kind::kStand), onPage(page::kMenu, 27, 21), Picture::None, "New Map",
     "Click here to create a new map."},
    {kImport, push(kind::kStand), onPage(page::kMenu, 143, 21), Picture::None, "Import",
     "This button will open an existing BMP file and import it into the terrain editor, for "
     "editing and then saving. Imagine: A picture of you with a city on it!"},
    {kSave, push(kind::kStand), onPage(page::kMenu, 27, 54), Picture::None, "Save",
     "This button will save your current map, for importation into Ombrelia(tm)."},
    {kAbout, push(kind::kStand), onPage(page::kMenu, 143, 54), Picture::None, "About",
     "Click here to learn more about Quillbyte"},
    {kExit, push(kind::kStand), onPage(page::kMenu, 85, 87), Picture::None, "Exit",
     "Click here to quit the program."},
    {kRedrawColors, push(kind::kOk), onPage(page::kColors, 238, 20), Picture::None,
     "Redraw with the new colors",
     "When clicked, this button will completely redraw your mapview with the new color set you "
     "have selected."},
    {kAddColor, push(kind::kStand), onPage(page::kColors, 27, 87), Picture::None, "Add Color",
     "When clicked, this button will add a new color set, based on the one you have loaded now."},
    {kDeleteColor, push(kind::kStand), onPage(page::kColors, 143, 87), Picture::None,
     "Delete Color", "When clicked, this button will delete the currently selected color set."},
    // The check boxes of the pages.
    {kOnlyLower, check(kOn), onPage(page::kMountain, 12, 97, 220), Picture::None,
     "Only change lower heights",
     "When checked, this option will make the mountain only change height values that are LESS "
     "than the new ones. For more info, see Help."},
    {kRiverInMiddle, check(kOn), onPage(page::kCanyon, 12, 97, 220), Picture::None,
     "River in the middle",
     "When checked, this option will create a river flowing through the center of your canyon."},
    {kAutoRefresh, check(kOn), onPage(page::kRefresh, 12, 26, 230), Picture::None,
     "Automatically refresh after event",
     "When checked, this option will make the editor refresh the map after every event, ie. "
     "making a mountain."},
    {kStepRefresh, check(kUp), onPage(page::kRefresh, 12, 48, 230), Picture::None, "Use Step Res",
     "When checked, this option will make the editor refresh the map view in 'steps', ie. from "
     "low res to high res."},
    {kStep20, check(kOn), onPage(page::kRefresh, 24, 70, 30), Picture::None, "20:1",
     "This will enable drawing of the 20 to 1 view."},
    {kStep10, check(kUp), onPage(page::kRefresh, 76, 70, 30), Picture::None, "10:1",
     "This will enable drawing of the 10 to 1 view."},
    {kStep5, check(kOn), onPage(page::kRefresh, 128, 70, 26), Picture::None, "5:1",
     "This will enable drawing of the 5 to 1 view."},
    {kStep2, check(kOn), onPage(page::kRefresh, 176, 70, 26), Picture::None, "2:1",
     "This will enable drawing of the 2 to 1 view."},
    {kStep1, check(kOn), onPage(page::kRefresh, 224, 70, 26), Picture::None, "1:1",
     "This will enable drawing of the full view."},
    {kAdvanced3D, check(kUp), onPage(page::kRefresh, 12, 92, 230), Picture::None,
     "Advanced 3D Editing mode",
     "When checked, this option will cause the 3D navigation to enter advanced mode. "
     "Single-Clicking on the grid activates the rotate tool. Double-Clicking activates the pan "
     "tool, and Right-Clicking activates the zoom tool."},
    {kUseCursors, check(kUp), onPage(page::kExtra, 12, 26, 200), Picture::None, "Use Cursors",
     "When checked, this option will enable the custom cursors that come with the program."},
    {kColorCursors, oneOf(group::kCursorColors, kOn, kind::kOption),
     onPage(page::kExtra, 32, 48, 60), Picture::None, "Color", "This will choose color cursors."},
    {kBlackWhiteCursors, oneOf(group::kCursorColors, kUp, kind::kOption),
     onPage(page::kExtra, 120, 48, 120), Picture::None, "Black && White",
     "This will choose Black and White cursors."},
    {kUseSounds, check(kOn), onPage(page::kExtra, 12, 70, 200), Picture::None, "Use Button Sounds",
     "When checked, this option will enable the button sounds that are heard when a button is "
     "clicked."},
    {kShowHelpBox, check(kOn), onPage(page::kExtra, 12, 92, 200), Picture::None, "Show HelpBox",
     "When checked, this option will show the help box from which you are reading these words."},
};

// Subscript in kRows of each number; -1: no button.
inline constexpr auto kRowOfNumber = [] {
    std::array<int, kLastOfEditor + 1> rows{};
    rows.fill(-1);
    for (int i = 0; i < static_cast<int>(std::size(kRows)); ++i) {
        rows[static_cast<std::size_t>(kRows[i].number)] = i;
    }
    return rows;
}();
static_assert(std::size(kRows) == std::count_if(kRowOfNumber.begin(), kRowOfNumber.end(),
                                                [](int row) { return row >= 0; }),
              "a number stands in two rows");

// The row of a number, or nullptr.
constexpr const ButtonRow* row(int number) {
    const bool isEditors = number >= 0 && number <= kLastOfEditor;
    const int i = isEditors ? kRowOfNumber[static_cast<std::size_t>(number)] : -1;
    return i < 0 ? nullptr : &kRows[i];
}

}  // namespace button

}  // namespace ombrelia
