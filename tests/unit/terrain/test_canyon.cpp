#include <algorithm>
#include <cmath>
#include <numbers>

#include "core/button_numbers.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/progress.h"
#include "core/windows/form1.h"
#include "terrain/canyon.h"
#include "terrain/tool_test.h"

namespace ombrelia {

namespace {

class CanyonTool : public ToolTest {
  protected:
    static void choose(const slow::Canyon& canyon) {
        SliderValues(13).Value = static_cast<std::int16_t>(canyon.bank);
        SliderValues(12).Value = static_cast<std::int16_t>(canyon.river);
        for (int i = button::kCanyonVertical; i <= button::kCanyonSmooth; ++i) {
            OptionStates(i).State = i == canyon.steepness ? kOn : kUp;
        }
        OptionStates(button::kRiverInMiddle).State = canyon.hasRiver ? kOn : kUp;
    }

    void carve(const slow::Canyon& canyon, int stopAt = 0) {
        SCOPED_TRACE(testing::Message() << "size " << MapSize << " points " << StrokeCount - 1
                                        << " bank " << canyon.bank << " river " << canyon.river
                                        << " steepness " << canyon.steepness << " with river "
                                        << canyon.hasRiver << " stop " << stopAt);
        choose(canyon);
        Meddling meddling;
        meddling.stopAt = stopAt;
        compare([] { CarveCanyon(); },
                [&](slow::World& world) { slow::carveCanyon(world, canyon); }, meddling);
    }

    static void recordAcross(int y) {
        for (int n = 1; n <= 7; ++n) {
            StrokeX(n) = static_cast<std::int16_t>(10 * (n - 1));
            StrokeY(n) = static_cast<std::int16_t>(y);
        }
        StrokeCount = 8;
    }
};

TEST_F(CanyonTool, agrees_with_the_slow_way_anywhere) {
    for (int round = 0; round < 600; ++round) {
        Dice dice(static_cast<std::uint32_t>(7000 + round));
        if (round % 150 == 0) {
            openMap(sizeFor(round / 150));
        }
        OptionStates(button::kAutoRefresh).State = round % 10 == 0 ? kOn : kUp;
        layGround(dice);
        recordPath(dice, dice(1, 9), dice(1, 9));
        carve({3 + round % 23, dice(2, 15), dice(33, 37), dice.coin()});
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
}

TEST_F(CanyonTool, agrees_with_the_slow_way_over_heights_beyond_the_range) {
    Dice dice(12);
    layGround(dice);
    for (int n = 0; n < 400; ++n) {
        HeightMap(dice(0, 65), dice(0, 65)) = static_cast<std::int16_t>(dice(-300, 700));
    }
    recordPath(dice, 8, 6);
    carve({6, 4, button::kCanyonSmooth, true});
}

TEST_F(CanyonTool, a_stop_at_every_yield_leaves_what_the_slow_way_leaves) {
    for (int stop = 1; stop <= 60; ++stop) {
        openMap(65);
        layFlat(120);
        recordAcross(30);
        carve({5, 3, button::kCanyonVerySteep, true}, stop);
        ASSERT_FALSE(HasFailure()) << "stop " << stop;
    }
}

TEST_F(CanyonTool, a_path_of_two_points_changes_nothing_and_leaves_the_marker) {
    layFlat(120);
    const HeightGrid before = HeightMap;
    for (const int count : {0, 1, 2}) {
        StrokeCount = static_cast<std::int16_t>(count);
        Form1.Line1.Visible = false;
        carve({10, 3, button::kCanyonSmooth, true});
        EXPECT_TRUE(HeightMap == before);
        EXPECT_TRUE(Form1.Line1.Visible);
        EXPECT_TRUE(Form1.MapView.Enabled);
        EXPECT_EQ(ProgressState, 0);
    }
}

TEST_F(CanyonTool, a_vertical_one_has_the_floor_alone) {
    layFlat(120);
    recordAcross(30);
    carve({5, 3, button::kCanyonVertical, false});
    for (std::size_t n = 0; n < HeightGrid::size(); ++n) {
        EXPECT_TRUE(HeightMap.data()[n] == 120 || HeightMap.data()[n] == 31);
    }
    EXPECT_EQ(HeightMap(30, 30), 31);
    EXPECT_EQ(HeightMap(30, 36), 120);
}

TEST_F(CanyonTool, ground_below_the_sea_inside_the_floor_stays) {
    layFlat(12);
    const HeightGrid before = HeightMap;
    recordAcross(30);
    carve({5, 3, button::kCanyonSmooth, false});
    EXPECT_TRUE(HeightMap == before);
}

TEST_F(CanyonTool, a_rim_outside_the_map_is_the_nearest_point_of_the_map) {
    openMap(65);
    layFlat(50);
    for (int y = 0; y <= 65; ++y) {
        HeightMap(65, y) = 250;
        HeightMap(200, y) = 31;
    }
    StrokeX(1) = StrokeX(2) = 50;
    StrokeY(1) = StrokeY(2) = 30;
    StrokeCount = 3;
    carve({5, 3, button::kCanyonSlightlySteep, false});
    // The rim, 20 points from the middle, lies at 70: the wall climbs towards column 65.
    EXPECT_EQ(HeightMap(64, 30), 50);
    EXPECT_GT(HeightMap(65, 30), 60);
    EXPECT_LT(HeightMap(65, 30), 250);
}

TEST_F(CanyonTool, a_crossing_keeps_the_old_rim_but_only_cuts) {
    openMap(129);
    layFlat(200);
    const int points[][2] = {{20, 20}, {100, 100}, {100, 20}, {20, 100}};
    for (int n = 1; n <= 4; ++n) {
        StrokeX(n) = static_cast<std::int16_t>(points[n - 1][0]);
        StrokeY(n) = static_cast<std::int16_t>(points[n - 1][1]);
    }
    StrokeCount = 5;
    carve({6, 3, button::kCanyonSmooth, false});
    EXPECT_EQ(HeightMap(60, 60), 31);
    EXPECT_EQ(HeightMap(30, 30), 31);
}

TEST_F(CanyonTool, with_a_river_the_bar_runs_on) {
    layFlat(120);
    recordAcross(30);
    carve({5, 3, button::kCanyonVerySteep, true});
    EXPECT_EQ(ProgressTotal, 12);
    EXPECT_EQ(ProgressDone, 12);
    EXPECT_EQ(Form1.PercDone.Caption, "100 Percent Done");
    EXPECT_EQ(HeightMap(30, 30), 20);
    EXPECT_EQ(HeightMap(30, 34), 31);
    carve({5, 3, button::kCanyonVerySteep, false});
    EXPECT_EQ(ProgressTotal, 6);
}

TEST_F(CanyonTool, the_river_fills_deep_ground) {
    layFlat(3);
    recordAcross(30);
    carve({5, 3, button::kCanyonVerySteep, true});
    EXPECT_EQ(HeightMap(30, 30), 20);
}

TEST_F(CanyonTool, equal_points_are_carved_too) {
    layFlat(120);
    StrokeX(1) = StrokeX(2) = 20;
    StrokeY(1) = StrokeY(2) = 20;
    StrokeCount = 3;
    carve({5, 3, button::kCanyonVertical, false});
    EXPECT_EQ(HeightMap(20, 23), 31);
    EXPECT_EQ(yieldsOfLastRun, 2);
}

TEST_F(CanyonTool, a_long_segment_is_not_stopped_in_its_middle) {
    layFlat(120);
    StrokeX(1) = 5;
    StrokeY(1) = StrokeY(2) = 30;
    StrokeX(2) = 60;
    StrokeCount = 3;
    carve({3, 3, button::kCanyonVertical, true}, 3);
    EXPECT_EQ(HeightMap(58, 30), 31);
    EXPECT_EQ(StopFlag, 2);
    EXPECT_EQ(yieldsOfLastRun, 28);
}

// Half way up the wall the full constant gives just about a half and rounds to 132; the short one
// stays visibly below.
TEST_F(CanyonTool, the_wall_uses_a_short_pi) {
    openMap(129);
    layFlat(232);
    StrokeX(1) = StrokeX(2) = 60;
    StrokeY(1) = StrokeY(2) = 60;
    StrokeCount = 3;
    carve({5, 3, button::kCanyonSmooth, false});
    EXPECT_EQ(HeightMap(80, 60), 131);
    const double full = 100.5 * std::sin(-180 * std::numbers::pi / 180) + 100.5 + 31;
    EXPECT_EQ(std::nearbyint(full), 132);
}

TEST_F(CanyonTool, only_an_announced_run_yields_at_its_steps) {
    recordAcross(30);
    choose({5, 3, button::kCanyonVertical, false});
    platform.OnYield = [&] { ProgressState = platform.Yields == 2 ? 2 : ProgressState; };
    CarveCanyon();
    EXPECT_EQ(platform.Yields, 2 + 6) << "two steps, then each segment's end";
    EXPECT_EQ(HeightMap(60, 30), 31);
}

}  // namespace

}  // namespace ombrelia
