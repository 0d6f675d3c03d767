#include <string>

#include "core/editor_state.h"
#include "core/objects.h"
#include "core/option_strip_table.h"
#include "core/windows/form1.h"
#include "editor_fixture.h"
#include "panels/option_frames.h"
#include "panels/sliders.h"
#include "platform/dispatch.h"
#include "platform/pointer.h"

namespace ombrelia {

namespace {

struct TypedSlider {
    int number;
    int min, max, start;
    const char* readoutName;
    const char* readout;
};

// Places have single precision.
constexpr double kNear = 1e-4;

const TypedSlider kTyped[] = {
    {1, 1, 20, 1, "lblThick", "1"},           {2, 1, 20, 1, "lblLineThick", "1"},
    {3, 1, 20, 10, "lblRaiseAmount", "130m"}, {4, 1, 10, 4, "lblRes", "4"},
    {5, 1, 10, 1, "lblWidth", "1"},           {6, 50, 255, 255, "lblHeightValue", "2912m"},
    {7, 1, 30, 1, "lblSizeValue", "1"},       {8, 5, 30, 5, "lblPlainSize", "5"},
    {9, 1, 20, 1, "lblRough", "1"},           {10, 20, 200, 60, "lblRoughHeight", "377m"},
    {11, 1, 20, 4, "lblLowerAmount", "52m"},  {12, 2, 15, 3, "lblRiverWidth", "3"},
    {13, 3, 25, 10, "lblBankWidth", "10"},    {14, 1, 8, 5, "lblDetail", "5"},
};

class Sliders : public EditorTest {
  protected:
    static double room(int i) { return Form1.VertFiller(i).Width - Form1.VertScroller(i).Width; }
    static double place(int i) { return Form1.VertScroller(i).Left - Form1.VertFiller(i).Left; }

    static void set(int i, int value) {
        SliderValues(i).Value = static_cast<std::int16_t>(value);
        PlaceSlider(i);
    }

    static void beginThumbDrag(int i, float xTwips) {
        EventArgs args;
        args.X = xTwips;
        deliver(Form1.VertScroller(i), Event::MouseDown, args);
    }

    // Drags the thumb by pixels, held at its middle.
    static void drag(int i, double pixels) {
        beginThumbDrag(i, 5 * 15);
        dragThumb(i, static_cast<float>((5 + pixels) * 15));
    }
};

TEST_F(Sliders, the_marks_stand_where_the_thumb_comes_to) {
    for (int i = slider::kFirst; i <= slider::kLast; ++i) {
        const Marks& marks = Form1.VertFiller(i).Scale;
        const int values = SliderValues(i).Max - SliderValues(i).Min;
        const int step = values > 30 ? 10 : 1;
        ASSERT_EQ(marks.count, values / step + 1) << i;
        for (int k = 0; k < marks.count; ++k) {
            set(i, SliderValues(i).Min + k * step);
            const double middle = place(i) + Form1.VertScroller(i).Width / 2;
            EXPECT_NEAR(middle, marks.first + k * marks.pitch, 0.01) << i << ", mark " << k;
        }
        EXPECT_GE(marks.pitch, 3) << i;  // units: to be told apart
    }
}

// The road of assistive technology: a value is asked for and wished, no thumb is dragged.
TEST_F(Sliders, a_wished_value_stays_in_its_range_and_moves_thumb_and_readout) {
    Image& thumb = Form1.VertScroller(14);
    EventArgs args;
    args.Value = 7;
    deliver(thumb, Event::SetValue, args);
    EXPECT_EQ(SliderValues(14).Value, 7);
    EXPECT_EQ(Form1.Readout(14).Caption, "7");
    EXPECT_NEAR(place(14), room(14) * 6 / 7, kNear);
    args.Value = 99;
    deliver(thumb, Event::SetValue, args);
    EXPECT_EQ(SliderValues(14).Value, 8);
    EXPECT_EQ(Form1.Readout(14).Caption, "8");

    EventArgs asked;
    raise(thumb, Event::AskValue, asked);
    EXPECT_EQ(asked.Value, 8);
    EXPECT_EQ(asked.Minimum, 1);
    EXPECT_EQ(asked.Maximum, 8);
}

TEST_F(Sliders, a_wished_river_keeps_the_bank_wider) {
    setSlider(12, 15);
    EXPECT_EQ(SliderValues(13).Value, 16);
    setSlider(13, 5);
    EXPECT_EQ(SliderValues(12).Value, 4);
}

TEST_F(Sliders, a_wished_place_of_the_strip_moves_the_frames) {
    setSlider(0, 128);
    EXPECT_EQ(Form1.OptFrame(1).Top, 0);
}

TEST_F(Sliders, other_numbers_have_no_row_and_no_readout) {
    EXPECT_EQ(slider::row(14).number, 14);
    for (const int none : {0, slider::kLast + 1}) {
        EXPECT_THROW(slider::row(none), MissingPartFailure);
        EXPECT_THROW(Form1.Readout(none), MissingPartFailure);
    }
}

TEST_F(Sliders, start_as_the_table_says) {
    for (const TypedSlider& row : kTyped) {
        const auto n = [](int value) { return static_cast<std::int16_t>(value); };
        EXPECT_EQ(SliderValues(row.number), (SliderRecord{1, n(row.start), n(row.max), n(row.min)}))
            << row.number;
        EXPECT_EQ(Form1.Readout(row.number).Name, row.readoutName);
        EXPECT_EQ(Form1.Readout(row.number).Caption, row.readout) << row.number;
    }
    for (int i = slider::kLast + 1; i <= slider::kHelpPage; ++i) {
        EXPECT_EQ(SliderValues(i), SliderRecord{});
    }
}

TEST_F(Sliders, the_thumb_stands_where_the_value_lies) {
    for (const TypedSlider& row : kTyped) {
        set(row.number, row.min);
        EXPECT_EQ(place(row.number), 0);
        set(row.number, row.max);
        EXPECT_NEAR(place(row.number), room(row.number), kNear);
        set(row.number, (row.min + row.max) / 2);
        EXPECT_NEAR(place(row.number),
                    static_cast<double>((row.min + row.max) / 2 - row.min) / (row.max - row.min) *
                        room(row.number),
                    kNear);
    }
}

TEST_F(Sliders, the_track_gets_its_picture_when_it_has_none) {
    EXPECT_EQ(Form1.VertFiller(1).Face.picture, Picture::SliderTrack);
    Form1.VertFiller(1).Face = {Picture::Range, 0};
    PlaceSlider(1);
    EXPECT_EQ(Form1.VertFiller(1).Face.picture, Picture::Range);
    Form1.VertFiller(1).Face = {};
    PlaceSlider(1);
    EXPECT_EQ(Form1.VertFiller(1).Face.picture, Picture::SliderTrack);
}

TEST_F(Sliders, both_ends_of_a_drag_give_both_ends_of_the_range) {
    for (const TypedSlider& row : kTyped) {
        drag(row.number, 1000);
        EXPECT_EQ(SliderValues(row.number).Value, row.max) << row.number;
        EXPECT_NEAR(place(row.number), room(row.number), kNear);
        drag(row.number, -1000);
        EXPECT_EQ(SliderValues(row.number).Value, row.min) << row.number;
        EXPECT_EQ(place(row.number), 0);
    }
}

TEST_F(Sliders, just_left_of_the_end_is_one_less_or_lower) {
    for (const TypedSlider& row : kTyped) {
        drag(row.number, 1000);
        drag(row.number, -1);
        EXPECT_NEAR(place(row.number), room(row.number) - 1, kNear);
        const double share = (room(row.number) - 1) / room(row.number);
        EXPECT_EQ(SliderValues(row.number).Value,
                  static_cast<int>(share * (row.max - row.min) + row.min));
        EXPECT_LT(SliderValues(row.number).Value, row.max);
    }
}

TEST_F(Sliders, the_thumb_keeps_its_offset_from_the_pointer) {
    set(6, 50);
    beginThumbDrag(6, 3 * 15);
    dragThumb(6, (3 + 10) * 15);
    EXPECT_EQ(place(6), 10);
    dragThumb(6, (3 + 7) * 15);
    EXPECT_EQ(place(6), 17);
    EXPECT_EQ(SliderValues(6).Value, static_cast<int>(17.0 / room(6) * 205 + 50));
    EXPECT_EQ(ThumbGrab, 3);
}

TEST_F(Sliders, the_grab_is_rounded_to_even) {
    set(6, 50);
    beginThumbDrag(6, 2.5F * 15);
    EXPECT_EQ(ThumbGrab, 2);
    EXPECT_EQ(place(6), 0.5);  // the press is a move of its own
    beginThumbDrag(6, 3.5F * 15);
    EXPECT_EQ(ThumbGrab, 4);
    EXPECT_EQ(place(6), 0);
}

TEST_F(Sliders, a_press_without_a_move_leaves_every_value_wherever_the_thumb_is_held) {
    for (const TypedSlider& row : kTyped) {
        Image& thumb = Form1.VertScroller(row.number);
        for (int value = row.min; value <= row.max; ++value) {
            for (int x = 0; x < thumb.Width; ++x) {
                set(13, 25);  // the river may be as wide as it likes
                set(row.number, value);
                EventArgs args;
                args.Button = MouseButton::Left;
                args.X = static_cast<float>(x * kTwipsPerPixel);
                deliver(thumb, Event::MouseDown, args);
                deliver(thumb, Event::MouseUp, args);
                ASSERT_EQ(SliderValues(row.number).Value, value) << row.number << " at " << x;
            }
        }
    }
}

TEST_F(Sliders, a_press_on_an_upright_thumb_leaves_every_value) {
    Image& thumb = Form1.Scroller(0);
    for (int value = 0; value <= SliderValues(0).Max; ++value) {
        for (int y = 0; y < thumb.Height; ++y) {
            set(0, value);
            const double top = thumb.Top;
            EventArgs args;
            args.Button = MouseButton::Left;
            args.Y = static_cast<float>(y * kTwipsPerPixel);
            deliver(thumb, Event::MouseDown, args);
            deliver(thumb, Event::MouseUp, args);
            ASSERT_EQ(SliderValues(0).Value, value) << y;
            ASSERT_EQ(thumb.Top, top) << y;
        }
    }
}

class SliderTracks : public Sliders {
  protected:
    // In units from the track's left edge; by the rules of the pointer.
    static void click(int i, double x, MouseButton button = MouseButton::Left) {
        SliderValues(0).Value = 0;
        ScrollToFrame(page::indexOf(slider::row(i).page));
        const Point corner = cornerInWindow(Form1.VertFiller(i));
        for (const PointerKind kind : {PointerKind::Press, PointerKind::Release}) {
            pointerInput(Form1, 1, {kind, corner.x + x, corner.y + 8, button});
        }
    }

    static int valueOf(int i) { return SliderValues(i).Value; }
};

TEST_F(SliderTracks, a_click_moves_every_value_by_one_towards_it) {
    for (const TypedSlider& row : kTyped) {
        set(12, 5);
        set(13, 20);
        const int middle = (row.min + row.max) / 2;
        setSlider(row.number, middle);
        const std::string before = Form1.Readout(row.number).Caption;
        const double end = Form1.VertFiller(row.number).Width - 1;
        click(row.number, end);
        EXPECT_EQ(valueOf(row.number), middle + 1) << row.number;
        EXPECT_NE(Form1.Readout(row.number).Caption, before) << row.number;
        EXPECT_NEAR(place(row.number),
                    (middle + 1.0 - row.min) / (row.max - row.min) * room(row.number), kNear);
        click(row.number, 0);
        EXPECT_EQ(valueOf(row.number), middle) << row.number;
        EXPECT_EQ(Form1.Readout(row.number).Caption, before) << row.number;
        click(row.number, 0);
        EXPECT_EQ(valueOf(row.number), middle - 1) << row.number;
    }
}

// Where a step is less than a unit, the thumb covers the last unit of its track before it is at
// the end.
TEST_F(SliderTracks, clicks_lead_to_either_end_and_no_further) {
    for (const TypedSlider& row : kTyped) {
        const double end = Form1.VertFiller(row.number).Width - 1;
        const bool isFine = row.max - row.min > room(row.number);
        set(12, 2);
        set(13, 25);
        setSlider(row.number, row.max - 3);
        for (int n = 0; n < 4; ++n) {
            click(row.number, end);
        }
        EXPECT_GE(valueOf(row.number), isFine ? row.max - 2 : row.max) << row.number;
        EXPECT_LE(valueOf(row.number), row.max) << row.number;
        set(12, 2);
        setSlider(row.number, row.min + 2);
        for (int n = 0; n < 4; ++n) {
            click(row.number, 0);
        }
        EXPECT_EQ(valueOf(row.number), row.min) << row.number;
    }
}

TEST_F(SliderTracks, only_the_left_button_counts) {
    setSlider(6, 100);
    click(6, 100, MouseButton::Right);
    click(6, 100, MouseButton::Middle);
    EXPECT_EQ(valueOf(6), 100);
}

TEST_F(SliderTracks, a_locked_page_keeps_its_values) {
    setSlider(6, 100);
    Form1.OptFrame(page::indexOf(page::kMountain)).Enabled = false;
    click(6, 100);
    EXPECT_EQ(valueOf(6), 100);
}

TEST_F(SliderTracks, the_bank_stays_wider_than_the_river) {
    set(12, 9);
    setSlider(13, 10);
    click(12, 125);
    EXPECT_EQ(valueOf(12), 10);
    EXPECT_EQ(valueOf(13), 11);
    click(13, 0);
    EXPECT_EQ(valueOf(13), 10);
    EXPECT_EQ(valueOf(12), 9);
}

// A track is the window's background to the hints and to the buttons beside it.
TEST_F(SliderTracks, the_pointer_over_a_track_is_over_no_button) {
    deliverMouse(Form1.NTool(0), Event::MouseMove, MouseButton::None, 3, 3);
    ASSERT_EQ(OptionStates(0).State, 1);
    deliverMouse(Form1.VertFiller(1), Event::MouseMove, MouseButton::None, 60, 3);
    EXPECT_EQ(OptionStates(0).State, 0);
    OptionStates(18).State = 2;
    deliverMouse(Form1.VertFiller(1), Event::Click, MouseButton::Left, 60, 3);
    EXPECT_EQ(OptionStates(18).State, 0);
}

TEST_F(Sliders, tracks_end_before_their_readouts_and_nearly_together) {
    for (const TypedSlider& row : kTyped) {
        const Image& track = Form1.VertFiller(row.number);
        EXPECT_LT(track.Left + track.Width, Form1.Readout(row.number).Left);
        EXPECT_NEAR(track.Width, Form1.VertFiller(1).Width, 1);
    }
}

TEST_F(Sliders, readouts_follow_a_drag) {
    drag(10, -1000);
    EXPECT_EQ(Form1.Readout(10).Caption, "-143m");
    drag(6, -1000);
    EXPECT_EQ(Form1.Readout(6).Caption, "247m");
    drag(3, 1000);
    EXPECT_EQ(Form1.Readout(3).Caption, "260m");
    drag(14, 1000);
    EXPECT_EQ(Form1.Readout(14).Caption, "8");
}

TEST_F(Sliders, a_wider_river_pushes_the_bank) {
    drag(12, 1000);
    EXPECT_EQ(SliderValues(12).Value, 15);
    EXPECT_EQ(SliderValues(13).Value, 16);
    EXPECT_EQ(Form1.Readout(13).Caption, "16");
    EXPECT_NEAR(place(13), 13.0 / 22 * room(13), kNear);
    EXPECT_EQ(Form1.Readout(12).Caption, "15");
}

TEST_F(Sliders, a_narrower_bank_pushes_the_river) {
    drag(13, -1000);
    EXPECT_EQ(SliderValues(13).Value, 3);
    EXPECT_EQ(SliderValues(12).Value, 2);
    EXPECT_EQ(Form1.Readout(12).Caption, "2");
    EXPECT_EQ(place(12), 0);
}

TEST_F(Sliders, equal_widths_are_too_narrow_and_one_more_is_enough) {
    set(13, 3);
    set(12, 3);
    drag(12, 0);
    EXPECT_EQ(SliderValues(13).Value, 4);
    set(12, 2);
    set(13, 3);
    drag(12, 0);
    EXPECT_EQ(SliderValues(13).Value, 3);
    drag(5, 1000);  // other sliders leave them alone
    set(12, 9);
    drag(5, -1000);
    EXPECT_EQ(SliderValues(13).Value, 3);
}

TEST_F(Sliders, the_strip_moves_all_frames) {
    set(0, 300);
    for (int j = 0; j <= 14; ++j) {
        EXPECT_EQ(Form1.OptFrame(j).Top, 128 * j - 300);
    }
    const double strip = Form1.Filler(0).Height - Form1.Scroller(0).Height;
    EXPECT_DOUBLE_EQ(Form1.Scroller(0).Top,
                     300.0 / SliderValues(0).Max * strip + Form1.Filler(0).Top);
}

}  // namespace

}  // namespace ombrelia
