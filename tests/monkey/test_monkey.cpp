// The parts that judge must be able to fail: outcomes, journals, the search for a short scenario,
// and the look at the desk.
#include <cstdlib>
#include <gtest/gtest.h>

#include "core/editor_state.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "desk_check.h"
#include "errors.h"
#include "shrink.h"

namespace ombrelia::monkey {

namespace {

constexpr unsigned kSeconds = 20;

// A start and forty lines that do no harm.
Lines quietLines() {
    Lines lines = {"start 80"};
    for (int i = 0; i < 40; ++i) {
        lines.push_back("move Form1.MapView none " + std::to_string(i) + " 7");
    }
    return lines;
}

Outcome lookAt(void (*spoil)()) {
    return runApart(
        [spoil] {
            scenario::Session session;
            Journal journal(session, "journal");
            Chance chance(1);
            User user(session, journal, chance);
            journal.insist("start 80");
            spoil();
            checkDesk(user, journal, 1);
        },
        kSeconds);
}

}  // namespace

TEST(Monkey, a_crash_an_endless_run_and_a_failure_are_told_apart) {
    EXPECT_TRUE(runApart([] {}, kSeconds).isGood());
    const Outcome crash = runApart([] { std::abort(); }, kSeconds);
    const Outcome endless = runApart(
        [] {
            for (volatile bool goesOn = true; goesOn;) {
            }
        },
        1);
    const Outcome failure = runLines({"start 80", "expect MapSize 66"});
    EXPECT_FALSE(crash.isGood());
    EXPECT_EQ(endless.what, "it does not come to an end");
    EXPECT_EQ(failure.what, "MapSize is \"65\", not \"66\"");
    EXPECT_FALSE(crash.isLike(endless));
    EXPECT_FALSE(failure.isLike(runLines({"start 81", "expect MapSize 66"})));
    const Outcome outside = runLines({"start 80", "slider 14 9", "run 20"});
    EXPECT_TRUE(outside.isLike(runLines({"start 80", "slider 14 -3", "run 20"})));
}

TEST(Monkey, only_the_lines_that_matter_are_left) {
    Lines lines = quietLines();
    lines.insert(lines.begin() + 20, "cell 3 4 77");
    lines.emplace_back("expect HeightMap(3,4) 78");
    const Lines expected = {"cell 3 4 77", "expect HeightMap(3,4) 78"};
    EXPECT_EQ(shrink(lines, runLines(lines)), expected);
}

TEST(Monkey, the_last_look_stays_whole) {
    Lines lines = quietLines();
    lines.insert(lines.end(), {kLookBegins, "tick 3", "expect MapSize 66"});
    const Lines found = shrink(lines, runLines(lines));
    const Lines expected = {"start 80", kLookBegins, "tick 3", "expect MapSize 66"};
    EXPECT_EQ(found, expected);
}

TEST(Monkey, what_did_nothing_is_not_in_the_journal) {
    const std::string path = testing::TempDir() + "monkey_journal";
    {
        scenario::Session session;
        Journal journal(session, path);
        EXPECT_TRUE(journal.play("start 80", 6));
        EXPECT_FALSE(journal.play("click HelpBox.NTool(98)", 3)) << "its window is not loaded";
        const int early = journal.layReady(1, "tick 1", 1);
        const int never = journal.layReady(100000, "tick 1", 1);
        const int missing = journal.layReady(2, "click HelpBox.NTool(98)", 3);
        EXPECT_TRUE(journal.play("click Form1.NTool(12)", 3));
        EXPECT_TRUE(journal.hasRun(early));
        EXPECT_FALSE(journal.hasRun(never));
        EXPECT_FALSE(journal.hasRun(missing));
        EXPECT_EQ(journal.events(), 10);
    }
    const Lines expected = {"start 80", "on-yield 1 tick 1", "click Form1.NTool(12)"};
    EXPECT_EQ(readJournal(path), expected);
}

TEST(Monkey, a_desk_out_of_order_is_seen) {
    EXPECT_TRUE(lookAt([] {}).isGood());
    EXPECT_FALSE(lookAt([] { Form1.NTool(104).Enabled = false; }).isGood());
    EXPECT_FALSE(lookAt([] { MouseState = kGestureLine; }).isGood());
    EXPECT_FALSE(lookAt([] { SliderValues(3).Value = 99; }).isGood());
    EXPECT_FALSE(lookAt([] { Form1.Picture1.Visible = false; }).isGood());
}

}  // namespace ombrelia::monkey
