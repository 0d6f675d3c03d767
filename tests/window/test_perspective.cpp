// The map in perspective by mouse: in, turned, drawn, stopped, out again.
#include <algorithm>
#include <gtest/gtest.h>

#include "core/editor_state.h"
#include "core/objects.h"
#include "core/progress.h"
#include "stories.h"

namespace ombrelia {

namespace {

constexpr int kYieldOfADrawing = 20;  // milliseconds

// Hills that look different from every side.
void makeHills() {
    for (int y = 0; y <= MapSize; ++y) {
        for (int x = 0; x <= MapSize; ++x) {
            const int dx = x - 40;
            const int dy = y - 30;
            HeightMap(x, y) =
                static_cast<std::int16_t>(std::max(20, 220 - (dx * dx + dy * dy) / 8));
        }
    }
}

bool enterPerspective(ScreenDriver& driver) {
    if (!openEditor(driver, button::kSizeSmall)) {
        return false;
    }
    driver.inProgram(makeHills);
    driver.click(Form1.NTool(button::kPencil + kOverlayOffset));
    driver.click(Form1.NTool(button::k3DMode + kOverlayOffset));
    return driver.waitFor([] { return Form1.ThreeFrame.Visible; });
}

int countLit(const QImage& picture) {
    int lit = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            lit += (picture.pixel(x, y) & 0xFFFFFFU) != 0 ? 1 : 0;
        }
    }
    return lit;
}

void drag(ScreenDriver& driver, double fromX, double fromY, double toX, double toY) {
    driver.moveTo(Form1.MapView, fromX, fromY);
    driver.press();
    driver.moveTo(Form1.MapView, (fromX + toX) / 2, (fromY + toY) / 2);
    driver.moveTo(Form1.MapView, toX, toY);
    driver.release();
    driver.rest();
}

}  // namespace

TEST(Perspective, the_grid_turns_with_the_mouse_and_the_pencil_comes_back) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(enterPerspective(driver));
        driver.rest();
        const QImage before = driver.pictureOf(Form1.MapView);
        EXPECT_GT(countLit(before), 500);
        driver.inProgram([] {
            EXPECT_EQ(OptionStates(button::kPencil).State, kUp) << "no tool is on here";
            EXPECT_EQ(OptionStates(button::kRotate3D).State, kOn);
        });

        drag(driver, 60, 100, 100, 80);
        driver.inProgram([] {
            EXPECT_EQ(ViewYaw, 180 - 40);
            EXPECT_EQ(ViewTilt, 135 + 20);
        });
        EXPECT_NE(driver.pictureOf(Form1.MapView), before);

        driver.click(Form1.NTool(button::k2DMode + kOverlayOffset));
        EXPECT_TRUE(driver.waitFor([] { return Form1.TwoFrame.Visible; }));
        driver.inProgram([] {
            EXPECT_EQ(OptionStates(button::kPencil).State, kOn);
            EXPECT_EQ(GroupCurrent(group::kTools), button::kPencil);
        });
    });
}

TEST(Perspective, the_motion_buttons_pan_and_zoom) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(enterPerspective(driver));
        driver.click(Form1.NTool(button::kPan3D + kOverlayOffset));
        drag(driver, 60, 100, 90, 120);
        driver.click(Form1.NTool(button::kZoom3D + kOverlayOffset));
        drag(driver, 60, 100, 80, 130);
        driver.inProgram([] {
            EXPECT_EQ(ViewPanX, 30);
            EXPECT_EQ(ViewPanY, 20);
            EXPECT_EQ(ViewZoom, 1 + 2 * 20);
            EXPECT_EQ(ViewYaw, 180);
        });
    });
}

TEST(Perspective, the_full_drawing_fills_the_map) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(enterPerspective(driver));
        driver.rest();
        const int lines = countLit(driver.pictureOf(Form1.MapView));
        driver.inProgram([] { SliderValues(4).Value = 1; });
        pressWide(driver, button::kDraw3D);
        ASSERT_TRUE(driver.waitFor([] { return ProgressState == 2; }));
        driver.rest();
        EXPECT_GT(countLit(driver.pictureOf(Form1.MapView)), 3 * lines);
    });
}

TEST(Perspective, the_light_stops_a_drawing_in_the_middle) {
    ScreenDriver::run(
        [](ScreenDriver& driver) {
            ASSERT_TRUE(enterPerspective(driver));
            driver.inProgram([] { SliderValues(4).Value = 1; });
            pressWide(driver, button::kDraw3D);
            ASSERT_TRUE(driver.waitFor([] { return ProgressDone > ProgressTotal / 4; }));
            driver.click(Form1.NTool(button::kStop + kOverlayOffset));
            EXPECT_TRUE(driver.waitFor([] { return Form1.Picture1.Visible && StopFlag == 0; }));
            driver.inProgram([] {
                EXPECT_GT(ProgressDone, 0);
                EXPECT_LT(ProgressDone, ProgressTotal);
                EXPECT_TRUE(Form1.MapView.Enabled);
            });
            const int part = countLit(driver.pictureOf(Form1.MapView));
            EXPECT_GT(part, 1000) << "what was drawn stays";

            pressWide(driver, button::kDraw3D);
            ASSERT_TRUE(driver.waitFor([] { return ProgressState == 2; }));
            driver.rest();
            EXPECT_GT(countLit(driver.pictureOf(Form1.MapView)), part);
        },
        kYieldOfADrawing);
}

}  // namespace ombrelia
