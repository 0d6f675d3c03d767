#include "desk/run_command.h"

#include <algorithm>
#include <iterator>

#include "core/button_table.h"
#include "core/buttons.h"
#include "core/color_display.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/option_strip_table.h"
#include "core/progress.h"
#include "core/windows/form1.h"
#include "core/windows/help_box.h"
#include "core/windows/small_windows.h"
#include "desk/startup.h"
#include "files/bitmap_import.h"
#include "files/save_command.h"
#include "panels/color_editor.h"
#include "panels/option_frames.h"
#include "platform/dispatch.h"
#include "platform/window_life.h"
#include "terrain/fractal/fractal_terrain.h"
#include "views/map2d/map_transform.h"
#include "views/map2d/update_map_view.h"
#include "views/view3d/draw_terrain.h"
#include "views/view_mode.h"

namespace ombrelia {

namespace {

constexpr int kLastTool = 10;

void updateView() {
    SwitchViewMode(kMode2D);
    UpdateMapView(1);
}

void updateViewAndImport() {
    SwitchViewMode(kMode2D);
    ImportCommand();
}

void showMenu() {
    ScrollToFrame(page::kMenu);
}

void showOptions() {
    ScrollToFrame(page::kRefresh);
}

void draw3D() {
    SwitchViewMode(kMode3D);
    DrawTerrain3D(SliderValues(slider::kResolution).Value, kFullDrawing);
}

void showAbout() {
    showWindow(frmSplash);
}

void redrawWithColors() {
    UpdatePickedColor();
    SwitchViewMode(kMode2D);
    MarkMapForRepaint();
    PaintPicker();
    UpdateMapView(1);
}

void showHelp() {
    showWindow(HelpBox);
}

void minimizeEditor() {
    minimizeWindow(Form1);
}

void showOrHideHint() {
    if (isOn(button::kShowHelpBox)) {
        showWindow(HelpFrm);
    } else {
        hideWindow(HelpFrm);
    }
}

struct Command {
    int number;
    void (*execute)();
    bool waitsForRun;  // cannot be done inside a running operation
};

constexpr Command kCommands[] = {
    {button::kClose, ExitEditor, true},
    {button::kUpdate2D, updateView, true},
    {button::kImport, updateViewAndImport, true},
    {button::kSave, SaveCommand, false},
    {button::kNewMap, StartNewMap, true},
    {button::kOptions, showOptions, false},
    {button::kExit, ExitEditor, true},
    {button::kMenu, showMenu, false},
    {button::kDraw3D, draw3D, true},
    {button::kGenerate, GenerateCommand, true},
    {button::kAbout, showAbout, false},
    {button::kStop, requestStop, false},
    {button::kHelp, showHelp, false},
    {button::kRedrawColors, redrawWithColors, true},
    {button::kMinimize, minimizeEditor, false},
    {button::kAddColor, AddColorSet, false},
    {button::kDeleteColor, DeleteColorSet, false},
    {button::kShowHelpBox, showOrHideHint, false},
};

void paintState(int button, int state) {
    OptionStates(button).State = static_cast<std::int16_t>(state);
    DrawButton(button);
}

void leave3D() {
    if (View3DActive == 1) {
        ApplyMapTransform();
        refreshControl(Form1.Mapview2);
        View3DActive = 0;
        refreshControl(Form1.MapView);
    }
    GroupCurrent(group::kViewMode) = button::k2DMode;
    paintState(button::k2DMode, kOn);
    paintState(button::k3DMode, kUp);
}

void enter3D() {
    if (View3DActive != 0) {
        return;
    }
    View3DActive = 1;
    Form1.MapView.Canvas.clear();
    refreshControl(Form1.Mapview2);
    paintState(GroupCurrent(group::kTools), kUp);
}

void bringBackTool() {
    SwitchViewMode(kMode2D);
    OptionStates(ReturnTool).State = kOn;
    GroupCurrent(group::kTools) = ReturnTool;
    DrawButton(ReturnTool);
}

void runToolCommand(int& i) {
    if (i == button::k3DMode) {
        enter3D();
    } else {
        leave3D();
    }
    ReturnTool = GroupCurrent(group::kTools);
    if (i == button::k3DMode) {
        SwitchViewMode(kMode3D);
    }
    if (i == button::k2DMode) {
        bringBackTool();
    }
    if (const ButtonRow* row = button::row(i); row != nullptr && row->shows != page::kNone) {
        i = row->shows;
    }
    ScrollToFrame(page::indexOf(i));
}

bool isToolCommand(int i) {
    return i <= kLastTool || (i >= button::kWavy && i <= 59);
}

}  // namespace

void RunCommand(int& i) {
    if (i >= kOverlayOffset) {
        i -= kOverlayOffset;
    }
    const int number = i;
    const auto* command =
        std::find_if(std::begin(kCommands), std::end(kCommands),
                     [number](const Command& row) { return row.number == number; });
    const bool isKnown = command != std::end(kCommands);
    if (isKnown && command->waitsForRun && isNested()) {
        putOff(number, [number] {
            int again = number;
            RunCommand(again);
        });
        return;
    }
    forgetStop();
    if (isToolCommand(i)) {
        runToolCommand(i);
    } else if (isKnown) {
        command->execute();
    }
}

void ImportCommand() {
    if (!importPicture()) {
        return;
    }
    paintState(button::kMenu, kUp);
    int menu = button::kMenu;
    RunCommand(menu);
}

}  // namespace ombrelia
