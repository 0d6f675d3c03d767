#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "platform/dispatch.h"
#include "platform/event_rounds.h"
#include "platform/failure.h"

namespace ombrelia {

namespace {

class WrittenRounds : public EventRounds {
  public:
    WrittenRounds() {
        resetDispatch();
        OnHandled = [this] { said.emplace_back("handled"); };
    }
    void wakeTimers() override { said.emplace_back("wake"); }
    void yieldWithin() { noteYield(); }
    KeptInput& kept() { return keptInput_; }
    void end() { noteEnd(); }

    std::vector<std::string> said;
    bool isChanged = false;

  protected:
    bool sync() override {
        said.emplace_back("sync");
        return isChanged;
    }
    void tickAtOnce() override { said.emplace_back("tick"); }
    void leave() override { said.emplace_back("leave"); }
    void settle() override { said.emplace_back("settle"); }
};

using Words = std::vector<std::string>;

TEST(EventRounds, an_event_wakes_the_timers_is_shown_and_comes_to_rest) {
    WrittenRounds rounds;
    rounds.run([&] { rounds.said.emplace_back("event"); });
    EXPECT_EQ(rounds.said, (Words{"event", "wake", "sync", "handled", "settle"}));
}

TEST(EventRounds, after_a_yield_the_tick_comes_at_once_and_once) {
    WrittenRounds rounds;
    rounds.run([&] { rounds.yieldWithin(); });
    rounds.run([] {});
    EXPECT_EQ(rounds.said, (Words{"tick", "wake", "sync", "handled", "settle", "wake", "sync",
                                  "handled", "settle"}));
}

TEST(EventRounds, an_event_inside_a_handler_leaves_tick_and_end_to_the_outer_one) {
    WrittenRounds rounds;
    rounds.run([&] {
        runHandler([&] {
            rounds.yieldWithin();
            rounds.run([] {});
            EXPECT_EQ(rounds.said, (Words{"wake", "sync", "settle"}));
        });
    });
    EXPECT_EQ(rounds.said,
              (Words{"wake", "sync", "settle", "tick", "wake", "sync", "handled", "settle"}));
}

TEST(EventRounds, a_tick_wakes_no_timer_and_says_whether_anything_changed) {
    WrittenRounds rounds;
    EXPECT_FALSE(rounds.runTick([] {}));
    rounds.isChanged = true;
    EXPECT_TRUE(rounds.runTick([] {}));
    EXPECT_EQ(rounds.said, (Words{"sync", "handled", "settle", "sync", "handled", "settle"}));
}

TEST(EventRounds, behind_the_end_nothing_runs) {
    WrittenRounds rounds;
    rounds.run([&] {
        rounds.end();
        throw ProcessEnd{};
    });
    EXPECT_TRUE(rounds.hasEnded());
    rounds.run([&] { rounds.said.emplace_back("event"); });
    EXPECT_FALSE(rounds.runTick([&] { rounds.said.emplace_back("event"); }));
    EXPECT_EQ(rounds.said, (Words{"handled", "leave"}));
}

TEST(EventRounds, what_the_user_does_waits_for_a_handler_that_waits) {
    WrittenRounds rounds;
    {
        const KeptInput::Hold hold(rounds.kept());
        EXPECT_TRUE(rounds.isWaiting());
        rounds.input([&] { rounds.said.emplace_back("event"); });
        EXPECT_TRUE(rounds.said.empty());
    }
    EXPECT_FALSE(rounds.isWaiting());
    rounds.kept().replay();
    EXPECT_EQ(rounds.said, (Words{"event", "wake", "sync", "handled", "settle"}));
}

}  // namespace

}  // namespace ombrelia
