#include <gtest/gtest.h>
#include <vector>

#include "platform/window_look.h"

namespace ombrelia {

namespace {

class WindowLooks : public testing::Test {
  protected:
    WindowLooks() {
        window.Width = 100;
        window.Height = 50;
        for (Control* control : {static_cast<Control*>(&label), static_cast<Control*>(&box),
                                 static_cast<Control*>(&line)}) {
            control->Owner = &window;
            control->Parent = &window;
            window.Controls.push_back(control);
        }
        line.Parent = &box;
        label.Width = 40;
        label.Height = 10;
        box.Left = 50;
        box.Width = 20;
        box.Height = 20;
        box.makeCanvas();
        look();
    }

    // Whether anything differs; what is written down by told and places.
    bool look() {
        told.clear();
        places.clear();
        return looks.update(window, 1, [this](const PixelRect& place, Control* part) {
            told.push_back(part);
            places.push_back(place);
        });
    }

    Window window;
    Label label;
    PictureBox box;
    Line line;
    WindowLook looks;
    std::vector<Control*> told;
    std::vector<PixelRect> places;
};

using Parts = std::vector<Control*>;

TEST_F(WindowLooks, at_first_all_is_to_be_painted) {
    looks.forget();
    EXPECT_TRUE(look());
    EXPECT_EQ(told, (Parts{nullptr, &label, &box, &line}));
    EXPECT_EQ(places.front(), (PixelRect{0, 0, 100, 50}));
}

TEST_F(WindowLooks, what_stays_is_not_painted_again) {
    EXPECT_FALSE(look());
    EXPECT_TRUE(told.empty());
}

TEST_F(WindowLooks, every_change_that_is_seen_is_found) {
    const auto expectChange = [this](Control& part) {
        EXPECT_TRUE(look());
        EXPECT_EQ(told, (Parts{&part}));
        EXPECT_FALSE(look());
    };
    label.Caption = "new";
    expectChange(label);
    label.ForeColor = rgb(1, 2, 3);
    expectChange(label);
    label.Face = {Picture::Traffic, 1};
    expectChange(label);
    label.Enabled = false;
    expectChange(label);
    box.Canvas.setPixel(1, 1, rgb(9, 9, 9));
    expectChange(box);
    box.BackColor = rgb(4, 5, 6);
    expectChange(box);
    line.X2 = 3;
    expectChange(line);
    line.BorderColor = rgb(7, 7, 7);
    expectChange(line);
    line.BorderWidth = 3;
    expectChange(line);
}

TEST_F(WindowLooks, what_moves_is_painted_where_it_was_and_where_it_is) {
    label.Left = 5;
    label.Top = 30;
    EXPECT_TRUE(look());
    EXPECT_EQ(places, (std::vector<PixelRect>{{0, 0, 45, 40}}));
    label.Visible = false;
    EXPECT_TRUE(look());
    EXPECT_EQ(places, (std::vector<PixelRect>{{5, 30, 45, 40}}));
}

TEST_F(WindowLooks, another_ground_is_painted_whole) {
    window.Face = {Picture::Splash, 0};
    EXPECT_TRUE(look());
    EXPECT_EQ(told, (Parts{nullptr}));
}

}  // namespace

}  // namespace ombrelia
