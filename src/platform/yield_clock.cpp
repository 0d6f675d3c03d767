#include "platform/yield_clock.h"

#include <ctime>

namespace ombrelia {

namespace {

constexpr std::int64_t kSecond = 1'000'000'000;

std::int64_t nanosecondsOf(const timespec& time) {
    return time.tv_sec * kSecond + time.tv_nsec;
}

// The cheapest of the system's clocks that is fine enough.
int chooseClock() {
#ifdef CLOCK_MONOTONIC_COARSE
    timespec step{};
    if (clock_getres(CLOCK_MONOTONIC_COARSE, &step) == 0 &&
        nanosecondsOf(step) <= YieldClock::kNanoseconds) {
        return CLOCK_MONOTONIC_COARSE;
    }
#endif
    return CLOCK_MONOTONIC;
}

}  // namespace

YieldClock::YieldClock() : clock_(chooseClock()) {
    restart();
}

std::int64_t YieldClock::now() const {
    timespec time{};
    clock_gettime(clock_, &time);
    return nanosecondsOf(time);
}

}  // namespace ombrelia
