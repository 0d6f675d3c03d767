#include "platform/qt/qt_desktop.h"

#include <QApplication>
#include <QDesktopServices>
#include <QPointer>
#include <QScreen>
#include <QThread>
#include <QTimer>
#include <QUrl>
#include <QWindow>
#include <utility>
#include <vector>

#include "platform/control.h"
#include "platform/dispatch.h"
#include "platform/failure.h"
#include "platform/qt/window_view.h"
#include "platform/timer_rest.h"

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace ombrelia {

namespace {

// Changes are looked for at most this often while a handler runs; events are heard more often.
constexpr qint64 kSyncMilliseconds = 8;

// How long a window that says "please wait" is waited for before the work begins.
constexpr int kFirstPictureMilliseconds = 60;

// What the system's frame adds to a window's height, at most; logical pixels.
constexpr double kFrameHeight = 40;

// After a change of the screens: when the window manager has told what of them is free.
constexpr int kManagerMilliseconds = 300;

// Painting can leave the upper vector registers in use, which slows later arithmetic down.
#if defined(__x86_64__)
__attribute__((target("avx"))) void clearUpperRegisters() {
    _mm256_zeroupper();
}
void settleRegisters() {
    static const bool hasAvx = __builtin_cpu_supports("avx") != 0;
    if (hasAvx) {
        clearUpperRegisters();
    }
}
#else
void settleRegisters() {}
#endif

// Where the window's middle lies; what the toolkit knows of it can be of before it was moved.
const QScreen& screenUnder(const WindowView& view) {
    const QScreen* there =
        canPlaceWindows() ? QGuiApplication::screenAt(view.frameGeometry().center()) : nullptr;
    return there == nullptr ? *view.screen() : *there;
}

}  // namespace

QtDesktop::QtDesktop() {
    sinceSync_.start();
    connect(qApp, &QGuiApplication::screenAdded, this, [this](QScreen* screen) {
        watchScreen(screen);
        fitSoon();
    });
    connect(qApp, &QGuiApplication::screenRemoved, this, &QtDesktop::fitSoon);
    for (QScreen* screen : QGuiApplication::screens()) {
        watchScreen(screen);
    }
    keptInput_.OnReleased = [this] {
        QMetaObject::invokeMethod(
            qApp, [this] { keptInput_.replay(); }, Qt::QueuedConnection);
    };
}

QtDesktop::~QtDesktop() {
    for (const auto& [window, view] : views_) {
        delete view;
    }
}

void QtDesktop::watchScreen(QScreen* screen) {
    connect(screen, &QScreen::geometryChanged, this, &QtDesktop::fitSoon);
    connect(screen, &QScreen::availableGeometryChanged, this, &QtDesktop::fitSoon);
}

// A change comes as several signals, and the window manager's share after them.
void QtDesktop::fitSoon() {
    for (const int milliseconds : {0, kManagerMilliseconds}) {
        QTimer::singleShot(milliseconds, this, &QtDesktop::fitScreens);
    }
}

// Hosts come before what docks to them.
void QtDesktop::fitScreens() {
    for (const bool isDocked : {false, true}) {
        for (const auto& [window, view] : views_) {
            if ((window->DockedTo != nullptr) == isDocked && view->isVisible()) {
                view->fitScreen();
            }
        }
    }
}

double QtDesktop::scaleOn(const QScreen& screen) const {
    const QSizeF free = QSizeF(screen.availableSize()) * screen.devicePixelRatio();
    return fittingScale(editor_, free.width(), free.height());
}

const QScreen& QtDesktop::screenOf(const Window& window) const {
    const Window& owner = window.DockedTo == nullptr ? window : *window.DockedTo;
    for (const auto& [other, view] : views_) {
        if (other == &owner && view->isVisible()) {
            return screenUnder(*view);
        }
    }
    const WindowView* parent = dialogParent();
    return parent == nullptr ? *QGuiApplication::primaryScreen() : screenUnder(*parent);
}

double QtDesktop::scale() const {
    const WindowView* parent = dialogParent();
    return scaleOn(parent == nullptr ? *QGuiApplication::primaryScreen() : screenUnder(*parent));
}

double QtDesktop::scaleOf(const Window& window) const {
    const QScreen& screen = screenOf(window);
    const double scale = scaleOn(screen);
    if (!window.HasFrame) {
        return scale;
    }
    const double free =
        (screen.availableSize().height() - kFrameHeight) * screen.devicePixelRatio();
    return scaleForHeight(scale, window.Height, free);
}

void QtDesktop::rescaleDocked(const Window& host) {
    for (const auto& [window, view] : views_) {
        if (window->DockedTo == &host) {
            view->fitScreen();
        }
    }
}

double QtDesktop::dockedWidth(const Window& window) const {
    for (const auto& [other, view] : views_) {
        if (other->DockedTo == &window) {
            return other->Width;
        }
    }
    return 0;
}

QRect QtDesktop::placeAround(const Window& window) const {
    const WindowView* editor = dialogParent();
    const bool isBesideIt = window.StandsAlone && editor != nullptr;
    return isBesideIt ? editor->frameGeometry() : screenOf(window).availableGeometry();
}

WindowView& QtDesktop::viewOf(Window& window) {
    const auto found = views_.find(&window);
    if (found != views_.end()) {
        return *found->second;
    }
    auto* view = new WindowView(window, *this);
    views_[&window] = view;
    if (window.DockedTo == nullptr) {
        view->place();
    }
    return *view;
}

void QtDesktop::leave() {
    QCoreApplication::exit(0);
}

void QtDesktop::settle() {
    settleRegisters();
}

void QtDesktop::tickAtOnce() {
    std::vector<QPointer<WindowView>> views;
    for (const auto& [window, view] : views_) {
        views.emplace_back(view);
    }
    for (const QPointer<WindowView>& view : views) {
        if (!view.isNull() && view->window().Loaded) {
            view->tickAtOnce();
        }
    }
}

void QtDesktop::wakeTimers() {
    for (const auto& [window, view] : views_) {
        if (window->Loaded) {
            view->syncTimers();
        }
    }
}

bool QtDesktop::sync() {
    bool isChanged = false;
    for (const auto& [window, view] : views_) {
        if (window->Loaded) {
            isChanged = view->sync() || isChanged;
        }
    }
    return isChanged;
}

void QtDesktop::painted(Window& window) {
    if (OnFirstPaint) {
        std::exchange(OnFirstPaint, nullptr)();
    }
    if (!canPlaceWindows()) {
        QTimer::singleShot(0, &viewOf(window), [this, &window] {
            if (views_.contains(&window)) {
                showDocked(window);
            }
        });
    }
}

WindowView* QtDesktop::dialogParent() const {
    const auto canBe = [](const WindowView& view) {
        // A game can end under its dialog, and would take it along.
        return view.isVisible() && view.window().DockedTo == nullptr && !view.window().StandsAlone;
    };
    auto* active = dynamic_cast<WindowView*>(QApplication::activeWindow());
    if (active != nullptr && canBe(*active)) {
        return active;
    }
    for (const auto& [window, view] : views_) {
        if (canBe(*view)) {
            return view;
        }
    }
    return nullptr;
}

WindowView* QtDesktop::activeGame() const {
    auto* active = dynamic_cast<WindowView*>(QApplication::activeWindow());
    return active != nullptr && active->isVisible() && active->window().StandsAlone ? active
                                                                                    : nullptr;
}

void QtDesktop::shown(Window& window) {
    WindowView& view = viewOf(window);
    if (window.DockedTo != nullptr) {
        if (!window.DockedTo->Visible) {
            return;  // seen together with its host
        }
        showDocked(*window.DockedTo);
        return;
    }
    view.sync();
    view.syncTimers();
    if (view.isMinimized()) {
        view.showNormal();
    } else {
        view.show();
    }
    view.raise();
    view.activateWindow();
    showDocked(window);
}

void QtDesktop::showDocked(Window& host) {
    WindowView& hostView = viewOf(host);
    // A compositor takes a window beside another only once that one is seen: painted() comes back.
    if (!canPlaceWindows() && !(hostView.isVisible() && hostView.windowHandle()->isExposed())) {
        return;
    }
    for (const auto& [window, view] : views_) {
        if (window->DockedTo != &host || !window->Visible || view->isVisible()) {
            continue;
        }
        window->Left = host.Left + host.Width;
        window->Top = host.Top;
        view->place();                     // some window managers heed the first place alone
        static_cast<void>(view->winId());  // makes the system's windows
        static_cast<void>(hostView.winId());
        view->windowHandle()->setTransientParent(hostView.windowHandle());
        view->sync();
        view->show();
        hostView.keepInside();
    }
}

void QtDesktop::hidden(Window& window) {
    viewOf(window).hide();
}

void QtDesktop::unloaded(Window& window) {
    const auto found = views_.find(&window);
    if (found == views_.end()) {
        return;
    }
    WindowView* view = found->second;
    views_.erase(found);
    // What docks to it is seen together with it, and belongs to its next view.
    for (const auto& [other, docked] : views_) {
        if (other->DockedTo == &window) {
            docked->hide();
        }
    }
    view->hide();
    view->deleteLater();
}

void QtDesktop::minimize(Window& window) {
    viewOf(window).showMinimized();
}

void QtDesktop::refresh(Control& control) {
    if (control.Kind != ControlKind::Window || !control.Visible) {
        return;
    }
    // One picture in a display frame, so that a fade can be seen.
    if (sinceRefresh_.isValid()) {
        waitUntil(hasPutOff, kFrameMilliseconds - sinceRefresh_.elapsed());
    }
    sinceRefresh_.start();
    WindowView& view = viewOf(static_cast<Window&>(control));
    view.sync();
    waitUntil([&view] { return view.windowHandle()->isExposed() || view.isMinimized(); },
              kFirstPictureMilliseconds);
    view.repaint();
}

// Whoever wants to close a window does not wait.
void QtDesktop::sleep(int milliseconds) {
    sync();
    waitUntil(hasPutOff, milliseconds);
    settleRegisters();
}

void QtDesktop::waitUntil(const std::function<bool()>& isDone, qint64 milliseconds) {
    const KeptInput::Hold hold(keptInput_);
    QElapsedTimer waited;
    waited.start();
    while (!isDone() && waited.elapsed() < milliseconds) {
        QCoreApplication::processEvents();
        QThread::msleep(1);
    }
}

void QtDesktop::yield() {
    if (yieldMilliseconds_ > 0) {
        QThread::msleep(static_cast<unsigned long>(yieldMilliseconds_));
    } else if (!yieldClock_.isDue()) {
        return;
    }
    wakeTimers();
    if (sinceSync_.elapsed() >= kSyncMilliseconds) {
        sync();
        sinceSync_.start();
    }
    QCoreApplication::processEvents();
    noteYield();
    settleRegisters();
    yieldClock_.restart();
}

void QtDesktop::beginWindowMove(Window& window) {
    viewOf(window).armMove();
}

void QtDesktop::beginDrag(Control& source) {
    viewOf(*source.Owner).showDragged(source);
}

void QtDesktop::endDrag() {
    for (const auto& [window, view] : views_) {
        view->unsetCursor();
    }
}

void QtDesktop::openList(ListBox& list) {
    viewOf(*list.Owner).openList(list);
}

std::string QtDesktop::activeWindowCaption() {
    const auto* view = dynamic_cast<WindowView*>(QApplication::activeWindow());
    return view == nullptr ? std::string() : view->windowTitle().toStdString();
}

void QtDesktop::openWebPage(const std::string& address) {
    QDesktopServices::openUrl(QUrl(QString::fromStdString(address)));
}

void QtDesktop::end() {
    noteEnd();
    for (const auto& [window, view] : views_) {
        view->hide();
    }
}

}  // namespace ombrelia
