#include <string>
#include <vector>

#include "core/button_numbers.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/progress.h"
#include "core/windows/form1.h"
#include "core/windows/small_windows.h"
#include "desk/startup.h"
#include "editor_fixture.h"
#include "pixel_at.h"
#include "platform/dispatch.h"
#include "platform/key_codes.h"
#include "platform/pointer.h"
#include "platform/window_life.h"
#include "register/reset_process.h"

namespace ombrelia {

namespace {

class Startup : public ProcessTest {
  protected:
    using Log = std::vector<std::string>;

    static void choose(int button) { deliver(SizeSelect.NTool(button), Event::Click); }

    void startWith(int button) {
        runHandler(startEditor);
        deliver(frmSplash, Event::Click);
        choose(button);
    }

    // A new process on the same settings.
    static void restart() { resetProcess(); }
};

TEST_F(Startup, the_splash_gives_way_to_the_size_dialog_by_itself) {
    runHandler(startEditor);
    EXPECT_EQ(AppName, "Ombrelia Terrain Editor");
    EXPECT_EQ(frmSplash.Timer1.Interval, 7000);
    EXPECT_TRUE(SizeSelect.Loaded);
    EXPECT_TRUE(HelpFrm.Loaded);
    EXPECT_TRUE(Form3.Loaded);
    EXPECT_FALSE(SizeSelect.Visible);
    deliver(frmSplash.Timer1, Event::Timer);
    EXPECT_EQ(platform.Calls, (Log{"show frmSplash", "unload frmSplash", "show SizeSelect"}));
}

TEST_F(Startup, the_bar_of_the_waiting_window_grows_and_begins_anew) {
    startWith(button::kSizeMiniature);
    EXPECT_GT(Form3.Bar.Width, Form3.Groove.Width / 2);
    EXPECT_LT(Form3.Bar.Width, Form3.Groove.Width);
    loadWindow(Form3);
    EXPECT_EQ(Form3.Bar.Width, 0);
}

TEST_F(Startup, escape_leaves_the_about_box_but_not_the_splash) {
    runHandler(startEditor);
    keyInput(frmSplash, key::kEscape);
    EXPECT_TRUE(frmSplash.Loaded);
    EXPECT_FALSE(SizeSelect.Visible);
    deliver(frmSplash, Event::Click);
    choose(80);
    showWindow(frmSplash);
    keyInput(frmSplash, key::kReturn);
    EXPECT_TRUE(frmSplash.Loaded);
    keyInput(frmSplash, key::kEscape);
    EXPECT_FALSE(frmSplash.Loaded);
    EXPECT_FALSE(SizeSelect.Visible);
    EXPECT_TRUE(Form1.Visible);
}

TEST_F(Startup, each_button_of_the_size_dialog_goes_out_behind_the_pointer) {
    runHandler(startEditor);
    deliver(frmSplash, Event::Click);
    for (int i = 80; i <= 85; ++i) {
        deliverMouse(SizeSelect.NTool(i), Event::MouseMove, MouseButton::None, 2, 2);
        EXPECT_EQ(OptionStates(i).State, 1) << i;
        deliverMouse(SizeSelect.Picture1, Event::MouseMove, MouseButton::None, 2, 2);
        EXPECT_EQ(OptionStates(i).State, 0) << i;
    }
}

TEST_F(Startup, a_failure_before_the_editor_is_open_repairs_nothing) {
    runHandler(startEditor);
    ProgressState = 1;
    StopFlag = 1;
    repairAfterFailure();
    EXPECT_EQ(ProgressState, 1);
    EXPECT_EQ(StopFlag, 1);
    startWith(80);
    ProgressState = 1;
    repairAfterFailure();
    EXPECT_EQ(ProgressState, 2);
    EXPECT_EQ(StopFlag, 0);
}

TEST_F(Startup, a_map_is_worth_a_question_once_a_point_of_it_has_changed) {
    runHandler(startEditor);
    EXPECT_FALSE(hasDrawnMap());
    startWith(80);
    EXPECT_FALSE(hasDrawnMap());
    HeightMap(MapSize - 1, MapSize - 1) = static_cast<std::int16_t>(BaseHeight + 1);
    EXPECT_TRUE(hasDrawnMap());
}

TEST_F(Startup, a_choice_opens_the_editor) {
    startWith(80);
    EXPECT_EQ(platform.Calls, (Log{"show frmSplash", "unload frmSplash", "show SizeSelect",
                                   "show Form3", "show HelpFrm", "show Form1", "show Form1",
                                   "show Form1", "unload Form3", "unload SizeSelect"}));
    EXPECT_TRUE(Form1.Visible);
    EXPECT_EQ(SplashMode, 1);
    EXPECT_EQ(DrawHeight, 40);
    EXPECT_EQ(Form1.Combo1.ListIndex, 0);
    EXPECT_EQ(Form1.Combo1.Caption, "Current Colors");
    EXPECT_EQ(SuppressComboClick, 0);
    EXPECT_EQ(TitleInactiveColor, rgb(70, 70, 255));
}

TEST_F(Startup, each_size_has_its_title) {
    const struct {
        int button, size;
        const char* title;
    } rows[] = {{80, 65, "Ombrelia Terrain Editor - Miniature Map"},
                {81, 129, "Ombrelia Terrain Editor - Small Map"},
                {82, 193, "Ombrelia Terrain Editor - Medium Map"},
                {83, 257, "Ombrelia Terrain Editor - Large Map"}};
    for (const auto& row : rows) {
        restart();
        startWith(row.button);
        EXPECT_EQ(MapSize, row.size);
        EXPECT_EQ(Form1.Label11.Caption, row.title);
        EXPECT_EQ(Form1.Caption, "Ombrelia Terrain Editor");
        EXPECT_EQ(ImportAtStart, 0);
    }
}

TEST_F(Startup, the_back_buffer_begins_in_the_colour_of_the_ground) {
    startWith(83);
    const Surface& buffer = Form1.Mapview2.Canvas;
    EXPECT_GT(pixelAt(buffer, 0, 0), 0);
    EXPECT_EQ(pixelAt(buffer, 256, 256), pixelAt(buffer, 0, 0));
    EXPECT_EQ(pixelAt(Form1.MapView.Canvas, 256, 256), pixelAt(buffer, 0, 0));
    EXPECT_EQ(static_cast<std::int32_t>(Form1.PickedColor.BackColor), pixelAt(buffer, 0, 0));
}

TEST_F(Startup, closing_the_size_dialog_ends_the_process) {
    runHandler(startEditor);
    EXPECT_THROW(choose(85), ProcessEnd);
    EXPECT_TRUE(platform.HasEnded);
    EXPECT_TRUE(platform.Settings.empty());
}

TEST_F(Startup, the_size_dialog_closed_from_outside_ends_the_process_too) {
    runHandler(startEditor);
    deliver(frmSplash, Event::Click);
    EXPECT_THROW(deliverClose(SizeSelect), ProcessEnd);
    EXPECT_TRUE(platform.HasEnded);
}

TEST_F(Startup, the_splash_closed_from_outside_gives_way_like_at_a_click) {
    runHandler(startEditor);
    deliverClose(frmSplash);
    EXPECT_FALSE(frmSplash.Loaded);
    EXPECT_TRUE(SizeSelect.Visible);
    EXPECT_FALSE(platform.HasEnded);
}

TEST_F(Startup, the_import_choice_is_remembered) {
    runHandler(startEditor);
    EXPECT_EQ(ImportAtStart, 0);
    deliver(frmSplash, Event::Click);
    choose(84);
    EXPECT_EQ(MapSize, 257);
}

TEST_F(Startup, the_joke_of_the_size_dialog) {
    runHandler(startEditor);
    const auto moveOver = [](Control& control) {
        deliverMouse(control, Event::MouseMove, MouseButton::None, 1, 1);
    };
    const std::string& text = SizeSelect.Label2.Caption;
    EXPECT_EQ(text, "Or, you can import a map from a file:");
    moveOver(SizeSelect.Label2);
    EXPECT_EQ(text, "Or, you kan import a map from a file:");
    moveOver(SizeSelect.NTool(81));
    EXPECT_EQ(text, "Or, you can import a map from a file:");
    moveOver(SizeSelect.Label2);
    moveOver(SizeSelect.Picture1);
    EXPECT_EQ(text, "Or, you can import a map from a file:");
    EXPECT_EQ(EggArmed, 0);
    deliverMouse(SizeSelect.Label2, Event::DblClick, MouseButton::Left, 1, 1);
    EXPECT_EQ(text, "Or, u kan import ah map phrom ah phile:");
    EXPECT_EQ(EggArmed, 1);
}

TEST_F(Startup, the_size_dialog_stands_on_the_ground_of_the_hint_frame) {
    runHandler(startEditor);
    EXPECT_NE(HelpFrm.Face.picture, Picture::None);
    EXPECT_EQ(SizeSelect.Picture1.Face, HelpFrm.Face);
}

TEST_F(Startup, four_lines_frame_the_size_dialog) {
    runHandler(startEditor);
    const double right = SizeSelect.Width - 1;
    const double bottom = SizeSelect.Height - 1;
    EXPECT_EQ(SizeSelect.Edge(0).Y2, bottom);
    EXPECT_EQ(SizeSelect.Edge(1).X2, right);
    EXPECT_EQ(SizeSelect.Edge(2).X1, right);
    EXPECT_EQ(SizeSelect.Edge(3).Y1, bottom);
}

TEST_F(Startup, every_start_rewrites_the_default_set) {
    startWith(80);
    platform.Settings["ColorPalDefault"]["111"] = "99";
    restart();
    startWith(80);
    EXPECT_EQ(platform.Settings["ColorPalDefault"]["111"], "0");
}

TEST_F(Startup, stored_preferences_come_back) {
    startWith(80);
    OptionStates(66).State = 0;
    ColorRange(1, 1, 1) = 77;
    runHandler(ExitEditor);
    restart();
    startWith(80);
    EXPECT_EQ(OptionStates(66).State, 0);
    EXPECT_EQ(ColorRange(1, 1, 1), 77);
}

TEST_F(Startup, lost_colours_count_as_a_first_run) {
    for (const std::string probe : {"900", "missing"}) {
        platform.Settings.clear();
        restart();
        startWith(80);
        platform.Settings["Settings"]["OptCheckAuto"] = "0";
        platform.Settings["Settings"]["OptCheck10to1"] = "0";
        if (probe == "missing") {
            platform.Settings["ColorPalCurrent Colors"].erase("111");
        } else {
            platform.Settings["ColorPalCurrent Colors"]["111"] = probe;
        }
        restart();
        startWith(80);
        EXPECT_EQ(OptionStates(66).State, 2) << probe;
        EXPECT_EQ(platform.Settings["Settings"]["OptCheckAuto"], "1") << probe;
        EXPECT_EQ(platform.Settings["Settings"]["OptCheck10to1"], "1") << probe;
        EXPECT_EQ(platform.Settings["ColorPalCurrent Colors"]["111"], "0") << probe;
    }
}

TEST_F(Startup, a_store_that_was_never_saved_is_a_first_run) {
    startWith(80);
    platform.Settings["Settings"]["SavedBefore"] = "0";
    platform.Settings["Settings"]["OptCheckAuto"] = "0";
    restart();
    startWith(80);
    EXPECT_EQ(OptionStates(66).State, 2);
    EXPECT_EQ(platform.Settings["Settings"]["SavedBefore"], "1");
}

TEST_F(Startup, the_hint_frame_is_shown_only_if_its_box_is_on) {
    startWith(80);
    platform.Settings["Settings"]["OptHelpBox"] = "0";
    restart();
    startWith(80);
    EXPECT_FALSE(HelpFrm.Visible);
}

TEST_F(Startup, new_map_asks_and_stays_on_no) {
    startWith(80);
    HeightMap(1, 1) = 99;
    platform.Calls.clear();
    runHandler(StartNewMap);
    EXPECT_EQ(platform.Calls,
              Log{"message 276 Start New Map? | Are you sure you want to start a new map?"});
    EXPECT_TRUE(Form1.Loaded);
    EXPECT_EQ(HeightMap(1, 1), 99);
}

TEST_F(Startup, new_map_returns_to_the_size_dialog_and_keeps_what_is_not_set) {
    startWith(80);
    HeightMap(1, 1) = 99;
    MapZoom = -30;
    ViewYaw = 5;
    OptionStates(66).State = 0;
    platform.Calls.clear();
    platform.MessageAnswers = {kAnswerYes};
    runHandler(StartNewMap);
    EXPECT_EQ(platform.Calls,
              (Log{"message 276 Start New Map? | Are you sure you want to start a new map?",
                   "show SizeSelect", "unload Form1"}));
    EXPECT_EQ(NewMapPending, 0);
    EXPECT_FALSE(Form1.Loaded);
    EXPECT_EQ(platform.Settings["Settings"]["OptCheckAuto"], "0");
    choose(81);
    EXPECT_EQ(MapSize, 129);
    EXPECT_EQ(HeightMap(1, 1), 40);
    EXPECT_EQ(ViewYaw, 180);
    EXPECT_EQ(MapZoom, -30);
    EXPECT_EQ(OptionStates(66).State, 0);
}

TEST_F(Startup, no_at_the_exit_still_leaves_the_preferences_saved) {
    startWith(80);
    OptionStates(66).State = 0;
    runHandler(ExitEditor);
    EXPECT_FALSE(platform.HasEnded);
    EXPECT_EQ(platform.Settings["Settings"]["OptCheckAuto"], "0");
}

TEST_F(Startup, yes_at_the_exit_ends_the_process) {
    startWith(80);
    platform.MessageAnswers = {kAnswerYes};
    EXPECT_THROW(runHandler(ExitEditor), ProcessEnd);
    EXPECT_EQ(platform.Calls.back(), "end");
}

TEST_F(Startup, an_editor_closed_from_outside_stays_as_it_is_on_no) {
    startWith(80);
    HeightMap(3, 4) = 77;
    deliverClose(Form1);
    EXPECT_TRUE(Form1.Loaded);
    EXPECT_TRUE(Form1.Visible);
    EXPECT_EQ(HeightMap(3, 4), 77);
    EXPECT_FALSE(platform.HasEnded);
    EXPECT_EQ(platform.Calls.back().substr(0, 11), "message 276");
}

TEST_F(Startup, an_editor_closed_from_outside_ends_on_yes) {
    startWith(80);
    platform.MessageAnswers = {kAnswerYes};
    EXPECT_THROW(deliverClose(Form1), ProcessEnd);
    EXPECT_EQ(platform.Calls.back(), "end");
}

TEST_F(Startup, an_unloaded_editor_goes_away_even_on_no) {
    startWith(80);
    runHandler([] { unloadWindow(Form1); });
    EXPECT_FALSE(Form1.Loaded);
    EXPECT_FALSE(platform.HasEnded);
    EXPECT_EQ(platform.Calls.back(), "unload Form1");
}

TEST_F(Startup, a_failure_is_followed_by_a_desk_in_order) {
    startWith(80);
    SetToolsEnabled(false);
    LongRun::announce("Digging", 5);
    showProgress();
    StopFlag = 2;
    MouseState = 5;
    Form1.Line1.Visible = true;
    repairAfterFailure();
    EXPECT_EQ(StopFlag, 0);
    EXPECT_EQ(ProgressState, 2);
    EXPECT_EQ(MouseState, 0);
    EXPECT_TRUE(Form1.MapView.Enabled);
    EXPECT_FALSE(Form1.Line1.Visible);
    EXPECT_TRUE(Form1.Picture1.Visible);
    EXPECT_FALSE(Form1.ProgressFrame.Visible);
}

}  // namespace

}  // namespace ombrelia
