#include <algorithm>
#include <cmath>
#include <vector>

#include "core/button_numbers.h"
#include "core/color_ramp.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "pixel_at.h"
#include "terrain/raise_lower.h"
#include "terrain/tool_test.h"
#include "views/view3d/cell_painters.h"
#include "views/view3d/draw_terrain.h"

namespace ombrelia {

namespace {

enum class Tool { Raise, Lower };

class RaiseLower : public ToolTest {
  protected:
    static void expectSamePixels(const Surface& left, const Surface& right) {
        for (int y = 0; y < 257; ++y) {
            for (int x = 0; x < 257; ++x) {
                ASSERT_EQ(pixelAt(left, x, y), pixelAt(right, x, y)) << "pixel " << x << ' ' << y;
            }
        }
    }

    void apply(Tool tool, float x, float y, int amount) {
        SCOPED_TRACE(testing::Message()
                     << "size " << MapSize << (tool == Tool::Raise ? " up" : " down") << " at " << x
                     << ' ' << y << " amount " << amount);
        SliderValues(tool == Tool::Raise ? 3 : 11).Value = static_cast<std::int16_t>(amount);
        slow::Pictures pictures{Form1.MapView.Canvas, Form1.Mapview2.Canvas};
        compare([&] { tool == Tool::Raise ? RaiseTerrain(x, y) : LowerTerrain(x, y); },
                [&](slow::World& world) {
                    if (tool == Tool::Raise) {
                        slow::raiseTerrain(world, pictures, x, y, amount);
                    } else {
                        slow::lowerTerrain(world, pictures, x, y, amount);
                    }
                });
        expectSamePixels(Form1.MapView.Canvas, pictures.view);
        expectSamePixels(Form1.Mapview2.Canvas, pictures.buffer);
    }

    // Drags that wander over the map and its border, over ground of every kind.
    void drag(Tool tool, std::uint32_t seed, int rounds, int moves) {
        for (int round = 0; round < rounds; ++round) {
            Dice dice(seed + static_cast<std::uint32_t>(round));
            openMap(sizeFor(round));
            layGround(dice);
            const auto side = static_cast<float>(MapSize);
            for (int move = 0; move < moves; ++move) {
                const bool isWhole = dice(0, 4) == 0;
                const float x = dice.place(-5, side + 5);
                const float y = dice(0, 9) == 0 ? side : dice.place(-5, side + 5);
                apply(tool, isWhole ? std::floor(x) : x, y, 1 + (round * moves + move) % 20);
                ASSERT_FALSE(HasFailure()) << "seed " << seed << " round " << round;
            }
        }
    }
};

TEST_F(RaiseLower, raising_agrees_with_the_slow_way_anywhere) {
    drag(Tool::Raise, 8000, 24, 40);
}

TEST_F(RaiseLower, lowering_agrees_with_the_slow_way_anywhere) {
    drag(Tool::Lower, 9000, 24, 40);
}

TEST_F(RaiseLower, both_agree_over_heights_beyond_the_range) {
    Dice dice(5);
    for (int move = 0; move < 100; ++move) {
        layGround(dice);
        for (int n = 0; n < 400; ++n) {
            HeightMap(dice(0, 65), dice(0, 65)) = static_cast<std::int16_t>(dice(-300, 700));
        }
        apply(move % 2 == 0 ? Tool::Raise : Tool::Lower, dice.place(0, 65), dice.place(0, 65),
              dice(1, 20));
        ASSERT_FALSE(HasFailure()) << "move " << move;
    }
}

TEST_F(RaiseLower, a_peak_below_0_ends_with_its_first_circle) {
    layFlat(40);
    HeightMap(30, 30) = -40;
    HeightMap(29, 30) = -200;
    HeightMap(27, 30) = -200;
    apply(Tool::Raise, 30, 30, 10);
    EXPECT_EQ(HeightMap(29, 30), 0);  // painted, and so cut back
    EXPECT_EQ(HeightMap(27, 30), -200);
}

TEST_F(RaiseLower, both_agree_with_colours_that_leave_gaps) {
    Dice dice(6);
    for (int move = 0; move < 60; ++move) {
        const int row = dice(1, 6);
        ColorRange(row, 1, 0) = static_cast<std::int16_t>(dice(0, 255));
        ColorRange(row, 2, 0) = ColorRange(row, 1, 0);
        layGround(dice);
        apply(move % 2 == 0 ? Tool::Raise : Tool::Lower, dice.place(0, 65), dice.place(0, 65),
              dice(1, 20));
        ASSERT_FALSE(HasFailure()) << "move " << move;
    }
}

TEST_F(RaiseLower, both_agree_on_a_zoomed_view) {
    Surface& view = Form1.MapView.Canvas;
    view.ScaleWidth = view.ScaleHeight = 457;
    view.ScaleLeft = -60;
    view.ScaleTop = -100;
    layFlat(60);
    apply(Tool::Raise, 30.3F, 20.7F, 10);
    apply(Tool::Lower, 40.3F, 28.7F, 10);
}

TEST_F(RaiseLower, a_peak_above_the_highest_is_cut_to_255) {
    layFlat(250);
    apply(Tool::Raise, 32, 32, 10);
    EXPECT_EQ(HeightMap(32, 32), 255);  // the first circle
    EXPECT_EQ(HeightMap(32, 32 - 15), 250);
}

TEST_F(RaiseLower, ground_of_0_rises_to_a_flat_disc) {
    layFlat(0);
    apply(Tool::Raise, 32, 32, 10);
    int highest = 0;
    for (int y = 0; y <= 65; ++y) {
        for (int x = 0; x <= 65; ++x) {
            highest = std::max<int>(highest, HeightMap(x, y));
            EXPECT_TRUE(HeightMap(x, y) == 0 || HeightMap(x, y) == 10);
        }
    }
    EXPECT_EQ(highest, 10);
    EXPECT_EQ(HeightMap(32 - 15, 31), 10);  // the sample at 181 degrees
    EXPECT_EQ(HeightMap(32 - 17, 32), 0);
}

TEST_F(RaiseLower, lowering_by_the_whole_height_does_nothing) {
    layFlat(4);
    const HeightGrid before = HeightMap;
    apply(Tool::Lower, 32, 32, 4);
    EXPECT_TRUE(HeightMap == before);
}

TEST_F(RaiseLower, lowering_below_0_digs_to_0) {
    layFlat(1);
    apply(Tool::Lower, 32, 32, 4);
    EXPECT_EQ(HeightMap(32 - 10, 32), 0);
    EXPECT_EQ(HeightMap(32 - 12, 32), 1);
}

TEST_F(RaiseLower, a_pit_is_narrower_than_a_bump) {
    layFlat(60);
    apply(Tool::Raise, 32, 32, 10);
    EXPECT_EQ(HeightMap(32 - 12, 32), 60);
    layFlat(3);
    apply(Tool::Raise, 32, 32, 4);
    EXPECT_EQ(HeightMap(32 - 15, 31), 7);  // the sample at 181 degrees
    layFlat(9);
    apply(Tool::Lower, 32, 32, 4);
    EXPECT_EQ(HeightMap(32 - 10, 31), 5);
    EXPECT_EQ(HeightMap(32 - 12, 31), 9);
}

TEST_F(RaiseLower, outside_the_map_nothing_happens) {
    layFlat(60);
    const HeightGrid before = HeightMap;
    for (const float x : {-0.01F, 65.01F}) {
        apply(Tool::Raise, x, 30, 10);
        apply(Tool::Lower, 30, x, 10);
    }
    EXPECT_TRUE(HeightMap == before);
}

TEST_F(RaiseLower, the_shadow_stays_so_that_a_refresh_paints_the_same_again) {
    layFlat(60);
    apply(Tool::Raise, 32, 32, 10);
    EXPECT_EQ(ShadowMap(32, 32), 40);
    std::int16_t height = HeightMap(32, 32);
    EXPECT_EQ(pixelAt(Form1.Mapview2.Canvas, 32, 32),
              static_cast<std::int32_t>(HeightToColor(height)));
}

// Every cell that rises is drawn by its lines at once, with its neighbours as they stand then.
TEST_F(RaiseLower, without_a_motion_tool_a_cell_is_drawn_in_perspective) {
    layFlat(10);
    SliderValues(3).Value = 10;
    SliderValues(4).Value = 2;
    OptionStates(button::kRotate3D).State = kUp;
    DrawQuickGrid();
    Surface& view = Form1.MapView.Canvas;
    const Surface buffer = Form1.Mapview2.Canvas;
    const HeightGrid before = HeightMap;
    const Surface blank = view;
    RaiseTerrain(32, 32);
    const Surface seen = view;
    const HeightGrid after = HeightMap;
    expectSamePixels(Form1.Mapview2.Canvas, buffer);

    HeightMap = before;
    view = blank;
    for (int r = 1; r <= 15; ++r) {
        const std::int16_t height = static_cast<std::int16_t>(21 - r);
        for (int a = 1; a <= 360; a += 5) {
            const int x = static_cast<int>(std::floor(32 + r * CosTable(3 * a + 1080)));
            const int y = static_cast<int>(std::floor(32 + r * SinTable(3 * a + 1080)));
            if (height > HeightMap(x, y)) {
                HeightMap(x, y) = height;
                DrawLineCell(x, y, 2, 32.7);
            }
        }
    }
    EXPECT_TRUE(HeightMap == after);
    expectSamePixels(view, seen);
    int drawn = 0;
    for (int y = 0; y < 257; ++y) {
        for (int x = 0; x < 257; ++x) {
            drawn += pixelAt(seen, x, y) != pixelAt(blank, x, y) ? 1 : 0;
        }
    }
    EXPECT_GT(drawn, 100);
}

TEST_F(RaiseLower, a_large_map_is_painted_pixel_by_pixel) {
    openMap(257);
    layFlat(60);
    apply(Tool::Raise, 100.5F, 100.5F, 10);
    EXPECT_EQ(pixelAt(Form1.MapView.Canvas, 101, 101), pixelAt(Form1.Mapview2.Canvas, 101, 101));
    EXPECT_EQ(yieldsOfLastRun, 0);
}

// Each circle of the bump and of the pit is shown when it is complete.
TEST_F(RaiseLower, each_circle_is_shown_on_its_own) {
    std::vector<int> firstHeights;
    std::vector<int> thirdHeights;
    platform.OnRefresh = [&](const Control& control) {
        if (&control == &Form1.MapView) {
            firstHeights.push_back(HeightMap(32, 32));
            thirdHeights.push_back(HeightMap(34, 32));
        }
    };
    layFlat(60);
    SliderValues(3).Value = 10;
    RaiseTerrain(32, 32);
    // 70 / (70 / 15.0) lies a hair below 15.
    ASSERT_EQ(firstHeights.size(), 14U);
    EXPECT_EQ(firstHeights[0], 70);
    EXPECT_EQ(thirdHeights[0], 60);
    EXPECT_EQ(thirdHeights[2], 62);  // 70 less two times 4
    firstHeights.clear();
    layFlat(62);
    RaiseTerrain(32, 32);
    EXPECT_EQ(firstHeights.size(), 15U);
    firstHeights.clear();
    thirdHeights.clear();
    layFlat(60);
    SliderValues(11).Value = 10;
    LowerTerrain(32, 32);
    ASSERT_EQ(firstHeights.size(), 10U);
    EXPECT_EQ(firstHeights[0], 50);
    EXPECT_EQ(thirdHeights[0], 60);
    EXPECT_EQ(thirdHeights[2], 56);  // 50 and two times 3
    // A pit that climbs over the highest height ends with that circle.
    firstHeights.clear();
    layFlat(255);
    SliderValues(11).Value = 4;
    LowerTerrain(32, 32);
    EXPECT_EQ(firstHeights.size(), 1U);
}

}  // namespace

}  // namespace ombrelia
