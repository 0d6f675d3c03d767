#include "core/windows/maze_window.h"

#include "core/windows/layout.h"

namespace ombrelia {

MazeWindow frm3DMaze;

namespace {

constexpr double kWidth = 440;
constexpr double kHeight = 320;
constexpr double kBarWidth = 17;
constexpr double kTextHeight = 20;
constexpr int kTickMilliseconds = 55;

void designMenu(MenuItem& menu, const char* name, const char* caption) {
    designPart(menu, name, frm3DMaze, {0, 0, 0, 0});
    menu.Caption = caption;
}

void designEntry(MenuItem& entry, const char* name, MenuItem& menu, const char* caption) {
    designPart(entry, name, menu, {0, 0, 0, 0});
    entry.Caption = caption;
    entry.Checked = false;
}

void designMenus() {
    designMenu(frm3DMaze.mnuAction, "mnuAction", "&Action");
    constexpr const char* kActions[] = {"&New", "&Solve", "&Clear", "-", "E&xit"};
    for (int i = 0; i < 5; ++i) {
        designEntry(frm3DMaze.mnuActionItem.make(i), "mnuActionItem", frm3DMaze.mnuAction,
                    kActions[i]);
    }
    frm3DMaze.mnuActionItem(1).Enabled = false;
    frm3DMaze.mnuActionItem(2).Enabled = false;
    designMenu(frm3DMaze.mnuStyle, "mnuStyle", "&Style");
    constexpr const char* kStyles[] = {"&Hexagonal rooms", "&Square rooms"};
    for (int i = 0; i < 2; ++i) {
        designEntry(frm3DMaze.mnuStyleItem.make(i), "mnuStyleItem", frm3DMaze.mnuStyle, kStyles[i]);
    }
    frm3DMaze.mnuStyleItem(1).Checked = true;
    designMenu(frm3DMaze.mnuHelp, "mnuHelp", "&Help");
    designEntry(frm3DMaze.mnuHelpItem.make(0), "mnuHelpItem", frm3DMaze.mnuHelp, "&About...");
}

void designMaze() {
    designWindow(frm3DMaze, "frm3DMaze", "3DMaze by Quillbyte", kWidth, kHeight, Picture::None);
    frm3DMaze.HasFrame = true;
    frm3DMaze.StandsAlone = true;
    frm3DMaze.Ground = &frm3DMaze.Picture;
    designSurface(frm3DMaze.Picture, "Picture", frm3DMaze, {0, 0, kWidth, kHeight});
    designPart(frm3DMaze.Text1, "Text1", frm3DMaze,
               {0, kHeight - kTextHeight, kWidth, kTextHeight});
    designPart(frm3DMaze.VScroll1, "VScroll1", frm3DMaze,
               {kWidth - kBarWidth, 0, kBarWidth, kHeight - kTextHeight});
    frm3DMaze.VScroll1.AccessibleName = "Tilt";
    frm3DMaze.VScroll1.Min = 30;
    frm3DMaze.VScroll1.Max = 60;
    frm3DMaze.VScroll1.LargeChange = 5;
    frm3DMaze.VScroll1.Value = 45;
    designTimer(frm3DMaze.Timer1, "Timer1", frm3DMaze, kTickMilliseconds);
    frm3DMaze.Timer1.Enabled = false;
    designMenus();
}

}  // namespace

MazeWindow::MazeWindow() {
    Design = designMaze;
}

}  // namespace ombrelia
