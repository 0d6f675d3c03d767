#include <set>
#include <string>

#include "core/button_numbers.h"
#include "core/progress.h"
#include "core/windows/form1.h"
#include "editor_fixture.h"
#include "platform/dispatch.h"
#include "platform/failure.h"

namespace ombrelia {

namespace {

class Progress : public EditorTest {
  protected:
    static void tick() { deliver(Form1.Timer1, Event::Timer); }

    static std::set<const Control*> disabledControls() {
        std::set<const Control*> found;
        for (const Control* control : Form1.Controls) {
            if (!control->Enabled) {
                found.insert(control);
            }
        }
        return found;
    }

    static bool isPanelShown() { return Form1.ProgressFrame.Visible && !Form1.Picture1.Visible; }
    static bool isStripShown() { return !Form1.ProgressFrame.Visible && Form1.Picture1.Visible; }
};

// Of a tool, or of a page, behind the first ones.
bool isOfALaterTool(const Control* control) {
    return (control->Name == "NTool" && control->Index % 100 > 53) ||
           (control->Name == "OptFrame" && control->Index > 14);
}

TEST_F(Progress, exactly_what_could_disturb_a_run_is_disabled) {
    std::set<const Control*> expected = {&Form1.MapView};
    for (const int i : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}) {
        expected.insert({&Form1.NTool(i), &Form1.NTool(i + 100), &Form1.OptFrame(i)});
    }
    for (const int i : {50, 51, 52, 53}) {
        expected.insert({&Form1.NTool(i), &Form1.NTool(i + 100)});
    }
    SetToolsEnabled(false);
    std::set<const Control*> disabled = disabledControls();
    std::erase_if(disabled, isOfALaterTool);
    EXPECT_EQ(disabled, expected);
    EXPECT_TRUE(Form1.NTool(0).Enabled);
    EXPECT_TRUE(Form1.NTool(122).Enabled);
    SetToolsEnabled(true);
    EXPECT_TRUE(disabledControls().empty());
}

TEST_F(Progress, the_light_is_red_while_tools_are_disabled) {
    SetToolsEnabled(false);
    EXPECT_EQ(Form1.NTool(122).Face, (PictureFace{Picture::Traffic, 2}));
    SetToolsEnabled(true);
    EXPECT_EQ(Form1.NTool(122).Face, (PictureFace{Picture::Traffic, 0}));
}

TEST_F(Progress, a_run_locks_the_tools_until_it_gives_them_back) {
    {
        const LongRun run;
        EXPECT_FALSE(Form1.MapView.Enabled);
        run.giveToolsBack();
        EXPECT_TRUE(Form1.MapView.Enabled);
    }
    EXPECT_TRUE(Form1.MapView.Enabled);
    SetToolsEnabled(false);
    const LongRun beside(LongRun::Tools::Free);
    EXPECT_TRUE(Form1.MapView.Enabled);
}

TEST_F(Progress, a_run_that_goes_without_its_end_leaves_all_to_the_tick_or_the_repair) {
    const auto fail = [] {
        const LongRun run;
        LongRun::announce("Digging", 10);
        LongRun::moveTo(3);
        throw Failure("no spade");
    };
    EXPECT_THROW(fail(), Failure);
    EXPECT_FALSE(Form1.MapView.Enabled);
    EXPECT_EQ(ProgressState, 1);
    EXPECT_EQ(ProgressDone, 3);
}

TEST_F(Progress, a_yield_at_a_position_tells_the_position_first) {
    const long before = yieldCount();
    LongRun::yieldAt(7);
    EXPECT_EQ(ProgressDone, 7);
    EXPECT_EQ(yieldCount(), before + 1);
    platform.OnYield = [] { EXPECT_EQ(ProgressDone, 8); };
    LongRun::yieldAt(8);
}

TEST_F(Progress, announcing_names_the_work_and_starts_it) {
    LongRun::announce("Digging", 77);
    EXPECT_EQ(Form1.WorkWhat.Caption, "Digging");
    EXPECT_EQ(ProgressTotal, 77);
    EXPECT_EQ(ProgressState, 1);
}

TEST_F(Progress, the_first_texts_stand_until_a_run) {
    EXPECT_EQ(Form1.WorkWhat.Caption, "Refreshing Viewport");
    EXPECT_EQ(Form1.PercDone.Caption, "0 Percent Done");
}

TEST_F(Progress, progress_text_has_a_leading_blank) {
    ProgressTotal = 100;
    ProgressDone = 45;
    showProgress();
    EXPECT_EQ(Form1.PercDone.Caption, " 45 Percent Done");
    ProgressDone = 0;
    showProgress();
    EXPECT_EQ(Form1.PercDone.Caption, " 0 Percent Done");
    ProgressDone = -10;
    showProgress();
    EXPECT_EQ(Form1.PercDone.Caption, "-10 Percent Done");
}

TEST_F(Progress, bar_and_percentage_are_rounded_down) {
    const double full = Form1.PBarBack.Width - 2;
    ProgressTotal = 3;
    ProgressDone = 2;
    showProgress();
    EXPECT_EQ(Form1.PBar.Width, static_cast<int>(full * 2 / 3));
    EXPECT_EQ(Form1.PercDone.Caption, " 66 Percent Done");
    EXPECT_EQ(ProgressShown, 2);
}

TEST_F(Progress, a_full_bar_fills_its_ground) {
    ProgressTotal = 4356;
    ProgressDone = 4356;
    showProgress();
    EXPECT_EQ(Form1.PBar.Width, Form1.PBarBack.Width - 2);
    EXPECT_EQ(Form1.PercDone.Caption, " 100 Percent Done");
    EXPECT_EQ(Form1.PBar.Left, 1);
    EXPECT_EQ(Form1.PBar.Top, 2);
    EXPECT_EQ(Form1.PBarBack.Left, 0);
    EXPECT_EQ(Form1.PBarBack.Top, 0);
    EXPECT_EQ(Form1.PBar.Height, Form1.PBarBack.Height - 4);
}

TEST_F(Progress, nothing_is_painted_while_the_position_stands) {
    ProgressTotal = 0;
    ProgressDone = 5;
    ProgressShown = 5;
    Form1.PercDone.Caption = "untouched";
    showProgress();
    EXPECT_EQ(Form1.PercDone.Caption, "untouched");
}

TEST_F(Progress, a_run_swaps_the_panels_and_its_end_swaps_them_back) {
    EXPECT_TRUE(isStripShown());
    SetToolsEnabled(false);
    LongRun::announce("Digging", 10);
    EXPECT_TRUE(isStripShown());
    tick();
    EXPECT_TRUE(isPanelShown());
    ProgressState = 2;
    tick();
    EXPECT_TRUE(isStripShown());
    EXPECT_TRUE(Form1.MapView.Enabled);
}

TEST_F(Progress, a_stop_ends_tick_by_tick) {
    SetToolsEnabled(false);
    LongRun::announce("Digging", 100);
    ProgressDone = 30;
    tick();
    EXPECT_TRUE(isPanelShown());
    EXPECT_EQ(Form1.PercDone.Caption, " 30 Percent Done");
    Form1.Line1.Visible = true;
    requestStop();
    EXPECT_EQ(StopFlag, 1);
    EXPECT_FALSE(Form1.Line1.Visible);
    tick();  // not noted yet
    EXPECT_EQ(StopFlag, 1);
    EXPECT_FALSE(Form1.MapView.Enabled);
    EXPECT_TRUE(LongRun::noteStop());
    EXPECT_EQ(StopFlag, 2);
    EXPECT_EQ(ProgressState, 1);
    Form1.Line1.Visible = true;
    tick();  // tools and flag at once, the panel one tick later
    EXPECT_EQ(StopFlag, 0);
    EXPECT_EQ(ProgressState, 2);
    EXPECT_TRUE(Form1.MapView.Enabled);
    EXPECT_EQ(Form1.NTool(122).Face.face, 0);
    EXPECT_FALSE(Form1.Line1.Visible);
    EXPECT_TRUE(isPanelShown());
    tick();
    EXPECT_TRUE(isStripShown());
    EXPECT_EQ(Form1.PercDone.Caption, " 30 Percent Done");
}

TEST_F(Progress, only_a_stop_that_was_asked_for_is_noted) {
    EXPECT_FALSE(LongRun::noteStop());
    EXPECT_EQ(StopFlag, 0);
    StopFlag = 2;
    EXPECT_FALSE(LongRun::noteStop());
    EXPECT_EQ(StopFlag, 2);
}

TEST_F(Progress, an_idle_tick_leaves_the_stop_flag_of_a_late_click) {
    requestStop();
    tick();
    tick();
    EXPECT_EQ(StopFlag, 1);
    EXPECT_TRUE(isStripShown());
}

}  // namespace

}  // namespace ombrelia
