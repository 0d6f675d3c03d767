#include <cmath>
#include <initializer_list>

#include "core/editor_state.h"
#include "core/objects.h"
#include "core/option_strip_table.h"
#include "core/windows/form1.h"
#include "core/windows/small_windows.h"
#include "desk/run_command.h"
#include "editor_fixture.h"
#include "panels/option_frames.h"
#include "panels/sliders.h"
#include "platform/dispatch.h"
#include "platform/pointer.h"

namespace ombrelia {

namespace {

class OptionFrames : public EditorTest {
  protected:
    static int value() { return SliderValues(0).Value; }
    static int most() { return SliderValues(0).Max; }

    static void set(int stripValue) {
        SliderValues(0).Value = static_cast<std::int16_t>(stripValue);
        PlaceSlider(0);
    }

    static void expectFramesFollow() {
        for (int j = 0; j <= 14; ++j) {
            EXPECT_EQ(Form1.OptFrame(j).Top, 128 * j - value()) << j;
        }
    }
};

TEST_F(OptionFrames, stand_below_each_other_with_their_titles) {
    const char* titles[] = {"Pencil Tool Options",
                            "Line Tool Options",
                            "Raise Terrain Tool Options",
                            "Lower Terrain Tool Options",
                            "Fractal Terrain Options",
                            "2D View Options",
                            "3D View Options",
                            "Color Picker Options",
                            "Mountain Options",
                            "Canyon Options",
                            "Plain Options",
                            "Menu",
                            "Refresh Preferences",
                            "Extra Preferences",
                            "Color Preferences"};
    for (int i = 0; i <= 14; ++i) {
        EXPECT_EQ(Form1.OptFrame(i).Top, 128 * i);
        EXPECT_EQ(Form1.OptFrame(i).Left, 0);
        EXPECT_EQ(Form1.OptFrame(i).Width, pictureInfo(Picture::OptionFrame).width);
        EXPECT_EQ(Form1.OptFrame(i).Height, pictureInfo(Picture::OptionFrame).height - 1);
        EXPECT_EQ(Form1.OptLabel(i).Caption, titles[i]);
        EXPECT_EQ(Form1.OptBox(i).Width, pictureInfo(Picture::OptionCaption).width);
        EXPECT_EQ(Form1.OptLabel(i).Width, Form1.OptBox(i).Width);
    }
}

TEST_F(OptionFrames, the_strip_ends_12_below_its_last_frame) {
    constexpr int kLast = kOptionFrames - 1;
    EXPECT_EQ(most(),
              128 * kLast + Form1.OptFrame(kLast).Height - Form1.Picture1.innerHeight() + 12);
    EXPECT_GT(most(), 0);
    EXPECT_EQ(SliderValues(0).Orientation, 0);
    EXPECT_EQ(SliderValues(0).Min, 0);
    EXPECT_EQ(value(), 0);
}

TEST_F(OptionFrames, the_progress_panel_lies_over_the_strip) {
    EXPECT_EQ(Form1.ProgressFrame.Left, Form1.Picture1.Left);
    EXPECT_EQ(Form1.ProgressFrame.Top, Form1.Picture1.Top);
    EXPECT_FALSE(Form1.ProgressFrame.Visible);
}

TEST_F(OptionFrames, every_frame_is_scrolled_to_by_its_number) {
    for (const int frame : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 50, 51, 52, 53}) {
        ScrollToFrame(frame);
        EXPECT_EQ(value(), frame * 136 <= most() ? frame * 128 : most()) << frame;
        expectFramesFollow();
    }
}

TEST_F(OptionFrames, scroll_to_frame_has_two_factors) {
    SliderValues(0).Max = 1359;  // room for frame 10 at 1280, but 10 * 136 is 1360
    ScrollToFrame(10);
    EXPECT_EQ(value(), 1359);
    SliderValues(0).Max = 1360;
    ScrollToFrame(10);
    EXPECT_EQ(value(), 1280);
    SliderValues(0).Max = 1767;
    ScrollToFrame(13);
    EXPECT_EQ(value(), 1767);
    SliderValues(0).Max = 1768;
    ScrollToFrame(13);
    EXPECT_EQ(value(), 1664);
}

TEST_F(OptionFrames, a_held_arrow_moves_by_9_and_stops_short_of_the_ends) {
    set(20);
    holdArrow(true);
    EXPECT_EQ(MouseState, 16);
    EXPECT_EQ(Form1.ScrollUp(0).Face, (PictureFace{Picture::UpArrow, 1}));
    for (const int expected : {11, 2, 2}) {
        scrollHeldArrow();
        EXPECT_EQ(value(), expected);
    }
    expectFramesFollow();
    releaseArrow(true);
    EXPECT_EQ(MouseState, 0);
    EXPECT_EQ(Form1.ScrollUp(0).Face, (PictureFace{Picture::UpArrow, 0}));
    set(most() - 20);
    holdArrow(false);
    EXPECT_EQ(MouseState, 17);
    EXPECT_EQ(Form1.ScrollDown(0).Face, (PictureFace{Picture::DownArrow, 1}));
    for (const int left : {11, 2, 2}) {
        scrollHeldArrow();
        EXPECT_EQ(value(), most() - left);
    }
    releaseArrow(false);
    scrollHeldArrow();
    EXPECT_EQ(value(), most() - 2);
    EXPECT_EQ(Form1.ScrollDown(0).Face, (PictureFace{Picture::DownArrow, 0}));
}

TEST_F(OptionFrames, exactly_9_left_can_be_scrolled) {
    set(9);
    holdArrow(true);
    scrollHeldArrow();
    EXPECT_EQ(value(), 0);
    set(most() - 9);
    holdArrow(false);
    scrollHeldArrow();
    EXPECT_EQ(value(), most());
}

// The strip's thumb: the pointer's place from the thumb's top edge, in twips.
TEST_F(OptionFrames, the_strips_thumb_follows_the_pointer_between_its_ends) {
    Image& thumb = Form1.Scroller(0);
    const double low = Form1.Filler(0).Top;
    const double room = Form1.Filler(0).Height - thumb.Height;
    beginStripThumbDrag(10 * 15);
    EXPECT_EQ(SliderDragState, 2);
    EXPECT_EQ(ThumbGrab, low + 10);
    dragStripThumb(30 * 15);
    EXPECT_EQ(thumb.Top, low + 20);
    EXPECT_EQ(value(), std::floor(20 / room * most()));
    EXPECT_EQ(ThumbGrab, low + 30);
    expectFramesFollow();
    dragStripThumb(static_cast<float>((room - 20) * 15));  // pointer at the last place inside
    EXPECT_EQ(thumb.Top, low + room - 10);
    dragStripThumb(11 * 15);  // pointer outside: the thumb stands
    EXPECT_EQ(thumb.Top, low + room - 10);
    endStripThumbDrag();
    EXPECT_EQ(SliderDragState, 0);
    dragStripThumb(-15);
    EXPECT_EQ(thumb.Top, low + room - 10);
}

TEST_F(OptionFrames, the_strips_thumb_is_cut_back_at_its_ends) {
    Image& thumb = Form1.Scroller(0);
    const double low = Form1.Filler(0).Top;
    beginStripThumbDrag(12 * 15);
    dragStripThumb(5 * 15);  // 7 up from the top
    EXPECT_EQ(thumb.Top, low);
    EXPECT_EQ(value(), 0);
    EXPECT_EQ(ThumbGrab, low + 5);
}

TEST_F(OptionFrames, places_of_the_strips_thumb_are_whole_rounded_down) {
    Image& thumb = Form1.Scroller(0);
    const double low = Form1.Filler(0).Top;
    beginStripThumbDrag(10 * 15);
    dragStripThumb(12.6F * 15);
    EXPECT_EQ(ThumbGrab, low + 12);
    EXPECT_EQ(thumb.Top, low + 2);
    set(110);  // 110 / 1664 of 207 units: the thumb stands at a fraction
    const double before = thumb.Top;
    EXPECT_GT(before - std::floor(before), 0.5);
    beginStripThumbDrag(10 * 15);
    EXPECT_EQ(ThumbGrab, std::floor(before) + 11);  // the grab is rounded to the nearest
    dragStripThumb(10 * 15);
    EXPECT_EQ(ThumbGrab, std::floor(before) + 10);
    EXPECT_EQ(thumb.Top, std::floor(before) - 1);
}

// By its middle a thumb stops half its height before the end: what is below then must be little.
TEST_F(OptionFrames, the_strips_thumb_held_by_its_middle_shows_the_last_page) {
    const Image& thumb = Form1.Scroller(0);
    const double middle = thumb.Height / 2;
    const double end = Form1.Filler(0).Top + Form1.Filler(0).Height;
    beginStripThumbDrag(static_cast<float>(middle * 15));
    for (double y = thumb.Top + middle; y < end; ++y) {
        dragStripThumb(static_cast<float>((y - thumb.Top) * 15));
    }
    const PictureBox& last = Form1.OptFrame(14);
    const double seen = Form1.Picture1.innerHeight() - last.Top;
    EXPECT_GT(seen, last.Height / 2);
}

class StripByWheel : public OptionFrames {
  protected:
    // At a place in units from the part's corner.
    static void turn(const Control& part, double x, double y, double notches, double scale = 1) {
        const Point corner = cornerInWindow(part);
        pointerInput(Form1, scale,
                     {PointerKind::Wheel, (corner.x + x) * scale, (corner.y + y) * scale,
                      MouseButton::None, notches});
    }
};

TEST_F(StripByWheel, a_notch_is_five_steps_of_an_arrow_wherever_on_the_strip) {
    set(128);
    turn(Form1.OptFrame(1), 3, 40, 1);
    EXPECT_EQ(value(), 128 + 45);
    expectFramesFollow();
    EXPECT_EQ(
        Form1.Scroller(0).Top,
        173.0 / most() * (Form1.Filler(0).Height - Form1.Scroller(0).Height) + Form1.Filler(0).Top);
    set(128);
    for (const Control* part : std::initializer_list<const Control*>{
             &Form1.VertScroller(2), &Form1.VertFiller(2), &Form1.OptLabel(1), &Form1.Scroller(0),
             &Form1.Filler(0), &Form1.ScrollUp(0), &Form1.ScrollDown(0)}) {
        for (const double scale : {1.0, 1.25, 2.5, 4.0}) {
            turn(*part, 2, 2, 2, scale);
            EXPECT_EQ(value(), 128 + 90) << part->Name << " at " << scale;
            set(128);
        }
    }
}

TEST_F(StripByWheel, the_strip_stops_at_its_ends) {
    set(10);
    turn(Form1.Picture1, 3, 40, -1);
    EXPECT_EQ(value(), 0);
    turn(Form1.Picture1, 3, 40, -1);
    EXPECT_EQ(value(), 0);
    set(most() - 5);
    turn(Form1.Picture1, 3, 40, 1);
    EXPECT_EQ(value(), most());
    turn(Form1.Picture1, 3, 40, 1000);
    EXPECT_EQ(value(), most());
    expectFramesFollow();
}

TEST_F(StripByWheel, the_strip_stands_still_beside_it_and_while_its_page_is_locked) {
    set(128);
    turn(Form1.MapView, 30, 30, 1);
    turn(Form1.Label11, 30, 5, 1);
    Form1.OptFrame(1).Enabled = false;
    turn(Form1.OptFrame(1), 3, 40, 1);
    EXPECT_EQ(value(), 128);
    Form1.OptFrame(1).Enabled = true;
    turn(Form1.OptFrame(1), 3, 40, 1);
    EXPECT_EQ(value(), 173);
}

TEST_F(StripByWheel, a_held_page_is_not_torn_from_the_hand) {
    set(128);
    const Point corner = cornerInWindow(Form1.OptFrame(1));
    pointerInput(Form1, 1, {PointerKind::Press, corner.x + 3, corner.y + 40, MouseButton::Left});
    turn(Form1.OptFrame(1), 3, 40, 1);
    EXPECT_EQ(value(), 128);
    pointerInput(Form1, 1, {PointerKind::Release, corner.x + 3, corner.y + 40, MouseButton::Left});
}

// What comes under the pointer is told of, without a move of the mouse.
TEST_F(StripByWheel, the_hint_follows_what_comes_under_the_pointer) {
    set(0);
    HelpFrm.HelpLbl.Caption = "nothing";
    const PictureBox& frame = Form1.OptFrame(0);
    turn(frame, Form1.VertScroller(1).Left + 3, Form1.VertScroller(1).Top + 72, 1);
    EXPECT_EQ(value(), 45);
    EXPECT_EQ(HelpFrm.HelpLbl.Caption, "Click && Drag here to scroll the box up or down.");
    const Point thumb = cornerInWindow(Form1.VertScroller(2));
    pointerInput(Form1, 1,
                 {PointerKind::Wheel, thumb.x + 3, thumb.y - 45 + 3, MouseButton::None, 1});
    EXPECT_EQ(HelpFrm.HelpLbl.Caption, slider::row(2).hint);
}

TEST_F(OptionFrames, a_press_on_the_bars_track_goes_a_page_towards_it) {
    const auto press = [](double y, MouseButton button = MouseButton::Left) {
        deliverMouse(Form1.Filler(0), Event::MouseDown, button, 5, y);
    };
    press(200);
    EXPECT_EQ(value(), 128);
    expectFramesFollow();
    press(200);
    EXPECT_EQ(value(), 256);
    press(200, MouseButton::Right);
    EXPECT_EQ(value(), 256);
    press(0);
    press(0);
    EXPECT_EQ(value(), 0);
    for (int i = 0; i < 20; ++i) {
        press(220);
    }
    EXPECT_EQ(value(), most());
    const double thumb = Form1.Scroller(0).Top - Form1.Filler(0).Top;
    press(thumb + 5);  // beside nothing: the thumb itself
    EXPECT_EQ(value(), most());
    press(thumb - 1);
    EXPECT_EQ(value(), most() - 128);
}

TEST_F(OptionFrames, a_fraction_of_a_frame_drag_is_rounded_down) {
    set(500);
    beginFrameDrag(4, 60);
    dragFrames(4, 54.5F);
    EXPECT_EQ(value(), 505);
    beginFrameDrag(4, 60.5F);  // the place itself goes to the even number
    EXPECT_EQ(PanelGrabY, 60 + 4 * 128);
    beginFrameDrag(4, 61.5F);
    EXPECT_EQ(PanelGrabY, 62 + 4 * 128);
}

TEST_F(OptionFrames, a_dragged_frame_follows_the_pointer_one_to_one) {
    set(500);
    const double before = Form1.OptFrame(4).Top;
    beginFrameDrag(4, 60);
    EXPECT_EQ(MouseState, 7);
    EXPECT_EQ(PanelGrabY, 60 + 4 * 128);
    for (int step = 1; step <= 5; ++step) {
        // The pointer goes down by 10 in the window; the frame has followed so far.
        dragFrames(4, static_cast<float>(60 + 10));
        EXPECT_EQ(Form1.OptFrame(4).Top, before + 10 * step);
        EXPECT_EQ(value(), 500 - 10 * step);
    }
    dragFrames(4, 60);  // the pointer rests
    EXPECT_EQ(value(), 450);
    endFrameDrag();
    EXPECT_EQ(MouseState, 0);
    dragFrames(4, 100);
    EXPECT_EQ(value(), 450);
}

TEST_F(OptionFrames, a_drag_beyond_an_end_leaves_the_strip) {
    set(5);
    beginFrameDrag(0, 60);
    dragFrames(0, 70);  // would be -5
    EXPECT_EQ(value(), 5);
    EXPECT_EQ(PanelGrabY, 70);
    dragFrames(0, 68);
    EXPECT_EQ(value(), 7);
    set(most() - 3);
    beginFrameDrag(14, 60);
    dragFrames(14, 50);
    EXPECT_EQ(value(), most() - 3);
}

TEST_F(OptionFrames, a_move_at_exactly_0_is_skipped) {
    set(500);
    beginFrameDrag(4, 60);
    dragFrames(4, 0);
    EXPECT_EQ(value(), 500);
    EXPECT_EQ(PanelGrabY, 60 + 4 * 128);
}

TEST_F(OptionFrames, the_ground_between_the_frames_can_be_dragged_too) {
    set(0);
    beginFrameDrag(-1, 60);
    EXPECT_EQ(MouseState, 8);
    EXPECT_EQ(PanelGrabY, 60);
    dragFrames(-1, 50);
    EXPECT_EQ(value(), 10);
}

TEST_F(OptionFrames, commands_bring_up_their_pages) {
    const struct {
        int command, frame;
    } rows[] = {{16, 12}, {18, 11}, {0, 0}, {10, 10}, {50, 9}, {51, 14}, {53, 14}};
    for (const auto& row : rows) {
        set(77);
        int command = row.command;
        RunCommand(command);
        EXPECT_EQ(value(), row.frame * 136 <= most() ? row.frame * 128 : most()) << row.command;
    }
}

}  // namespace

}  // namespace ombrelia
