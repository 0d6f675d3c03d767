// The real windows on two screens of different size and density, none of which is real: on the near
// one a unit is a pixel, the far one is large and has two device pixels to a logical one.
#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <cmath>
#include <gtest/gtest.h>

#include "core/objects.h"
#include "core/windows/form1.h"
#include "core/windows/help_box.h"
#include "core/windows/small_windows.h"
#include "platform/dispatch.h"
#include "platform/qt/window_view.h"
#include "platform/services.h"
#include "platform/window_life.h"
#include "window/screen_driver.h"

namespace ombrelia {

namespace {

constexpr double kNearScale = 1;
constexpr double kFarScale = 4;  // 3840 by 2160 device pixels hold the editor four times as large
constexpr double kFarRatio = 2;

QScreen* screenNamed(const char* name) {
    for (QScreen* screen : QGuiApplication::screens()) {
        if (screen->name() == QLatin1String(name)) {
            return screen;
        }
    }
    return nullptr;
}

void moveTo(ScreenDriver& driver, const char* screen) {
    driver.inProgram([&] {
        ASSERT_NE(screenNamed(screen), nullptr);
        // Some versions of the toolkit go by the word, others by the place.
        viewOf(Form1)->windowHandle()->setScreen(screenNamed(screen));
        viewOf(Form1)->move(screenNamed(screen)->geometry().topLeft() + QPoint(20, 20));
    });
    driver.rest();
}

bool openEditor(ScreenDriver& driver) {
    driver.inProgram([] {
        runHandler([] {
            MapSize = 129;
            unloadWindow(frmSplash);
            showWindow(Form1);
        });
    });
    const bool isOpen = driver.waitForWindow(Form1) && driver.waitForWindow(HelpFrm);
    moveTo(driver, "near");
    return isOpen;
}

void expectSize(const Window& window, double scale, double ratio) {
    const WindowView* view = viewOf(window);
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->scale(), scale);
    EXPECT_EQ(view->width(), std::ceil(window.Width * scale / ratio));
    EXPECT_EQ(view->height(), std::ceil(window.Height * scale / ratio));
}

}  // namespace

TEST(Screens, the_editor_takes_the_scale_of_the_screen_that_it_comes_to) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver));
        driver.inProgram([] {
            expectSize(Form1, kNearScale, 1);
            expectSize(HelpFrm, kNearScale, 1);
        });
        moveTo(driver, "far");
        driver.inProgram([] {
            expectSize(Form1, kFarScale, kFarRatio);
            expectSize(HelpFrm, kFarScale, kFarRatio);
        });
    });
}

TEST(Screens, what_opens_later_opens_beside_the_editor) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver));
        moveTo(driver, "far");
        driver.inProgram([] { runHandler([] { showWindow(HelpBox); }); });
        ASSERT_TRUE(driver.waitForWindow(HelpBox));
        driver.inProgram([] {
            expectSize(HelpBox, kFarScale, kFarRatio);
            EXPECT_TRUE(screenNamed("far")->geometry().contains(viewOf(HelpBox)->geometry()));
        });
    });
}

TEST(Screens, windows_move_by_their_titles_where_the_system_moves_none) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver));
        const auto drag = [](QWidget& part, const QPoint& from, const QPoint& by) {
            const auto send = [&](QEvent::Type kind, const QPoint& screen, Qt::MouseButtons held) {
                QMouseEvent event(kind, part.mapFromGlobal(screen), screen, Qt::LeftButton, held,
                                  Qt::NoModifier);
                QCoreApplication::sendEvent(&part, &event);
            };
            const QPoint begin = part.mapToGlobal(from);
            send(QEvent::MouseButtonPress, begin, Qt::LeftButton);
            send(QEvent::MouseMove, begin + by / 2, Qt::LeftButton);
            send(QEvent::MouseMove, begin + by, Qt::LeftButton);
            send(QEvent::MouseButtonRelease, begin + by, Qt::NoButton);
            send(QEvent::MouseMove, begin, Qt::NoButton);
        };
        const QPoint by(60, 40);
        driver.inProgram([&] {
            WindowView& editor = *viewOf(Form1);
            const QPoint before = editor.pos();
            drag(editor, {200, 10}, by);
            EXPECT_EQ(editor.pos(), before + by);
            QTimer::singleShot(0, [] { services().dialogs->askInput("Text", "Title"); });
        });
        ASSERT_TRUE(driver.waitForDialog("Title"));
        driver.inProgram([&] {
            QWidget& dialog = *QApplication::activeModalWidget();
            const QPoint before = dialog.pos();
            drag(*dialog.findChild<QLabel*>(QStringLiteral("title")), {30, 5}, by);
            EXPECT_EQ(dialog.pos(), before + by);
            dialog.close();
        });
    });
}

TEST(Screens, places_of_the_mouse_are_units_on_each_screen) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver));
        const auto pointTo = [](double x, double y) {
            const WindowView& view = *viewOf(Form1);
            const double logical = view.scale() / view.devicePixelRatioF();
            const QPointF place(x * logical, y * logical);
            QMouseEvent move(QEvent::MouseMove, place, view.mapToGlobal(place), Qt::NoButton,
                             Qt::NoButton, Qt::NoModifier);
            QCoreApplication::sendEvent(viewOf(Form1), &move);
        };
        driver.inProgram([&] {
            pointTo(300.5, 200.5);
            EXPECT_NEAR(Form1.PointerX, 300, 1);
            EXPECT_NEAR(Form1.PointerY, 200, 1);
        });
        moveTo(driver, "far");
        driver.inProgram([&] {
            pointTo(120.5, 90.5);
            EXPECT_NEAR(Form1.PointerX, 120, 1);
            EXPECT_NEAR(Form1.PointerY, 90, 1);
        });
    });
}

}  // namespace ombrelia
