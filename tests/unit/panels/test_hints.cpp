#include "core/button_numbers.h"
#include "core/objects.h"
#include "core/option_strip_table.h"
#include "core/windows/form1.h"
#include "core/windows/small_windows.h"
#include "editor_fixture.h"
#include "panels/hints.h"
#include "panels/second_hints_table.h"
#include "platform/dispatch.h"

namespace ombrelia {

namespace {

class Hints : public EditorTest {
  protected:
    static std::string moveOver(Control& control) {
        HelpFrm.HelpLbl.Caption = "nothing";
        deliverMouse(control, Event::MouseMove, MouseButton::None, 1, 1);
        return HelpFrm.HelpLbl.Caption;
    }
};

TEST_F(Hints, every_button_tells_its_sentence_through_face_icon_and_text) {
    for (const SecondCopy& row : kSecondButtonHints) {
        ASSERT_TRUE(Form1.NTool.has(row.number)) << row.number;
        EXPECT_EQ(moveOver(Form1.NTool(row.number)), row.text);
        if (Form1.NTool.has(row.number + kOverlayOffset)) {
            EXPECT_EQ(moveOver(Form1.NTool(row.number + kOverlayOffset)), row.text);
        }
        if (Form1.LTool.has(row.number)) {
            EXPECT_EQ(moveOver(Form1.LTool(row.number)), row.text);
        }
    }
}

TEST_F(Hints, no_button_is_without_one) {
    for (int i = 0; i <= button::kLastOfEditor; ++i) {
        if (Form1.NTool.has(i)) {
            EXPECT_NE(moveOver(Form1.NTool(i)), "nothing") << i;
        }
    }
}

TEST_F(Hints, a_number_without_a_sentence_changes_nothing) {
    HelpFrm.HelpLbl.Caption = "before";
    showButtonHint(39);
    showSliderHint(0);
    showSliderHint(slider::kLast + 1);
    EXPECT_EQ(HelpFrm.HelpLbl.Caption, "before");
}

TEST_F(Hints, every_slider_tells_its_sentence) {
    for (const SecondCopy& row : kSecondSliderHints) {
        EXPECT_EQ(moveOver(Form1.VertScroller(row.number)), row.text);
    }
}

TEST_F(Hints, the_other_parts_tell_theirs) {
    EXPECT_EQ(moveOver(Form1.OptFrame(3)), "Click && Drag here to scroll the box up or down.");
    EXPECT_EQ(moveOver(Form1.PickedColor), "This shows the currently selected color.");
    EXPECT_EQ(moveOver(Form1.Picture3), "This shows the currently selected color.");
    EXPECT_EQ(moveOver(Form1.Picker),
              "This is the color picker. Click on a color to select it, for use with the Pencil "
              "and Line tools.");
    EXPECT_EQ(moveOver(Form1.Range(2)),
              "Click && Drag this slider to set the length && size of the gradient.");
    EXPECT_EQ(moveOver(Form1.Rng1(7)), "Click here to change the current color for this box.");
    EXPECT_EQ(moveOver(Form1.ZoomView),
              "This shows a zoomed-up view of the map under the cursor, for precise work.");
    EXPECT_EQ(moveOver(Form1.Label11), "This is the title bar. Click and drag to move the window.");
    EXPECT_EQ(moveOver(HelpFrm.HelpLbl),
              "Double-Click here to hide this help box. You can make me re-appear in the Options "
              "dialog.");
}

TEST_F(Hints, parts_without_a_sentence_leave_the_one_before) {
    EXPECT_EQ(moveOver(Form1.Picture1), "nothing");
    EXPECT_EQ(moveOver(Form1.Combo1), "nothing");
    EXPECT_EQ(moveOver(Form1.Filler(0)), "nothing");
    EXPECT_EQ(moveOver(Form1), "nothing");
}

struct MapCase {
    int button;
    int with;
    const char* text;
};
constexpr MapCase kMapCases[] = {
    {0, 0, "If you click && drag now, you will draw a pencil line."},
    {1, 1, "If you click && drag now, you will draw a line."},
    {2, 2, "If you click && drag now, you will be raising the terrain."},
    {3, 3, "If you click && drag now, you will be lowering the terrain."},
    {4, 4, "If you click now, nothing will happen."},
    {6, 40, "If you click && drag now, you will rotate around the 3D object."},
    {6, 41, "If you click && drag now, you will pan the 3D object around the screen."},
    {6, 42, "If you click && drag now, you will zoom in or out on the 3D object."},
    {7, 7, "If you click now, the color you clicked on will become seleced in the color picker."},
    {8, 8,
     "If you click now, you will generate a mountain at this spot with your specified settings."},
    {9, 9, "If you click && drag now, you will generate a canyon along the line you drag."},
    {10, 10,
     "If you click now, you will generate a plain with a height of the point where you clicked."},
};

TEST_F(Hints, the_map_tells_what_the_selected_tool_does) {
    for (const MapCase& row : kMapCases) {
        for (int i = 0; i <= button::kLastOfEditor; ++i) {
            OptionStates(i).State = i == row.button || i == row.with ? kOn : kUp;
        }
        EXPECT_EQ(moveOver(Form1.MapView), std::string("This is the map view. ") + row.text);
    }
}

TEST_F(Hints, the_map_adds_the_sentences_in_the_order_of_the_tools) {
    for (int i = 0; i <= button::kZoom3D; ++i) {
        OptionStates(i).State = kOn;
    }
    std::string all = "This is the map view. ";
    for (const MapCase& row : kMapCases) {
        all += row.text;
    }
    EXPECT_EQ(moveOver(Form1.MapView), all);
}

}  // namespace

}  // namespace ombrelia
