#include <cmath>
#include <string>
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
#include "views/view3d/cell_painters.h"
#include "views/view3d/draw_terrain.h"
#include "views/view3d/plain_view.h"
#include "views/view3d/projection.h"
#include "views/view_mode.h"

namespace ombrelia {

namespace {

constexpr PlainStyle kStyles[] = {PlainStyle::Line, PlainStyle::Dot, PlainStyle::Polygon};

void selectStyle(PlainStyle style) {
    constexpr int kButtons[] = {button::kStyleLine, button::kStyleDot, button::kStylePolygon};
    for (const int number : kButtons) {
        OptionStates(number).State = kUp;
    }
    OptionStates(kButtons[static_cast<int>(style)]).State = kOn;
}

struct Camera {
    int yaw = 180, tilt = 135;
    int panX = 0, panY = 0;
    double zoom = 1;
};

class DrawTerrain : public EditorTest {
  protected:
    DrawTerrain() { openView(65); }

    void openView(int size) {
        openEditor(size);
        SwitchViewMode(kMode3D);
    }

    static void aim(const Camera& camera) {
        ViewYaw = static_cast<std::int16_t>(camera.yaw);
        ViewTilt = static_cast<std::int16_t>(camera.tilt);
        ViewPanX = static_cast<std::int16_t>(camera.panX);
        ViewPanY = static_cast<std::int16_t>(camera.panY);
        ViewZoom = camera.zoom;
    }

    // Hills with noise on them; the whole array, the row behind the map too.
    void raiseHills(int noise, int base = 90) {
        for (int y = 0; y <= 257; ++y) {
            for (int x = 0; x <= 257; ++x) {
                const double hill = std::sin(x / 11.0) * std::cos(y / 17.0) * 60;
                const double rough = draw_() * static_cast<float>(noise);
                HeightMap(x, y) = static_cast<std::int16_t>(base + hill + rough);
            }
        }
    }

    // Both drawings from the same heights; they leave the same heights too.
    static void compare(int step, PlainStyle style, int lineWidth) {
        selectStyle(style);
        SliderValues(5).Value = static_cast<std::int16_t>(lineWidth);
        const HeightGrid before = HeightMap;
        DrawTerrain3D(step, kFullDrawing);
        const HeightGrid after = HeightMap;
        HeightMap = before;
        const PlainPicture plain = plainDrawing(step, style, lineWidth);
        ASSERT_TRUE(HeightMap == after);
        expectPicture(plain);
    }

    static void expectPicture(const PlainPicture& plain) {
        const Surface& view = Form1.MapView.Canvas;
        ASSERT_EQ(view.width(), 257);
        for (int y = 0; y < 257; ++y) {
            for (int x = 0; x < 257; ++x) {
                ASSERT_EQ(view.row(y)[x], plain.pixels()[static_cast<std::size_t>(y * 257 + x)])
                    << x << ' ' << y;
            }
        }
    }

    static std::string nameOf(const Camera& camera) {
        return "yaw " + std::to_string(camera.yaw) + " tilt " + std::to_string(camera.tilt) +
               " zoom " + std::to_string(camera.zoom) + " pan " + std::to_string(camera.panX);
    }

    static int litPixels() {
        int count = 0;
        for (int y = 0; y < 257; ++y) {
            for (int x = 0; x < 257; ++x) {
                count += pixelAt(Form1.MapView.Canvas, x, y) != 0 ? 1 : 0;
            }
        }
        return count;
    }

    PlainDraws draw_{31};
};

constexpr int kYaws[] = {20, 100, 180, 270, 340};
constexpr int kTilts[] = {135, 40};

// Everything with everything else on a small map.
TEST_F(DrawTerrain, agrees_with_the_plain_one_on_a_small_map) {
    raiseHills(20);
    const HeightGrid hills = HeightMap;
    for (const int yaw : kYaws) {
        for (const int tilt : kTilts) {
            for (const double zoom : {-400.0, 1.0, 195.0}) {
                for (const int pan : {0, -70, 4000}) {
                    const Camera camera{yaw, tilt, pan, pan / 2, zoom};
                    SCOPED_TRACE(nameOf(camera));
                    aim(camera);
                    for (const PlainStyle style : kStyles) {
                        for (const int step : {1, 2, 3, 7, 10}) {
                            HeightMap = hills;
                            compare(step, style, step == 3 ? 10 : 1);
                            if (HasFatalFailure()) {
                                return;
                            }
                        }
                    }
                }
            }
        }
    }
}

TEST_F(DrawTerrain, agrees_with_the_plain_one_on_every_size) {
    for (const int size : {65, 129, 193, 257}) {
        openView(size);
        raiseHills(size == 193 ? 105 : 15);
        for (const int yaw : kYaws) {
            const Camera camera{yaw, yaw == 100 ? 40 : 135, 0, 0, yaw == 270 ? 195.0 : 1.0};
            SCOPED_TRACE(nameOf(camera) + " size " + std::to_string(size));
            aim(camera);
            for (const PlainStyle style : kStyles) {
                compare(1, style, 1);
                compare(7, style, 10);
                if (HasFatalFailure()) {
                    return;
                }
            }
        }
    }
}

// Cameras at random, every whole degree as likely as any other.
TEST_F(DrawTerrain, agrees_with_the_plain_one_from_anywhere) {
    raiseHills(60);
    const auto whole = [this](int low, int high) {
        return low + static_cast<int>(std::floor(draw_() * static_cast<float>(high - low + 1)));
    };
    for (int round = 0; round < 500; ++round) {
        const Camera camera{whole(0, 360), whole(0, 359), whole(-200, 200), whole(-200, 200),
                            static_cast<double>(whole(-400, 195))};
        SCOPED_TRACE(nameOf(camera));
        aim(camera);
        compare(whole(1, 3), kStyles[whole(0, 2)], whole(1, 3));
        if (HasFatalFailure()) {
            return;
        }
    }
}

// Heights outside 0..255 are projected as they stand once and are clamped from then on.
TEST_F(DrawTerrain, agrees_with_the_plain_one_where_heights_are_clamped) {
    for (const int yaw : kYaws) {
        for (const int tilt : kTilts) {
            for (const PlainStyle style : kStyles) {
                raiseHills(300, 0);
                aim({yaw, tilt, 0, 0, 1});
                compare(yaw == 20 ? 2 : 1, style, 1);
                if (HasFatalFailure()) {
                    return;
                }
            }
        }
    }
}

TEST_F(DrawTerrain, agrees_with_the_plain_one_where_heights_have_no_colour) {
    raiseHills(60);
    ColorRange(3, 2, 0) = ColorRange(3, 1, 0);
    ColorRange(4, 1, 0) = static_cast<std::int16_t>(ColorRange(4, 1, 0) + 9);
    for (const PlainStyle style : kStyles) {
        compare(1, style, 1);
        compare(3, style, 2);
    }
}

TEST_F(DrawTerrain, agrees_with_the_plain_one_on_flat_ground) {
    for (const int height : {0, 40, 255}) {
        for (const int tilt : {0, 90, 135, 180, 270}) {
            for (const int yaw : {0, 45, 180, 360}) {
                HeightMap.fill(static_cast<std::int16_t>(height));
                aim({yaw, tilt, 0, 0, 1});
                compare(1, kStyles[static_cast<std::size_t>(tilt / 90) % 3], 1);
                if (HasFatalFailure()) {
                    return;
                }
            }
        }
    }
}

// One point lies exactly in the plane of the eye.
TEST_F(DrawTerrain, agrees_with_the_plain_one_with_a_point_beside_the_eye) {
    raiseHills(20);
    const HeightGrid hills = HeightMap;
    for (const PlainStyle style : kStyles) {
        for (const int yaw : {180, 270}) {
            aim({yaw, 135, 5, 6, 1});
            const double depth = RotatePoint(30, 31, HeightMap(30, 31) / 2.0, viewCentre()).ry;
            ViewZoom = 356 - depth;
            ASSERT_EQ(256 - (depth + ViewZoom - 100), 0);
            compare(1, style, 1);
            HeightMap = hills;
        }
    }
}

TEST_F(DrawTerrain, several_styles_at_once_are_drawn_point_by_point) {
    raiseHills(20);
    selectStyle(PlainStyle::Polygon);
    OptionStates(button::kStyleLine).State = kOn;
    DrawTerrain3D(1, kFullDrawing);
    const int both = litPixels();
    EXPECT_GT(both, 1000);
    OptionStates(button::kStyleLine).State = kUp;
    OptionStates(button::kStylePolygon).State = kUp;
    DrawTerrain3D(1, kFullDrawing);
    EXPECT_EQ(litPixels(), 0);
    EXPECT_EQ(ProgressState, 2);
}

TEST_F(DrawTerrain, the_quadrant_follows_the_yaw) {
    const int rows[][2] = {{0, 1},   {44, 1},  {45, 2},  {134, 2}, {135, 3},
                           {224, 3}, {225, 4}, {314, 4}, {315, 5}, {359, 5}};
    for (const auto& row : rows) {
        aim({row[0], 135, 0, 0, 1});
        DrawQuickGrid();
        EXPECT_EQ(ViewQuadrant, row[1]) << row[0];
    }
}

// Progress at the first row tells which way the walk goes.
TEST_F(DrawTerrain, the_tilt_turns_the_walk_at_uneven_bounds) {
    const int rows[][2] = {{90, 1}, {91, 0}, {270, 0}, {271, 1}};
    for (const auto& row : rows) {
        aim({180, row[0], 0, 0, 1});
        std::int32_t first = -1;
        platform.OnYield = [&] { first = first < 0 ? ProgressDone : first; };
        DrawTerrain3D(1, kFullDrawing);
        // Upwards: row 0 times 65. Downwards: (65 - 64) times (65 - 1).
        EXPECT_EQ(first, row[1] == 1 ? 64 : 0) << row[0];
    }
}

TEST_F(DrawTerrain, progress_counts_rows_times_the_counter_behind_the_row) {
    std::vector<std::int32_t> done;
    platform.OnYield = [&] { done.push_back(ProgressDone); };
    aim({180, 135, 0, 0, 1});
    DrawTerrain3D(10, kFullDrawing);
    EXPECT_EQ(done, (std::vector<std::int32_t>{0, 700, 1400, 2100, 2800, 3500, 4200}));
    EXPECT_EQ(ProgressTotal, 75 * 75);
    done.clear();
    aim({0, 135, 0, 0, 1});
    DrawTerrain3D(10, kFullDrawing);
    // Rows 64, 54 .. 4; the counter ends at -6.
    EXPECT_EQ(done, (std::vector<std::int32_t>{59, 649, 1239, 1829, 2419, 3009, 3599}));
}

TEST_F(DrawTerrain, a_full_drawing_follows_the_protocol) {
    platform.OnYield = [&] {
        EXPECT_EQ(ProgressState, 1);
        EXPECT_FALSE(Form1.MapView.Enabled);
        EXPECT_EQ(Form1.MapView.Canvas.DrawWidth, 4);
        EXPECT_EQ(Form1.WorkWhat.Caption, "Calculating 3D View");
    };
    SliderValues(5).Value = 4;
    DrawTerrain3D(1, kFullDrawing);
    EXPECT_EQ(platform.Yields, 65);
    EXPECT_EQ(ProgressState, 2);
    EXPECT_TRUE(Form1.MapView.Enabled);
    EXPECT_EQ(Form1.MapView.Canvas.DrawWidth, 1);
}

TEST_F(DrawTerrain, the_quick_grid_reports_nothing) {
    SliderValues(5).Value = 10;
    selectStyle(PlainStyle::Polygon);
    const int yields = static_cast<int>(platform.Yields);
    for (const int size : {65, 129, 193, 257}) {
        MapSize = static_cast<std::int16_t>(size);
        DrawQuickGrid();
        EXPECT_EQ(ProgressState, 0);
        expectPicture(plainDrawing(size >= 130 ? 32 : 16, PlainStyle::Line, 1));
    }
    EXPECT_EQ(platform.Yields, yields);
    EXPECT_EQ(Form1.MapView.Canvas.DrawWidth, 1);
}

TEST_F(DrawTerrain, a_stop_keeps_what_is_drawn_and_the_width) {
    raiseHills(20);
    SliderValues(5).Value = 6;
    selectStyle(PlainStyle::Line);
    platform.OnYield = [&] {
        if (platform.Yields == 20) {
            StopFlag = 1;
        }
    };
    DrawTerrain3D(1, kFullDrawing);
    EXPECT_EQ(platform.Yields, 20);
    EXPECT_EQ(StopFlag, 2);
    EXPECT_EQ(ProgressState, 1);
    EXPECT_FALSE(Form1.MapView.Enabled);
    EXPECT_EQ(Form1.MapView.Canvas.DrawWidth, 6);
    EXPECT_GT(litPixels(), 300);
    DrawQuickGrid();
    EXPECT_EQ(Form1.MapView.Canvas.DrawWidth, 1);
}

// What an event inside a yield changes is drawn from the next row on.
TEST_F(DrawTerrain, heights_and_colours_are_read_when_their_row_is_drawn) {
    raiseHills(20);
    for (const PlainStyle style : kStyles) {
        selectStyle(style);
        aim({180, 135, 0, 0, 1});
        int row = 0;
        platform.OnYield = [&] {
            if (++row == 30) {
                HeightMap.fill(200);
                ColorRange(5, 1, 1) = static_cast<std::int16_t>(7 + static_cast<int>(style));
            }
        };
        DrawTerrain3D(1, kFullDrawing);
        const RotatedPoint point = RotatePoint(20, 31, 100, viewCentre());
        double X = 0;
        double Y = 0;
        ProjectPoint(point, X, Y);
        std::int16_t height = 200;
        const auto expected = static_cast<std::int32_t>(HeightToColor(height));
        EXPECT_EQ(pixelAt(Form1.MapView.Canvas, wholePixel(X - MapSize), wholePixel(Y)), expected)
            << static_cast<int>(style);
    }
}

TEST_F(DrawTerrain, a_line_reaches_the_column_behind_the_map) {
    openView(257);
    selectStyle(PlainStyle::Line);
    HeightMap.fill(0);
    DrawTerrain3D(1, kFullDrawing);
    const int before = litPixels();
    for (int y = 0; y <= 257; ++y) {
        HeightMap(257, y) = 255;
    }
    DrawTerrain3D(1, kFullDrawing);
    EXPECT_GT(litPixels(), before + 1000);
}

TEST_F(DrawTerrain, a_coarse_walk_loses_the_edge_that_it_does_not_reach) {
    openView(257);
    selectStyle(PlainStyle::Polygon);
    const auto isDrawn = [](int x, int y) {
        double X = 0;
        double Y = 0;
        ProjectPoint(RotatePoint(x, y, 20, viewCentre()), X, Y);
        return pixelAt(Form1.MapView.Canvas, wholePixel(X - MapSize), wholePixel(Y)) != 0;
    };
    DrawTerrain3D(10, kFullDrawing);
    EXPECT_TRUE(isDrawn(128, 2));
    EXPECT_FALSE(isDrawn(128, 254));
    // From below and turned half round the same picture is walked downwards.
    aim({180, 40, 0, 0, 1});
    DrawTerrain3D(10, kFullDrawing);
    EXPECT_FALSE(isDrawn(128, 3));
    EXPECT_TRUE(isDrawn(128, 250));
}

TEST_F(DrawTerrain, dots_ignore_the_width) {
    raiseHills(20);
    selectStyle(PlainStyle::Dot);
    SliderValues(5).Value = 1;
    DrawTerrain3D(3, kFullDrawing);
    const int thin = litPixels();
    SliderValues(5).Value = 10;
    DrawTerrain3D(3, kFullDrawing);
    EXPECT_EQ(litPixels(), thin);
    EXPECT_LE(thin, 22 * 22);
}

TEST_F(DrawTerrain, an_angle_outside_the_tables_ends_the_drawing) {
    ViewYaw = -600;
    EXPECT_THROW(DrawTerrain3D(1, kFullDrawing), SubscriptFailure);
}

TEST_F(DrawTerrain, a_line_cell_counts_the_scale_of_the_view) {
    openView(257);
    Surface& view = Form1.MapView.Canvas;
    view.clear();
    DrawLineCell(128, 128, 20, viewCentre());
    const int whole = litPixels();
    view.clear();
    view.ScaleWidth = 514;
    view.ScaleHeight = 514;
    DrawLineCell(128, 128, -20, viewCentre());
    EXPECT_LT(litPixels(), whole * 2 / 3);
    EXPECT_GT(litPixels(), 0);
}

TEST_F(DrawTerrain, places_beyond_32_bits_are_cut) {
    EXPECT_EQ(wholePixel(1e300), 2147483647);
    EXPECT_EQ(wholePixel(-1e300), -2147483647 - 1);
    EXPECT_EQ(wholePixel(-0.5), -1);
    EXPECT_EQ(wholePixel(7.99), 7);
}

}  // namespace

}  // namespace ombrelia
