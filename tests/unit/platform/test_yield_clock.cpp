#include <chrono>
#include <gtest/gtest.h>
#include <thread>

#include "platform/yield_clock.h"

namespace ombrelia {

namespace {

using SteadyClock = std::chrono::steady_clock;

TEST(YieldClock, is_due_after_eight_milliseconds_at_the_latest) {
    YieldClock clock;
    for (int n = 0; n < 20; ++n) {
        clock.restart();
        std::this_thread::sleep_for(std::chrono::microseconds(8001 + 137 * n));
        EXPECT_TRUE(clock.isDue());
    }
}

TEST(YieldClock, is_due_at_most_once_in_four_milliseconds_on_the_whole) {
    YieldClock clock;
    const auto start = SteadyClock::now();
    int times = 0;
    while (SteadyClock::now() - start < std::chrono::milliseconds(100)) {
        if (clock.isDue()) {
            ++times;
            clock.restart();
        }
    }
    const std::chrono::duration<double, std::milli> took = SteadyClock::now() - start;
    EXPECT_GT(times, 0);
    EXPECT_LE(times, took.count() / 4 + 1);
}

}  // namespace

}  // namespace ombrelia
