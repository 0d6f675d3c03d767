// The timers of a window on the real screen.
#include <QTimerEvent>

#include "platform/dispatch.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/window_view.h"

namespace ombrelia {

void WindowView::syncTimers() {
    for (Control* control : window_.Controls) {
        if (control->Kind != ControlKind::Timer) {
            continue;
        }
        auto* timer = static_cast<Timer*>(control);
        SystemTimer& system = timers_[timer];
        system.rest.wake();
        if (!isWanted(*timer)) {
            system.basic.stop();
        } else if (!system.basic.isActive()) {
            system.basic.start(periodOf(*timer), this);
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
    if (!isOfEveryFrame(timer)) {
        syncTimers();  // the tick may have switched its own timer off or on again
    } else if (system.rest.mayRestAfter(isChanged, isHandling())) {
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
        if (isWanted(timer) && isOfEveryFrame(timer)) {
            SystemTimer& system = timers_[&timer];
            system.basic.start(periodOf(timer), this);
            tick(timer, system);
        }
        if (self.isNull()) {
            return;
        }
    }
}

}  // namespace ombrelia
