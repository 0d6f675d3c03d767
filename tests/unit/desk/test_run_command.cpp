#include <string>
#include <vector>

#include "core/editor_state.h"
#include "core/objects.h"
#include "core/progress.h"
#include "core/windows/form1.h"
#include "core/windows/small_windows.h"
#include "desk/run_command.h"
#include "editor_fixture.h"
#include "pixel_at.h"
#include "platform/dispatch.h"

namespace ombrelia {

namespace {

class RunCommandTest : public EditorTest {
  protected:
    using Log = std::vector<std::string>;

    static int run(int i) {
        runHandler([&i] { RunCommand(i); });
        return i;
    }
    static int state(int i) { return OptionStates(i).State; }
};

TEST_F(RunCommandTest, every_command_clears_the_stop_flag_first) {
    for (const int i : {0, 12, 16, 39, 45, 77, 116}) {
        StopFlag = 1;
        run(i);
        EXPECT_EQ(StopFlag, 0) << i;
    }
    run(22);
    EXPECT_EQ(StopFlag, 1);
}

TEST_F(RunCommandTest, stopping_hides_the_marker) {
    Form1.Line1.Visible = true;
    run(122);
    EXPECT_EQ(StopFlag, 1);
    EXPECT_FALSE(Form1.Line1.Visible);
}

TEST_F(RunCommandTest, the_number_loses_its_hundred_and_the_wavy_tool_becomes_the_canyon) {
    EXPECT_EQ(run(108), 8);
    EXPECT_EQ(run(50), 9);
    EXPECT_EQ(run(150), 9);
    EXPECT_EQ(run(16), 16);
}

TEST_F(RunCommandTest, unknown_numbers_do_nothing) {
    for (const int i : {28, 39, 43, 44, 60, 66, 80, 99}) {
        run(i);
        EXPECT_TRUE(platform.Calls.empty()) << i;
    }
    EXPECT_EQ(SliderValues(0).Value, 0);
}

TEST_F(RunCommandTest, entering_the_perspective_clears_the_drawing_tool_once) {
    Form1.MapView.Canvas.setPixel(5, 5, rgb(1, 2, 3));
    run(6);
    EXPECT_EQ(View3DActive, 1);
    EXPECT_EQ(state(7), 0);
    EXPECT_EQ(ReturnTool, 7);
    EXPECT_EQ(state(6), 2);
    EXPECT_EQ(state(5), 0);
    EXPECT_EQ(GroupCurrent(2), 6);
    OptionStates(7).State = 2;
    run(6);
    EXPECT_EQ(state(7), 2);
    EXPECT_EQ(View3DActive, 1);
}

TEST_F(RunCommandTest, the_view_from_above_brings_the_tool_back) {
    run(6);
    run(5);
    EXPECT_EQ(View3DActive, 0);
    EXPECT_EQ(state(7), 2);
    EXPECT_EQ(GroupCurrent(1), 7);
    EXPECT_EQ(state(5), 2);
    EXPECT_EQ(state(6), 0);
    EXPECT_TRUE(Form1.TwoFrame.Visible);
}

TEST_F(RunCommandTest, a_drawing_tool_leaves_the_perspective) {
    run(6);
    run(0);
    EXPECT_EQ(View3DActive, 0);
    EXPECT_EQ(state(5), 2);
    EXPECT_EQ(state(6), 0);
    EXPECT_EQ(GroupCurrent(2), 5);
    EXPECT_EQ(SliderValues(0).Value, 0);
}

TEST_F(RunCommandTest, leaving_the_perspective_by_a_tool_shows_the_map_at_once) {
    run(6);
    Form1.MapView.Canvas.clear();
    run(0);
    EXPECT_NE(pixelAt(Form1.MapView.Canvas, 128, 128), 0);
    EXPECT_EQ(pixelAt(Form1.MapView.Canvas, 128, 128), pixelAt(Form1.Mapview2.Canvas, 32, 32));
    Form1.MapView.Canvas.clear();
    run(1);  // not from the perspective any more: the view is left alone
    EXPECT_EQ(pixelAt(Form1.MapView.Canvas, 128, 128), 0);
}

TEST_F(RunCommandTest, updating_paints_what_changed) {
    HeightMap(3, 3) = 200;
    run(12);
    EXPECT_EQ(ShadowMap(3, 3), 200);
}

TEST_F(RunCommandTest, new_colours_repaint_the_whole_map) {
    ColorRange(3, 1, 1) = 0;
    const auto before = pixelAt(Form1.Mapview2.Canvas, 10, 10);
    run(24);
    EXPECT_NE(pixelAt(Form1.Mapview2.Canvas, 10, 10), before);
    EXPECT_EQ(Form1.PickedColor.BackColor,
              static_cast<Color>(pixelAt(Form1.Mapview2.Canvas, 10, 10)));
    EXPECT_EQ(pixelAt(Form1.Picker.Canvas, 0, 255 - 40), pixelAt(Form1.Mapview2.Canvas, 10, 10));
    EXPECT_EQ(ShadowMap(65, 65), 40);
}

TEST_F(RunCommandTest, the_hint_frame_follows_its_box) {
    OptionStates(73).State = 2;
    run(73);
    EXPECT_TRUE(HelpFrm.Visible);
    OptionStates(73).State = 1;
    run(73);
    EXPECT_FALSE(HelpFrm.Visible);
}

TEST_F(RunCommandTest, about_shows_the_splash_and_never_the_size_dialog) {
    run(21);
    EXPECT_TRUE(frmSplash.Visible);
    deliver(frmSplash.Timer1, Event::Timer);
    EXPECT_TRUE(frmSplash.Visible);
    deliver(frmSplash, Event::Click);
    EXPECT_FALSE(frmSplash.Visible);
    EXPECT_FALSE(SizeSelect.Visible);
}

TEST_F(RunCommandTest, minimizing_and_saving_ask_the_platform) {
    run(25);
    run(14);
    EXPECT_EQ(platform.Calls,
              (Log{"minimize Form1",
                   "save Save Terrain | Terrain Files (*.bmp)|*.bmp|All Files (*.*)|*.*"}));
    EXPECT_TRUE(Form1.Minimized);
}

TEST_F(RunCommandTest, exit_and_close_ask_first_and_stay_on_no) {
    for (const int i : {11, 17}) {
        platform.Calls.clear();
        run(i);
        EXPECT_EQ(platform.Calls, Log{"message 276 Exit? | Are you sure you want to Exit?"});
        EXPECT_TRUE(Form1.Loaded);
        EXPECT_FALSE(platform.HasEnded);
    }
}

TEST_F(RunCommandTest, what_would_pull_the_floor_away_waits_for_the_run) {
    for (const int i : {11, 12, 15, 17, 20, 24}) {
        openEditor(65);
        platform.RandomState = 1;
        int yields = 0;
        std::size_t callsInside = 1;
        platform.OnYield = [&] {
            if (++yields == 5) {
                run(i);
                EXPECT_EQ(StopFlag, 1) << i;
                callsInside = platform.Calls.size();
            }
        };
        run(12);
        platform.OnYield = nullptr;
        EXPECT_GT(yields, 4);
        EXPECT_EQ(callsInside, 0U) << i;
        const bool isQuestion = i == 11 || i == 15 || i == 17;
        EXPECT_EQ(platform.Calls.size(), isQuestion ? 1U : 0U) << i;
        if (!isQuestion) {
            EXPECT_GT(yields, 5 + 60) << i;  // it ran after all, from its start
        }
    }
}

TEST_F(RunCommandTest, saving_and_scrolling_act_inside_a_run) {
    int yields = 0;
    platform.OnYield = [&] {
        if (++yields == 5) {
            run(14);
            run(18);
            EXPECT_EQ(platform.Calls.size(), 1U);
            EXPECT_EQ(SliderValues(0).Value, 11 * 128);
        }
    };
    run(12);
    EXPECT_EQ(yields, 66);
    EXPECT_EQ(ProgressState, 2);
}

}  // namespace

}  // namespace ombrelia
