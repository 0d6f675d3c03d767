// What the drawing of the perspective shows and asks on its way, whatever it paints.
#include <utility>
#include <vector>

#include "core/button_numbers.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/progress.h"
#include "core/windows/form1.h"
#include "editor_fixture.h"
#include "pixel_at.h"
#include "views/view3d/cell_painters.h"
#include "views/view3d/draw_terrain.h"
#include "views/view3d/projection.h"
#include "views/view_mode.h"

namespace ombrelia {

namespace {

class DrawProtocol : public EditorTest {
  protected:
    DrawProtocol() { SwitchViewMode(kMode3D); }
};

// Both ways of the walk, rows and columns: the picture, the number, the yield.
TEST_F(DrawProtocol, a_row_is_shown_before_it_counts_and_yields) {
    for (const int yaw : {0, 90, 180, 270}) {
        ViewYaw = static_cast<std::int16_t>(yaw);
        ProgressDone = -1;
        std::vector<std::pair<long, std::int32_t>> shown;
        std::vector<std::int32_t> counted;
        const long before = platform.Yields;
        platform.OnRefresh = [&](const Control& control) {
            if (&control == &Form1.MapView) {
                shown.emplace_back(platform.Yields - before, ProgressDone);
            }
        };
        platform.OnYield = [&] { counted.push_back(ProgressDone); };
        DrawTerrain3D(20, kFullDrawing);
        ASSERT_EQ(counted.size(), 4U) << yaw;
        ASSERT_EQ(shown.size(), 4U) << yaw;
        for (std::size_t row = 0; row < 4; ++row) {
            EXPECT_EQ(shown[row].first, static_cast<long>(row)) << yaw;
            EXPECT_EQ(shown[row].second, row == 0 ? -1 : counted[row - 1]) << yaw;
        }
    }
}

TEST_F(DrawProtocol, the_stop_flag_of_before_ends_a_drawing_after_its_first_row) {
    for (const int yaw : {0, 90, 180, 270}) {
        ViewYaw = static_cast<std::int16_t>(yaw);
        StopFlag = 1;
        ProgressDone = -1;
        const long before = platform.Yields;
        DrawTerrain3D(20, kFullDrawing);
        EXPECT_EQ(platform.Yields, before + 1) << yaw;
        EXPECT_EQ(StopFlag, 2);
        EXPECT_GE(ProgressDone, 0) << "the row counts before the flag is looked at";
        EXPECT_EQ(ProgressState, 1);
    }
}

TEST_F(DrawProtocol, the_quick_grid_neither_looks_at_the_stop_flag_nor_refreshes) {
    int seen = 0;
    platform.OnRefresh = [&](const Control&) { ++seen; };
    StopFlag = 1;
    ProgressDone = 77;
    SetToolsEnabled(false);
    DrawQuickGrid();
    EXPECT_EQ(StopFlag, 1);
    EXPECT_EQ(seen, 0);
    EXPECT_EQ(ProgressDone, 77);
    EXPECT_FALSE(Form1.MapView.Enabled);
}

// At each point the lines, then the dot, then the polygon.
TEST_F(DrawProtocol, several_styles_follow_each_other_at_each_point) {
    for (int y = 0; y <= 65; ++y) {
        for (int x = 0; x <= 65; ++x) {
            HeightMap(x, y) = static_cast<std::int16_t>(40 + (x * 7 + y * 13) % 90);
        }
    }
    for (const int style : {button::kStyleLine, button::kStyleDot, button::kStylePolygon}) {
        OptionStates(style).State = kOn;
    }
    SliderValues(5).Value = 3;
    ViewYaw = 100;  // columns from the last one on, each from its last row on
    DrawTerrain3D(4, kFullDrawing);
    Surface& view = Form1.MapView.Canvas;
    const Surface drawn = view;
    view.clear();
    view.DrawWidth = 3;
    for (int x = 64; x >= 0; x -= 4) {
        for (int y = 64; y >= 0; y -= 4) {
            DrawLineCell(x, y, -4, viewCentre());
            DrawDotCell(x, y, -4, viewCentre());
            DrawPolygonCell(x, y, -4, viewCentre());
        }
    }
    for (int y = 0; y < 257; ++y) {
        for (int x = 0; x < 257; ++x) {
            ASSERT_EQ(pixelAt(view, x, y), pixelAt(drawn, x, y)) << x << ' ' << y;
        }
    }
}

}  // namespace

}  // namespace ombrelia
