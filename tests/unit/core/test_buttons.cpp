#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "core/windows/small_windows.h"
#include "editor_fixture.h"
#include "platform/window_life.h"

namespace ombrelia {

namespace {

class Buttons : public EditorTest {
  protected:
    static void paint(int i, int state) {
        OptionStates(i).State = static_cast<std::int16_t>(state);
        DrawButton(i);
    }
};

TEST_F(Buttons, each_kind_has_its_picture_and_each_state_its_face) {
    const struct {
        int button;
        Picture picture;
    } cases[] = {{12, Picture::Stand}, {11, Picture::CloseB}, {0, Picture::PicButton},
                 {24, Picture::OkB},   {25, Picture::MinB},   {30, Picture::SmlBut},
                 {60, Picture::Opt}};
    for (const auto& row : cases) {
        for (const int state : {0, 1, 2}) {
            paint(row.button, state);
            EXPECT_EQ(Form1.NTool(row.button).Face, (PictureFace{row.picture, state}))
                << row.button;
        }
    }
}

TEST_F(Buttons, a_kind_without_faces_is_not_painted) {
    paint(12, kOn);
    OptionStates(12).Kind = 3;
    const double left = Form1.LTool(12).Left;
    paint(12, kUp);
    EXPECT_EQ(Form1.NTool(12).Face, (PictureFace{Picture::Stand, kOn}));
    EXPECT_EQ(Form1.LTool(12).Left, left);
}

TEST_F(Buttons, what_lies_on_a_face_moves_when_it_is_pressed) {
    for (const int state : {0, 1, 2}) {
        const double pressed = state == 2 ? 1 : 0;
        paint(12, state);
        EXPECT_EQ(Form1.LTool(12).Left, Form1.NTool(12).Left + 9 + pressed);
        EXPECT_EQ(Form1.LTool(12).Top, Form1.NTool(12).Top + 8 + pressed);
        paint(0, state);
        EXPECT_EQ(Form1.NTool(100).Left, Form1.NTool(0).Left + 9 + pressed);
        EXPECT_EQ(Form1.NTool(100).Top, Form1.NTool(0).Top + 8 + pressed);
        paint(30, state);
        EXPECT_EQ(Form1.NTool(130).Left, Form1.NTool(30).Left + pressed);
        EXPECT_EQ(Form1.NTool(130).Top, Form1.NTool(30).Top + pressed);
    }
}

TEST_F(Buttons, a_state_without_a_face_keeps_the_face) {
    paint(67, 2);
    paint(67, 78);
    EXPECT_EQ(Form1.NTool(67).Face, (PictureFace{Picture::Opt, 2}));
    paint(67, -1);
    EXPECT_EQ(Form1.NTool(67).Face, (PictureFace{Picture::Opt, 2}));
}

TEST_F(Buttons, a_number_without_a_button_paints_nothing) {
    DrawButton(39);
    DrawButton(75);
    EXPECT_THROW(DrawButton(101), SubscriptFailure);
}

TEST_F(Buttons, on_is_state_2_alone) {
    for (const int state : {0, 1, 2, 78}) {
        OptionStates(66).State = static_cast<std::int16_t>(state);
        EXPECT_EQ(isOn(66), state == 2);
    }
}

TEST_F(Buttons, the_size_dialog_has_buttons_of_two_kinds) {
    loadWindow(SizeSelect);
    for (int i = 80; i <= 84; ++i) {
        EXPECT_EQ(OptionStates(i), (ButtonRecord{0, 1, 0, 0, 0, 0}));
        OptionStates(i).State = 2;
        DrawSizeButton(i);
        EXPECT_EQ(SizeSelect.NTool(i).Face, (PictureFace{Picture::Stand, 2}));
        EXPECT_EQ(SizeSelect.LTool(i).Left, SizeSelect.NTool(i).Left + 10);
    }
    EXPECT_EQ(OptionStates(85), (ButtonRecord{0, 2, 0, 0, 0, 0}));
    OptionStates(85).State = 1;
    DrawSizeButton(85);
    EXPECT_EQ(SizeSelect.NTool(85).Face, (PictureFace{Picture::CloseB, 1}));
}

}  // namespace

}  // namespace ombrelia
