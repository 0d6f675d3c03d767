#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "core/button_numbers.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "editor_fixture.h"
#include "platform/dispatch.h"
#include "platform/pointer.h"
#include "platform/services.h"
#include "platform/window_life.h"

namespace ombrelia {

namespace {

using Log = std::vector<std::string>;
Log heard;
EventArgs lastArgs;
void (*onEvent)() = nullptr;

void note(EventArgs& args, const char* word) {
    lastArgs = args;
    heard.push_back(args.Source->Name + " " + word);
    if (onEvent != nullptr) {
        onEvent();
    }
}

constexpr struct {
    Event event;
    Handler handler;
} kAll[] = {
    {Event::MouseDown, [](EventArgs& args) { note(args, "down"); }},
    {Event::MouseMove, [](EventArgs& args) { note(args, "move"); }},
    {Event::MouseUp, [](EventArgs& args) { note(args, "up"); }},
    {Event::Click, [](EventArgs& args) { note(args, "click"); }},
    {Event::DragOver, [](EventArgs& args) { note(args, "over"); }},
    {Event::DragDrop, [](EventArgs& args) { note(args, "drop"); }},
};

void listen(Control& control) {
    for (const auto& row : kAll) {
        control.On[static_cast<std::size_t>(row.event)] = row.handler;
    }
}

// A window of 100 x 80: a face at (10, 10) of 40 x 20 with a text on it, a surface with a border of
// 2 at (60, 10), a quiet part that hears nothing at (10, 50).
class Pointer : public ProcessTest {
  protected:
    Pointer() {
        heard.clear();
        onEvent = nullptr;
        window.Name = "window";
        window.Owner = &window;
        window.Width = 100;
        window.Height = 80;
        window.Loaded = true;
        window.Visible = true;
        listen(window);
        put(face, "face", 10, 10, 40, 20);
        put(text, "text", 20, 15, 20, 10);
        text.LiesOn = &face;
        put(surface, "surface", 60, 10, 24, 24);
        surface.Border = 2;
        surface.makeCanvas();
        put(quiet, "quiet", 10, 50, 20, 20);
        for (Control* part : std::array<Control*, 3>{&face, &text, &surface}) {
            listen(*part);
        }
    }

    void put(Control& control, const char* name, double left, double top, double width,
             double height) {
        control.Name = name;
        control.Parent = &window;
        control.Owner = &window;
        control.Left = left;
        control.Top = top;
        control.Width = width;
        control.Height = height;
        window.Controls.push_back(&control);
    }

    void give(PointerKind kind, double x, double y, MouseButton button = MouseButton::Left,
              double scale = 1) {
        pointerInput(window, scale, {kind, x, y, button});
    }
    void move(double x, double y) { give(PointerKind::Move, x, y, MouseButton::None); }
    void press(double x, double y) { give(PointerKind::Press, x, y); }
    void release(double x, double y) { give(PointerKind::Release, x, y); }

    Window window;
    Image face;
    Label text;
    PictureBox surface;
    Image quiet;
};

TEST_F(Pointer, a_click_is_a_press_and_a_release_on_one_part) {
    move(12, 12);
    press(12, 12);
    release(49, 29);
    EXPECT_EQ(heard, (Log{"face move", "face down", "face up", "face click"}));
}

TEST_F(Pointer, the_pressed_part_keeps_the_pointer_wherever_it_goes) {
    press(12, 12);
    move(70, 20);
    EXPECT_EQ(lastArgs.Button, MouseButton::Left);
    move(-50, 200);
    release(70, 20);
    EXPECT_EQ(heard, (Log{"face down", "face move", "face move", "face up"}));
    move(70, 20);
    EXPECT_EQ(heard.back(), "surface move");
    EXPECT_EQ(lastArgs.Button, MouseButton::None);
}

TEST_F(Pointer, a_face_and_its_text_are_one_button) {
    press(12, 12);
    release(25, 18);
    press(25, 18);
    release(12, 12);
    EXPECT_EQ(heard,
              (Log{"face down", "face up", "face click", "text down", "text up", "text click"}));
}

TEST_F(Pointer, a_part_without_handlers_is_the_background) {
    move(15, 55);
    press(15, 55);
    release(90, 70);
    EXPECT_EQ(heard, (Log{"window move", "window down", "window up", "window click"}));
}

TEST_F(Pointer, a_release_beyond_the_window_is_no_click) {
    press(90, 70);
    release(100, 70);
    EXPECT_EQ(heard, (Log{"window down", "window up"}));
}

TEST_F(Pointer, the_frame_of_a_surface_gets_nothing) {
    press(61, 20);
    release(70, 20);
    move(60, 20);
    EXPECT_TRUE(heard.empty());
    EXPECT_EQ(window.PointerX, 60);
    press(62, 12);
    EXPECT_EQ(heard, Log{"surface down"});
    EXPECT_EQ(lastArgs.X, 0);
}

TEST_F(Pointer, a_press_on_a_disabled_part_has_no_release) {
    face.Enabled = false;
    press(12, 12);
    move(13, 12);
    face.Enabled = true;
    move(14, 12);
    release(14, 12);
    EXPECT_TRUE(heard.empty());
    EXPECT_EQ(window.PointerX, 14);
    press(14, 12);
    EXPECT_EQ(heard, Log{"face down"});
}

TEST_F(Pointer, a_part_that_was_disabled_under_the_button_gets_no_release_either) {
    press(12, 12);
    face.Enabled = false;
    release(12, 12);
    EXPECT_EQ(heard, Log{"face down"});
}

TEST_F(Pointer, a_disabled_part_is_no_background) {
    quiet.Enabled = false;
    move(15, 55);
    press(15, 55);
    EXPECT_TRUE(heard.empty());
}

TEST_F(Pointer, one_button_counts_at_a_time) {
    press(12, 12);
    give(PointerKind::Press, 12, 12, MouseButton::Right);
    give(PointerKind::Release, 12, 12, MouseButton::Right);
    release(12, 12);
    EXPECT_EQ(heard, (Log{"face down", "face up", "face click"}));
}

TEST_F(Pointer, the_right_button_makes_no_click) {
    give(PointerKind::Press, 12, 12, MouseButton::Right);
    give(PointerKind::Release, 12, 12, MouseButton::Right);
    EXPECT_EQ(heard, (Log{"face down", "face up"}));
}

TEST_F(Pointer, a_lost_release_does_not_hold_the_pointer_for_ever) {
    press(12, 12);
    press(70, 20);
    release(70, 20);
    EXPECT_EQ(heard, (Log{"face down", "surface down", "surface up", "surface click"}));
}

TEST_F(Pointer, a_second_press_is_a_press_where_nothing_waits_for_a_double_click) {
    press(12, 12);
    release(12, 12);
    give(PointerKind::SecondPress, 12, 12);
    release(12, 12);
    EXPECT_EQ(heard,
              (Log{"face down", "face up", "face click", "face down", "face up", "face click"}));
}

TEST_F(Pointer, a_double_click_takes_the_place_of_the_second_press_and_has_no_click) {
    face.On[static_cast<std::size_t>(Event::DblClick)] = [](EventArgs& args) {
        heard.push_back(args.Source->Name + " double");
    };
    press(12, 12);
    release(12, 12);
    give(PointerKind::SecondPress, 12, 12);
    release(12, 12);
    EXPECT_EQ(heard, (Log{"face down", "face up", "face click", "face double", "face up"}));
}

TEST_F(Pointer, a_second_press_on_another_part_is_its_first) {
    face.On[static_cast<std::size_t>(Event::DblClick)] = [](EventArgs&) {
        heard.emplace_back("double");
    };
    press(70, 20);
    release(70, 20);
    heard.clear();
    give(PointerKind::SecondPress, 12, 12);
    EXPECT_EQ(heard, Log{"face down"});
}

TEST_F(Pointer, a_drag_speaks_to_what_lies_under_it_and_drops_on_the_background_elsewhere) {
    quiet.On[static_cast<std::size_t>(Event::Click)] = [](EventArgs&) {};
    onEvent = [] {
        if (heard.back() == "face down") {
            beginDrag(*lastArgs.Source);
        }
    };
    press(12, 12);
    EXPECT_EQ(platform.Dragged, &face);
    move(70, 20);
    EXPECT_EQ(lastArgs.Dragged, &face);
    move(15, 55);
    release(15, 55);
    EXPECT_EQ(lastArgs.Dragged, &face);
    EXPECT_EQ(heard, (Log{"face down", "surface over", "window over", "window drop"}));
    move(12, 12);
    EXPECT_EQ(heard.back(), "face move");
}

TEST_F(Pointer, a_drop_on_a_disabled_part_is_one_on_the_background) {
    onEvent = [] {
        if (heard.back() == "face down") {
            beginDrag(*lastArgs.Source);
        }
    };
    surface.Enabled = false;
    press(12, 12);
    release(70, 20);
    EXPECT_EQ(heard, (Log{"face down", "window drop"}));
}

TEST_F(Pointer, whoever_leaves_the_window_is_over_no_part) {
    move(12, 12);
    give(PointerKind::Leave, 0, 0, MouseButton::None);
    EXPECT_EQ(heard, (Log{"face move", "window move"}));
    EXPECT_EQ(window.PointerX, -1);
    press(12, 12);
    heard.clear();
    give(PointerKind::Leave, 0, 0, MouseButton::None);
    EXPECT_TRUE(heard.empty());
}

TEST_F(Pointer, a_window_that_goes_away_under_the_button_takes_the_press_along) {
    onEvent = [] {
        if (heard.back() == "face down") {
            unloadWindow(*lastArgs.Source->Owner);
        }
    };
    press(12, 12);
    window.Loaded = true;
    window.Visible = true;
    release(12, 12);
    EXPECT_EQ(heard, Log{"face down"});
    onEvent = nullptr;
    give(PointerKind::Press, 12, 12, MouseButton::Right);
    EXPECT_EQ(heard, (Log{"face down", "face down"}));
}

TEST_F(Pointer, a_window_that_its_release_closed_gets_no_click) {
    onEvent = [] {
        if (heard.back() == "face up") {
            unloadWindow(*lastArgs.Source->Owner);
        }
    };
    press(12, 12);
    release(12, 12);
    EXPECT_EQ(heard, (Log{"face down", "face up"}));
    move(12, 12);
    EXPECT_EQ(heard.size(), 2U);
}

TEST_F(Pointer, images_and_labels_get_whole_units_and_surfaces_parts_of_them) {
    face.Left = 10.4;  // seen from 10 on, on a screen of scale 1
    for (const double scale : {1.25, 1.5, 1.75, 2.0, 2.5, 3.0, 4.0}) {
        for (int pixel = 0; pixel < 100 * scale; ++pixel) {
            heard.clear();
            give(PointerKind::Move, pixel, 12 * scale, MouseButton::None, scale);
            if (!heard.empty() && heard[0] != "window move" && heard[0] != "surface move") {
                EXPECT_EQ(lastArgs.X / kTwipsPerPixel, std::floor(lastArgs.X / kTwipsPerPixel))
                    << heard[0] << " at " << pixel << ", scale " << scale;
            }
        }
    }
    give(PointerKind::Press, 125, 41, MouseButton::Left, 2);
    EXPECT_EQ(heard.back(), "surface down");
    EXPECT_EQ(lastArgs.X, 0.5);
    EXPECT_EQ(lastArgs.Y, 8.5);
}

TEST_F(Pointer, a_place_is_the_device_pixel_that_it_lies_in) {
    give(PointerKind::Press, 124.997, 40.99, MouseButton::Left, 2);
    EXPECT_EQ(heard.back(), "surface down");
    EXPECT_EQ(lastArgs.X, 0.5) << "a rounding error is none";
    EXPECT_EQ(lastArgs.Y, 8);
}

TEST_F(Pointer, a_pixel_belongs_to_the_part_under_its_middle) {
    face.Left = 10.2;  // at scale 1.25 its first pixel begins at 12.75, which is painted from 13 on
    give(PointerKind::Move, 12, 20, MouseButton::None, 1.25);
    EXPECT_EQ(heard.back(), "window move");
    give(PointerKind::Move, 13, 20, MouseButton::None, 1.25);
    EXPECT_EQ(heard.back(), "face move");
}

class ListOpener : public HeadlessPlatform {
  public:
    void openList(ListBox& list) override { opened = &list; }
    ListBox* opened = nullptr;
};

TEST_F(Pointer, a_left_press_opens_a_list_and_holds_nothing) {
    ListOpener opener;
    opener.install();
    ListBox list;
    put(list, "list", 60, 50, 30, 20);
    give(PointerKind::Press, 65, 55, MouseButton::Right);
    EXPECT_EQ(opener.opened, nullptr);
    press(65, 55);
    EXPECT_EQ(opener.opened, &list);
    press(12, 12);
    EXPECT_EQ(heard, Log{"face down"});
    list.Enabled = false;
    opener.opened = nullptr;
    release(12, 12);
    press(65, 55);
    EXPECT_EQ(opener.opened, nullptr);
}

TEST_F(Pointer, a_press_without_the_pointer_comes_and_goes) {
    move(70, 20);
    heard.clear();
    pressWithoutPointer(face);
    EXPECT_EQ(heard, (Log{"face move", "face down", "face up", "face click", "window move"}));
    EXPECT_EQ(window.PointerX, 70);
    face.Enabled = false;
    pressWithoutPointer(face);
    EXPECT_EQ(heard.size(), 5U);
}

TEST_F(Pointer, keys_go_to_the_part_that_takes_them_and_else_to_the_window) {
    const Handler key = [](EventArgs& args) {
        heard.push_back(args.Source->Name + " " + std::to_string(args.KeyCode));
    };
    constexpr auto kKeyDown = static_cast<std::size_t>(Event::KeyDown);
    window.On[kKeyDown] = key;
    keyInput(window, 37);
    surface.On[kKeyDown] = key;
    keyInput(window, 38);
    surface.Visible = false;
    keyInput(window, 39);
    surface.Visible = true;
    surface.Enabled = false;
    keyInput(window, 40);
    EXPECT_EQ(heard, (Log{"window 37", "surface 38", "window 39", "window 40"}));
    window.Loaded = false;
    keyInput(window, 41);
    EXPECT_EQ(heard.size(), 4U);
}

// The wheel over the box of a window that hears of it, and over a part inside the box.
class WheelOver : public Pointer {
  protected:
    WheelOver() {
        for (Control* part : std::array<Control*, 2>{&window, &surface}) {
            part->On[static_cast<std::size_t>(Event::Wheel)] = [](EventArgs& args) {
                lastArgs = args;
                heard.push_back(args.Source->Name + " wheel " + std::to_string(args.Steps));
                if (onEvent != nullptr) {
                    onEvent();
                }
            };
        }
        put(inside, "inside", 2, 2, 10, 10);
        inside.Parent = &surface;
        listen(inside);
    }

    void turn(double x, double y, double notches, double scale = 1) {
        pointerInput(window, scale, {PointerKind::Wheel, x, y, MouseButton::None, notches});
    }

    Image inside;
};

TEST_F(WheelOver, speaks_to_the_part_to_what_contains_it_and_at_last_to_the_window) {
    turn(80, 20, 1);
    turn(66, 16, -2);
    turn(12, 12, 1);
    turn(15, 55, 3);
    EXPECT_EQ(heard, (Log{"surface wheel 5", "surface move", "surface wheel -10", "inside move",
                          "window wheel 5", "face move", "window wheel 15", "window move"}));
}

TEST_F(WheelOver, has_the_places_of_the_scale) {
    turn(2.5 * 80, 2.5 * 20, 1, 2.5);
    EXPECT_EQ(heard[0], "surface wheel 5");
}

TEST_F(WheelOver, says_nothing_where_nobody_hears) {
    window.On[static_cast<std::size_t>(Event::Wheel)] = nullptr;
    turn(12, 12, 1);
    EXPECT_TRUE(heard.empty());
}

TEST_F(WheelOver, says_nothing_on_a_disabled_part_or_inside_one) {
    inside.Enabled = false;
    turn(66, 16, 1);
    inside.Enabled = true;
    surface.Enabled = false;
    turn(66, 16, 1);
    turn(80, 20, 1);
    EXPECT_TRUE(heard.empty());
    window.Visible = false;
    turn(12, 12, 1);
    EXPECT_TRUE(heard.empty());
}

TEST_F(Pointer, a_window_is_seen_with_the_one_that_it_docks_to) {
    Window host;
    window.DockedTo = &host;
    EXPECT_FALSE(isSeen(window));
    move(12, 12);
    EXPECT_EQ(heard, Log{});
    host.Loaded = true;
    host.Visible = true;
    move(12, 12);
    EXPECT_EQ(heard, Log{"face move"});
    host.Minimized = true;
    EXPECT_FALSE(isSeen(window));
    window.DockedTo = nullptr;
}

TEST_F(WheelOver, waits_for_no_held_button) {
    press(80, 20);
    turn(80, 20, 1);
    release(80, 20);
    EXPECT_EQ(heard, (Log{"surface down", "surface up", "surface click"}));
}

TEST_F(WheelOver, adds_up_what_is_less_than_a_step) {
    for (int i = 0; i < 8; ++i) {
        turn(12, 12, 0.125);  // of 5 steps: 0.625
    }
    int steps = 0;
    for (const std::string& line : heard) {
        steps += line == "window wheel 1" ? 1 : 0;
    }
    EXPECT_EQ(steps, 5);
    heard.clear();
    turn(12, 12, 0.15);
    turn(12, 12, -0.15);  // the other way begins anew
    turn(12, 12, -0.05);
    EXPECT_EQ(heard, (Log{"window wheel -1", "face move"}));
    heard.clear();
    turn(12, 12, 0.15);
    turn(80, 20, 0.15);  // so does another part
    EXPECT_TRUE(heard.empty());
}

TEST_F(WheelOver, moves_over_no_window_that_it_closed) {
    onEvent = [] { unloadWindow(*lastArgs.Source->Owner); };
    turn(12, 12, 1);
    EXPECT_EQ(heard, Log{"window wheel 5"});
}

TEST_F(Pointer, a_press_without_the_pointer_waits_for_no_held_button) {
    press(70, 20);
    pressWithoutPointer(face);
    release(70, 20);
    EXPECT_EQ(heard, (Log{"surface down", "surface up", "surface click"}));
}

using PointerInEditor = EditorTest;

// A box that assistive technology switches off is off, not lit as under a pointer.
TEST_F(PointerInEditor, a_check_box_switched_off_without_the_pointer_is_off) {
    for (const int box : {button::kAutoRefresh, button::kUseSounds}) {
        const int before = OptionStates(box).State;
        pressWithoutPointer(Form1.NTool(box));
        EXPECT_EQ(OptionStates(box).State, before == 2 ? 0 : 2) << box;
        pressWithoutPointer(Form1.NTool(box));
        EXPECT_EQ(OptionStates(box).State, before) << box;
    }
}

}  // namespace

}  // namespace ombrelia
