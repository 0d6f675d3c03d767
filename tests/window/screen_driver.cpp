#include "screen_driver.h"

#include <QAbstractNativeEventFilter>
#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QWindow>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <gtest/gtest.h>
#include <thread>

#include "app/bindings.h"
#include "core/windows/form1.h"
#include "core/windows/small_windows.h"
#include "desk/startup.h"
#include "platform/dispatch.h"
#include "platform/program.h"
#include "platform/qt/window_view.h"
#include "register/reset_process.h"

namespace ombrelia {

namespace {

constexpr int kPatienceMilliseconds = 30000;
constexpr int kHearingMilliseconds = 1500;  // an event takes less, even on a busy machine

// Counts what comes from the X server of the mouse and the keyboard, also what is kept for later.
class Ear : public QAbstractNativeEventFilter {
  public:
    explicit Ear(HeardEvents& heard) : heard_(heard) {}
    bool nativeEventFilter(const QByteArray& kind, void* message, qintptr* /*result*/) override {
        if (kind == "xcb_generic_event_t") {
            const auto* bytes = static_cast<const std::uint8_t*>(message);
            std::size_t type = bytes[0] & 0x7F;
            if (type == kExtendedEvent) {
                type = bytes[8];
            }
            if (type < heard_.size()) {
                ++heard_[type];
            }
        }
        return false;
    }

  private:
    static constexpr std::size_t kExtendedEvent = 35;
    HeardEvents& heard_;
};

double scaleOf(const WindowView& view) {
    return view.width() * view.devicePixelRatioF() / view.window().Width;
}

// A place in units from the control's inner corner, on the screen.
QPoint onScreen(Control& control, double x, double y) {
    WindowView* view = viewOf(*control.Owner);
    if (view == nullptr) {
        return {-1, -1};
    }
    const Point corner =
        control.Kind == ControlKind::Window ? Point{0, 0} : cornerInWindow(control);
    const double scale = std::floor(scaleOf(*view) * 4 + 0.01) / 4;
    const QPointF place((corner.x + x) * scale, (corner.y + y) * scale);
    return view->mapToGlobal((place / view->devicePixelRatioF()).toPoint());
}

}  // namespace

WindowView* viewOf(const Window& window) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* view = dynamic_cast<WindowView*>(widget);
        if (view != nullptr && &view->window() == &window && view->isVisible() &&
            view->windowHandle()->isExposed()) {
            return view;
        }
    }
    return nullptr;
}

void ScreenDriver::run(const std::function<void(ScreenDriver&)>& story, int yieldMilliseconds) {
    ASSERT_TRUE(std::getenv("DISPLAY") != nullptr || std::getenv("QT_QPA_PLATFORM") != nullptr)
        << "run these tests through tools/with_screen.sh";
    static char name[] = "window_tests";
    static char* arguments[] = {name, nullptr};
    ScreenDriver driver;
    Ear ear(driver.heard_);
    std::thread person;
    resetProcess();
    const int status =
        runProgram(1, arguments,
                   {[&] {
                        qApp->installNativeEventFilter(&ear);
                        startEditor();
                        person = std::thread([&] {
                            story(driver);
                            if (!driver.hasEnded_) {
                                QMetaObject::invokeMethod(
                                    qApp, [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
                            }
                        });
                    },
                    repairAfterFailure,
                    {Form1.Width, HelpFrm.Width, Form1.Height},
                    yieldMilliseconds,
                    {},
                    OMBRELIA_EDITOR});
    EXPECT_EQ(status, 0);
    driver.hasEnded_ = true;
    person.join();
}

void ScreenDriver::waitUntilEnded() {
    for (int waited = 0; waited < kPatienceMilliseconds && !hasEnded_; waited += 20) {
        rest(20);
    }
    EXPECT_TRUE(hasEnded_) << "the program did not end";
}

void ScreenDriver::inProgram(const std::function<void()>& work) {
    QMetaObject::invokeMethod(qApp, work, Qt::BlockingQueuedConnection);
}

bool ScreenDriver::waitFor(const std::function<bool()>& holds) {
    for (int waited = 0; waited < kPatienceMilliseconds; waited += 20) {
        bool result = false;
        inProgram([&] { result = holds(); });
        if (result) {
            return true;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return false;
}

bool ScreenDriver::waitForWindow(Window& window) {
    return waitForEither(window, window);
}

bool ScreenDriver::waitForEither(Window& window, Window& other) {
    const bool isThere =
        waitFor([&] { return viewOf(window) != nullptr || viewOf(other) != nullptr; });
    rest(250);
    return isThere;
}

void ScreenDriver::tell(const std::string& words, InputKind kind, int events) {
    const std::atomic<int>& heard = heard_[static_cast<std::size_t>(kind)];
    const int awaited = heard + events;
    const int status = std::system(("xdotool " + words).c_str());
    EXPECT_EQ(status, 0) << words;
    for (int waited = 0; waited < kHearingMilliseconds && heard < awaited && !hasEnded_;
         waited += 5) {
        rest(5);
    }
}

void ScreenDriver::movePointer(const QPoint& place) {
    tell("mousemove " + std::to_string(place.x()) + " " + std::to_string(place.y()),
         InputKind::Motion, place == pointer_ ? 0 : 1);
    pointer_ = place;
    rest(60);
}

void ScreenDriver::moveTo(Control& control, double x, double y) {
    QPoint place;
    inProgram([&] { place = onScreen(control, x, y); });
    movePointer(place);
}

void ScreenDriver::moveTo(Control& control) {
    moveTo(control, control.Width / 2, control.Height / 2);
}

void ScreenDriver::press(int button) {
    tell("mousedown " + std::to_string(button), InputKind::ButtonPress);
    rest(60);
}

void ScreenDriver::release(int button) {
    tell("mouseup " + std::to_string(button), InputKind::ButtonRelease);
    rest();
}

void ScreenDriver::click(Control& control) {
    click(control, control.Width / 2, control.Height / 2);
}

void ScreenDriver::click(Control& control, double x, double y) {
    moveTo(control, x, y);
    press();
    release();
}

void ScreenDriver::doubleClick(Control& control) {
    moveTo(control);
    tell("click --repeat 2 --delay 60 1", InputKind::ButtonRelease, 2);
    rest();
}

void ScreenDriver::turnWheel(int notches) {
    const int count = std::abs(notches);
    tell("click --repeat " + std::to_string(count) + " --delay 40 " + (notches < 0 ? "4" : "5"),
         InputKind::ButtonPress, count);
    rest();
}

void ScreenDriver::clickAt(const QPoint& place) {
    movePointer(place);
    press();
    release();
}

void ScreenDriver::type(const std::string& text) {
    tell("type --delay 8 '" + text + "'", InputKind::KeyPress, static_cast<int>(text.size()));
    rest();
}

void ScreenDriver::key(const std::string& name) {
    tell("key " + name, InputKind::KeyPress);
    rest();
}

bool ScreenDriver::waitForDialog(const std::string& title) {
    const QString wanted = QString::fromStdString(title);
    const bool isThere = waitFor([&] {
        const QWidget* dialog = QApplication::activeModalWidget();
        return dialog != nullptr && dialog->windowTitle() == wanted && dialog->isActiveWindow();
    });
    rest(250);
    return isThere;
}

bool ScreenDriver::happens(const std::function<bool()>& holds) {
    constexpr int kLooks = 150;
    bool holdsNow = false;
    for (int look = 0; look < kLooks && !holdsNow; ++look) {
        rest(20);
        inProgram([&] { holdsNow = holds(); });
    }
    return holdsNow;
}

bool ScreenDriver::typeName(const std::string& path) {
    const QLineEdit* line = nullptr;
    QPoint place;
    inProgram([&] {
        line = QApplication::activeModalWidget()->findChild<QLineEdit*>();
        place = line->mapToGlobal(line->rect().center());
    });
    type(path);
    // On a busy machine letters may come before the line has the keyboard.
    const auto isTyped = [&] { return line->text().toStdString() == path; };
    for (int i = 1; !happens(isTyped); ++i) {
        if (i == kTries) {
            return false;
        }
        clickAt(place);
        key("ctrl+a");
        type(path);
    }
    return true;
}

bool ScreenDriver::doUntil(const std::function<void()>& deed, const std::function<bool()>& holds) {
    for (int i = 0; i < kTries; ++i) {
        deed();
        if (happens(holds)) {
            return true;
        }
    }
    return false;
}

bool ScreenDriver::keyUntil(const char* name, const std::function<bool()>& holds) {
    return doUntil([&] { key(name); }, holds);
}

bool ScreenDriver::clickUntil(const QPoint& place, const std::function<bool()>& holds) {
    return doUntil([&] { clickAt(place); }, holds);
}

bool ScreenDriver::nameFile(const std::string& title, const std::string& path) {
    if (!waitForDialog(title)) {
        return false;
    }
    const QWidget* dialog = nullptr;
    inProgram([&] { dialog = QApplication::activeModalWidget(); });
    return typeName(path) &&
           keyUntil("Return", [&] { return QApplication::activeModalWidget() != dialog; });
}

std::string ScreenDriver::dialogText() {
    std::string text;
    inProgram([&] {
        if (auto* box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            text = box->informativeText().toStdString();
        }
    });
    return text;
}

QImage ScreenDriver::pictureOf(Control& control) {
    rest();
    QImage picture;
    inProgram([&] {
        const WindowView* view = viewOf(*control.Owner);
        QPoint corner = onScreen(control, 0, 0);
        const double border =
            control.Kind == ControlKind::PictureBox ? static_cast<PictureBox&>(control).Border : 0;
        const double scale = std::floor(scaleOf(*view) * 4 + 0.01) / 4;
        QSize size(static_cast<int>(std::lround((control.Width - 2 * border) * scale)),
                   static_cast<int>(std::lround((control.Height - 2 * border) * scale)));
        if (control.Kind == ControlKind::Window) {  // with its menu bar
            corner = view->mapToGlobal(QPoint(0, 0));
            size = view->size() * view->devicePixelRatioF();
        }
        picture = QGuiApplication::primaryScreen()
                      ->grabWindow(0, corner.x(), corner.y(), size.width(), size.height())
                      .toImage();
    });
    return picture;
}

double ScreenDriver::scale() {
    double result = 0;
    inProgram([&] {
        for (Window* window : allWindows()) {
            if (WindowView* view = viewOf(*window)) {
                result = std::floor(scaleOf(*view) * 4 + 0.01) / 4;
            }
        }
    });
    return result;
}

void ScreenDriver::rest(int milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

}  // namespace ombrelia
