#include "platform/event_rounds.h"

#include <utility>

#include "platform/dispatch.h"
#include "platform/failure.h"

namespace ombrelia {

// False when the process is to end. What the windows still send as they go is heard by nobody.
bool EventRounds::runOrEnd(const std::function<void()>& event) {
    if (hasEnded_) {
        return false;
    }
    try {
        event();
    } catch (const ProcessEnd&) {
        handled();
        leave();
        return false;
    }
    return true;
}

void EventRounds::run(const std::function<void()>& event) {
    if (!runOrEnd(event)) {
        return;
    }
    // What a run leaves to the tick after it, as the light that turns green, shall not wait for the
    // next frame.
    if (!isHandling() && std::exchange(hasYielded_, false)) {
        tickAtOnce();
    }
    wakeTimers();
    sync();
    handled();
    settle();
}

void EventRounds::input(const std::function<void()>& event) {
    keptInput_.hand([this, event] { run(event); });
}

bool EventRounds::runTick(const std::function<void()>& event) {
    if (!runOrEnd(event)) {
        return false;
    }
    const bool isChanged = sync();
    handled();
    settle();
    return isChanged;
}

void EventRounds::handled() {
    if (OnHandled && !isHandling()) {
        OnHandled();
    }
}

}  // namespace ombrelia
