#include "core/button_numbers.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "desk/navigation_gestures.h"
#include "editor_fixture.h"
#include "platform/dispatch.h"
#include "views/view_mode.h"

namespace ombrelia {

namespace {

class NavigationGestures : public EditorTest {
  protected:
    NavigationGestures() {
        SwitchViewMode(kMode3D);
        OptionStates(button::kColorPicker).State = kUp;
    }

    static void mouse(Event event, double x, double y) {
        deliverMouse(Form1.MapView, event, MouseButton::Left, x, y);
    }
};

TEST_F(NavigationGestures, a_double_click_goes_on_from_the_press_before_it) {
    OptionStates(button::kAdvanced3D).State = kOn;
    mouse(Event::MouseDown, 50, 60);
    mouse(Event::MouseUp, 52, 61);
    mouse(Event::DblClick, 53, 62);
    EXPECT_EQ(GroupCurrent(group::kMotion3D), button::kPan3D);
    EXPECT_EQ(MouseState, kGestureNavigate3D);
    EXPECT_EQ(StrokeX(1), 50);
    EXPECT_EQ(StrokeY(1), 60);
    mouse(Event::MouseMove, 53, 62);
    EXPECT_EQ(ViewPanX, 3);
    EXPECT_EQ(ViewPanY, 2);
}

TEST_F(NavigationGestures, a_double_click_with_the_pan_tool_fakes_no_press) {
    OptionStates(button::kAdvanced3D).State = kOn;
    OptionStates(button::kRotate3D).State = kUp;
    OptionStates(button::kPan3D).State = kOn;
    GroupCurrent(group::kMotion3D) = button::kPan3D;
    mouse(Event::DblClick, 50, 60);
    EXPECT_EQ(MouseState, kGestureNone);
    EXPECT_EQ(DoubleClickPending, 0);
    EXPECT_EQ(StrokeX(1), 0);
}

// Each takes the place where the one before left it, a whole pixel.
TEST_F(NavigationGestures, tools_that_are_on_together_act_one_after_the_other) {
    OptionStates(button::kPan3D).State = kOn;
    OptionStates(button::kZoom3D).State = kOn;
    ViewPanX = 1;
    mouse(Event::MouseDown, 100, 100);
    mouse(Event::MouseMove, 110.5, 100);
    EXPECT_EQ(ViewYaw, 170);  // 169.5 to even
    EXPECT_EQ(ViewPanX, 2);   // 1.5 to even
    EXPECT_EQ(ViewZoom, 2);
}

TEST_F(NavigationGestures, the_grid_is_seen_once_at_the_end_of_a_move) {
    int seen = 0;
    int yawSeen = 0;
    platform.OnRefresh = [&](const Control& control) {
        if (&control == &Form1.MapView) {
            ++seen;
            yawSeen = ViewYaw;
        }
    };
    mouse(Event::MouseMove, 90, 90);
    EXPECT_EQ(seen, 0) << "no drag, nothing to show";
    mouse(Event::MouseDown, 100, 100);
    EXPECT_EQ(seen, 0);
    mouse(Event::MouseMove, 110, 100);
    EXPECT_EQ(seen, 1);
    EXPECT_EQ(yawSeen, 170);
    mouse(Event::MouseUp, 110, 100);
    EXPECT_EQ(seen, 1);
}

// A move is not cut in perspective, a release is.
TEST_F(NavigationGestures, a_release_beyond_the_edge_is_noted_as_one) {
    mouse(Event::MouseDown, 100, 100);
    mouse(Event::MouseMove, -40, 30);
    mouse(Event::MouseMove, -50, 30);
    EXPECT_EQ(MouseState, kGestureNavigate3D);
    EXPECT_EQ(LastEdgeZone, 0);
    mouse(Event::MouseUp, -50, 30);
    EXPECT_EQ(MouseState, kGestureNone);
    EXPECT_EQ(LastEdgeZone, 4);
}

}  // namespace

}  // namespace ombrelia
