#include "replay.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QScreen>
#include <QStyleHints>
#include <QWindow>
#include <utility>

#include "core/windows/form1.h"
#include "core/windows/form2.h"
#include "core/windows/help_box.h"
#include "core/windows/maze_window.h"
#include "core/windows/small_windows.h"
#include "errors.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/window_view.h"

namespace ombrelia::two_ways {

namespace {

constexpr int kPatienceMilliseconds = 20000;
constexpr int kFarDoubleClick = 100000;

// Places on a screen of 4000 x 3000 at which no two windows cover each other at scale 2, and no new
// one comes up under the pointer.
struct Slot {
    Window* window;
    int left, top;
};
const Slot kSlots[] = {
    {&Form1, 10, 110},       {&HelpBox, 10, 900},  {&SizeSelect, 2200, 10},
    {&frmSplash, 2200, 700}, {&Form3, 2200, 1400}, {&frm3DMaze, 2200, 1700},
    {&Form2, 1400, 1700},
};
const QPoint kNowhere(3990, 2990);

int buttonNumber(MouseButton button) {
    return button == MouseButton::Left ? 1 : (button == MouseButton::Middle ? 2 : 3);
}

}  // namespace

// The real windows under a session's headless platform.
class Replay::Screen : public QtDesktop {
  public:
    explicit Screen(HeadlessPlatform& platform) : platform_(platform) {}

    void shown(Window& window) override {
        platform_.shown(window);
        QtDesktop::shown(window);
    }
    void hidden(Window& window) override {
        platform_.hidden(window);
        QtDesktop::hidden(window);
    }
    void unloaded(Window& window) override {
        platform_.unloaded(window);
        QtDesktop::unloaded(window);
    }
    void minimize(Window& window) override { platform_.minimize(window); }
    void refresh(Control& control) override { platform_.refresh(control); }
    void sleep(int milliseconds) override { platform_.sleep(milliseconds); }
    void yield() override { platform_.yield(); }
    void beginWindowMove(Window& window) override { platform_.beginWindowMove(window); }
    void openList(ListBox& list) override { platform_.openList(list); }
    std::string activeWindowCaption() override { return platform_.activeWindowCaption(); }
    void openWebPage(const std::string& address) override { platform_.openWebPage(address); }
    void end() override {
        platform_.end();
        QtDesktop::end();
    }

  private:
    HeadlessPlatform& platform_;
};

Replay::Replay() {
    qApp->installEventFilter(this);
}

Replay::~Replay() {
    qApp->removeEventFilter(this);
}

void Replay::takeScale(double scale) {
    scale_ = scale;
}

void Replay::begin() {
    if (session_ != nullptr) {
        session_->takeWaitingLines();  // which would press and move within what follows
    }
    input_.moveTo(kNowhere);
    place_ = kNowhere;
    for (const MouseButton button : {MouseButton::Left, MouseButton::Middle, MouseButton::Right}) {
        input_.changeButton(buttonNumber(button), false);
    }
    // The end of whatever the last session was at: what the toolkit hears of a button after its
    // window has gone is lost on it, and it takes the button for held.
    waitUntil(
        [this] { return inside_ == nullptr && QGuiApplication::mouseButtons() == Qt::NoButton; });
    screen_.reset();
    lost_.clear();
    session_ = std::make_unique<scenario::Session>();
    session_->tellsFailures = true;
    session_->passesOverErrors = true;
    session_->pointer.keepsToWindow = true;
    session_->pointer.onPointer = [this](Window& window, double /*scale*/,
                                         const PointerInput& input) { pointer(window, input); };
    openScreen();
}

void Replay::openScreen() {
    screen_.reset();  // and all windows with it
    screen_ = std::make_unique<Screen>(session_->platform);
    const QSize size = QGuiApplication::primaryScreen()->availableSize();
    screen_->chooseScale({size.width() / scale_, 0, size.height() / scale_ / 2});
    services().desktop = screen_.get();
}

bool Replay::run(const std::string& line) {
    try {
        if (line.starts_with("start") || line == "restart") {
            openScreen();
        }
        session_->runLine(line);
    } catch (const scenario::LineError& error) {
        lost_ += line + ": " + error.sentence + "; ";
    } catch (const scenario::ExpectFailed& failure) {
        lost_ += line + ": " + failure.sentence + "; ";
    } catch (const HandlerFailed& failure) {
        lost_ += line + ": " + failure.sentence + "; ";
    }
    return lost_.empty();
}

WindowView* Replay::viewOf(const Window& window) const {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* view = dynamic_cast<WindowView*>(widget);
        if (view != nullptr && &view->window() == &window && view->isVisible()) {
            return view;
        }
    }
    return nullptr;
}

bool Replay::waitUntil(const std::function<bool()>& holds) {
    QElapsedTimer waited;
    waited.start();
    while (!holds()) {
        if (waited.hasExpired(kPatienceMilliseconds)) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
    }
    return true;
}

bool Replay::await(const char* what, const std::function<bool()>& holds) {
    const bool has = waitUntil(holds);
    if (!has) {
        lost_ += std::string(what) + "; ";
    }
    return has;
}

bool Replay::eventFilter(QObject* target, QEvent* event) {
    auto* view = dynamic_cast<WindowView*>(target);
    if (view == nullptr) {
        return false;
    }
    switch (event->type()) {
        case QEvent::Show:
            for (const Slot& slot : kSlots) {
                if (slot.window == &view->window()) {
                    view->move(slot.left, slot.top);
                }
            }
            return false;
        case QEvent::Timer:
            return true;
        case QEvent::Enter:
            inside_ = target;
            ++seen_[QEvent::MouseMove];  // to the place where it comes in
            return false;
        case QEvent::Hide:
        case QEvent::Leave:
            inside_ = inside_ == target ? nullptr : inside_;
            return false;
        case QEvent::MouseMove:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseButtonRelease:
            ++seen_[event->type()];
            return false;
        default:
            return false;
    }
}

void Replay::leave(WindowView& view) {
    input_.moveTo(kNowhere);
    place_ = kNowhere;
    await("the pointer's leaving", [&] { return inside_ != &view; });
}

void Replay::pointer(Window& window, const PointerInput& input) {
    WindowView* view = nullptr;
    QPoint corner;
    const bool isThere = waitUntil([&] {
        view = viewOf(window);
        return !window.Visible || (view != nullptr && view->windowHandle()->isExposed() &&
                                   input_.findCorner(*view, corner));
    });
    if (!isThere || view == nullptr) {
        if (window.Visible) {
            lost_ += "a window on the screen: " + window.Name + "; ";
        }
        if (input.kind == PointerKind::Release) {  // over what lies behind
            input_.changeButton(buttonNumber(input.button), false);
        }
        return;
    }
    if (input.kind == PointerKind::Leave) {
        leave(*view);
        return;
    }
    if (input.kind == PointerKind::Move) {
        const long before = seen_[QEvent::MouseMove];
        const QPoint place = corner + QPoint(static_cast<int>(input.x), static_cast<int>(input.y));
        if (std::exchange(place_, place) == place) {
            return;  // a screen says nothing of a pointer that stays
        }
        input_.moveTo(place);
        if (!await("a move", [&] { return seen_[QEvent::MouseMove] > before; })) {
            lost_ += input_.places(*view) + "; ";
        }
        return;
    }
    const bool isRelease = input.kind == PointerKind::Release;
    const bool isSecond = input.kind == PointerKind::SecondPress;
    const auto kind = isRelease
                          ? QEvent::MouseButtonRelease
                          : (isSecond ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress);
    QGuiApplication::styleHints()->setMouseDoubleClickInterval(isSecond ? kFarDoubleClick : 0);
    const long before = seen_[kind];
    input_.changeButton(buttonNumber(input.button), !isRelease);
    await(isRelease ? "a release" : "a press", [&] { return seen_[kind] > before; });
}

}  // namespace ombrelia::two_ways
