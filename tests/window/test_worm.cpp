// The worm game on the screen: real keys, the fades that block the event loop, closing.
#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <gtest/gtest.h>

#include "core/objects.h"
#include "core/windows/form2.h"
#include "core/windows/help_box.h"
#include "games/worm/worm.h"
#include "games/worm/worm_state.h"
#include "platform/dispatch.h"
#include "platform/services.h"
#include "stories.h"

namespace ombrelia::worm {

namespace {

// The game over an editor whose map has been marked.
bool openGame(ScreenDriver& driver) {
    if (!openEditor(driver, button::kSizeSmall)) {
        return false;
    }
    driver.inProgram([] { HeightMap.fill(77); });
    driver.click(Form1.NTool(button::kHelp + kOverlayOffset));
    if (!driver.waitForWindow(HelpBox)) {
        return false;
    }
    driver.click(HelpBox.LTool(button::kHelpAbout));
    driver.doubleClick(HelpBox.Label41);
    // The game has the keyboard, and what it shows at first is over.
    return driver.waitForWindow(Form2) && driver.waitFor([] {
        const QWidget* active = QApplication::activeWindow();
        return !isHandling() && active != nullptr &&
               active->windowTitle().toStdString() == Form2.Caption;
    });
}

void putFoodAway() {
    Form2.Label2.Left = 14 * CellSize;
    Form2.Label2.Top = 14 * CellSize;
}

// The head stands before the right wall; the next tick costs a life. True while that life fades.
bool runIntoTheWall(ScreenDriver& driver) {
    driver.inProgram([] {
        putFoodAway();
        HeadX = 15;
        HeadY = 8;
        Heading = kHeadRight;
    });
    return driver.waitFor(isHandling);
}

// A busy window manager can miss its key.
bool closeByKey(ScreenDriver& driver) {
    bool isClosed = false;
    for (int i = 0; i < 10 && !isClosed; ++i) {
        driver.key("alt+F4");
        driver.rest(200);
        driver.inProgram([&] { isClosed = !Form2.Loaded; });
    }
    return isClosed;
}

}  // namespace

TEST(WormWindow, real_keys_steer_the_worm_and_the_map_stays) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openGame(driver));
        driver.inProgram(putFoodAway);
        ASSERT_TRUE(driver.waitFor([] { return HeadX >= 5; }));
        driver.key("Down");
        EXPECT_TRUE(driver.waitFor([] { return HeadY >= 5; }));
        driver.key("Right");
        EXPECT_TRUE(driver.waitFor([] { return Heading == kHeadRight; }));
        driver.inProgram([] {  // far from the walls, however slow the machine is
            HeadX = 3;
            HeadY = 12;
        });
        driver.rest(200);
        driver.key("Up");
        EXPECT_TRUE(driver.waitFor([] { return Heading == kHeadUp; }));
        driver.inProgram([] {
            EXPECT_EQ(Lives, 5);
            EXPECT_EQ(Form2.Caption, "Lives: 5   Level: 1");
            for (int y = 0; y <= MapSize; ++y) {
                for (int x = 0; x <= MapSize; ++x) {
                    ASSERT_EQ(HeightMap(x, y), 77);
                }
            }
        });
    });
}

TEST(WormWindow, its_window_has_a_fixed_size) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openGame(driver));
        driver.inProgram([] {
            const QWidget* active = QApplication::activeWindow();
            EXPECT_EQ(active->minimumSize(), active->size());
            EXPECT_EQ(active->maximumSize(), active->size());
        });
    });
}

TEST(WormWindow, a_key_during_a_fade_comes_after_it) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openGame(driver));
        // A busy machine may be too late with its key: then the next life is tried.
        bool wasInTime = false;
        for (int lives = 5; lives > 1 && !wasInTime; --lives) {
            ASSERT_TRUE(runIntoTheWall(driver));
            driver.key("Down");
            driver.inProgram([&] {
                wasInTime = isHandling() && Lives == lives;
                EXPECT_TRUE(!wasInTime || Heading == kHeadRight);
            });
            ASSERT_TRUE(driver.waitFor([&] { return !isHandling() && Lives == lives - 1; }));
        }
        EXPECT_TRUE(wasInTime) << "each fade was over too soon to prove anything";
        EXPECT_TRUE(driver.waitFor([] { return Heading == kHeadDown; }));
    });
}

TEST(WormWindow, a_close_during_a_fade_cuts_it_short) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openGame(driver));
        ASSERT_TRUE(runIntoTheWall(driver));
        EXPECT_TRUE(closeByKey(driver));
        driver.inProgram([] {
            EXPECT_EQ(Lives, 4);
            EXPECT_TRUE(Form1.Loaded);
            runHandler(openWormGame);
        });
        EXPECT_TRUE(driver.waitForWindow(Form2));
        driver.inProgram([] { EXPECT_EQ(Lives, 5); });
    });
}

TEST(WormWindow, a_game_that_ends_under_a_dialog_leaves_it_alone) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openGame(driver));
        driver.inProgram([] {
            Lives = 1;
            putFoodAway();
            EXPECT_EQ(QApplication::activeWindow()->windowTitle().toStdString(), Form2.Caption);
            QTimer::singleShot(0, [] {
                runHandler([] { services().dialogs->message("Wait.", kErrorBox, "A message"); });
            });
        });
        ASSERT_TRUE(driver.waitForDialog("A message"));
        EXPECT_TRUE(driver.waitFor([] { return !Form2.Loaded; }));
        driver.key("Return");
        EXPECT_TRUE(driver.waitFor([] { return QApplication::activeModalWidget() == nullptr; }));
        EXPECT_TRUE(driver.waitFor([] { return Form1.Loaded && !isHandling(); }));
    });
}

}  // namespace ombrelia::worm
