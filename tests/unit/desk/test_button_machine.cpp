// Properties of the button machine under random presses, moves and releases, and the hidden drag.
#include <random>
#include <vector>

#include "core/button_numbers.h"
#include "core/button_table.h"
#include "core/buttons.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "editor_fixture.h"
#include "platform/dispatch.h"

namespace ombrelia {

namespace {

// Commands that leave the window or ask something; the others stay where they are.
bool staysOnTheDesk(int i) {
    return i != button::kClose && i != button::kExit && i != button::kNewMap &&
           i != button::kMinimize && i != button::kAbout;
}

class ButtonMachine : public EditorTest {
  protected:
    // Every face, icon and text that a mouse event can reach.
    static std::vector<Control*> targets() {
        std::vector<Control*> found;
        for (Control* control : Form1.Controls) {
            const bool isButton = control->Name == "NTool" || control->Name == "LTool";
            if (isButton && staysOnTheDesk(control->Index % kOverlayOffset)) {
                found.push_back(control);
            }
        }
        return found;
    }

    static Picture facePictureOf(int i) { return Form1.NTool(i).Face.picture; }

    static void expectOneInEachGroup() {
        // In perspective no drawing tool is on, and the group's current member waits.
        for (const int group : {2, 4, 5, 6, 8, 9}) {
            int on = 0;
            for (const ButtonRow& row : button::kRows) {
                if (row.start.group == group && OptionStates(row.number).State == kOn) {
                    ++on;
                    EXPECT_EQ(GroupCurrent(group), row.number);
                }
            }
            EXPECT_LE(on, 1) << "group " << group;
        }
        int tools = 0;
        for (const ButtonRow& row : button::kRows) {
            tools += row.start.group == 1 && OptionStates(row.number).State == kOn ? 1 : 0;
        }
        EXPECT_LE(tools, 1);
    }

    static void expectFacesMatch() {
        for (const ButtonRow& row : button::kRows) {
            const int state = OptionStates(row.number).State;
            ASSERT_TRUE(state == kUp || state == kHover || state == kOn) << row.number;
            EXPECT_EQ(Form1.NTool(row.number).Face.face, state) << row.number;
        }
    }
};

}  // namespace

TEST_F(ButtonMachine, random_events_keep_the_invariants) {
    platform.RandomState = 1;  // for the generator, should its button be pressed
    SliderValues(14).Value = 1;
    const std::vector<Control*> controls = targets();
    ASSERT_GT(controls.size(), 90U);
    for (const unsigned seed : {1U, 2U, 3U, 4U}) {
        std::mt19937 random(seed);
        SCOPED_TRACE("seed " + std::to_string(seed));
        for (int step = 0; step < 8000; ++step) {
            Control& control = *controls[random() % controls.size()];
            constexpr Event kEvents[] = {Event::MouseDown, Event::MouseMove, Event::MouseUp};
            constexpr MouseButton kButtons[] = {MouseButton::Left, MouseButton::Left,
                                                MouseButton::None, MouseButton::Right};
            const double x = static_cast<double>(random() % 160) - 20;
            const double y = static_cast<double>(random() % 80) - 20;
            deliverMouse(control, kEvents[random() % 3], kButtons[random() % 4], x, y);
            if (random() % 8 == 0) {
                deliver(Form1.Timer1, Event::Timer);
            }
            expectOneInEachGroup();
            expectFacesMatch();
            if (HasFailure()) {
                FAIL() << "at step " << step << ", control " << control.Name << "(" << control.Index
                       << ")";
            }
        }
    }
    EXPECT_TRUE(platform.Failures.empty()) << platform.Failures.front();
}

TEST_F(ButtonMachine, an_overlay_moves_by_one_unit_with_its_pressed_face) {
    for (const ButtonRow& row : button::kRows) {
        for (const int state : {kUp, kHover, kOn}) {
            OptionStates(row.number).State = static_cast<std::int16_t>(state);
            DrawButton(row.number);
            const Image& face = Form1.NTool(row.number);
            EXPECT_EQ(face.Face.face, state);
            const double pressed = state == kOn ? 1 : 0;
            if (row.start.kind == kind::kStand) {
                EXPECT_EQ(Form1.LTool(row.number).Left, face.Left + 9 + pressed);
                EXPECT_EQ(Form1.LTool(row.number).Top, face.Top + 8 + pressed);
            } else if (row.start.kind == kind::kPicture) {
                const Image& icon = Form1.NTool(row.number + kOverlayOffset);
                EXPECT_EQ(icon.Left, face.Left + 9 + pressed);
                EXPECT_EQ(icon.Top, face.Top + 8 + pressed);
            } else if (row.start.kind == kind::kSmall) {
                const Image& icon = Form1.NTool(row.number + kOverlayOffset);
                EXPECT_EQ(icon.Left, face.Left + pressed);
                EXPECT_EQ(icon.Top, face.Top + pressed);
            }
        }
    }
}

TEST_F(ButtonMachine, the_volcano_can_be_dragged_only_after_the_joke) {
    Control& volcano = Form1.NTool(button::kVolcano + kOverlayOffset);
    deliverMouse(volcano, Event::MouseDown, MouseButton::Left, 3, 3);
    EXPECT_EQ(platform.Dragged, nullptr);
    EggArmed = 1;
    deliverMouse(Form1.NTool(button::kVolcano), Event::MouseDown, MouseButton::Left, 3, 3);
    EXPECT_EQ(platform.Dragged, nullptr) << "the face itself cannot be dragged";
    deliverMouse(volcano, Event::MouseDown, MouseButton::Right, 3, 3);
    EXPECT_EQ(platform.Dragged, &volcano);
}

TEST_F(ButtonMachine, a_drop_on_the_ground_keeps_the_egg_armed) {
    EggArmed = 1;
    deliver(Form1.Label32, Event::DragOver);
    EXPECT_EQ(Form1.Label11.Caption, "Let go of me here!");
    deliver(Form1, Event::DragDrop);
    EXPECT_EQ(Form1.Label11.Caption, AppName);
    EXPECT_EQ(EggArmed, 1);
}

TEST_F(ButtonMachine, a_drop_on_the_makers_name_disarms_the_egg) {
    EggArmed = 1;
    deliver(Form1.Label32, Event::DragOver);
    deliver(Form1.Label32, Event::DragDrop);
    EXPECT_EQ(Form1.Label11.Caption, AppName);
    EXPECT_EQ(EggArmed, 0);
}

TEST_F(ButtonMachine, a_drop_without_the_joke_changes_nothing) {
    const std::string before = Form1.Label11.Caption;
    deliver(Form1.Label32, Event::DragDrop);
    EXPECT_EQ(Form1.Label11.Caption, before);
}

}  // namespace ombrelia
