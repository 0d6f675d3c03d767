#include "core/button_numbers.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "core/windows/help_box.h"
#include "editor_fixture.h"
#include "panels/help_box.h"
#include "panels/help_scroller.h"
#include "panels/second_help_table.h"
#include "platform/dispatch.h"
#include "platform/key_codes.h"
#include "platform/pointer.h"
#include "platform/window_life.h"

namespace ombrelia {

namespace {

class Help : public EditorTest {
  protected:
    Help() { showWindow(HelpBox); }

    static void click(Control& control) {
        deliverMouse(control, Event::MouseDown, MouseButton::Left, 2, 2);
        deliverMouse(control, Event::MouseUp, MouseButton::Left, 2, 2);
        deliverMouse(control, Event::Click, MouseButton::Left, 2, 2);
    }

    // The one page that shows.
    static int shownPage() {
        int shown = 0;
        HelpBox.Topic.forEach([&](const PictureBox& page) {
            if (page.Visible) {
                EXPECT_EQ(shown, 0) << "two pages show";
                shown = page.Index;
            }
        });
        return shown;
    }
};

TEST_F(Help, every_long_text_is_the_described_one) {
    for (const SecondHelpText& row : kSecondHelpTexts) {
        const bool isTool = row.page >= 400 && row.page < 500;
        const Label& label = isTool ? HelpBox.IconText(row.page) : HelpBox.TopicLabel(row.page);
        EXPECT_EQ(label.Caption, row.text) << row.page;
        EXPECT_EQ(TopicText(row.page), isTool ? row.text : "") << row.page;
    }
}

struct Titled {
    int page;
    const char* title;
};
constexpr Titled kTitles[] = {
    {1, "Contents"},
    {2, "Starting Out"},
    {3, "Simple"},
    {4, "Icons"},
    {5, "Advanced"},
    {6, "Advanced Terrain Editing"},
    {200, "Step 1"},
    {201, "Step 2"},
    {202, "Step 3"},
    {300, "Importing to Ombrelia"},
    {301, "Starting a New Map"},
    {500, "Changing the Color Palatte"},
    {501, "Changing the Options"},
    {600, "Fractal Terrain"},
    {601, "Importing a Bitmap"},
};

TEST_F(Help, every_page_has_its_heading) {
    for (const Titled& row : kTitles) {
        EXPECT_EQ(HelpBox.TopicTitle(row.page).Caption, row.title);
    }
    EXPECT_EQ(HelpBox.Label41.Caption, "About Quillbyte");
    EXPECT_EQ(HelpBox.TopicLabel(1).Caption,
              "Welcome to the Ombrelia Terrain Editor's Help System. To begin, select a topic on "
              "the left.");
    EXPECT_EQ(HelpBox.TopicLabel(4).Caption, "Please Select an Icon from the list:");
}

struct Link {
    int page;
    const char* text;
    int target;
};
constexpr Link kLinks[] = {
    {2, "Step 1: Create a Simple Terrain", 200},
    {2, "Step 2: View in 3D", 201},
    {2, "Step 3: Save to a file", 202},
    {3, "Creating a New Map", 301},
    {3, "Importing into Ombrelia", 300},
    {5, "Changing the Color Palatte", 500},
    {5, "Changing the Options", 501},
    {6, "Fractal Terrain", 600},
    {6, "Importing a Bitmap", 601},
    {200, "Proceed to Step 2", 201},
    {201, "Proceed to Step 3", 202},
    {202, "Now see IMPORTING INTO OMBRELIA", 300},
};

TEST_F(Help, every_link_leads_to_its_page) {
    int found = 0;
    HelpBox.LinkLbl.forEach([&](Label& label) {
        for (const Link& row : kLinks) {
            if (label.Parent == &HelpBox.Topic(row.page) && label.Caption == row.text) {
                ++found;
                click(label);
                EXPECT_EQ(CurrentTopic, row.target) << row.text;
                EXPECT_EQ(shownPage(), row.target) << row.text;
            }
        }
    });
    EXPECT_EQ(found, 12);
}

constexpr const char* kContents[] = {
    "Starting Out - New to the Terrain Editor? Here's a crash course.",
    "Simple - How to do easy things in the editor.",
    "Icons - Descriptions of every icon you see in the program.",
    "Advanced - How to use more advanced features of the program.",
    "Advanced Terrain Editing - More advanced editing features",
    "About - Learn about who made the editor",
};

TEST_F(Help, the_contents_lead_to_pages_2_to_7) {
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(HelpBox.ContLbl(i).Caption, kContents[i]);
        click(HelpBox.ContLbl(i));
        EXPECT_EQ(shownPage(), i + 2);
    }
}

constexpr const char* kTools[] = {
    "Pencil Tool",  "Line Tool", "Raise Terrain Tool", "Lower Terrain Tool", "Fractal Terrain",
    "2D Mode",      "3D Mode",   "Color Picker Tool",  "Mountain Object",    "Canyon Object",
    "Plain Object",
};

TEST_F(Help, every_tool_leads_to_its_page_with_its_picture) {
    for (int i = 0; i < 11; ++i) {
        const int page = 400 + i;
        EXPECT_EQ(HelpBox.ToolName(i).Caption, kTools[i]);
        EXPECT_EQ(HelpBox.IconName(page).Caption, kTools[i]);
        EXPECT_EQ(HelpBox.IconPic(page).Face, Form1.NTool(100 + i).Face);
        EXPECT_EQ(HelpBox.ToolPic(i).Face, Form1.NTool(100 + i).Face);
        EXPECT_EQ(HelpBox.Topic(page).Height, HelpBox.IconText(page).Height + 80);
        if (i > 0) {
            EXPECT_EQ(HelpBox.ToolPic(i).Top - HelpBox.ToolPic(i - 1).Top, 44);
        }
        click(HelpBox.ToolName(i));
        EXPECT_EQ(shownPage(), page);
        click(HelpBox.ToolPic(10 - i));
        EXPECT_EQ(shownPage(), 410 - i);
    }
}

TEST_F(Help, the_about_page_says_its_things_in_order) {
    std::size_t place = 0;
    for (const char* part :
         {"Quillbyte", "spare time", "Donations can be sent to:\n", "About Quillbyte:\n",
          "https://", "Official Non-Quillbyte Page:\n", "https://"}) {
        const std::size_t found = HelpBox.Label40.Caption.find(part, place);
        ASSERT_NE(found, std::string::npos) << part;
        place = found + 1;
    }
}

TEST_F(Help, the_buttons_on_the_left_lead_to_pages_1_to_7) {
    const char* const texts[] = {"Contents", "Starting Out", "Simple", "Icons",
                                 "Advanced", "Advanced TE",  "About",  "Back"};
    for (int i = 90; i <= 97; ++i) {
        EXPECT_EQ(HelpBox.LTool(i).Caption, texts[i - 90]);
        EXPECT_EQ(OptionStates(i).Kind, kind::kStand);
        EXPECT_EQ(OptionStates(i).Group, 1);
    }
    EXPECT_EQ(OptionStates(98).Kind, kind::kClose);
    for (int i = 90; i <= 96; ++i) {
        click(i % 2 == 0 ? static_cast<Control&>(HelpBox.NTool(i)) : HelpBox.LTool(i));
        EXPECT_EQ(shownPage(), i - 89);
    }
}

struct BackStep {
    int from;
    int to;
};

TEST_F(Help, back_leads_to_the_parent) {
    for (const BackStep& step :
         {BackStep{1, 1}, BackStep{2, 1}, BackStep{7, 1}, BackStep{201, 2}, BackStep{301, 3},
          BackStep{400, 4}, BackStep{410, 4}, BackStep{501, 5}, BackStep{600, 6}}) {
        GotoTopic(step.from);
        click(HelpBox.NTool(97));
        EXPECT_EQ(shownPage(), step.to) << step.from;
    }
}

TEST_F(Help, a_number_of_0_or_less_changes_nothing) {
    GotoTopic(3);
    GotoTopic(0);
    GotoTopic(-4);
    EXPECT_EQ(shownPage(), 3);
    EXPECT_EQ(CurrentTopic, 3);
}

TEST_F(Help, a_page_beyond_7_marks_nothing) {
    const ButtonRecord before = OptionStates(6);
    HelpGroupCurrent(1) = 9;
    GotoTopic(200);
    EXPECT_EQ(HelpGroupCurrent(1), 9);
    EXPECT_EQ(OptionStates(6).State, before.State);
}

TEST_F(Help, a_marked_tool_is_not_painted_in_the_editor) {
    const PictureFace before = Form1.NTool(2).Face;
    GotoTopic(3);
    EXPECT_EQ(OptionStates(2).State, kOn);
    EXPECT_EQ(Form1.NTool(2).Face, before);
}

TEST_F(Help, the_scroller_moves_the_page_and_fits_its_length) {
    GotoTopic(4);
    const double overflow = HelpBox.Topic(4).Height - HelpBox.Picture1.Height;
    EXPECT_EQ(SliderValues(20).Max, overflow);
    Image& thumb = HelpBox.Scroller(20);
    const double top = thumb.Top;
    deliverMouse(thumb, Event::MouseDown, MouseButton::Left, 5, 5);
    deliverMouse(thumb, Event::MouseMove, MouseButton::Left, 5, 105);
    EXPECT_EQ(thumb.Top, top + 100);
    const double room = HelpBox.Filler(20).Height - thumb.Height;
    EXPECT_EQ(SliderValues(20).Value, static_cast<int>(100 / room * overflow));
    EXPECT_EQ(HelpBox.Topic(4).Top, -SliderValues(20).Value);
    deliverMouse(thumb, Event::MouseUp, MouseButton::Left, 5, 5);
    deliverMouse(thumb, Event::MouseMove, MouseButton::None, 5, 55);
    EXPECT_EQ(thumb.Top, top + 100);
}

TEST_F(Help, a_held_arrow_stops_short_of_the_end) {
    GotoTopic(4);
    const int most = SliderValues(20).Max;
    deliverMouse(HelpBox.ScrollDown(20), Event::MouseDown, MouseButton::Left, 5, 5);
    EXPECT_EQ(HelpBox.ScrollDown(20).Face, (PictureFace{Picture::DownArrow, 1}));
    for (int tick = 0; tick < 100; ++tick) {
        deliver(HelpBox.Timer1, Event::Timer);
    }
    EXPECT_EQ(SliderValues(20).Value, most / 9 * 9);
    deliverMouse(HelpBox.ScrollDown(20), Event::MouseUp, MouseButton::Left, 5, 5);
    EXPECT_EQ(HelpBox.ScrollDown(20).Face, (PictureFace{Picture::DownArrow, 0}));
}

TEST_F(Help, the_upper_arrow_leads_back_to_the_beginning) {
    GotoTopic(4);
    deliverMouse(HelpBox.ScrollDown(20), Event::MouseDown, MouseButton::Left, 5, 5);
    deliver(HelpBox.Timer1, Event::Timer);
    deliver(HelpBox.Timer1, Event::Timer);
    deliverMouse(HelpBox.ScrollDown(20), Event::MouseUp, MouseButton::Left, 5, 5);
    deliverMouse(HelpBox.ScrollUp(20), Event::MouseDown, MouseButton::Left, 5, 5);
    EXPECT_EQ(HelpBox.ScrollUp(20).Face, (PictureFace{Picture::UpArrow, 1}));
    deliver(HelpBox.Timer1, Event::Timer);
    EXPECT_EQ(SliderValues(20).Value, 9);
    EXPECT_EQ(HelpBox.Topic(4).Top, -9);
    for (int tick = 0; tick < 3; ++tick) {
        deliver(HelpBox.Timer1, Event::Timer);
        EXPECT_EQ(SliderValues(20).Value, 0);
    }
    deliverMouse(HelpBox.ScrollUp(20), Event::MouseUp, MouseButton::Left, 5, 5);
    EXPECT_EQ(HelpBox.ScrollUp(20).Face, (PictureFace{Picture::UpArrow, 0}));
}

TEST_F(Help, the_thumb_stays_when_the_pointer_leaves_the_track) {
    GotoTopic(4);
    Image& thumb = HelpBox.Scroller(20);
    const double top = thumb.Top;
    deliverMouse(thumb, Event::MouseDown, MouseButton::Left, 5, 5);
    deliverMouse(thumb, Event::MouseMove, MouseButton::Left, 5, -1);
    EXPECT_EQ(thumb.Top, top);
    deliverMouse(thumb, Event::MouseMove, MouseButton::Left, 5, 2000);
    EXPECT_EQ(thumb.Top, top);
    EXPECT_EQ(SliderValues(20).Value, 0);
}

TEST_F(Help, a_press_on_the_thumb_leaves_every_value) {
    GotoTopic(4);
    Image& thumb = HelpBox.Scroller(20);
    const int most = SliderValues(20).Max;
    while (SliderValues(20).Value < most) {
        scrollHelpPage(1);
        const int before = SliderValues(20).Value;
        const double top = thumb.Top;
        for (int y = 0; y < thumb.Height; ++y) {
            deliverMouse(thumb, Event::MouseDown, MouseButton::Left, 5, y);
            deliverMouse(thumb, Event::MouseUp, MouseButton::Left, 5, y);
            ASSERT_EQ(SliderValues(20).Value, before) << y;
            ASSERT_EQ(thumb.Top, top) << y;
        }
    }
}

void expectHelpPageAt(int value) {
    EXPECT_EQ(SliderValues(20).Value, value);
    EXPECT_EQ(HelpBox.Topic(CurrentTopic).Top, -value);
    const double room = HelpBox.Filler(20).Height - HelpBox.Scroller(20).Height;
    EXPECT_DOUBLE_EQ(
        HelpBox.Scroller(20).Top,
        static_cast<double>(value) / SliderValues(20).Max * room + HelpBox.Filler(20).Top);
}

TEST_F(Help, the_wheel_scrolls_the_page_to_its_very_ends_wherever_it_turns) {
    GotoTopic(4);
    const int most = SliderValues(20).Max;
    ASSERT_GT(most, 100);
    const auto turn = [](double x, double y, double notches) {
        pointerInput(HelpBox, 1, {PointerKind::Wheel, x, y, MouseButton::None, notches});
    };
    turn(300, 200, 1);  // on the page
    expectHelpPageAt(45);
    turn(545, 150, 1);  // on the bar
    expectHelpPageAt(90);
    turn(30, 60, -1);  // on a button
    expectHelpPageAt(45);
    turn(300, 200, 100);
    expectHelpPageAt(most);
    turn(300, 200, -100);
    expectHelpPageAt(0);
}

TEST_F(Help, the_wheel_leaves_a_page_that_is_all_in_sight) {
    GotoTopic(5);
    pointerInput(HelpBox, 1, {PointerKind::Wheel, 300, 200, MouseButton::None, 1});
    EXPECT_EQ(SliderValues(20).Value, 0);
    EXPECT_EQ(HelpBox.Topic(5).Top, 0);
}

TEST_F(Help, a_press_on_the_track_goes_on_by_what_is_in_sight) {
    GotoTopic(4);
    SliderValues(20).Max = 1000;  // a page longer than any
    const auto press = [](double y, MouseButton button = MouseButton::Left) {
        deliverMouse(HelpBox.Filler(20), Event::MouseDown, button, 5, y);
    };
    press(270);
    expectHelpPageAt(304);  // 313 are in sight
    press(270, MouseButton::Right);
    expectHelpPageAt(304);
    press(270);
    press(0);
    expectHelpPageAt(304);
    for (int i = 0; i < 4; ++i) {
        press(276);
    }
    expectHelpPageAt(1000);
    press(276);  // the thumb itself
    expectHelpPageAt(1000);
    GotoTopic(5);
    press(270);
    EXPECT_EQ(HelpBox.Topic(5).Top, 0);
}

TEST_F(Help, the_thumb_is_seen_where_the_page_can_be_scrolled) {
    int longPages = 0;
    HelpBox.Topic.forEach([&longPages](const PictureBox& page) {
        GotoTopic(page.Index);
        const bool isLong = page.Height > HelpBox.Picture1.Height;
        EXPECT_EQ(HelpBox.Scroller(20).Visible, isLong) << page.Index;
        longPages += isLong ? 1 : 0;
    });
    EXPECT_GT(longPages, 1);
    unloadWindow(HelpBox);
    showWindow(HelpBox);
    EXPECT_FALSE(HelpBox.Scroller(20).Visible) << "the contents are short";
}

TEST_F(Help, escape_closes_the_window_and_no_other_key) {
    for (const int code : {key::kReturn, key::kSpace, key::kF1, key::kBackspace}) {
        keyInput(HelpBox, code);
        EXPECT_TRUE(HelpBox.Loaded) << code;
    }
    keyInput(HelpBox, key::kEscape);
    EXPECT_FALSE(HelpBox.Loaded);
    EXPECT_TRUE(Form1.Visible);
}

TEST_F(Help, the_pointer_lights_one_button_at_a_time) {
    const auto point = [](Control& control) {
        deliverMouse(control, Event::MouseMove, MouseButton::None, 3, 3);
    };
    point(HelpBox.NTool(97));
    EXPECT_EQ(OptionStates(97).State, kHover);
    point(HelpBox.LTool(92));
    EXPECT_EQ(OptionStates(97).State, kUp);
    EXPECT_EQ(OptionStates(92).State, kHover);
    deliverMouse(HelpBox.NTool(90), Event::MouseDown, MouseButton::Left, 3, 3);
    point(HelpBox.NTool(90));  // a pressed one stays pressed
    EXPECT_EQ(OptionStates(92).State, kUp);
    EXPECT_EQ(OptionStates(90).State, kOn);
    for (Control* ground :
         {static_cast<Control*>(&HelpBox), static_cast<Control*>(&HelpBox.Topic(1)),
          static_cast<Control*>(&HelpBox.Picture1)}) {
        point(HelpBox.NTool(98));
        EXPECT_EQ(OptionStates(98).State, kHover);
        point(*ground);
        EXPECT_EQ(OptionStates(98).State, kUp);
    }
}

TEST_F(Help, a_held_push_button_goes_down_under_the_pointer) {
    const auto drag = [](Control& control) {
        deliverMouse(control, Event::MouseMove, MouseButton::Left, 3, 3);
    };
    drag(HelpBox.NTool(97));
    EXPECT_EQ(OptionStates(97).State, kOn);
    drag(HelpBox.NTool(97));
    EXPECT_EQ(OptionStates(97).State, kOn);
    drag(HelpBox.NTool(93));  // a page's button is marked by a press alone
    EXPECT_EQ(OptionStates(93).State, kHover);
}

TEST_F(Help, the_right_button_presses_nothing) {
    deliverMouse(HelpBox.NTool(93), Event::MouseDown, MouseButton::Right, 3, 3);
    deliverMouse(HelpBox.NTool(93), Event::MouseUp, MouseButton::Right, 3, 3);
    EXPECT_EQ(OptionStates(93).State, kUp);
    EXPECT_EQ(HelpGroupCurrent(1), 0);
}

TEST_F(Help, a_left_press_on_the_title_moves_the_window) {
    deliverMouse(HelpBox.Label14, Event::MouseDown, MouseButton::Right, 3, 3);
    EXPECT_EQ(platform.Moved, nullptr);
    deliverMouse(HelpBox.Label14, Event::MouseDown, MouseButton::Left, 3, 3);
    EXPECT_EQ(platform.Moved, &HelpBox);
}

}  // namespace

}  // namespace ombrelia
