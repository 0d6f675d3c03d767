#include <gtest/gtest.h>
#include <optional>
#include <string>

#include "platform/kept_input.h"

namespace ombrelia {

namespace {

class Kept : public testing::Test {
  protected:
    std::function<void()> say(const char* word) {
        return [this, word] { said += word; };
    }

    KeptInput input;
    std::string said;
};

TEST_F(Kept, an_event_runs_at_once_while_nobody_waits) {
    input.hand(say("a"));
    EXPECT_EQ(said, "a");
}

TEST_F(Kept, events_are_kept_while_a_handler_waits_and_go_on_in_their_order) {
    int releases = 0;
    input.OnReleased = [&] { ++releases; };
    {
        const KeptInput::Hold outer(input);
        {
            const KeptInput::Hold inner(input);
            input.hand(say("a"));
        }
        EXPECT_TRUE(input.isHolding());
        EXPECT_EQ(releases, 0);
        input.hand(say("b"));
    }
    EXPECT_EQ(said, "") << "the handler that waited has not returned yet";
    EXPECT_EQ(releases, 1);
    input.replay();
    EXPECT_EQ(said, "ab");
}

TEST_F(Kept, a_wait_without_input_is_followed_by_nothing) {
    int releases = 0;
    input.OnReleased = [&] { ++releases; };
    { const KeptInput::Hold hold(input); }
    EXPECT_EQ(releases, 0);
}

TEST_F(Kept, an_event_that_comes_before_the_kept_ones_had_their_turn_comes_after_them) {
    {
        const KeptInput::Hold hold(input);
        input.hand(say("a"));
    }
    input.hand(say("b"));
    EXPECT_EQ(said, "ab");
}

TEST_F(Kept, what_was_kept_stops_where_a_handler_waits_again) {
    std::optional<KeptInput::Hold> waits;
    {
        const KeptInput::Hold hold(input);
        input.hand([&] { waits.emplace(input); });
        input.hand(say("b"));
    }
    input.replay();
    EXPECT_EQ(said, "");
    waits.reset();
    input.replay();
    EXPECT_EQ(said, "b");
}

// A long operation that a kept press begins hears the light's click in its yields.
TEST_F(Kept, an_event_inside_a_kept_one_is_heard) {
    {
        const KeptInput::Hold hold(input);
        input.hand([&] {
            said += "(";
            input.hand(say("stop"));
            said += ")";
        });
        input.hand(say("b"));
    }
    input.replay();
    EXPECT_EQ(said, "(bstop)");
}

}  // namespace

}  // namespace ombrelia
