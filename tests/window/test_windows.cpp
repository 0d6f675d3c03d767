// The windows themselves: moving, minimising, closing, asking, coming back.
#include <QApplication>
#include <QMessageBox>
#include <QWidget>
#include <QWindow>
#include <gtest/gtest.h>

#include "core/editor_state.h"
#include "core/objects.h"
#include "core/windows/help_box.h"
#include "platform/palette.h"
#include "stories.h"

namespace ombrelia {

namespace {

// The hint frame's widget; none before it was ever seen.
QWidget* hintWidget() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->windowTitle().toStdString() == HelpFrm.Caption) {
            return widget;
        }
    }
    return nullptr;
}

bool isHintSeen() {
    const QWidget* hint = hintWidget();
    return hint != nullptr && hint->isVisible() && hint->windowHandle()->isExposed();
}

// Whether the icon of the open box has the red of the stop light.
bool hasRedIcon() {
    const auto* box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
    const QImage icon = box->iconPixmap().toImage();
    int reds = 0;
    for (int y = 0; y < icon.height(); ++y) {
        for (int x = 0; x < icon.width(); ++x) {
            const QColor color = icon.pixelColor(x, y);
            reds += color.red() > 180 && color.green() < 130 && color.blue() < 120 ? 1 : 0;
        }
    }
    return reds > icon.width();
}

// A busy window manager can miss its key.
bool closeByKey(ScreenDriver& driver, const std::string& question) {
    bool isAsking = false;
    for (int i = 0; i < 4 && !isAsking; ++i) {
        driver.key("alt+F4");
        isAsking = driver.waitForDialog(question);
    }
    return isAsking;
}

}  // namespace

TEST(Windows, the_title_moves_the_window_and_the_hint_follows) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeSmall));
        const double before = Form1.Top;
        driver.moveTo(Form1.Label11, 200, 10);
        driver.press();
        for (int step = 1; step <= 6; ++step) {
            driver.moveTo(Form1.Label11, 200, 10 + 5.0 * step);
        }
        driver.release();
        driver.rest(300);
        driver.inProgram([&] {
            EXPECT_GT(Form1.Top, before + 5);
            EXPECT_DOUBLE_EQ(HelpFrm.Top, Form1.Top);
            EXPECT_DOUBLE_EQ(HelpFrm.Left, Form1.Left + Form1.Width);
        });
    });
}

TEST(Windows, the_editor_is_active_with_its_title_in_the_active_colour) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeMedium));
        EXPECT_TRUE(driver.waitFor([] { return Form1.Label11.ForeColor == palette::kText; }));
        driver.inProgram(
            [] { EXPECT_EQ(Form1.Label11.Caption, "Ombrelia Terrain Editor - Medium Map"); });
    });
}

TEST(Windows, the_whole_title_bar_goes_dark_behind_another_window) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeSmall));
        const int place = static_cast<int>(4 * driver.scale());  // left of the title's letters
        const int bright = qGray(driver.pictureOf(Form1).pixel(place, 3 * place));
        driver.click(Form1.NTool(button::kHelp + kOverlayOffset));
        ASSERT_TRUE(driver.waitForWindow(HelpBox));
        ASSERT_TRUE(driver.waitFor([] { return Form1.Label11.ForeColor == TitleInactiveColor; }));
        EXPECT_LT(qGray(driver.pictureOf(Form1).pixel(place, 3 * place)), bright / 2);
        driver.click(HelpBox.NTool(button::kHelpClose));
        ASSERT_TRUE(driver.waitFor([] { return Form1.Label11.ForeColor == TitleActiveColor; }));
        EXPECT_EQ(qGray(driver.pictureOf(Form1).pixel(place, 3 * place)), bright);
    });
}

TEST(Windows, escape_closes_the_about_box) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeSmall));
        pressWide(driver, button::kMenu);
        pressWide(driver, button::kAbout);
        ASSERT_TRUE(driver.waitForWindow(frmSplash));
        driver.key("space");
        driver.inProgram([] { EXPECT_TRUE(frmSplash.Visible); });
        driver.key("Escape");
        EXPECT_TRUE(driver.waitFor([] { return !frmSplash.Loaded; }));
        driver.inProgram([] { EXPECT_TRUE(Form1.Visible); });
    });
}

TEST(Windows, minimize_takes_the_editor_off_the_screen) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeSmall));
        driver.click(Form1.NTool(button::kMinimize));
        EXPECT_TRUE(driver.waitFor([] { return Form1.Minimized; }));
    });
}

TEST(Windows, closing_asks_and_no_keeps_the_editor) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeSmall));
        driver.click(Form1.NTool(button::kClose));
        ASSERT_TRUE(driver.waitForDialog("Exit?"));
        EXPECT_EQ(driver.dialogText(), "Are you sure you want to Exit?");
        driver.key("Return");  // the second button, No, is the default
        EXPECT_TRUE(driver.waitFor([] { return QApplication::activeModalWidget() == nullptr; }));
        driver.inProgram([] { EXPECT_TRUE(Form1.Loaded); });
    });
}

TEST(Windows, new_map_goes_back_to_the_size_dialog_and_builds_everything_anew) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeLarge));
        driver.inProgram([] { HeightMap(10, 10) = 200; });
        pressWide(driver, button::kMenu);
        pressWide(driver, button::kNewMap);
        ASSERT_TRUE(driver.waitForDialog("Start New Map?"));
        driver.key("alt+y");
        ASSERT_TRUE(driver.waitForWindow(SizeSelect));
        driver.inProgram([] { EXPECT_FALSE(Form1.Loaded); });
        driver.click(SizeSelect.NTool(button::kSizeMiniature), 4, 4);
        ASSERT_TRUE(driver.waitForWindow(Form1));
        driver.inProgram([] {
            EXPECT_EQ(MapSize, 65);
            EXPECT_EQ(HeightMap(10, 10), 40);
            EXPECT_EQ(Form1.Label11.Caption, "Ombrelia Terrain Editor - Miniature Map");
        });
    });
}

TEST(Windows, closed_by_the_window_manager_the_editor_asks_and_a_no_keeps_everything) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeSmall));
        driver.inProgram([] { HeightMap(10, 10) = 200; });
        ASSERT_TRUE(closeByKey(driver, "Exit?"));
        driver.inProgram([] { EXPECT_TRUE(hasRedIcon()); });
        driver.key("Return");
        EXPECT_TRUE(driver.waitFor([] { return QApplication::activeModalWidget() == nullptr; }));
        driver.rest(300);
        driver.inProgram([] {
            EXPECT_TRUE(Form1.Loaded);
            EXPECT_TRUE(Form1.Visible);
            EXPECT_EQ(HeightMap(10, 10), 200);
        });
        EXPECT_TRUE(driver.waitFor(isHintSeen));
    });
}

TEST(Windows, the_hint_frame_ends_with_the_editor_and_belongs_to_the_next_one) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeLarge));
        ASSERT_TRUE(driver.waitFor(isHintSeen));
        pressWide(driver, button::kMenu);
        pressWide(driver, button::kNewMap);
        ASSERT_TRUE(driver.waitForDialog("Start New Map?"));
        driver.key("alt+y");
        ASSERT_TRUE(driver.waitForWindow(SizeSelect));
        driver.inProgram([] { EXPECT_FALSE(hintWidget()->isVisible()); });
        driver.click(SizeSelect.NTool(button::kSizeMiniature), 4, 4);
        ASSERT_TRUE(driver.waitForWindow(Form1));
        ASSERT_TRUE(driver.waitFor(isHintSeen));
        driver.inProgram([] {
            const QWindow* host = hintWidget()->windowHandle()->transientParent();
            ASSERT_NE(host, nullptr);
            EXPECT_TRUE(host->isVisible());
        });
        driver.click(Form1.NTool(button::kMinimize));
        EXPECT_TRUE(driver.waitFor([] { return Form1.Minimized && !isHintSeen(); }));
    });
}

TEST(Windows, about_shows_the_splash_until_it_is_clicked) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeSmall));
        pressWide(driver, button::kMenu);
        pressWide(driver, button::kAbout);
        ASSERT_TRUE(driver.waitForWindow(frmSplash));
        driver.click(frmSplash, 40, 40);
        EXPECT_TRUE(driver.waitFor([] { return !frmSplash.Loaded; }));
        driver.inProgram([] { EXPECT_FALSE(SizeSelect.Visible); });
    });
}

TEST(Windows, the_joke_of_the_size_dialog_is_told_by_the_mouse) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openSizeSelect(driver));
        driver.moveTo(SizeSelect.Label2);
        EXPECT_TRUE(driver.waitFor([] { return SizeSelect.Label2.Caption == kImportLineHovered; }));
        driver.doubleClick(SizeSelect.Label2);
        EXPECT_TRUE(driver.waitFor([] { return EggArmed == 1; }));
        driver.inProgram([] { EXPECT_EQ(SizeSelect.Label2.Caption, kImportLineArmed); });
        driver.moveTo(SizeSelect.NTool(button::kSizeLarge), 3, 3);
        EXPECT_TRUE(driver.waitFor([] { return SizeSelect.Label2.Caption == kImportLine; }));
    });
}

TEST(Windows, buttons_show_the_pointer_over_them) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeSmall));
        driver.moveTo(Form1.NTool(button::kPencil + kOverlayOffset));
        EXPECT_TRUE(driver.waitFor([] { return Form1.NTool(button::kPencil).Face.face == 1; }));
        driver.moveTo(Form1, 5, 350);
        EXPECT_TRUE(driver.waitFor([] { return Form1.NTool(button::kPencil).Face.face == 0; }));
    });
}

}  // namespace ombrelia
