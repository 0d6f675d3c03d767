// The maze on the screen: opened by the real gestures, played by real keys, resized and minimized.
#include <QApplication>
#include <QWidget>
#include <gtest/gtest.h>

#include "core/objects.h"
#include "core/windows/maze_window.h"
#include "games/maze/maze_state.h"
#include "games/maze/maze_track.h"
#include "stories.h"

namespace ombrelia {

namespace {

constexpr const char* kKeys[] = {"Left", "Down", "Right", "Up"};

QWidget* mazeWidget() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->windowTitle().toStdString() == frm3DMaze.Caption) {
            return widget;
        }
    }
    return nullptr;
}

bool isReady() {
    return DrawState == kMazeReady && TimerRunning == kMazeNo;
}

// The editor over a marked map, opened with the flag of the hidden drag set.
bool openArmedEditor(ScreenDriver& driver) {
    if (!driver.waitForWindow(frmSplash)) {
        return false;
    }
    driver.click(frmSplash, 60, 60);
    if (!driver.waitForWindow(SizeSelect)) {
        return false;
    }
    driver.moveTo(SizeSelect.Label2);
    for (int i = 0; i < 2; ++i) {
        driver.press();
        driver.release();
    }
    if (!driver.waitFor([] { return EggArmed == 1; })) {
        return false;
    }
    driver.click(SizeSelect.LTool(button::kSizeSmall));
    const bool isOpen = driver.waitForWindow(Form1);
    driver.inProgram([] { HeightMap.fill(77); });
    return isOpen;
}

bool openMaze(ScreenDriver& driver) {
    if (!openArmedEditor(driver)) {
        return false;
    }
    driver.moveTo(Form1.NTool(button::kVolcano + kOverlayOffset));
    driver.press();
    driver.rest();
    driver.moveTo(Form1.Label32);
    driver.rest();
    driver.inProgram([] { EXPECT_EQ(Form1.Label11.Caption, "Let go of me here!"); });
    driver.release();
    return driver.waitForWindow(frm3DMaze) && driver.waitFor(isReady);
}

// The first step of the solution.
int firstStep() {
    int d = 0;
    for (const MazeDelta& delta : directionsOf(MazeStyle::Square)) {
        if (UserY + delta.y > 0 && MazePage(UserX + delta.x, UserY + delta.y) == kMazeTrack) {
            break;
        }
        ++d;
    }
    return d;
}

}  // namespace

TEST(MazeWindow, the_gestures_open_it_keys_play_it_and_the_map_stays) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openMaze(driver));
        int step = 0;
        driver.inProgram([&step] { step = firstStep(); });
        driver.key(kKeys[step]);
        EXPECT_TRUE(driver.waitFor([] { return UserX + UserY == 4; }));
        driver.key("b");
        EXPECT_TRUE(driver.waitFor([] { return Solved == kMazeYes; }));
        driver.inProgram([] {
            mazeWidget()->close();
            EXPECT_FALSE(frm3DMaze.Loaded);
            EXPECT_TRUE(Form1.Visible);
            for (int y = 0; y <= MapSize; ++y) {
                for (int x = 0; x <= MapSize; ++x) {
                    ASSERT_EQ(HeightMap(x, y), 77);
                }
            }
        });
    });
}

TEST(MazeWindow, another_size_makes_another_maze_and_minimizing_keeps_it) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openMaze(driver));
        MazeGrid page;
        driver.inProgram([&page] {
            page = MazePage;
            mazeWidget()->resize(mazeWidget()->width() * 3 / 4, mazeWidget()->height() * 3 / 4);
        });
        ASSERT_TRUE(driver.waitFor([&page] { return isReady() && MazePage.maxX() < page.maxX(); }));
        driver.inProgram([&page] {
            page = MazePage;
            mazeWidget()->showMinimized();
        });
        ASSERT_TRUE(driver.waitFor([] { return Minimized == kMazeYes; }));
        driver.inProgram([] { mazeWidget()->showNormal(); });
        EXPECT_TRUE(driver.waitFor([] { return Minimized == kMazeNo && isReady(); }));
        driver.inProgram([&page] { EXPECT_TRUE(MazePage == page); });
    });
}

}  // namespace ombrelia
