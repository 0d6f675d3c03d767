#include <cmath>
#include <numbers>
#include <vector>

#include "core/button_numbers.h"
#include "core/objects.h"
#include "core/progress.h"
#include "core/windows/form1.h"
#include "terrain/mountain.h"
#include "terrain/tool_test.h"

namespace ombrelia {

namespace {

constexpr int kHeightSlider = 6;
constexpr int kTopSize = 7;

class MountainTool : public ToolTest {
  protected:
    static void choose(const slow::Mountain& mountain) {
        SliderValues(kHeightSlider).Value = static_cast<std::int16_t>(mountain.height);
        SliderValues(kTopSize).Value = static_cast<std::int16_t>(mountain.topSize);
        for (int i = button::kMountainVertical; i <= button::kMountainSmooth; ++i) {
            OptionStates(i).State = i == mountain.steepness ? kOn : kUp;
        }
        OptionStates(button::kOnlyLower).State = mountain.onlyLower ? kOn : kUp;
    }

    void build(int x, int y, const slow::Mountain& mountain, int stopAt = 0) {
        SCOPED_TRACE(testing::Message()
                     << "size " << MapSize << " at " << x << ' ' << y << " height "
                     << mountain.height << " top " << mountain.topSize << " steepness "
                     << mountain.steepness << " only lower " << mountain.onlyLower << " stop "
                     << stopAt);
        choose(mountain);
        Meddling meddling;
        meddling.stopAt = stopAt;
        compare([&] { BuildMountain(static_cast<std::int16_t>(x), static_cast<std::int16_t>(y)); },
                [&](slow::World& world) { slow::buildMountain(world, x, y, mountain); }, meddling);
    }
};

TEST_F(MountainTool, agrees_with_the_slow_way_anywhere) {
    for (int round = 0; round < 320; ++round) {
        Dice dice(static_cast<std::uint32_t>(2000 + round));
        if (round % 80 == 0) {
            openMap(sizeFor(round / 80));
        }
        OptionStates(button::kAutoRefresh).State = round % 10 == 0 ? kOn : kUp;
        layGround(dice);
        const slow::Mountain mountain{dice(50, 255), dice(1, 30), dice(29, 33), dice.coin()};
        build(dice(-1, MapSize), dice(0, MapSize + 2), mountain);
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
}

TEST_F(MountainTool, agrees_with_the_slow_way_at_edges_and_corners) {
    for (int round = 0; round < 4; ++round) {
        openMap(sizeFor(round));
        Dice dice(11);
        for (const int x : {0, MapSize / 2, int{MapSize}}) {
            for (const int y : {0, MapSize / 2, int{MapSize}}) {
                layGround(dice);
                build(x, y, {255, 30, button::kMountainSmooth, dice.coin()});
            }
        }
    }
}

TEST_F(MountainTool, a_stop_at_every_yield_leaves_what_the_slow_way_leaves) {
    const slow::Mountain mountain{120, 6, button::kMountainSlightlySteep, false};
    build(30, 31, mountain);
    const auto yields = static_cast<int>(yieldsOfLastRun);
    ASSERT_EQ(yields, 6 + 14);
    for (int stop = 1; stop <= yields; ++stop) {
        openMap(65);
        build(30, 31, mountain, stop);
        // The yield behind the last circle comes too late.
        EXPECT_EQ(StopFlag, stop < yields ? 2 : 1);
        EXPECT_EQ(ProgressState, stop < yields ? 1 : 2);
        EXPECT_EQ(Form1.MapView.Enabled, stop == yields);
    }
}

TEST_F(MountainTool, a_vertical_one_of_top_1_is_a_few_points) {
    layFlat(40);
    build(30, 30, {200, 1, button::kMountainVertical, false});
    int points = 0;
    for (int y = 0; y <= 257; ++y) {
        for (int x = 0; x <= 257; ++x) {
            points += HeightMap(x, y) == 200 ? 1 : 0;
        }
    }
    EXPECT_EQ(points, 5);  // the four cells around the corner, and the one that 0 degrees reaches
    EXPECT_EQ(ProgressTotal, 1);
    EXPECT_EQ(yieldsOfLastRun, 1);
}

TEST_F(MountainTool, the_tallest_smooth_one_reaches_radius_86) {
    openMap(257);
    layFlat(100);
    build(128, 128, {255, 1, button::kMountainSmooth, false});
    EXPECT_EQ(ProgressTotal, 86);
    EXPECT_EQ(ProgressDone, 86);
    EXPECT_EQ(HeightMap(128 + 86, 128), 31);
    EXPECT_EQ(HeightMap(128 + 87, 128), 100);
    EXPECT_EQ(HeightMap(128, 128 + 85), 31);
}

TEST_F(MountainTool, the_widths_of_the_flank) {
    struct Row {
        int height, steepness, side;
    };
    for (const Row& row : {Row{50, button::kMountainVerySteep, 2}, Row{255, 30, 0},
                           Row{255, 31, 14}, Row{255, 32, 28}, Row{255, 33, 85}, Row{255, 0, 0}}) {
        build(30, 30, {row.height, 4, row.steepness, false});
        EXPECT_EQ(ProgressTotal, row.side + 4);
    }
}

TEST_F(MountainTool, a_flank_that_begins_below_0_has_one_circle) {
    layFlat(40);
    EXPECT_TRUE(shapeMountain(30, 30, {-50, 2, 10, false}));
    EXPECT_EQ(HeightMap(32, 30), -50);
    EXPECT_EQ(HeightMap(33, 30), 40);
    EXPECT_EQ(platform.Yields, 2);
}

TEST_F(MountainTool, higher_ground_stays_if_only_lower_heights_change) {
    layFlat(255);
    const HeightGrid before = HeightMap;
    build(30, 30, {200, 10, button::kMountainSmooth, true});
    EXPECT_TRUE(HeightMap == before);
}

TEST_F(MountainTool, its_foot_cuts_high_ground_down_to_the_sea) {
    layFlat(255);
    build(30, 30, {90, 5, button::kMountainVerySteep, false});
    EXPECT_EQ(HeightMap(30 + 10, 30), 31);
    EXPECT_EQ(HeightMap(30 + 12, 30), 255);
}

TEST_F(MountainTool, at_the_edge_the_inner_part_is_built) {
    layFlat(40);
    build(0, 65, {255, 8, button::kMountainVertical, false});
    EXPECT_EQ(HeightMap(5, 62), 255);
    EXPECT_EQ(HeightMap(66, 62), 40);
    EXPECT_EQ(HeightMap(2, 66), 40);
}

// Radius of the last circle from 61 to 115 that touches each cell around (128, 128); 0 none.
std::vector<int> lastCircles(double pi) {
    std::vector<int> last(slow::kSide * slow::kSide, 0);
    for (int r = 61; r <= 115; ++r) {
        for (int n = 0; n <= 3600; ++n) {
            const double a = n * 0.1 * (pi / 180);
            const int x = static_cast<int>(std::floor(128 + r * std::cos(a)));
            const int y = static_cast<int>(std::floor(128 + r * std::sin(a)));
            last[static_cast<std::size_t>(x + slow::kSide * y)] = r;
        }
    }
    return last;
}

TEST_F(MountainTool, the_far_flank_uses_a_short_pi) {
    openMap(257);
    layFlat(200);
    build(128, 128, {255, 30, button::kMountainSmooth, false});
    const auto asWritten = lastCircles(3.14159);
    const auto full = lastCircles(std::numbers::pi);
    int told = 0;
    for (std::size_t cell = 0; cell < full.size(); ++cell) {
        if (asWritten[cell] == 0 || asWritten[cell] == full[cell]) {
            continue;
        }
        const double t = 90 + (asWritten[cell] - 30) * (180.0 / 85);
        const double s = std::sin(t * (3.14159 / 180));
        EXPECT_EQ(HeightMap.data()[cell], std::nearbyint(112 * s + 112 + 31));
        ++told;
    }
    EXPECT_GT(told, 0) << "these circles cannot tell the two constants apart";
}

}  // namespace

}  // namespace ombrelia
