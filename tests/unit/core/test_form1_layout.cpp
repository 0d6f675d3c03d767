// What a designer would measure on the editor's window.
#include <string>
#include <vector>

#include "core/option_strip_table.h"
#include "core/windows/form1.h"
#include "editor_fixture.h"

namespace ombrelia {

namespace {

constexpr double kLeastGap = 4;    // units
constexpr double kShadow = 1;      // below a button's face, part of its picture
constexpr double kRuleBelow = 17;  // lower edge of the rule under a page's caption

bool isFace(const Control& part) {
    return part.Name == "NTool" &&
           (part.Face.picture == Picture::Stand || part.Face.picture == Picture::PicButton);
}

// What stands in a frame for the hand: faces of buttons, lists, strips, swatches.
std::vector<const Control*> partsOf(const Control& frame) {
    std::vector<const Control*> parts;
    for (const Control* part : Form1.Controls) {
        if (part->Parent == &frame && (isFace(*part) || part->Name == "Combo1" ||
                                       part->Name == "PrefPicker" || part->Name == "Rng1")) {
            parts.push_back(part);
        }
    }
    return parts;
}

double bottomOf(const Control& part) {
    return part.Top + part.Height - (isFace(part) ? kShadow : 0);
}

class Form1Layout : public EditorTest {};

TEST_F(Form1Layout, what_stands_on_the_fullest_pages_has_room_to_breathe) {
    for (const int page : {page::kMenu, page::kColors}) {
        const std::vector<const Control*> parts = partsOf(Form1.OptFrame(page));
        ASSERT_GE(parts.size(), 5U);
        for (const Control* part : parts) {
            EXPECT_GE(part->Top, kRuleBelow + kLeastGap) << part->Name << " " << part->Index;
            for (const Control* other : parts) {
                if (other->Top > part->Top && other->Left < part->Left + part->Width &&
                    part->Left < other->Left + other->Width) {
                    EXPECT_GE(other->Top, bottomOf(*part) + kLeastGap)
                        << part->Name << " " << part->Index << " and " << other->Name << " "
                        << other->Index;
                }
            }
        }
    }
}

TEST_F(Form1Layout, the_buttons_of_each_group_have_the_same_margin_on_both_sides) {
    for (const PictureBox* frame :
         {&Form1.ViewFrame, &Form1.TwoFrame, &Form1.ThreeFrame, &Form1.MenuFrame}) {
        const std::vector<const Control*> parts = partsOf(*frame);
        ASSERT_GE(parts.size(), 2U);
        const double left = parts.front()->Left;
        const double right = frame->Width - parts.back()->Left - parts.back()->Width;
        EXPECT_GE(left, 2) << frame->Name;
        EXPECT_NEAR(left, right, 1) << frame->Name;
    }
    EXPECT_EQ(partsOf(Form1.TwoFrame)[0]->Top, partsOf(Form1.ThreeFrame)[0]->Top);
}

}  // namespace

}  // namespace ombrelia
