// When a timer of a window fires on a real screen, and when it may rest.
#pragma once

#include <algorithm>

#include "platform/control.h"

namespace ombrelia {

// A timer of the logic fires at most once in a display frame, milliseconds.
inline constexpr int kFrameMilliseconds = 16;

inline bool isWanted(const Timer& timer) {
    return timer.Owner->Loaded && timer.Enabled && timer.Interval > 0;
}

inline bool isOfEveryFrame(const Timer& timer) {
    return timer.Interval < kFrameMilliseconds;
}

// Milliseconds between two ticks.
inline int periodOf(const Timer& timer) {
    return std::max(kFrameMilliseconds, timer.Interval);
}

// A timer of every frame rests after some ticks that changed nothing, until the next event: nobody
// can tell.
class TimerRest {
  public:
    // Something happened: the ticks count anew.
    void wake() { quietTicks_ = 0; }

    // A tick is over; true if the timer may rest from here on. While a handler runs it may not.
    bool mayRestAfter(bool isChanged, bool isHandling) {
        quietTicks_ = isChanged ? 0 : quietTicks_ + 1;
        return quietTicks_ >= kQuietTicks && !isHandling;
    }

  private:
    static constexpr int kQuietTicks = 4;
    int quietTicks_ = 0;
};

}  // namespace ombrelia
