// The terrain tools by mouse: what a gesture leaves on the map is what the same gesture leaves
// without a screen.
#include <gtest/gtest.h>

#include "core/editor_state.h"
#include "core/objects.h"
#include "core/progress.h"
#include "platform/dispatch.h"
#include "platform/headless/headless_platform.h"
#include "platform/window_life.h"
#include "register/reset_process.h"
#include "stories.h"

namespace ombrelia {

namespace {

struct Spot {
    double x, y;  // pixels of MapView; halves at most, so that a device pixel hits them
};
using Gesture = std::vector<Spot>;

constexpr int kMapSide = 129;

// A ground that is not flat, the same on both sides of the comparison.
void makeGround() {
    for (int y = 0; y <= kMapSide; ++y) {
        for (int x = 0; x <= kMapSide; ++x) {
            HeightMap(x, y) = static_cast<std::int16_t>(60 + (x * 7 + y * 13) % 50);
        }
    }
}

void chooseTool(int tool) {
    for (int i = 0; i <= button::kLastOfEditor; ++i) {
        if (OptionStates(i).Group == group::kTools) {
            OptionStates(i).State = i == tool ? kOn : kUp;
        }
    }
    GroupCurrent(group::kTools) = static_cast<std::int16_t>(tool);
    DrawHeight = 150;
    SliderValues(1).Value = 3;
    SliderValues(2).Value = 2;
    SliderValues(7).Value = 6;
    SliderValues(8).Value = 9;
}

void drawByMouse(ScreenDriver& driver, const Gesture& gesture) {
    driver.moveTo(Form1.MapView, gesture.front().x, gesture.front().y);
    driver.press();
    for (std::size_t i = 1; i < gesture.size(); ++i) {
        driver.moveTo(Form1.MapView, gesture[i].x, gesture[i].y);
    }
    driver.release();
}

void drawWithoutScreen(const Gesture& gesture) {
    const auto at = [](Event event, MouseButton button, const Spot& spot) {
        deliverMouse(Form1.MapView, event, button, spot.x, spot.y);
    };
    at(Event::MouseMove, MouseButton::None, gesture.front());
    at(Event::MouseDown, MouseButton::Left, gesture.front());
    for (std::size_t i = 1; i < gesture.size(); ++i) {
        at(Event::MouseMove, MouseButton::Left, gesture[i]);
    }
    at(Event::MouseUp, MouseButton::Left, gesture.back());
}

HeightGrid mapByMouse(int tool, const Gesture& gesture) {
    HeightGrid result;
    ScreenDriver::run([&](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeSmall));
        driver.click(Form1.NTool(tool + kOverlayOffset));
        driver.inProgram([&] {
            EXPECT_EQ(OptionStates(tool).State, kOn);
            makeGround();
            chooseTool(tool);
        });
        drawByMouse(driver, gesture);
        EXPECT_TRUE(driver.waitFor([] { return MouseState == kGestureNone; }));
        driver.rest(300);
        driver.inProgram([&] { result = HeightMap; });
    });
    return result;
}

HeightGrid mapWithoutScreen(int tool, const Gesture& gesture) {
    HeadlessPlatform platform;
    platform.install();
    resetProcess();
    AppName = "Ombrelia Terrain Editor";
    MapSize = kMapSide;
    showWindow(Form1);
    makeGround();
    chooseTool(tool);
    drawWithoutScreen(gesture);
    return HeightMap;
}

void expectSameMap(int tool, const Gesture& gesture) {
    const HeightGrid seen = mapByMouse(tool, gesture);
    const HeightGrid expected = mapWithoutScreen(tool, gesture);
    EXPECT_EQ(seen, expected);
    makeGround();
    EXPECT_NE(expected, HeightMap) << "the gesture changes the ground";
}

const Gesture kPath = {{40, 50}, {70.5, 66}, {101, 90}, {140, 120.5}, {180, 128}};

}  // namespace

TEST(Tools, a_pencil_stroke) {
    expectSameMap(button::kPencil, kPath);
}

TEST(Tools, a_raise_drag) {
    expectSameMap(button::kRaise, kPath);
}

TEST(Tools, a_lower_drag) {
    expectSameMap(button::kLower, kPath);
}

TEST(Tools, a_mountain) {
    expectSameMap(button::kMountain, {{128, 100}});
}

TEST(Tools, a_canyon_with_its_river) {
    expectSameMap(button::kCanyon, kPath);
}

TEST(Tools, a_plain) {
    expectSameMap(button::kPlain, {{90, 140}});
}

TEST(Tools, a_line) {
    expectSameMap(button::kLine, {{30, 40}, {120, 100}, {200, 160}});
}

TEST(Tools, a_pick_takes_the_height_under_the_pointer) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeLarge));
        driver.inProgram([] { HeightMap(100, 60) = 201; });
        driver.click(Form1.MapView, 100, 60);
        driver.inProgram([] {
            EXPECT_EQ(DrawHeight, 201);
            EXPECT_EQ(Form1.Label19.Caption, "2210m");
        });
    });
}

TEST(Tools, the_line_has_a_rubber_band) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeLarge));
        driver.click(Form1.NTool(button::kLine));
        driver.inProgram([] { DrawHeight = 255; });
        driver.moveTo(Form1.MapView, 40, 40);
        driver.press();
        driver.moveTo(Form1.MapView, 120, 40);
        driver.inProgram([] {
            EXPECT_TRUE(Form1.Line1.Visible);
            EXPECT_NEAR(Form1.Line1.X2, 120, 0.01);
            EXPECT_EQ(HeightMap(80, 40), 40) << "the map waits for the release";
        });
        const QImage screen = driver.pictureOf(Form1.MapView);
        EXPECT_EQ(screen.pixel(160, 80) & 0xFFFFFFU, 0xECEAE7U) << "the band is seen";
        driver.release();
        driver.inProgram([] {
            EXPECT_FALSE(Form1.Line1.Visible);
            EXPECT_EQ(HeightMap(80, 40), 255);
        });
    });
}

TEST(Tools, a_canyon_is_stopped_in_the_middle_by_the_light) {
    ScreenDriver::run(
        [](ScreenDriver& driver) {
            ASSERT_TRUE(openEditor(driver, button::kSizeLarge));
            driver.click(Form1.NTool(button::kCanyon));
            drawByMouse(driver,
                        {{40, 128}, {60, 129}, {80, 128}, {100, 129}, {120, 128}, {220, 129}});
            ASSERT_TRUE(driver.waitFor([] { return Form1.ProgressFrame.Visible; }));
            driver.click(Form1.NTool(button::kStop + kOverlayOffset));
            ASSERT_TRUE(driver.waitFor([] { return ProgressState == 2 && StopFlag == 0; }));
            driver.inProgram([] {
                EXPECT_EQ(HeightMap(62, 128), 31) << "what was carved stays";
                EXPECT_EQ(HeightMap(215, 129), 40) << "the rest is as it was";
                EXPECT_FALSE(Form1.Line1.Visible);
                EXPECT_TRUE(Form1.MapView.Enabled);
            });
        },
        60);
}

}  // namespace ombrelia
