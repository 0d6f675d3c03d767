// How an event is run behind any screen: its handlers, then what they changed is shown, then what
// was put off until all is over. A back end is one of these.
#pragma once

#include <functional>

#include "platform/kept_input.h"

namespace ombrelia {

class EventRounds {
  public:
    virtual ~EventRounds() = default;

    // Runs the delivery of an event, then shows what it changed. Ends the process where that was
    // asked.
    void run(const std::function<void()>& event);

    // The same for what the user does by pointer or keys, which waits while a handler waits.
    void input(const std::function<void()>& event);

    // The same for a tick of a timer, which wakes no resting one; true if it changed anything that
    // is seen.
    bool runTick(const std::function<void()>& event);

    // Whether a handler waits in a refresh or sleep, during which no timer fires.
    bool isWaiting() const { return keptInput_.isHolding(); }

    // Whether the process is to end: nothing is run any more.
    bool hasEnded() const { return hasEnded_; }

    // Starts the timers that rest because nothing had changed.
    virtual void wakeTimers() = 0;

    // Called when the outermost handler has ended, and before the process does.
    std::function<void()> OnHandled;

  protected:
    // Shows what changed; true if anything had.
    virtual bool sync() = 0;

    // Fires the timers of every frame of all windows.
    virtual void tickAtOnce() = 0;

    // The process is to end.
    virtual void leave() = 0;

    // Called after each event.
    virtual void settle() = 0;

    // Events were handled in a yield of the running handler.
    void noteYield() { hasYielded_ = true; }

    void noteEnd() { hasEnded_ = true; }

    void handled();

    KeptInput keptInput_;

  private:
    bool runOrEnd(const std::function<void()>& event);

    bool hasYielded_ = false;
    bool hasEnded_ = false;
};

}  // namespace ombrelia
