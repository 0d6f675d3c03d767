#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "core/button_numbers.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/progress.h"
#include "core/windows/form1.h"
#include "terrain/disc_brush.h"
#include "terrain/stroke.h"
#include "terrain/tool_test.h"

namespace ombrelia {

namespace {

class Stroke : public ToolTest {
  protected:
    static void setPens(int thickness, int height) {
        SliderValues(1).Value = static_cast<std::int16_t>(thickness);
        SliderValues(2).Value = static_cast<std::int16_t>(thickness);
        DrawHeight = static_cast<std::int16_t>(height);
    }

    void draw(int mode, const Meddling& meddling) {
        SCOPED_TRACE(testing::Message()
                     << "size " << MapSize << " mode " << mode << " points " << StrokeCount - 1
                     << " thickness " << SliderValues(1).Value << " stop " << meddling.stopAt);
        compare([&] { DrawStroke(static_cast<std::int16_t>(mode)); },
                [&](slow::World& world) { slow::drawStroke(world, mode); }, meddling);
    }
    void draw(int mode) { draw(mode, Meddling()); }

    static int cellsOfHeight(int height) {
        int found = 0;
        for (std::size_t n = 0; n < HeightGrid::size(); ++n) {
            found += HeightMap.data()[n] == height ? 1 : 0;
        }
        return found;
    }
};

TEST_F(Stroke, pencils_agree_with_the_slow_way_anywhere) {
    for (int round = 0; round < 500; ++round) {
        Dice dice(static_cast<std::uint32_t>(3000 + round));
        if (round % 125 == 0) {
            openMap(sizeFor(round / 125));
        }
        OptionStates(button::kAutoRefresh).State = round % 10 == 0 ? kOn : kUp;
        layGround(dice);
        setPens(1 + round % 20, dice(0, 255));
        recordPath(dice, dice(1, 25), dice(1, 12));
        draw(kPencilStroke);
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
}

TEST_F(Stroke, lines_agree_with_the_slow_way_anywhere) {
    for (int round = 0; round < 300; ++round) {
        Dice dice(static_cast<std::uint32_t>(4000 + round));
        if (round % 75 == 0) {
            openMap(sizeFor(round / 75));
        }
        OptionStates(button::kAutoRefresh).State = round % 10 == 0 ? kOn : kUp;
        layGround(dice);
        setPens(1 + round % 20, dice(0, 255));
        const int beyond = round % 3 == 0 ? 40 : 0;
        recordLine(dice(-beyond, MapSize + beyond), dice(-beyond, MapSize + beyond),
                   dice(0, MapSize), dice(0, MapSize));
        draw(kLineStroke);
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
}

TEST_F(Stroke, lines_along_the_edges_and_diagonals_agree) {
    for (int round = 0; round < 4; ++round) {
        openMap(sizeFor(round));
        const int last = MapSize;
        setPens(3 + 5 * round, 77);
        for (const auto& [x1, y1, x2, y2] : {std::array{0, 0, last, last},
                                             {last, 0, 0, last},
                                             {0, 0, last, 0},
                                             {last, last, 0, last},
                                             {last, 0, last, last},
                                             {5, last, 5, 0}}) {
            layFlat(40);
            recordLine(x1, y1, x2, y2);
            draw(kLineStroke);
        }
    }
}

// Step 69 of 92 stands at x = 60.50000000000001, which single precision takes for 60.5.
TEST_F(Stroke, a_step_a_hair_beyond_the_middle_belongs_to_the_next_cell) {
    openMap(129);
    layFlat(40);
    setPens(1, 90);
    recordLine(20, 20, 74, 95);
    draw(kLineStroke);
    EXPECT_EQ(HeightMap(61, 76), 90);
    EXPECT_EQ(HeightMap(60, 76), 40);
}

TEST_F(Stroke, a_stop_at_every_yield_leaves_what_the_slow_way_leaves) {
    for (const int mode : {kPencilStroke, kLineStroke}) {
        Meddling meddling;
        for (meddling.stopAt = 1; meddling.stopAt <= 14; ++meddling.stopAt) {
            openMap(65);
            setPens(4, 90);
            Dice dice(99);
            if (mode == kPencilStroke) {
                recordPath(dice, 15, 5);
            } else {
                recordLine(10, 20, 20, 25);
            }
            draw(mode, meddling);
            ASSERT_FALSE(HasFailure());
        }
    }
}

TEST_F(Stroke, thickness_and_height_of_the_moment_are_used) {
    for (int round = 0; round < 60; ++round) {
        Dice dice(static_cast<std::uint32_t>(5000 + round));
        setPens(dice(1, 20), 90);
        layFlat(40);
        recordLine(dice(0, 65), dice(0, 65), dice(0, 65), dice(0, 65));
        Meddling meddling;
        meddling.newThicknessAt = dice(1, 20);
        meddling.newThickness = dice(1, 20);
        meddling.newHeightAt = dice(1, 20);
        meddling.newHeight = 200;
        draw(kLineStroke, meddling);
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
}

TEST_F(Stroke, fewer_than_two_counted_points_write_nothing) {
    for (const int count : {0, 1, 2}) {
        setPens(5, 90);
        StrokeCount = static_cast<std::int16_t>(count);
        draw(kPencilStroke);
        EXPECT_EQ(cellsOfHeight(90), 0);
        EXPECT_FALSE(Form1.Line1.Visible);
        EXPECT_EQ(ProgressState, 0);
    }
}

TEST_F(Stroke, two_counted_points_are_one_segment) {
    setPens(1, 90);
    StrokeX(1) = 5;
    StrokeY(1) = 6;
    StrokeX(2) = 8;
    StrokeY(2) = 6;
    StrokeCount = 3;
    draw(kPencilStroke);
    EXPECT_EQ(cellsOfHeight(90), 4);
    EXPECT_EQ(HeightMap(5, 6), 90);
    EXPECT_EQ(HeightMap(8, 6), 90);
    EXPECT_EQ(ProgressTotal, 1);
}

TEST_F(Stroke, a_line_to_itself_changes_nothing_but_is_a_run) {
    OptionStates(button::kAutoRefresh).State = kOn;
    setPens(9, 90);
    recordLine(30, 30, 30, 30);
    draw(kLineStroke);
    EXPECT_EQ(cellsOfHeight(90), 0);
    EXPECT_EQ(yieldsOfLastRun, 66);  // the refresh alone
    EXPECT_EQ(ProgressState, 2);
}

TEST_F(Stroke, a_line_to_itself_keeps_the_total_of_before) {
    recordLine(30, 30, 30, 30);
    ProgressTotal = 777;
    draw(kLineStroke);
    EXPECT_EQ(ProgressTotal, 777);
    EXPECT_EQ(yieldsOfLastRun, 0);
    EXPECT_EQ(Form1.WorkWhat.Caption, "Drawing Line");
}

TEST_F(Stroke, the_longest_stroke_ends_at_its_599th_point) {
    openMap(257);
    setPens(1, 90);
    for (int n = 1; n <= 599; ++n) {
        StrokeX(n) = static_cast<std::int16_t>((n - 1) % 250);
        StrokeY(n) = static_cast<std::int16_t>(10 + (n - 1) / 250 * 5);
    }
    StrokeCount = 600;
    draw(kPencilStroke);
    EXPECT_EQ(ProgressTotal, 598);
    EXPECT_EQ(ProgressDone, 598);
    EXPECT_EQ(HeightMap(98, 20), 90);
    EXPECT_EQ(HeightMap(99, 20), 40);
}

TEST_F(Stroke, at_the_edge_only_the_part_inside_is_written) {
    setPens(2, 90);
    recordLine(65, 30, 65, 31);
    draw(kLineStroke);
    EXPECT_EQ(HeightMap(65, 30), 90);
    EXPECT_EQ(HeightMap(66, 30), 40);
    EXPECT_EQ(HeightMap(63, 30), 90);
}

TEST_F(Stroke, both_ends_are_written_exactly) {
    for (int round = 0; round < 50; ++round) {
        Dice dice(static_cast<std::uint32_t>(6000 + round));
        layFlat(40);
        setPens(1, 90);
        recordLine(dice(0, 65), dice(0, 65), dice(0, 65), dice(0, 65));
        if (StrokeX(5) == StrokeX(6) && StrokeY(5) == StrokeY(6)) {
            continue;
        }
        draw(kLineStroke);
        EXPECT_EQ(HeightMap(StrokeX(5), StrokeY(5)), 90);
        EXPECT_EQ(HeightMap(StrokeX(6), StrokeY(6)), 90);
    }
}

TEST_F(Stroke, the_marker_uses_the_width_on_both_axes) {
    Form1.MapView.Canvas.ScaleWidth = 650;
    Form1.MapView.Canvas.ScaleHeight = 130;
    setPens(1, 90);
    recordLine(3, 4, 6, 8);
    DrawStroke(kLineStroke);
    EXPECT_EQ(Form1.Line1.X1, 60);
    EXPECT_EQ(Form1.Line1.Y1, 80);
    EXPECT_EQ(Form1.Line1.X2, 61);
    EXPECT_EQ(Form1.Line1.Y2, 81);
    EXPECT_FALSE(Form1.Line1.Visible);
}

TEST_F(Stroke, a_stopped_line_keeps_what_it_has_drawn) {
    setPens(1, 90);
    recordLine(10, 10, 30, 10);
    Meddling meddling;
    meddling.stopAt = 6;  // at step 5
    draw(kLineStroke, meddling);
    EXPECT_EQ(HeightMap(15, 10), 90);
    EXPECT_EQ(HeightMap(16, 10), 40);
    EXPECT_EQ(StopFlag, 2);
    EXPECT_EQ(ProgressState, 1);
    EXPECT_TRUE(Form1.Line1.Visible);
    finishStop();
    EXPECT_FALSE(Form1.Line1.Visible);
}

TEST_F(Stroke, a_line_is_shown_at_each_step_before_its_yield) {
    setPens(1, 90);
    recordLine(10, 10, 14, 10);
    struct Shown {
        std::int32_t done;
        long yields;
        bool operator==(const Shown&) const = default;
    };
    std::vector<Shown> shown;
    const long before = platform.Yields;
    platform.OnRefresh = [&](const Control& control) {
        if (&control == &Form1.MapView) {
            shown.push_back({ProgressDone, platform.Yields - before});
        }
    };
    DrawStroke(kLineStroke);
    EXPECT_EQ(shown, (std::vector<Shown>{{0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, 4}}));
    shown.clear();
    DrawStroke(kPencilStroke);
    EXPECT_EQ(shown.size(), 0U) << "a pencil is not shown before the refresh";
}

// The brush alone: every sample counted on both ways, at centres chosen to lie on the borders
// between the parts of a cell and a hair beside them.
TEST_F(Stroke, the_brush_covers_exactly_the_cells_that_have_a_sample) {
    for (const int step : {1, 3, 4}) {
        for (const int rings : {1, 2, 3, 7, 15, 20, 25}) {
            DiscBrush brush(rings, step);
            for (const double x :
                 {32.0, 32.25, 32.5, 31.9999999999, 33.75, 30.4142135, 0.0, 65.0}) {
                for (const double y : {20.0, 20.75, 20.9999999999, 21.0000000001, 3.3, 70.0}) {
                    HeightMap.fill(40);
                    brush.stamp(x, y, [](std::int16_t* cells, int count) {
                        std::fill_n(cells, count, std::int16_t{90});
                    });
                    slow::World world = worldNow();
                    std::fill(world.heights.begin(), world.heights.end(), std::int16_t{40});
                    for (int r = 1; r <= rings; ++r) {
                        for (int a = 1; a <= 360; a += step) {
                            const int px =
                                static_cast<int>(std::floor(x + r * CosTable(1080 + 3 * a)));
                            const int py =
                                static_cast<int>(std::floor(y + r * SinTable(1080 + 3 * a)));
                            if (world.isInside(px, py)) {
                                world.height(px, py) = 90;
                            }
                        }
                    }
                    ASSERT_TRUE(
                        std::equal(world.heights.begin(), world.heights.end(), HeightMap.data()))
                        << step << ' ' << rings << ' ' << x << ' ' << y;
                }
            }
        }
    }
}

}  // namespace

}  // namespace ombrelia
