#include "core/button_numbers.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "editor_fixture.h"
#include "panels/cursors_sounds.h"
#include "platform/dispatch.h"

namespace ombrelia {

namespace {

class CursorsSounds : public EditorTest {
  protected:
    CursorsSounds() {
        platform.Files["100.res"] = true;
        platform.Files["101.res"] = true;
        OptionStates(button::kUseSounds).State = kOn;
    }
};

using Calls = std::vector<std::string>;

TEST_F(CursorsSounds, each_sound_has_its_file) {
    PlayButtonSound(1);
    PlayButtonSound(2);
    PlayButtonSound(3);
    EXPECT_EQ(platform.Calls, (Calls{"sound 100.res", "sound 101.res"}));
}

TEST_F(CursorsSounds, a_pointer_over_a_button_announces_a_sound_if_they_are_on) {
    OptionStates(button::kUseSounds).State = kUp;
    deliverMouse(Form1.NTool(button::kMenu), Event::MouseMove, MouseButton::None, 5, 5);
    EXPECT_FALSE(platform.SoundIsPrepared);
    OptionStates(button::kUseSounds).State = kOn;
    deliverMouse(Form1.NTool(button::kMenu), Event::MouseMove, MouseButton::None, 6, 5);
    EXPECT_TRUE(platform.SoundIsPrepared);
    EXPECT_EQ(platform.Calls, Calls{});
}

TEST_F(CursorsSounds, a_missing_file_is_silence) {
    platform.Files["100.res"] = false;
    PlayButtonSound(1);
    PlayButtonSound(2);
    EXPECT_EQ(platform.Calls, Calls{"sound 101.res"});
}

// Tells whether it was asked anything.
class AskedFiles : public FileSystem {
  public:
    bool fileExists(const std::string& /*path*/) override {
        isAsked = true;
        return true;
    }
    bool isNameTaken(const std::string& /*path*/) override { return fileExists({}); }
    bool isAsked = false;
};

TEST_F(CursorsSounds, with_the_option_at_0_no_file_is_asked_for) {
    AskedFiles files;
    services().files = &files;
    OptionStates(button::kUseSounds).State = kUp;
    PlayButtonSound(1);
    EXPECT_FALSE(files.isAsked);
    OptionStates(button::kUseSounds).State = kHover;
    PlayButtonSound(1);
    EXPECT_TRUE(files.isAsked);
    EXPECT_EQ(platform.Calls, Calls{"sound 100.res"});
}

TEST_F(CursorsSounds, a_press_on_a_button_that_is_on_is_silent) {
    deliverMouse(Form1.NTool(button::kColorPicker), Event::MouseDown, MouseButton::Left, 2, 2);
    EXPECT_EQ(platform.Calls, Calls{});
    deliverMouse(Form1.NTool(button::kPencil), Event::MouseDown, MouseButton::Left, 2, 2);
    deliverMouse(Form1.NTool(button::kPencil), Event::MouseUp, MouseButton::Left, 2, 2);
    EXPECT_EQ(platform.Calls, Calls{"sound 100.res"});
}

TEST_F(CursorsSounds, the_other_mouse_buttons_are_silent) {
    deliverMouse(Form1.NTool(button::kMenu), Event::MouseDown, MouseButton::Right, 2, 2);
    deliverMouse(Form1.NTool(button::kMenu), Event::MouseUp, MouseButton::Right, 2, 2);
    EXPECT_EQ(platform.Calls, Calls{});
}

TEST_F(CursorsSounds, the_cursor_options_change_nothing_on_the_screen) {
    for (const int state : {kUp, kOn}) {
        OptionStates(button::kUseCursors).State = static_cast<std::int16_t>(state);
        deliverMouse(Form1.MapView, Event::MouseMove, MouseButton::None, 9, 9);
        deliverMouse(Form1.NTool(2), Event::MouseMove, MouseButton::None, 2, 2);
        deliverMouse(Form1.ScrollDown(0), Event::MouseMove, MouseButton::None, 2, 2);
        deliver(Form1.Timer1, Event::Timer);
        EXPECT_EQ(CurrentCursorId, 0);
    }
    EXPECT_EQ(platform.Calls, Calls{});
}

}  // namespace

}  // namespace ombrelia
