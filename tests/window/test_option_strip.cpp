// The option strip by mouse: every slider to both ends, every frame, every check mark, and what the
// next run remembers.
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "core/color_ramp.h"
#include "core/objects.h"
#include "panels/option_frames.h"
#include "platform/dispatch.h"
#include "stories.h"

namespace ombrelia {

namespace {

// Frame in which a part stands.
int frameOf(const Control& control) {
    return control.Parent->Index;
}

void bringUp(ScreenDriver& driver, int frame) {
    driver.inProgram([&] { ScrollToFrame(frame); });
    driver.rest(60);
}

void dragTo(ScreenDriver& driver, int slider, double toX) {
    Image& thumb = Form1.VertScroller(slider);
    const double fromX = thumb.Left - Form1.VertFiller(slider).Left;
    driver.moveTo(thumb, 5, 8);
    driver.press();
    driver.moveTo(Form1.VertFiller(slider), (fromX + toX) / 2 + 5, 8);
    driver.moveTo(Form1.VertFiller(slider), toX + 5, 8);
    driver.release();
}

std::string readoutOf(int slider, int value) {
    switch (slider) {
        case 3:
        case 11:
            return std::to_string(value * 13) + "m";
        case 6:
        case 10:
            return metresText(value);
        default:
            return std::to_string(value);
    }
}

void clickBox(ScreenDriver& driver, int number) {
    bringUp(driver, frameOf(Form1.NTool(number)));
    driver.click(Form1.NTool(number));
}

}  // namespace

TEST(OptionStrip, each_slider_goes_to_both_its_ends) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeSmall));
        for (int slider = 1; slider <= 14; ++slider) {
            bringUp(driver, frameOf(Form1.VertScroller(slider)));
            const SliderRecord limits = SliderValues(slider);
            dragTo(driver, slider, 200);
            driver.inProgram([&] {
                EXPECT_EQ(SliderValues(slider).Value, limits.Max) << slider;
                EXPECT_EQ(Form1.Readout(slider).Caption, readoutOf(slider, limits.Max));
            });
            dragTo(driver, slider, -80);
            driver.inProgram([&] {
                EXPECT_EQ(SliderValues(slider).Value, limits.Min) << slider;
                EXPECT_EQ(Form1.Readout(slider).Caption, readoutOf(slider, limits.Min));
            });
        }
        driver.inProgram([] { EXPECT_EQ(SliderValues(12).Value, 2) << "the bank stays wider"; });
    });
}

TEST(OptionStrip, each_tool_brings_up_its_frame) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeSmall));
        for (const int tool : {0, 1, 2, 3, 4, 7, 8, 9, 10, 5}) {
            driver.click(Form1.NTool(tool + kOverlayOffset));
            driver.inProgram([&] {
                EXPECT_EQ(Form1.OptFrame(tool).Top, 0) << tool;
                EXPECT_EQ(OptionStates(tool).State, 2) << tool;
            });
        }
        pressWide(driver, button::kOptions);
        driver.inProgram([] { EXPECT_EQ(Form1.OptFrame(12).Top, 0); });
    });
}

TEST(OptionStrip, the_bar_the_arrows_and_a_drag_move_the_strip) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeSmall));
        driver.moveTo(Form1.Scroller(0));
        driver.press();
        driver.moveTo(Form1.Filler(0), 10, 120);
        driver.moveTo(Form1.Filler(0), 10, 190);
        driver.release();
        int after = 0;
        driver.inProgram([&] {
            after = SliderValues(0).Value;
            EXPECT_GT(after, 800);
        });

        driver.moveTo(Form1.ScrollUp(0));
        driver.press();
        driver.inProgram([] { EXPECT_EQ(Form1.ScrollUp(0).Face.face, 1); });
        driver.rest(300);
        driver.release();
        driver.inProgram([&] {
            EXPECT_LT(SliderValues(0).Value, after);
            EXPECT_EQ(Form1.ScrollUp(0).Face.face, 0);
        });

        bringUp(driver, 5);
        driver.moveTo(Form1.OptFrame(5), 20, 100);
        driver.press();
        driver.moveTo(Form1.Picture1, 20, 80);
        driver.moveTo(Form1.Picture1, 20, 60);
        driver.release();
        driver.inProgram([] { EXPECT_EQ(SliderValues(0).Value, 5 * 128 + 40); });
    });
}

TEST(OptionStrip, the_wheel_and_clicks_on_the_track_scroll_the_strip) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeSmall));
        const auto expectStripAt = [&driver](int value) {
            driver.inProgram([value] {
                EXPECT_EQ(SliderValues(0).Value, value);
                EXPECT_EQ(Form1.OptFrame(0).Top, -value);
            });
        };
        bringUp(driver, 2);
        driver.moveTo(Form1.OptFrame(2), 20, 100);
        driver.turnWheel(3);
        expectStripAt(256 + 3 * 45);
        driver.turnWheel(-1);
        expectStripAt(256 + 2 * 45);
        driver.moveTo(Form1.Filler(0), 10, 215);
        driver.turnWheel(-2);
        expectStripAt(256);
        driver.turnWheel(-8);
        expectStripAt(0);
        driver.click(Form1.Filler(0), 10, 215);
        expectStripAt(128);
        driver.moveTo(Form1.MapView, 60, 60);
        driver.turnWheel(2);
        expectStripAt(128);
    });
}

TEST(OptionStrip, a_click_on_a_sliders_track_moves_it_by_one) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeSmall));
        bringUp(driver, frameOf(Form1.VertFiller(6)));
        driver.click(Form1.VertFiller(6), 20, 8);
        driver.click(Form1.VertFiller(6), 20, 8);
        driver.inProgram([] { EXPECT_EQ(Form1.Readout(6).Caption, metresText(253)); });
        driver.click(Form1.VertFiller(7), 100, 8);
        driver.click(Form1.VertFiller(7), 100, 8);
        driver.inProgram([] { EXPECT_EQ(Form1.Readout(7).Caption, "3"); });
    });
}

TEST(OptionStrip, each_check_mark_toggles_at_a_click) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeSmall));
        for (const int number : {60, 61, 62, 65, 66, 67, 68, 69, 70, 71, 72, 73, 74}) {
            bool wasOn = false;
            driver.inProgram([&] { wasOn = OptionStates(number).State == 2; });
            clickBox(driver, number);
            driver.inProgram([&] { EXPECT_NE(OptionStates(number).State == 2, wasOn) << number; });
        }
        driver.inProgram([] { EXPECT_FALSE(HelpFrm.Visible); });
    });
}

TEST(OptionStrip, the_next_run_remembers_the_check_marks) {
    const auto isOnIn = [](int number) { return OptionStates(number).State == 2; };
    ScreenDriver::run([&](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeSmall));
        clickBox(driver, button::kAutoRefresh);
        clickBox(driver, button::kAdvanced3D);
        driver.moveTo(Form1, 5, 350);
        driver.click(Form1.NTool(button::kClose));
        ASSERT_TRUE(driver.waitForDialog("Exit?"));
        driver.key("alt+y");
        driver.waitUntilEnded();
    });
    ScreenDriver::run([&](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeSmall));
        driver.inProgram([&] {
            EXPECT_FALSE(isOnIn(button::kAutoRefresh));
            EXPECT_TRUE(isOnIn(button::kAdvanced3D));
            EXPECT_TRUE(isOnIn(button::kShowHelpBox));
        });
    });
}

}  // namespace ombrelia
