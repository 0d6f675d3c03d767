#include "desk/startup.h"

#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/color_display.h"
#include "core/color_ramp.h"
#include "core/color_sets.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/progress.h"
#include "core/questions.h"
#include "core/windows/form1.h"
#include "core/windows/layout.h"
#include "core/windows/small_windows.h"
#include "desk/init_editor.h"
#include "desk/preferences.h"
#include "desk/run_command.h"
#include "panels/color_editor.h"
#include "panels/cursors_sounds.h"
#include "platform/dispatch.h"
#include "platform/key_codes.h"
#include "platform/services.h"
#include "platform/window_life.h"
#include "views/map2d/map_transform.h"

namespace ombrelia {

namespace {

constexpr const char* kProgramName = "Ombrelia Terrain Editor";
constexpr const char* kColorProbeKey = "111";  // of the working colours; kMissingProbe: not stored
constexpr double kMissingProbe = 900;

struct SizeChoice {
    int button;
    std::int16_t mapSize;
};
constexpr SizeChoice kSizes[] = {
    {button::kSizeMiniature, kMiniatureSize},
    {button::kSizeSmall, kSmallSize},
    {button::kSizeMedium, kMediumSize},
    {button::kSizeLarge, kLargeSize},
};

bool isSavedBefore() {
    SettingsStore& store = *services().settings;
    const double probe = storedNumber(
        store.read(std::string(kColorSetPrefix) + kCurrentColors, kColorProbeKey, "900"));
    return store.read(kSettingsSection, kSavedBeforeKey, "0") == "1" && probe != kMissingProbe;
}

void fillBackBuffer() {
    std::int16_t height = BaseHeight;
    Form1.Mapview2.Canvas.box(0, 0, kViewSide, kViewSide, HeightToColor(height));
}

void showColors() {
    PaintPicker();
    PaintPrefPicker();
    showWindow(Form1);
    UpdatePickedColor();
    ShowColorSet();
    ListColorSets();
}

void layOutEdges() {
    const double right = SizeSelect.Width - 1;
    const double bottom = SizeSelect.Height - 1;
    const double ends[][4] = {
        {0, 0, 0, bottom}, {0, 0, right, 0}, {right, 0, right, bottom}, {0, bottom, right, bottom}};
    for (int i = 0; i < 4; ++i) {
        Line& edge = SizeSelect.Edge(i);
        edge.X1 = ends[i][0];
        edge.Y1 = ends[i][1];
        edge.X2 = ends[i][2];
        edge.Y2 = ends[i][3];
    }
}

// The button of an event that may have come through its text.
void setSizeButton(int number, int state) {
    if (OptionStates(number).State != state) {
        OptionStates(number).State = static_cast<std::int16_t>(state);
        DrawSizeButton(number);
    }
}

void clearSizeHover(int except) {
    for (int i = button::kSizeMiniature; i <= button::kSizeClose; ++i) {
        if (i != except && OptionStates(i).State == kHover) {
            setSizeButton(i, kUp);
        }
    }
}

// The choice Import is used up, however the import ends.
struct ImportChoice {
    ImportChoice() = default;
    ~ImportChoice() { ImportAtStart = 0; }
    ImportChoice(const ImportChoice&) = delete;
    ImportChoice& operator=(const ImportChoice&) = delete;
};

// Shares of a start at which its bar moves, about as the time goes.
constexpr double kStartBegun = 0.2;
constexpr double kTablesFilled = 0.5;
constexpr double kMapPainted = 0.9;

void openEditor() {
    showWindow(Form3);
    showLoaded(kStartBegun);
    showWindow(Form1);
    unloadWindow(Form3);
    unloadWindow(SizeSelect);
}

}  // namespace

void startEditor() {
    showWindow(frmSplash);
}

void frmSplash_Load(EventArgs& /*args*/) {
    AppName = kProgramName;
    loadWindow(SizeSelect);
}

void frmSplash_Timer(EventArgs& /*args*/) {
    if (SplashMode == 1) {
        return;
    }
    unloadWindow(frmSplash);
    if (SplashMode == 0) {
        showWindow(SizeSelect);
    }
}

void frmSplash_Click(EventArgs& args) {
    frmSplash_Timer(args);
    if (SplashMode == 1) {
        unloadWindow(frmSplash);
    }
}

// Escape leaves the About box; the splash of the start waits for its time or a click.
void frmSplash_KeyDown(EventArgs& args) {
    if (args.KeyCode == key::kEscape && SplashMode == 1) {
        frmSplash_Click(args);
    }
}

void SizeSelect_Load(EventArgs& /*args*/) {
    loadWindow(HelpFrm);
    loadWindow(Form3);
    SizeSelect.Picture1.Face = HelpFrm.Face;
    for (int i = button::kSizeMiniature; i <= button::kSizeClose; ++i) {
        ButtonRecord& record = OptionStates(i);
        record.Kind = i == button::kSizeClose ? kind::kClose : kind::kStand;
        record.Latching = 0;
        record.State = kUp;
        DrawSizeButton(i);
    }
    layOutEdges();
}

// Closed from outside, the dialog ends the process as its own close button does.
void SizeSelect_Close(EventArgs& /*args*/) {
    endProcess();
}

void SizeSelect_Choose(EventArgs& args) {
    const int number = args.Index;
    if (number == button::kSizeClose) {
        endProcess();
    }
    if (number == button::kSizeImport) {
        MapSize = kLargeSize;
        ImportAtStart = 1;
    }
    for (const SizeChoice& row : kSizes) {
        if (row.button == number) {
            MapSize = row.mapSize;
        }
    }
    openEditor();
}

void SizeSelect_ButtonDown(EventArgs& args) {
    if (args.Button == MouseButton::Left) {
        setSizeButton(args.Index, kOn);
    }
}

void SizeSelect_ButtonMove(EventArgs& args) {
    SizeSelect.Label2.Caption = kImportLine;
    clearSizeHover(args.Index);
    if (args.Button != MouseButton::Left && OptionStates(args.Index).State == kUp) {
        setSizeButton(args.Index, kHover);
    }
}

void SizeSelect_ButtonUp(EventArgs& args) {
    setSizeButton(args.Index, kHover);
}

void SizeSelect_GroundMove(EventArgs& /*args*/) {
    SizeSelect.Label2.Caption = kImportLine;
    clearSizeHover(-1);
}

void SizeSelect_TitleMove(EventArgs& /*args*/) {
    clearSizeHover(-1);
}

void SizeSelect_JokeMove(EventArgs& /*args*/) {
    SizeSelect.Label2.Caption = kImportLineHovered;
}

void SizeSelect_JokeDblClick(EventArgs& /*args*/) {
    SizeSelect.Label2.Caption = kImportLineArmed;
    EggArmed = 1;
}

void Form1_Load(EventArgs& /*args*/) {
    InitEditor();
    showLoaded(kTablesFilled);
    TitleActiveColor = Form1.Label11.ForeColor;
    TitleInactiveColor = rgb(70, 70, 255);
    Form1.Label11.Caption = AppName + sizeSuffix();
    SaveColorSet("Default");
    if (isSavedBefore()) {
        LoadPreferences();
    } else {
        ResetPreferences();
    }
    if (isOn(button::kShowHelpBox)) {
        showWindow(HelpFrm);
    }
    fillBackBuffer();
    ApplyMapTransform();
    showLoaded(kMapPainted);
    SplashMode = 1;
    DrawHeight = BaseHeight;
    showWindow(Form1);
    refreshControl(Form1);
    showColors();
    SuppressComboClick = 1;
    selectFirstColorSet();
    if (ImportAtStart == 1) {
        const ImportChoice choice;
        ImportCommand();
    }
}

void Form1_Unload(EventArgs& /*args*/) {
    ExitEditor();
}

// Closed from outside: as its own close button does, so that a No leaves everything as it is.
void Form1_Close(EventArgs& /*args*/) {
    int close = button::kClose;
    RunCommand(close);
}

void StartNewMap() {
    const int answer = services().dialogs->message(messages::kNewMapQuestion,
                                                   kYesNoStopSecondDefault, messages::kNewMapTitle);
    if (answer != kAnswerYes) {
        return;
    }
    showWindow(SizeSelect);
    NewMapPending = 1;
    unloadWindow(Form1);
}

void ExitEditor() {
    SavePreferences();
    ResetCursorHook(kCursorOutside);
    if (NewMapPending == 1) {
        NewMapPending = 0;
        return;
    }
    const int answer = services().dialogs->message(messages::kExitQuestion, kYesNoStopSecondDefault,
                                                   messages::kExitTitle);
    if (answer == kAnswerYes) {
        endProcess();
    }
}

void repairAfterFailure() {
    if (!Form1.Loaded) {
        return;
    }
    StopFlag = 0;
    if (ProgressState == 1) {
        ProgressState = 2;
    }
    MouseState = kGestureNone;
    SetToolsEnabled(true);
    Form1.Line1.Visible = false;
    showProgress();
}

bool hasDrawnMap() {
    for (int y = 0; Form1.Loaded && y < MapSize; ++y) {
        for (int x = 0; x < MapSize; ++x) {
            if (HeightMap(x, y) != BaseHeight) {
                return true;
            }
        }
    }
    return false;
}

void Title_MouseDown(EventArgs& args) {
    if (args.Button == MouseButton::Left) {
        services().desktop->beginWindowMove(*args.Source->Owner);
    }
}

}  // namespace ombrelia
