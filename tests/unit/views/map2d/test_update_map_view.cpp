#include <vector>

#include "core/button_numbers.h"
#include "core/color_ramp.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/progress.h"
#include "core/windows/form1.h"
#include "editor_fixture.h"
#include "pixel_at.h"
#include "platform/dispatch.h"
#include "views/map2d/update_map_view.h"

namespace ombrelia {

namespace {

constexpr Color kMarkerColor = rgb(9, 8, 7);

class UpdateMap : public EditorTest {
  protected:
    UpdateMap() { mark(); }

    static Surface& buffer() { return Form1.Mapview2.Canvas; }
    static Surface& view() { return Form1.MapView.Canvas; }

    // Both layers get a colour that no height has.
    static void mark() {
        for (Surface* surface : {&buffer(), &view()}) {
            for (int y = 0; y < surface->height(); ++y) {
                for (int x = 0; x < surface->width(); ++x) {
                    surface->setPixel(x, y, kMarkerColor);
                }
            }
        }
    }

    static bool isMarked(const Surface& surface, int x, int y) {
        return pixelAt(surface, x, y) == static_cast<std::int32_t>(kMarkerColor);
    }

    static int paintedPixels(const Surface& surface) {
        int count = 0;
        for (int y = 0; y < surface.height(); ++y) {
            for (int x = 0; x < surface.width(); ++x) {
                count += isMarked(surface, x, y) ? 0 : 1;
            }
        }
        return count;
    }

    static std::int32_t colorAt(int height) {
        auto h = static_cast<std::int16_t>(height);
        return static_cast<std::int32_t>(HeightToColor(h));
    }

    void stopInYield(int number) {
        platform.OnYield = [this, number] {
            if (++yields == number) {
                StopFlag = 1;
            }
        };
    }

    int yields = 0;
};

TEST_F(UpdateMap, nothing_changed_paints_no_cell_but_shows_the_buffer) {
    UpdateMapView(1);
    EXPECT_EQ(paintedPixels(buffer()), 0);
    view().clear();
    UpdateMapView(1);
    EXPECT_TRUE(isMarked(view(), 0, 0));
    EXPECT_TRUE(isMarked(view(), 256, 256));
    EXPECT_EQ(ProgressState, 2);
    EXPECT_TRUE(Form1.MapView.Enabled);
    EXPECT_EQ(Form1.WorkWhat.Caption, "Updating View");
}

TEST_F(UpdateMap, changed_cells_alone_are_painted) {
    HeightMap(3, 5) = 200;
    HeightMap(65, 65) = 10;
    HeightMap(66, 10) = 99;  // beyond the map
    UpdateMapView(1);
    EXPECT_EQ(paintedPixels(buffer()), 2);
    EXPECT_EQ(pixelAt(buffer(), 3, 5), colorAt(200));
    EXPECT_EQ(pixelAt(buffer(), 65, 65), colorAt(10));
    EXPECT_EQ(ShadowMap(3, 5), 200);
    EXPECT_EQ(ShadowMap(66, 10), 40);
    EXPECT_EQ(pixelAt(view(), 13, 21), colorAt(200));  // 3.5 and 5.5 cells of 257 / 65
}

TEST_F(UpdateMap, marked_cells_are_all_painted_and_those_beyond_keep_their_shadow) {
    MarkMapForRepaint();
    EXPECT_EQ(ShadowMap(65, 65), -2);
    EXPECT_EQ(ShadowMap(66, 65), 40);
    EXPECT_EQ(ShadowMap(65, 66), 40);
    UpdateMapView(1);
    EXPECT_EQ(paintedPixels(buffer()), 66 * 66);
    EXPECT_EQ(pixelAt(buffer(), 65, 65), colorAt(40));
    EXPECT_TRUE(isMarked(buffer(), 66, 0));
    EXPECT_EQ(ShadowMap(65, 65), 40);
}

TEST_F(UpdateMap, column_and_row_257_fall_off_and_count_as_clean) {
    openEditor(257);
    mark();
    HeightMap(257, 3) = 200;
    HeightMap(3, 257) = 200;
    HeightMap(257, 257) = 200;
    UpdateMapView(1);
    EXPECT_EQ(paintedPixels(buffer()), 0);
    EXPECT_EQ(ShadowMap(257, 3), 200);
    EXPECT_EQ(ShadowMap(3, 257), 200);
    EXPECT_EQ(ShadowMap(257, 257), 200);
}

TEST_F(UpdateMap, heights_out_of_range_are_cut_back_in_map_and_shadow) {
    HeightMap(1, 1) = 300;
    HeightMap(2, 1) = -9;
    HeightMap(70, 1) = 300;
    UpdateMapView(1);
    EXPECT_EQ(HeightMap(1, 1), 255);
    EXPECT_EQ(ShadowMap(1, 1), 255);
    EXPECT_EQ(pixelAt(buffer(), 1, 1), colorAt(255));
    EXPECT_EQ(HeightMap(2, 1), 0);
    EXPECT_EQ(pixelAt(buffer(), 2, 1), colorAt(0));
    EXPECT_EQ(HeightMap(70, 1), 300);
}

TEST_F(UpdateMap, the_heights_next_to_the_range_are_cut_back_too) {
    HeightMap(1, 1) = 256;
    HeightMap(2, 1) = -1;
    UpdateMapView(1);
    EXPECT_EQ(HeightMap(1, 1), 255);
    EXPECT_EQ(HeightMap(2, 1), 0);
}

TEST_F(UpdateMap, a_height_without_a_colour_takes_that_of_the_cell_painted_before) {
    for (const int component : {0, 1, 2, 3}) {
        ColorRange(3, 1, component) = 50;
        ColorRange(3, 2, component) = 50;
    }
    HeightMap(0, 0) = 50;  // nothing was painted before: black
    HeightMap(3, 0) = 220;
    HeightMap(5, 0) = 50;  // the cell painted before is (3, 0), for (4, 0) is clean
    HeightMap(0, 1) = 50;
    UpdateMapView(1);
    EXPECT_EQ(pixelAt(buffer(), 0, 0), 0);
    EXPECT_EQ(pixelAt(buffer(), 5, 0), colorAt(220));
    EXPECT_EQ(pixelAt(buffer(), 0, 1), colorAt(220));
    EXPECT_EQ(paintedPixels(buffer()), 4);
}

TEST_F(UpdateMap, a_stop_keeps_the_rows_done_and_leaves_the_rest_dirty) {
    for (const int rows : {1, 7, 66}) {
        openEditor(65);
        mark();
        MarkMapForRepaint();
        yields = 0;
        stopInYield(rows);
        UpdateMapView(1);
        platform.OnYield = nullptr;
        EXPECT_EQ(StopFlag, 2);
        EXPECT_EQ(ProgressState, 1);
        EXPECT_EQ(yields, rows);
        EXPECT_FALSE(Form1.MapView.Enabled);
        EXPECT_EQ(paintedPixels(buffer()), 66 * rows);
        for (int y = 0; y <= 65; ++y) {
            for (int x = 0; x <= 65; ++x) {
                ASSERT_EQ(ShadowMap(x, y), y < rows ? 40 : -2);
            }
        }
        EXPECT_TRUE(isMarked(view(), 128, 128));
        mark();
        StopFlag = 0;
        UpdateMapView(1);
        EXPECT_EQ(paintedPixels(buffer()), 66 * (66 - rows));
    }
}

TEST_F(UpdateMap, a_late_stop_ends_the_refresh_after_its_first_row) {
    MarkMapForRepaint();
    StopFlag = 1;
    UpdateMapView(1);
    EXPECT_EQ(StopFlag, 2);
    EXPECT_EQ(paintedPixels(buffer()), 66);
}

TEST_F(UpdateMap, the_position_counts_cells_row_by_row) {
    std::vector<int> done;
    platform.OnYield = [&done] {
        EXPECT_EQ(ProgressState, 1);
        EXPECT_EQ(ProgressTotal, 66 * 66);
        EXPECT_FALSE(Form1.MapView.Enabled);
        done.push_back(ProgressDone);
    };
    UpdateMapView(1);
    ASSERT_EQ(done.size(), 66U);
    for (int y = 0; y <= 65; ++y) {
        EXPECT_EQ(done[static_cast<std::size_t>(y)], y * 66);
    }
    done.clear();
    UpdateMapView(20);
    EXPECT_EQ(done, (std::vector<int>{0, 20 * 80, 40 * 80, 60 * 80}));
}

TEST_F(UpdateMap, wide_steps_draw_boxes_on_the_view_and_leave_the_shadow) {
    MarkMapForRepaint();
    HeightMap(20, 40) = 200;
    HeightMap(60, 60) = 400;
    UpdateMapView(20);
    EXPECT_EQ(paintedPixels(buffer()), 0);
    EXPECT_EQ(ShadowMap(20, 40), -2);
    EXPECT_EQ(HeightMap(60, 60), 255);
    // Boxes of 21 pixels a side, later ones over earlier ones; the last reach 80.
    EXPECT_EQ(pixelAt(view(), 20, 40), colorAt(200));
    EXPECT_EQ(pixelAt(view(), 39, 59), colorAt(200));
    EXPECT_EQ(pixelAt(view(), 40, 59), colorAt(40));
    EXPECT_EQ(pixelAt(view(), 39, 60), colorAt(40));
    EXPECT_EQ(pixelAt(view(), 80, 80), colorAt(255));
    EXPECT_EQ(pixelAt(view(), 19, 40), colorAt(40));
    EXPECT_TRUE(isMarked(view(), 81, 80));
    EXPECT_EQ(paintedPixels(view()), 81 * 81);
    EXPECT_EQ(ProgressState, 2);
    EXPECT_TRUE(Form1.MapView.Enabled);
}

TEST_F(UpdateMap, a_change_of_colours_in_a_yield_takes_effect_from_the_next_row_on) {
    MarkMapForRepaint();
    const std::int32_t before = colorAt(40);
    platform.OnYield = [] { ColorRange(3, 1, 1) = 0; };
    UpdateMapView(1);
    EXPECT_EQ(pixelAt(buffer(), 65, 0), before);
    EXPECT_EQ(pixelAt(buffer(), 0, 1), colorAt(40));
    EXPECT_NE(colorAt(40), before);
}

TEST_F(UpdateMap, the_step_option_changes_nothing) {
    for (const int state : {0, 1, 2}) {
        OptionStates(button::kStepRefresh).State = static_cast<std::int16_t>(state);
        const long before = yieldCount();
        MarkMapForRepaint();
        RefreshAfterEdit();
        EXPECT_EQ(yieldCount() - before, 66) << state;
        EXPECT_EQ(ShadowMap(65, 65), 40);
        EXPECT_EQ(StepRefreshActive, 0);
    }
}

TEST_F(UpdateMap, state_78_refreshes_from_coarse_to_fine) {
    OptionStates(button::kStepRefresh).State = 78;
    OptionStates(button::kStep10).State = 1;
    OptionStates(button::kStep5).State = 0;
    std::vector<int> starts;  // yields of each pass
    platform.OnYield = [&starts] {
        EXPECT_EQ(StepRefreshActive, 1);
        if (ProgressDone == 0) {
            starts.push_back(0);
        }
        ++starts.back();
    };
    MarkMapForRepaint();
    RefreshAfterEdit();
    EXPECT_EQ(starts, (std::vector<int>{4, 33, 66}));  // steps 20, 2, 1
    EXPECT_EQ(StepRefreshActive, 0);
    EXPECT_EQ(ShadowMap(0, 0), 40);
}

TEST_F(UpdateMap, state_78_without_a_step_refreshes_nothing) {
    OptionStates(button::kStepRefresh).State = 78;
    for (int i = button::kStep20; i <= button::kStep1; ++i) {
        OptionStates(i).State = 0;
    }
    const long before = yieldCount();
    RefreshAfterEdit();
    EXPECT_EQ(yieldCount(), before);
}

TEST_F(UpdateMap, the_view_from_above_comes_back) {
    OptionStates(button::k3DMode).State = 2;
    Form1.TwoFrame.Visible = false;
    UpdateMapView(1);
    EXPECT_EQ(OptionStates(button::k3DMode).State, 0);
    EXPECT_EQ(OptionStates(button::k2DMode).State, 2);
    EXPECT_TRUE(Form1.TwoFrame.Visible);
}

}  // namespace

}  // namespace ombrelia
