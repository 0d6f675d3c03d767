// The maze on the screen: opened by the real gestures, played by real keys, resized and minimized.
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QWidget>
#include <QWindow>
#include <gtest/gtest.h>

#include "core/objects.h"
#include "core/windows/maze_window.h"
#include "games/maze/maze_state.h"
#include "games/maze/maze_track.h"
#include "stories.h"

namespace ombrelia::maze {

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
    if (!openSizeSelect(driver)) {
        return false;
    }
    driver.doubleClick(SizeSelect.Label2);
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

// A click on a menu, then on its entry. A menu that goes uncovers the maze, which is then painted
// anew with some entries out of use: the next choice comes after that.
void choose(ScreenDriver& driver, int menu, int entry) {
    QPoint place;
    driver.rest(200);
    ASSERT_TRUE(driver.waitFor(isReady));
    driver.inProgram([&] {
        const auto* bar = mazeWidget()->findChild<QMenuBar*>();
        place = bar->mapToGlobal(bar->actionGeometry(bar->actions().at(menu)).center());
    });
    driver.clickAt(place);
    ASSERT_TRUE(driver.waitFor([] { return QApplication::activePopupWidget() != nullptr; }));
    driver.inProgram([&] {
        const auto* list = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
        place = list->mapToGlobal(list->actionGeometry(list->actions().at(entry)).center());
    });
    driver.clickAt(place);
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
        ASSERT_TRUE(driver.waitFor(
            [] { return Minimized == kMazeYes && !mazeWidget()->windowHandle()->isExposed(); }));
        driver.rest(500);  // the window manager shall have ended with the one before the other
        driver.inProgram([] { mazeWidget()->showNormal(); });
        EXPECT_TRUE(driver.waitFor([] { return Minimized == kMazeNo && isReady(); }));
        driver.inProgram([&page] { EXPECT_TRUE(MazePage == page); });
    });
}

TEST(MazeWindow, the_menus_work_by_mouse) {
    constexpr int kAction = 0;
    constexpr int kStyle = 1;
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openMaze(driver));
        const QImage unsolved = driver.pictureOf(frm3DMaze);
        choose(driver, kAction, 1);
        EXPECT_TRUE(driver.waitFor([] { return Solved == kMazeYes; }));
        driver.rest(200);
        ASSERT_TRUE(driver.waitFor(isReady));
        const QImage solved = driver.pictureOf(frm3DMaze);
        EXPECT_NE(solved, unsolved);
        choose(driver, kAction, 2);
        EXPECT_TRUE(driver.waitFor([] { return Solved == kMazeNo && isReady(); }));
        driver.rest(200);
        ASSERT_TRUE(driver.waitFor(isReady));
        EXPECT_EQ(driver.pictureOf(frm3DMaze), unsolved);
        MazeGrid page;
        driver.inProgram([&page] { page = MazePage; });
        choose(driver, kStyle, 0);
        EXPECT_TRUE(driver.waitFor([] { return frm3DMaze.mnuStyleItem(0).Checked && isReady(); }));
        choose(driver, kStyle, 1);
        EXPECT_TRUE(driver.waitFor([] { return frm3DMaze.mnuStyleItem(1).Checked && isReady(); }));
        choose(driver, kAction, 0);
        EXPECT_TRUE(driver.waitFor([&page] { return isReady() && !(MazePage == page); }));
    });
}

TEST(MazeWindow, its_about_box_is_over_it_and_leaves_it_the_keyboard) {
    constexpr int kHelp = 2;
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openMaze(driver));
        driver.inProgram([] { mazeWidget()->move(900, 500); });
        driver.rest(300);
        choose(driver, kHelp, 0);
        ASSERT_TRUE(driver.waitForDialog("Ombrelia Terrain Editor"));
        driver.inProgram([] {
            const auto* box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
            EXPECT_TRUE(mazeWidget()->frameGeometry().contains(box->frameGeometry().center()));
            EXPECT_TRUE(box->iconPixmap().isNull());
        });
        driver.key("Return");
        EXPECT_TRUE(driver.waitFor([] {
            return QApplication::activeModalWidget() == nullptr && mazeWidget()->isActiveWindow();
        }));
        ASSERT_TRUE(driver.waitFor(isReady));
        driver.key("b");
        EXPECT_TRUE(driver.waitFor([] { return Solved == kMazeYes; }));
    });
}

TEST(MazeWindow, too_small_a_page_stays_refused_until_it_is_large_enough) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openMaze(driver));
        int height = 0;
        driver.inProgram([&height] {
            height = mazeWidget()->height();
            const int menus = mazeWidget()->findChild<QMenuBar*>()->height();
            mazeWidget()->resize(mazeWidget()->width(), menus + 50);
        });
        const auto isRefused = [] {
            return frm3DMaze.Text1.Caption == "This window is too small!" && isReady();
        };
        ASSERT_TRUE(driver.waitFor(isRefused));
        driver.rest(1000);
        driver.inProgram([&isRefused] { EXPECT_TRUE(isRefused()); });
        driver.inProgram([height] { mazeWidget()->resize(mazeWidget()->width(), height); });
        EXPECT_TRUE(driver.waitFor(
            [] { return isReady() && frm3DMaze.Text1.Caption == "Use the arrow keys to solve."; }));
    });
}

TEST(MazeWindow, a_drag_of_the_bar_tilts_the_maze) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openMaze(driver));
        const QImage steep = driver.pictureOf(frm3DMaze);
        double tilt = 0;
        driver.inProgram([&tilt] { tilt = TiltDegrees; });
        driver.moveTo(frm3DMaze.VScroll1);
        driver.press();
        driver.moveTo(frm3DMaze.VScroll1, 8, 200);
        driver.moveTo(frm3DMaze.VScroll1, 8, 280);
        driver.release();
        EXPECT_TRUE(driver.waitFor([&] { return isReady() && TiltDegrees != tilt; }));
        EXPECT_NE(driver.pictureOf(frm3DMaze), steep);
    });
}

}  // namespace ombrelia::maze
