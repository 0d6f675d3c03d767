#include <gtest/gtest.h>

#include "platform/timer_rest.h"

namespace ombrelia {

namespace {

TEST(TimerRest, a_timer_rests_after_four_ticks_that_changed_nothing) {
    TimerRest rest;
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(rest.mayRestAfter(false, false));
    }
    EXPECT_TRUE(rest.mayRestAfter(false, false));
}

TEST(TimerRest, a_change_or_an_event_lets_the_count_begin_anew) {
    TimerRest rest;
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < 3; ++i) {
            EXPECT_FALSE(rest.mayRestAfter(false, false));
        }
        if (round == 0) {
            EXPECT_FALSE(rest.mayRestAfter(true, false));
        } else {
            rest.wake();
        }
    }
    EXPECT_FALSE(rest.mayRestAfter(false, false));
}

TEST(TimerRest, a_timer_does_not_rest_while_a_handler_runs) {
    TimerRest rest;
    for (int i = 0; i < 20; ++i) {
        EXPECT_FALSE(rest.mayRestAfter(false, true));
    }
    EXPECT_TRUE(rest.mayRestAfter(false, false));
}

TEST(TimerRest, a_timer_fires_at_most_once_a_frame) {
    Window window;
    Timer timer;
    timer.Owner = &window;
    timer.Interval = 1;
    EXPECT_EQ(periodOf(timer), 16);
    EXPECT_TRUE(isOfEveryFrame(timer));
    timer.Interval = 55;
    EXPECT_EQ(periodOf(timer), 55);
    EXPECT_FALSE(isOfEveryFrame(timer));
}

TEST(TimerRest, a_timer_is_wanted_while_its_window_is_loaded_and_it_is_on) {
    Window window;
    Timer timer;
    timer.Owner = &window;
    timer.Interval = 55;
    EXPECT_FALSE(isWanted(timer));
    window.Loaded = true;
    EXPECT_TRUE(isWanted(timer));
    timer.Enabled = false;
    EXPECT_FALSE(isWanted(timer));
    timer.Enabled = true;
    timer.Interval = 0;
    EXPECT_FALSE(isWanted(timer));
}

}  // namespace

}  // namespace ombrelia
