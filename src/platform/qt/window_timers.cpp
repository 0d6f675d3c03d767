// The timers of a window on the real screen.
#include <algorithm>

#include "platform/dispatch.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/window_view.h"

namespace ombrelia {

namespace {

// A timer of the logic fires at most once in a display frame.
constexpr int kFrameMilliseconds = 16;

// Ticks without any change after which a timer of every frame rests.
constexpr int kQuietTicks = 4;

}  // namespace

void WindowView::syncTimers() {
    for (Control* control : window_.Controls) {
        if (control->Kind != ControlKind::Timer) {
            continue;
        }
        auto* timer = static_cast<Timer*>(control);
        SystemTimer& system = timers_[timer];
        system.quietTicks = 0;
        const bool isWanted = window_.Loaded && timer->Enabled && timer->Interval > 0;
        if (isWanted && !system.basic.isActive()) {
            system.basic.start(std::max(kFrameMilliseconds, timer->Interval), this);
        } else if (!isWanted) {
            system.basic.stop();
        }
    }
}

void WindowView::timerEvent(QTimerEvent* event) {
    if (desktop_.isWaiting()) {
        return;
    }
    for (auto& [timer, system] : timers_) {
        if (system.basic.timerId() == event->timerId()) {
            tick(*timer, system);
            return;
        }
    }
}

void WindowView::tick(Timer& timer, SystemTimer& system) {
    const QPointer<WindowView> self(this);
    const bool isChanged = desktop_.runTick([&timer] { deliver(timer, Event::Timer); });
    if (self.isNull()) {
        return;
    }
    if (timer.Interval >= kFrameMilliseconds) {
        syncTimers();  // the tick may have switched its own timer off or on again
        return;
    }
    system.quietTicks = isChanged ? 0 : system.quietTicks + 1;
    if (system.quietTicks >= kQuietTicks && !isHandling()) {
        system.basic.stop();
    }
}

void WindowView::tickAtOnce() {
    const QPointer<WindowView> self(this);
    for (Control* control : window_.Controls) {
        if (control->Kind != ControlKind::Timer) {
            continue;
        }
        auto& timer = static_cast<Timer&>(*control);
        if (timer.Enabled && timer.Interval > 0 && timer.Interval < kFrameMilliseconds) {
            SystemTimer& system = timers_[&timer];
            system.basic.start(kFrameMilliseconds, this);
            tick(timer, system);
        }
        if (self.isNull()) {
            return;
        }
    }
}

}  // namespace ombrelia
