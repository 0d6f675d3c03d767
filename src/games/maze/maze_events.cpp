// The window's life: load, size, exposure, tilt, ticks, menus. Keys are in maze_keys.cpp.
#include "games/maze/maze_events.h"

#include "core/button_numbers.h"
#include "core/windows/maze_window.h"
#include "games/maze/maze_generator.h"
#include "games/maze/maze_picture.h"
#include "games/maze/maze_solver.h"
#include "games/maze/maze_track.h"
#include "platform/dispatch.h"
#include "platform/number_text.h"
#include "platform/services.h"
#include "platform/window_life.h"

namespace ombrelia::maze {

namespace {

constexpr int kRightAngle = 90;
constexpr int kNewItem = 0;
constexpr int kSolveItem = 1;
constexpr int kClearItem = 2;
constexpr int kExitItem = 4;
constexpr const char* kAboutText =
    "3DMaze Easter Egg - Quillbyte Terrain Editor\r\rWritten by the Quillbyte terrain team";

void say(const char* text) {
    frm3DMaze.Text1.Caption = text;
}

void enableMenus(bool isEnabled) {
    frm3DMaze.mnuActionItem(kSolveItem).Enabled = isEnabled;
    frm3DMaze.mnuActionItem(kClearItem).Enabled = isEnabled;
}

void readTilt() {
    TiltDegrees = kRightAngle - frm3DMaze.VScroll1.Value;
}

void requestPicture() {
    PaintRequested = kMazeYes;
    DrawState = kMazeSetup;
}

// No picture while the window is like this.
void stopPicture() {
    mazePainter().clear();
    DrawState = kMazeReady;
    TimerRunning = kMazeNo;
}

void layOut() {
    const double textTop = frm3DMaze.Height - frm3DMaze.Text1.Height;
    frm3DMaze.VScroll1.Height = textTop;
    frm3DMaze.VScroll1.Left = frm3DMaze.Width - frm3DMaze.VScroll1.Width;
    frm3DMaze.Text1.Top = textTop;
    frm3DMaze.Text1.Width = frm3DMaze.Width;
}

// No picture is drawn before the window is large enough again.
bool isTooSmall() {
    return frm3DMaze.Text1.Height * 3 > frm3DMaze.Height;
}

void resized() {
    if (frm3DMaze.Minimized) {
        Minimized = kMazeYes;
        stopPicture();
        return;
    }
    if (isTooSmall()) {
        Minimized = kMazeNo;
        stopPicture();
        say("This window is too small!");
        return;
    }
    layOut();
    requestPicture();
    if (Minimized == kMazeNo) {
        NewMazeRequested = kMazeYes;
        Won = kMazeNo;
        Solved = kMazeNo;
        SeedString = clockText(static_cast<float>(services().clock->secondsSinceMidnight()));
    }
    Minimized = kMazeNo;
    requestPaint(frm3DMaze);
}

void makeMaze(MazeStyle style) {
    const double width = (frm3DMaze.Width - frm3DMaze.VScroll1.Width) * kTwipsPerPixel;
    const double height = (frm3DMaze.Height - frm3DMaze.Text1.Height) * kTwipsPerPixel;
    ComputeMazeSize(style, width, height);
    readTilt();
    allocateMaze();
    CreateMaze(SeedString, style, kMazeSearchSeconds);
    clearUserPage(style);
    NewMazeRequested = kMazeNo;
}

void setUp(MazeStyle style) {
    say("");
    if (NewMazeRequested != kMazeNo) {
        makeMaze(style);
    }
    if (PaintRequested != kMazeNo) {
        mazePainter().clear();
        ComputeView(style);
        PaintRequested = kMazeNo;
    }
    DrawState = kMazeTemplates;
}

// What a tick does before it yields.
void paintSlice(MazeStyle style) {
    const PaletteInUse palette;
    if (DrawState == kMazeSetup) {
        setUp(style);
    } else if (DrawState == kMazeTemplates) {
        beginMazePicture(style);
    } else if (DrawState < kMazeReady) {
        paintMazeSlice(style);
    }
}

void sayHow(MazeStyle style) {
    if (Solved != kMazeNo) {
        say("");
    } else if (Won != kMazeNo) {
        say("Congratulations!");
    } else if (style == MazeStyle::Hexagonal) {
        say("Use Home, Up Arrow, PgUp, End, Down Arrow, and PgDn to solve.");
    } else {
        say("Use the arrow keys to solve.");
    }
}

void finishPicture(MazeStyle style) {
    TimerRunning = kMazeNo;
    drawUserTrack(style);
    if (Solved != kMazeNo) {
        drawSolution(style);
    }
    sayHow(style);
    enableMenus(true);
}

void solveMaze() {
    Solved = kMazeYes;
    say("");
    drawSolution(styleInUse());
}

void clearMaze() {
    Won = kMazeNo;
    Solved = kMazeNo;
    requestPicture();
    clearUserPage(styleInUse());
    requestPaint(frm3DMaze);
}

void close() {
    DrawState = kMazeClosing;
    frm3DMaze.Timer1.Enabled = false;
    releaseMaze();
}

// No question is asked; but an operation of the editor, in whose yield this is, returns first.
void leaveProgram() {
    if (isNested()) {
        putOff(button::kExit, endProcess);
    } else {
        endProcess();
    }
}

}  // namespace

std::string clockText(float seconds) {
    constexpr int kDigits = 7;
    const std::string digits = roundedText(seconds, kDigits);
    return seconds < 0 ? digits : " " + digits;
}

void frm3DMaze_Load(EventArgs& /*args*/) {
    for (std::int16_t* flag : {&PaintRequested, &NewMazeRequested, &TimerRunning, &Minimized,
                               &Solved, &Won, &WallWalkArmed, &ShowedSolutionByKey}) {
        *flag = kMazeNo;
    }
    DrawState = kMazeSetup;
    frm3DMaze.mnuStyleItem(0).Checked = false;
    frm3DMaze.mnuStyleItem(1).Checked = true;
    SetupPalette();
}

void frm3DMaze_Unload(EventArgs& /*args*/) {
    close();
}

void frm3DMaze_Resize(EventArgs& /*args*/) {
    resized();
}

void frm3DMaze_Paint(EventArgs& /*args*/) {
    if (isTooSmall()) {
        return;
    }
    enableMenus(false);
    requestPicture();
    if (TimerRunning == kMazeNo) {
        TimerRunning = kMazeYes;
        frm3DMaze.Timer1.Enabled = true;
    }
}

void VScroll1_Change(EventArgs& args) {
    readTilt();
    requestPicture();
    if (TimerRunning == kMazeNo) {
        frm3DMaze_Paint(args);
    }
}

void VScroll1_Scroll(EventArgs& /*args*/) {
    if (TimerRunning != kMazeNo) {
        readTilt();
        requestPicture();
    }
}

void frm3DMaze_Timer(EventArgs& /*args*/) {
    frm3DMaze.Timer1.Enabled = false;
    const MazeStyle style = styleInUse();
    if (!isTooSmall()) {
        paintSlice(style);
    }
    yieldToEvents();
    if (DrawState == kMazeReady && TimerRunning != kMazeNo) {
        finishPicture(style);
    } else if (DrawState < kMazeReady && !isTooSmall()) {
        frm3DMaze.Timer1.Enabled = true;
    }
}

void mnuActionItem_Click(EventArgs& args) {
    switch (args.Index) {
        case kNewItem:
            Solved = kMazeNo;
            resized();
            break;
        case kSolveItem:
            solveMaze();
            break;
        case kClearItem:
            clearMaze();
            break;
        case kExitItem:
            close();
            leaveProgram();
            break;
        default:
            break;
    }
}

void mnuStyleItem_Click(EventArgs& args) {
    if (frm3DMaze.mnuStyleItem(args.Index).Checked) {
        return;
    }
    for (int i = 0; i < 2; ++i) {
        frm3DMaze.mnuStyleItem(i).Checked = i == args.Index;
    }
    Solved = kMazeNo;
    resized();
}

void mnuHelpItem_Click(EventArgs& /*args*/) {
    services().dialogs->message(kAboutText, kOkBox, kDefaultTitle);
}

}  // namespace ombrelia::maze
