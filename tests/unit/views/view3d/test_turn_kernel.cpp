#include <algorithm>
#include <array>
#include <cmath>

#include "core/editor_state.h"
#include "core/objects.h"
#include "editor_fixture.h"
#include "lesser_processor.h"
#include "views/view3d/cell_painters.h"
#include "views/view3d/plain_view.h"
#include "views/view3d/point_run.h"
#include "views/view3d/projection.h"
#include "views/view3d/turn_kernel.h"

namespace ombrelia {

namespace {

class TurnKernel : public EditorTest {
  protected:
    TurnKernel() { openEditor(257); }
};

double exactThirds(double along, double up) {
    return 3 * (std::atan(up / along) * (180 / 3.14159));
}

// The bound that lets the short arc tangent decide a subscript.
TEST_F(TurnKernel, the_short_arc_tangent_keeps_its_bound) {
    double worst = 0;
    const auto look = [&worst](double along, double up) {
        const double found = static_cast<double>(
            kernel::shortThirds(static_cast<float>(along), static_cast<float>(up)));
        worst = std::max(worst, std::fabs(found - exactThirds(along, up)));
    };
    // Every place of every map, then slopes of all sizes on all four sides.
    for (const double centre : {32.7, 64.7, 96.7, 128.7}) {
        for (int y = 0; y <= 257; ++y) {
            for (int x = 0; x <= 257; ++x) {
                look(x - centre, y - centre);
            }
        }
    }
    for (int n = -40000; n <= 40000; ++n) {
        const double slope = std::exp(n / 4000.0);
        for (const int along : {-1, 1}) {
            look(along, slope);
            look(along, -slope);
            look(along * 1e-7, slope * 1e-5);
        }
    }
    EXPECT_LT(worst, static_cast<double>(kernel::kThirdsError));
    EXPECT_GT(worst, 1e-6);
    EXPECT_EQ(kernel::shortThirds(0, 0), 0);
}

PixelPoint plainPlace(double x, double y, int height, double centre) {
    PlainPlace place;
    plainProject(plainTurn(x, y, height / 2.0, centre), place);
    return {wholePixel(place.X - MapSize), wholePixel(place.Y)};
}

// Every row and column of the map under a camera, with heights that change from point to point.
void compareRuns(bool isByRows) {
    const double centre = viewCentre();
    const int count = MapSize + 1;
    PointRun run;
    for (int common = 0; common <= MapSize; common += 5) {
        ASSERT_TRUE(run.project({isByRows, common, 0, 1, count}, cameraNow(centre)));
        for (int n = 0; n < count; ++n) {
            const int x = isByRows ? n : common;
            const int y = isByRows ? common : n;
            const PixelPoint place = plainPlace(x, y, HeightMap(x, y), centre);
            ASSERT_EQ(run.place(n).x, place.x) << x << ' ' << y << " yaw " << ViewYaw;
            ASSERT_EQ(run.place(n).y, place.y) << x << ' ' << y << " tilt " << ViewTilt;
        }
    }
}

TEST_F(TurnKernel, agrees_with_the_plain_projection_for_every_angle) {
    PlainDraws draw(17);
    for (int y = 0; y <= 257; ++y) {
        for (int x = 0; x <= 257; ++x) {
            HeightMap(x, y) = static_cast<std::int16_t>(draw() * 256);
        }
    }
    for (int angle = 0; angle <= 360; ++angle) {
        ViewYaw = static_cast<std::int16_t>(angle);
        ViewTilt = static_cast<std::int16_t>(angle * 7 % 361);
        ViewZoom = angle % 3 == 0 ? 195 : 1;
        compareRuns(angle % 2 == 0);
        if (HasFatalFailure()) {
            return;
        }
    }
}

TEST_F(TurnKernel, narrow_vectors_give_the_same_pixels) {
    PlainDraws draw(18);
    const auto below = [&draw](int limit) {
        return static_cast<int>(std::floor(draw() * static_cast<float>(limit)));
    };
    kernel::PointInput points;
    for (int round = 0; round < 3000; ++round) {
        ViewYaw = static_cast<std::int16_t>(below(361));
        ViewTilt = static_cast<std::int16_t>(below(361));
        ViewZoom = below(596) - 400;
        points.count = below(258) + 1;
        for (std::size_t n = 0; n < static_cast<std::size_t>(points.count); ++n) {
            points.dx[n] = below(258) - 128.7;
            points.dy[n] = below(258) - 128.7;
            points.z[n] = below(256) / 2.0;
        }
        std::array<PixelPoint, kernel::kMost> wide;
        std::array<PixelPoint, kernel::kMost> narrow;
        const CameraState camera = cameraNow(viewCentre());
        const bool isWideUsable = kernel::projectPoints(points, camera, wide);
        const LesserProcessor processor(Vectors::Narrow);
        ASSERT_EQ(kernel::projectPoints(points, camera, narrow), isWideUsable);
        for (std::size_t n = 0; n < static_cast<std::size_t>(points.count); ++n) {
            ASSERT_EQ(wide[n].x, narrow[n].x) << round;
            ASSERT_EQ(wide[n].y, narrow[n].y) << round;
        }
    }
}

TEST_F(TurnKernel, what_needs_the_long_way_is_told) {
    PointRun run;
    const RunCourse course{true, 3, 0, 1, 258};
    const auto isUsable = [&] { return run.project(course, cameraNow(viewCentre())); };
    EXPECT_TRUE(isUsable());
    HeightMap(9, 3) = 256;
    EXPECT_FALSE(isUsable());
    HeightMap(9, 3) = -1;
    EXPECT_FALSE(isUsable());
    HeightMap(9, 3) = 255;
    EXPECT_TRUE(isUsable());
    ViewYaw = 361;
    EXPECT_FALSE(isUsable());
    ViewYaw = 360;
    ViewTilt = -1;
    EXPECT_FALSE(isUsable());
    ViewTilt = 135;
    EXPECT_TRUE(isUsable());
    ViewZoom = 356 - RotatePoint(9, 3, 127.5, viewCentre()).ry;
    EXPECT_FALSE(isUsable());
}

// A point close before or behind the eye is 10^9 pixels away and more, along one axis or both.
TEST_F(TurnKernel, a_point_beside_the_eye_lies_far_beyond_the_picture) {
    PointRun run;
    const auto isFar = [](std::int32_t pixel) { return std::abs(std::int64_t{pixel}) >= 1 << 30; };
    for (const int near : {0, 9, 257}) {
        const RotatedPoint point = RotatePoint(near, 3, HeightMap(near, 3) / 2.0, viewCentre());
        const auto panX = static_cast<std::int16_t>(-std::lround(point.rx));
        const auto panY = static_cast<std::int16_t>(std::lround(point.rz));
        for (const double hair : {1e-5, -1e-5}) {
            ViewZoom = 356 - point.ry + hair;
            for (const auto& [x, y] : {std::pair<int, int>{0, 0}, {panX, 0}, {0, panY}}) {
                ViewPanX = static_cast<std::int16_t>(x);
                ViewPanY = static_cast<std::int16_t>(y);
                ASSERT_TRUE(run.project({true, 3, 0, 1, 258}, cameraNow(viewCentre())));
                EXPECT_EQ(isFar(run.place(near).x), x == 0) << near;
                EXPECT_EQ(isFar(run.place(near).y), y == 0) << near;
                for (int n = 0; n < 258; ++n) {
                    const PixelPoint place = plainPlace(n, 3, HeightMap(n, 3), viewCentre());
                    ASSERT_EQ(run.place(n).x, place.x) << n << ' ' << near << ' ' << hair;
                    ASSERT_EQ(run.place(n).y, place.y) << n << ' ' << near << ' ' << hair;
                }
            }
        }
    }
}

TEST_F(TurnKernel, a_run_is_projected_anew_when_anything_changes) {
    PointRun run;
    RunCourse course{true, 3, 0, 1, 258};
    const auto placeNow = [&](int n) {
        EXPECT_TRUE(run.project(course, cameraNow(viewCentre())));
        return run.place(n);
    };
    const auto expectPlain = [&](int n) {
        const PixelPoint plain =
            plainPlace(n, course.common, HeightMap(n, course.common), viewCentre());
        EXPECT_EQ(placeNow(n).x, plain.x);
        EXPECT_EQ(placeNow(n).y, plain.y);
    };
    expectPlain(7);
    HeightMap(7, 3) = 200;
    expectPlain(7);
    ViewPanX = 50;
    expectPlain(7);
    ViewYaw = 100;
    expectPlain(7);
    ViewZoom = -90;
    expectPlain(7);
    MapSize = 193;
    expectPlain(7);
    ViewOffset = 32;
    expectPlain(7);
    course.common = 90;
    expectPlain(7);
}

}  // namespace

}  // namespace ombrelia
