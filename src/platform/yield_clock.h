// Tells a running operation when events are to be handled again. It is asked at every yield, far
// over a million times a second at worst, so it reads the system's coarse clock, which takes a
// fifth of the exact one's time, wherever that is fine enough.
#pragma once

#include <cstdint>

namespace ombrelia {

class YieldClock {
  public:
    YieldClock();

    // Some 4 ms have passed since restart(), never more than 8.
    bool isDue() const { return now() - started_ >= kNanoseconds; }
    void restart() { started_ = now(); }

    static constexpr std::int64_t kNanoseconds = 4'000'000;

  private:
    std::int64_t now() const;

    int clock_;
    std::int64_t started_ = 0;
};

}  // namespace ombrelia
