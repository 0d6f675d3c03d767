#include <string>
#include <vector>

#include "core/editor_state.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "core/windows/small_windows.h"
#include "desk/desk_events.h"
#include "editor_fixture.h"
#include "panels/color_editor.h"
#include "platform/dispatch.h"
#include "platform/window_life.h"

namespace ombrelia {

namespace {

class DeskEvents : public EditorTest {
  protected:
    static void tick() { deliver(Form1.Timer1, Event::Timer); }
    static void mouse(Control& control, Event event, double x, double y,
                      MouseButton button = MouseButton::Left) {
        deliverMouse(control, event, button, x, y);
    }
};

TEST_F(DeskEvents, a_tick_keeps_the_hint_frame_at_the_right_edge) {
    Form1.Left = 30;
    Form1.Top = 40;
    tick();
    EXPECT_EQ(HelpFrm.Left, 30 + Form1.Width);
    EXPECT_EQ(HelpFrm.Top, 40);
}

TEST_F(DeskEvents, a_tick_colours_the_title_by_the_active_window) {
    platform.ActiveCaption = "something else";
    tick();
    EXPECT_EQ(Form1.Label11.ForeColor, rgb(70, 70, 255));
    platform.ActiveCaption = "";
    tick();
    EXPECT_EQ(Form1.Label11.ForeColor, rgb(70, 70, 255));
    platform.ActiveCaption = "Ombrelia Terrain Editor";
    tick();
    EXPECT_EQ(Form1.Label11.ForeColor, TitleActiveColor);
    EXPECT_NE(TitleActiveColor, rgb(70, 70, 255));
}

TEST_F(DeskEvents, a_left_press_on_a_title_moves_its_window) {
    mouse(Form1.Label11, Event::MouseDown, 2, 2, MouseButton::Right);
    EXPECT_EQ(platform.Moved, nullptr);
    mouse(Form1.Label11, Event::MouseDown, 2, 2);
    EXPECT_EQ(platform.Moved, &Form1);
    showWindow(SizeSelect);
    mouse(SizeSelect.Label11, Event::MouseDown, 2, 2);
    EXPECT_EQ(platform.Moved, &SizeSelect);
}

TEST_F(DeskEvents, a_key_over_the_list_of_colour_sets_is_swallowed) {
    EventArgs args;
    args.KeyCode = 65;
    Combo1_KeyDown(args);
    EXPECT_EQ(args.KeyCode, 0);
}

TEST_F(DeskEvents, a_held_arrow_scrolls_with_each_tick) {
    mouse(Form1.ScrollDown(0), Event::MouseDown, 2, 2);
    tick();
    tick();
    EXPECT_EQ(SliderValues(0).Value, 18);
    mouse(Form1.ScrollDown(0), Event::MouseUp, 2, 2);
    tick();
    EXPECT_EQ(SliderValues(0).Value, 18);
    mouse(Form1.ScrollUp(0), Event::MouseDown, 2, 2);
    tick();
    EXPECT_EQ(SliderValues(0).Value, 9);
}

TEST_F(DeskEvents, quiet_parts_put_out_a_hovered_button_and_keep_the_gesture) {
    for (Control* part :
         {static_cast<Control*>(&Form1.Label1), static_cast<Control*>(&Form1.Label4),
          static_cast<Control*>(&Form1.ZoomView)}) {
        HoverTool = 16;
        OptionStates(16).State = 1;
        MouseState = 2;
        mouse(*part, Event::MouseMove, 1, 1, MouseButton::None);
        EXPECT_EQ(OptionStates(16).State, 0) << part->Name;
        EXPECT_EQ(MouseState, 2) << part->Name;
    }
    mouse(Form1.TwoFrame, Event::MouseMove, 1, 1, MouseButton::None);
    EXPECT_EQ(MouseState, 0);
}

TEST_F(DeskEvents, a_click_on_the_ground_puts_out_the_menu_button) {
    OptionStates(18).State = 1;
    deliver(Form1, Event::Click);
    EXPECT_EQ(OptionStates(18).State, 0);
    EXPECT_EQ(Form1.NTool(18).Face.face, 0);
}

TEST_F(DeskEvents, the_makers_name_opens_the_makers_page) {
    deliver(Form1.Label32, Event::Click);
    EXPECT_EQ(platform.Calls, std::vector<std::string>{"web"});
}

TEST_F(DeskEvents, sliders_follow_the_left_button_alone) {
    Image& thumb = Form1.VertScroller(6);
    mouse(thumb, Event::MouseDown, 5, 5);
    mouse(thumb, Event::MouseMove, -20, 5, MouseButton::None);
    EXPECT_EQ(SliderValues(6).Value, 255);
    mouse(thumb, Event::MouseMove, -1000, 5);
    EXPECT_EQ(SliderValues(6).Value, 50);
}

TEST_F(DeskEvents, the_strips_thumb_and_its_frames_can_be_dragged) {
    Image& thumb = Form1.Scroller(0);
    mouse(thumb, Event::MouseDown, 5, 10);
    mouse(thumb, Event::MouseMove, 5, 30);
    mouse(thumb, Event::MouseUp, 5, 10);
    const int scrolled = SliderValues(0).Value;
    EXPECT_GT(scrolled, 0);
    EXPECT_EQ(SliderDragState, 0);
    mouse(Form1.OptFrame(2), Event::MouseDown, 5, 50);
    mouse(Form1.OptFrame(2), Event::MouseMove, 5, 60);
    EXPECT_EQ(SliderValues(0).Value, scrolled - 10);
    mouse(Form1.OptFrame(2), Event::MouseUp, 5, 60);
    EXPECT_EQ(MouseState, 0);
    mouse(Form1.Picture1, Event::MouseDown, 5, 50);
    EXPECT_EQ(MouseState, 8);
    mouse(Form1.Picture1, Event::MouseUp, 5, 50);
    EXPECT_EQ(MouseState, 0);
}

}  // namespace

}  // namespace ombrelia
