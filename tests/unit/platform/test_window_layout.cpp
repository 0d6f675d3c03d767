#include <gtest/gtest.h>

#include "platform/window_layout.h"

namespace ombrelia {

namespace {

void expectPlace(const PixelRect& place, int left, int top, int right, int bottom) {
    EXPECT_EQ(place, (PixelRect{left, top, right, bottom}));
}

// A window with a box that has a border, and a part in it that sticks out.
class WindowLayout : public testing::Test {
  protected:
    WindowLayout() {
        window.Width = 200;
        window.Height = 100;
        for (Control* control : {static_cast<Control*>(&box), static_cast<Control*>(&part),
                                 static_cast<Control*>(&line), static_cast<Control*>(&text)}) {
            control->Owner = &window;
            window.Controls.push_back(control);
        }
        box.Parent = &window;
        box.Left = 10;
        box.Top = 20;
        box.Width = 54;
        box.Height = 44;
        box.Border = 2;
        part.Parent = &box;
        part.Left = 40;
        part.Top = 5;
        part.Width = 30;
        part.Height = 10;
        line.Parent = &box;
        text.Parent = &window;
        text.Width = 200;
        text.Height = 16;
        text.Top = 84;
    }

    Window window;
    PictureBox box;
    Image part;
    Line line;
    TextLine text;
};

TEST_F(WindowLayout, parts_lie_where_what_contains_them_lies) {
    expectPlace(deviceRect(window, 1), 0, 0, 200, 100);
    expectPlace(deviceRect(box, 1), 10, 20, 64, 64);
    expectPlace(deviceRect(part, 1), 52, 27, 82, 37);
    expectPlace(deviceRect(part, 2), 104, 54, 164, 74);
}

TEST_F(WindowLayout, edges_are_rounded_each_for_itself) {
    expectPlace(deviceRect(part, 1.25), 65, 34, 103, 46);
    EXPECT_EQ(devicePixels(3, 1.25), 4);
    EXPECT_EQ(devicePixels(-3, 1.25), -4);
}

TEST_F(WindowLayout, what_is_seen_is_cut_to_what_contains_it) {
    expectPlace(visibleDeviceRect(part, 1), 52, 27, 64, 37);
    part.Left = 60;
    EXPECT_TRUE(visibleDeviceRect(part, 1).isEmpty());
}

TEST_F(WindowLayout, what_is_hidden_or_in_what_is_hidden_is_nowhere) {
    part.Visible = false;
    EXPECT_TRUE(visibleDeviceRect(part, 1).isEmpty());
    part.Visible = true;
    box.Visible = false;
    EXPECT_TRUE(visibleDeviceRect(part, 1).isEmpty());
}

TEST_F(WindowLayout, a_line_is_seen_where_its_surface_is) {
    expectPlace(visibleDeviceRect(line, 1), 10, 20, 64, 64);
}

TEST_F(WindowLayout, the_line_of_text_stays_in_a_window_that_is_too_low) {
    expectPlace(deviceRect(text, 1), 0, 84, 200, 100);
    window.Height = 50;
    expectPlace(deviceRect(text, 1), 0, 34, 200, 50);
}

TEST_F(WindowLayout, the_ends_of_a_line_are_middles_of_units) {
    const PixelPoint inUnits = lineEnd(line, 3, 4, 2);
    EXPECT_EQ(inUnits.x, 31);
    EXPECT_EQ(inUnits.y, 53);
    box.Canvas.setSize(100, 80);  // two pixels of the surface to a unit
    const PixelPoint onSurface = lineEnd(line, 6, 8, 2);
    EXPECT_EQ(onSurface.x, 31);
    EXPECT_EQ(onSurface.y, 53);
}

TEST_F(WindowLayout, rectangles_meet_and_join) {
    const PixelRect a{0, 0, 10, 10};
    expectPlace(commonOf(a, {5, 6, 20, 20}), 5, 6, 10, 10);
    EXPECT_EQ(commonOf(a, {5, 6, 20, 20}).width(), 5);
    EXPECT_EQ(commonOf(a, {5, 6, 20, 20}).height(), 4);
    EXPECT_TRUE(commonOf(a, {10, 0, 20, 10}).isEmpty());
    expectPlace(around(a, {5, 6, 20, 8}), 0, 0, 20, 10);
    EXPECT_EQ(around(a, {}), a);
    EXPECT_EQ(around({}, a), a);
}

}  // namespace

}  // namespace ombrelia
