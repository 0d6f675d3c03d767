// A screen that changes its size, goes off and comes again under the editor.
#include <QApplication>
#include <QProcess>
#include <QScreen>
#include <gtest/gtest.h>

#include "core/windows/form1.h"
#include "core/windows/form2.h"
#include "core/windows/help_box.h"
#include "platform/dispatch.h"
#include "platform/qt/window_view.h"
#include "platform/window_life.h"
#include "stories.h"

namespace ombrelia {

namespace {

void tellScreen(const QStringList& words) {
    QProcess process;
    process.start(QStringLiteral("xrandr"), words);
    ASSERT_TRUE(process.waitForFinished()) << "xrandr is missing";
}

void makeMode(int width, int height) {
    const QString name = QStringLiteral("m%1x%2").arg(width).arg(height);
    QStringList words{QStringLiteral("--newmode"), name, QStringLiteral("60")};
    for (const int side : {width, height}) {
        for (const int more : {0, 8, 16, 24}) {
            words << QString::number(side + more);
        }
    }
    tellScreen(words);
    tellScreen({QStringLiteral("--addmode"), QStringLiteral("screen"), name});
}

void takeMode(const QString& name) {
    tellScreen(
        {QStringLiteral("--output"), QStringLiteral("screen"), QStringLiteral("--mode"), name});
}

// Both windows have this scale and lie on the screen, the hint frame beside the editor if there is
// room for it.
bool standsWell(double scale, bool isBeside) {
    const WindowView* editor = viewOf(Form1);
    const WindowView* hint = viewOf(HelpFrm);
    if (editor == nullptr || hint == nullptr) {
        return false;
    }
    const QRect screen = editor->screen()->geometry();
    return editor->scale() == scale && hint->scale() == scale &&
           screen.contains(editor->geometry()) && screen.contains(hint->geometry()) &&
           (hint->geometry().left() > editor->geometry().right()) == isBeside;
}

void expectStandsWell(ScreenDriver& driver, double scale, bool isBeside) {
    EXPECT_TRUE(driver.waitFor([&] { return standsWell(scale, isBeside); }));
    driver.rest(500);  // and stays so
    driver.inProgram([&] {
        const QRect editor = viewOf(Form1)->geometry();
        const QRect hint = viewOf(HelpFrm)->geometry();
        EXPECT_TRUE(standsWell(scale, isBeside))
            << "scales " << viewOf(Form1)->scale() << " and " << viewOf(HelpFrm)->scale()
            << ", editor from " << editor.left() << " to " << editor.right() << ", hint from "
            << hint.left() << " to " << hint.right();
    });
}

}  // namespace

TEST(ScreenChanges, the_windows_follow_the_size_of_their_screen) {
    makeMode(1280, 800);
    makeMode(800, 600);
    makeMode(640, 480);
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeMiniature));
        expectStandsWell(driver, 2, true);
        takeMode("m1280x800");
        expectStandsWell(driver, 1.25, true);
        takeMode("m800x600");
        expectStandsWell(driver, 1, false);
        takeMode("m640x480");
        expectStandsWell(driver, 0.8, false);
        takeMode("1920x1080");
        expectStandsWell(driver, 2, true);
    });
}

TEST(ScreenChanges, an_editor_at_the_edge_comes_inside) {
    makeMode(1280, 800);
    ScreenDriver::run([](ScreenDriver& driver) {
        takeMode("m1280x800");
        ASSERT_TRUE(openEditor(driver, button::kSizeMiniature));
        expectStandsWell(driver, 1.25, true);
        driver.inProgram([] { viewOf(Form1)->move(1000, 700); });
        driver.rest(300);
        takeMode("1920x1080");
        expectStandsWell(driver, 2, true);
    });
}

TEST(ScreenChanges, the_hint_frame_never_leaves_the_screen) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeMiniature));
        driver.inProgram([] {
            auto* editor = viewOf(Form1);
            editor->move(editor->screen()->geometry().width() - editor->width(), 100);
        });
        expectStandsWell(driver, 2, false);
    });
}

TEST(ScreenChanges, a_game_opens_in_the_middle_of_the_editor) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeMiniature));
        driver.inProgram([] { viewOf(Form1)->move(10, 200); });
        driver.rest(300);
        driver.inProgram([] { runHandler([] { showWindow(Form2); }); });
        ASSERT_TRUE(driver.waitForWindow(Form2));
        driver.inProgram([] {
            const QRect editor = viewOf(Form1)->frameGeometry();
            EXPECT_NEAR(viewOf(Form2)->geometry().center().x(), editor.center().x(), 4);
        });
    });
}

TEST(ScreenChanges, a_screen_that_was_off_finds_one_scale) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeMiniature));
        expectStandsWell(driver, 2, true);
        tellScreen({"--output", "screen", "--off"});
        driver.rest(500);
        takeMode("1920x1080");
        expectStandsWell(driver, 2, true);
    });
}

}  // namespace ombrelia
