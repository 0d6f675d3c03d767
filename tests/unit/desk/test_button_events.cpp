#include "core/button_numbers.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/progress.h"
#include "core/windows/form1.h"
#include "desk/button_events.h"
#include "editor_fixture.h"
#include "panels/option_frames.h"
#include "panels/sliders.h"
#include "platform/dispatch.h"

namespace ombrelia {

namespace {

constexpr std::int16_t kNotRun = 99;  // a stop flag that every command clears

class ButtonEvents : public EditorTest {
  protected:
    static void press(Control& control, MouseButton button = MouseButton::Left, double x = 3,
                      double y = 3) {
        deliverMouse(control, Event::MouseDown, button, x, y);
    }
    static void move(Control& control, MouseButton button = MouseButton::None, double x = 3,
                     double y = 3) {
        deliverMouse(control, Event::MouseMove, button, x, y);
    }
    static void release(Control& control, MouseButton button = MouseButton::Left, double x = 3,
                        double y = 3) {
        deliverMouse(control, Event::MouseUp, button, x, y);
    }
    static int state(int i) { return OptionStates(i).State; }

    // Presses and releases at a place of the window; whether a command ran.
    static bool firesAt(Control& hit, double x, double y) {
        const auto deliverAt = [&](Event event) {
            const Point corner = cornerInWindow(hit);
            deliverMouse(hit, event, MouseButton::Left, x - corner.x, y - corner.y);
        };
        SetToolsEnabled(true);  // a run before may have left that to the timer
        StopFlag = kNotRun;
        deliverAt(Event::MouseDown);
        deliverAt(Event::MouseUp);
        const bool fired = StopFlag != kNotRun;
        StopFlag = 0;
        return fired;
    }
};

bool isInside(const Control& control, double x, double y) {
    const Point corner = cornerInWindow(control);
    return x >= corner.x && y >= corner.y && x < corner.x + control.Width &&
           y < corner.y + control.Height;
}

// What lies on the face of a push button; nullptr if nothing does.
Control* overlayOf(int i) {
    if (OptionStates(i).Kind == kind::kStand) {
        return &Form1.LTool(i);
    }
    return OptionStates(i).Kind == kind::kPicture ? &Form1.NTool(i + kOverlayOffset) : nullptr;
}

TEST_F(ButtonEvents, every_pixel_of_a_push_button_fires_it) {
    platform.RandomState = 1;
    platform.OnYield = [] { StopFlag = 1; };  // a long command ends at its first chance
    OptionStates(button::kAutoRefresh).State = kUp;
    SliderValues(14).Value = 1;
    for (int i = 11; i <= 27; ++i) {
        const Image& face = Form1.NTool(i);
        ScrollToFrame(0);
        Control* overlay = overlayOf(i);
        int missed = 0;
        for (int y = 0; y < face.Height; ++y) {
            for (int x = 0; x < face.Width; ++x) {
                const Point corner = cornerInWindow(face);
                const double px = corner.x + x + 0.5;
                const double py = corner.y + y + 0.5;
                const bool isOnOverlay = overlay != nullptr && isInside(*overlay, px, py);
                Control& hit = isOnOverlay ? *overlay : static_cast<Control&>(Form1.NTool(i));
                missed += firesAt(hit, px, py) ? 0 : 1;
            }
        }
        platform.Calls.clear();
        EXPECT_EQ(missed, 0) << i;
    }
}

TEST_F(ButtonEvents, a_push_button_released_off_its_face_does_nothing_and_stays_hovered) {
    Image& face = Form1.NTool(16);
    for (const double x : {-1.0, face.Width + 1}) {
        StopFlag = kNotRun;
        press(face);
        EXPECT_EQ(state(16), 2);
        release(face, MouseButton::Left, x, 3);
        EXPECT_EQ(StopFlag, kNotRun);
        EXPECT_EQ(state(16), 1);
    }
    press(face);
    release(face, MouseButton::Left, 3, face.Width);  // the width in both tests
    EXPECT_EQ(StopFlag, 0);
    StopFlag = kNotRun;
    press(face);
    release(face, MouseButton::Left, 3, face.Width + 0.5);
    EXPECT_EQ(StopFlag, kNotRun);
}

TEST_F(ButtonEvents, a_latching_tool_runs_wherever_it_is_released) {
    press(Form1.NTool(8));
    release(Form1.NTool(8), MouseButton::Left, -500, 900);
    EXPECT_EQ(state(8), 2);
    EXPECT_EQ(state(7), 0);
    EXPECT_EQ(GroupCurrent(1), 8);
    EXPECT_EQ(SliderValues(0).Value, 8 * 128);
}

TEST_F(ButtonEvents, the_current_tool_stays_and_shows_its_page_again) {
    press(Form1.NTool(8));
    release(Form1.NTool(8));
    ScrollToFrame(0);
    press(Form1.NTool(108));
    release(Form1.NTool(108));
    EXPECT_EQ(state(8), 2);
    EXPECT_EQ(SliderValues(0).Value, 8 * 128);
}

TEST_F(ButtonEvents, other_buttons_of_the_mouse_do_nothing) {
    for (const MouseButton other : {MouseButton::Right, MouseButton::Middle}) {
        StopFlag = kNotRun;
        press(Form1.NTool(8), other);
        release(Form1.NTool(8), other);
        EXPECT_EQ(state(8), 0);
        EXPECT_EQ(StopFlag, kNotRun);
    }
}

TEST_F(ButtonEvents, a_check_box_toggles) {
    press(Form1.NTool(67));
    EXPECT_EQ(state(67), 2);
    release(Form1.NTool(67));
    EXPECT_EQ(state(67), 2);
    press(Form1.LTool(67));
    EXPECT_EQ(OptionStates(67).SavedState, 2);
    release(Form1.LTool(67));
    EXPECT_EQ(state(67), 1);
    EXPECT_EQ(Form1.NTool(67).Face.face, 1);
    press(Form1.NTool(67));
    release(Form1.NTool(67));
    EXPECT_EQ(state(67), 2);
}

TEST_F(ButtonEvents, one_of_a_radio_group_is_on) {
    press(Form1.NTool(30));
    EXPECT_EQ(state(30), 2);
    EXPECT_EQ(state(33), 0);
    EXPECT_EQ(Form1.NTool(33).Face.face, 0);
    EXPECT_EQ(GroupCurrent(5), 30);
    release(Form1.NTool(30));
    press(Form1.NTool(30));
    release(Form1.NTool(30));
    EXPECT_EQ(state(30), 2);
}

TEST_F(ButtonEvents, the_pointer_lights_one_button_at_a_time) {
    move(Form1.NTool(16));
    EXPECT_EQ(state(16), 1);
    EXPECT_EQ(HoverTool, 16);
    move(Form1.NTool(100));
    EXPECT_EQ(state(16), 0);
    EXPECT_EQ(state(0), 1);
    EXPECT_EQ(HoverTool, 0);
    move(Form1.NTool(7));  // on: stays on
    EXPECT_EQ(state(0), 0);
    EXPECT_EQ(state(7), 2);
    clearHover();
    EXPECT_EQ(state(7), 2);
}

TEST_F(ButtonEvents, a_held_pointer_presses_push_buttons_alone) {
    move(Form1.NTool(16), MouseButton::Left);
    EXPECT_EQ(state(16), 2);
    move(Form1.NTool(16), MouseButton::Left);
    EXPECT_EQ(state(16), 2);
    move(Form1.NTool(16));
    EXPECT_EQ(state(16), 1);
    move(Form1.NTool(8), MouseButton::Left);
    EXPECT_EQ(state(8), 1);
}

TEST_F(ButtonEvents, the_overlay_flag_is_cleared_by_the_release) {
    press(Form1.LTool(16));
    release(Form1.LTool(16));
    EXPECT_EQ(OverlayHit, 0);
    EXPECT_EQ(SliderValues(0).Value, 12 * 128);
}

TEST_F(ButtonEvents, the_volcano_drops_the_suffix_of_the_title) {
    EXPECT_EQ(Form1.Label11.Caption, "Ombrelia Terrain Editor - Miniature Map");
    press(Form1.NTool(53));
    release(Form1.NTool(53));
    EXPECT_EQ(Form1.Label11.Caption, "Ombrelia Terrain Editor");
}

TEST_F(ButtonEvents, every_tool_can_be_used) {
    for (int i = 0; i <= 100; ++i) {
        EXPECT_TRUE(CanUseTool(i));
    }
}

}  // namespace

}  // namespace ombrelia
