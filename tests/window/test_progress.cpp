// A long operation on the screen: the panel, the light, and what waits until it has ended.
#include <QApplication>
#include <gtest/gtest.h>

#include "core/editor_state.h"
#include "core/objects.h"
#include "core/progress.h"
#include "stories.h"

namespace ombrelia {

namespace {

constexpr int kSlowYield = 4;  // milliseconds

// Starts a generation at the highest detail that lasts for seconds; true once its panel shows.
bool startSlowRun(ScreenDriver& driver) {
    if (!openEditor(driver, button::kSizeSmall)) {
        return false;
    }
    driver.click(Form1.NTool(button::kFractal));
    driver.inProgram([] { SliderValues(14).Value = 8; });
    pressWide(driver, button::kGenerate);
    return driver.waitFor([] { return Form1.ProgressFrame.Visible; });
}

bool isDeskInOrder() {
    return ProgressState == 2 && StopFlag == 0 && Form1.Picture1.Visible &&
           !Form1.ProgressFrame.Visible && Form1.MapView.Enabled &&
           Form1.NTool(button::kStop + kOverlayOffset).Face.face == 0;
}

}  // namespace

TEST(Progress, the_panel_shows_the_work_and_the_light_stops_it) {
    ScreenDriver::run(
        [](ScreenDriver& driver) {
            ASSERT_TRUE(startSlowRun(driver));
            driver.inProgram([] {
                EXPECT_FALSE(Form1.Picture1.Visible);
                EXPECT_EQ(Form1.WorkWhat.Caption.substr(0, 24), "Generating Fractal Part ");
                EXPECT_EQ(Form1.NTool(button::kStop + kOverlayOffset).Face.face, 2);
                EXPECT_FALSE(Form1.MapView.Enabled);
            });
            // A click on a disabled tool does nothing.
            driver.click(Form1.NTool(button::kMountain));
            driver.inProgram([] { EXPECT_EQ(GroupCurrent(1), button::kFractal); });

            driver.click(Form1.NTool(button::kStop + kOverlayOffset));
            EXPECT_TRUE(driver.waitFor(isDeskInOrder));
            driver.inProgram(
                [] { EXPECT_EQ(HeightMap(50, 50), 40) << "stopped among the values"; });
        },
        kSlowYield);
}

TEST(Progress, closing_during_a_run_stops_it_and_asks_afterwards) {
    ScreenDriver::run(
        [](ScreenDriver& driver) {
            ASSERT_TRUE(startSlowRun(driver));
            driver.click(Form1.NTool(button::kClose));
            ASSERT_TRUE(driver.waitForDialog("Exit?"));
            driver.key("Return");
            EXPECT_TRUE(driver.waitFor(isDeskInOrder));
        },
        kSlowYield);
}

TEST(Progress, a_run_at_full_speed_leaves_the_desk_in_order) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeLarge));
        driver.click(Form1.NTool(button::kFractal));
        driver.inProgram([] { SliderValues(14).Value = 8; });
        pressWide(driver, button::kGenerate);
        ASSERT_TRUE(driver.waitFor([] { return ProgressState == 2; }));
        EXPECT_TRUE(driver.waitFor(isDeskInOrder));
        driver.inProgram([] { EXPECT_NE(HeightMap(50, 50), 40); });
    });
}

}  // namespace ombrelia
