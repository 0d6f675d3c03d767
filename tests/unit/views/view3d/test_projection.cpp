#include <cmath>
#include <string>

#include "core/editor_state.h"
#include "core/objects.h"
#include "desk/init_editor.h"
#include "editor_fixture.h"
#include "views/view3d/plain_view.h"
#include "views/view3d/projection.h"

namespace ombrelia {

namespace {

class Projection : public EditorTest {
  protected:
    Projection() { openEditor(257); }
};

void setAngles(int yaw, int tilt) {
    ViewYaw = static_cast<std::int16_t>(yaw);
    ViewTilt = static_cast<std::int16_t>(tilt);
}

TEST_F(Projection, at_the_start_the_ground_is_not_turned) {
    const RotatedPoint point = RotatePoint(64, 64, 0, 128.7);
    EXPECT_NEAR(point.rx, -64.7, 0.4);
    const RotatedPoint right = RotatePoint(200, 128, 0, 128.7);
    EXPECT_NEAR(right.rx, 71.3, 0.1);
}

TEST_F(Projection, at_the_start_the_map_is_seen_from_above_and_in_front) {
    const RotatedPoint back = RotatePoint(128, 0, 0, 128.7);
    const RotatedPoint front = RotatePoint(128, 256, 0, 128.7);
    EXPECT_LT(back.ry, front.ry);
    EXPECT_GT(back.rz, front.rz);
    EXPECT_GT(RotatePoint(128, 128, 50, 128.7).rz, RotatePoint(128, 128, 0, 128.7).rz);
}

TEST_F(Projection, rotation_uses_the_short_pi) {
    // 45 degrees read as 45.00004; three times that, turned by 180, lies just above 675.
    setAngles(0, 0);
    EXPECT_EQ(turn::groundSubscript(1, 1), 1080 + 675);
    EXPECT_EQ(turn::groundSubscript(1, -1), 1080 + 404);
    EXPECT_EQ(static_cast<int>(std::floor(3 * (std::atan(1.0) * (180 / 3.14159) + 180))), 675);
    EXPECT_EQ(SinTable(1080 + 540), std::sin((540 / 3.0) * (3.14159 / 180)));
    EXPECT_GT(SinTable(1080 + 540), 2e-6);
}

TEST_F(Projection, the_two_turns_pick_their_table_entries_differently) {
    setAngles(10, 10);
    const double up = std::tan(20.3 / (180 / 3.14159));
    EXPECT_EQ(turn::groundSubscript(-1, -up), 1080 + 90);  // 90.9
    EXPECT_EQ(turn::tiltSubscript(-1, -up), 1080 + 91);
    const double down = std::tan(20.1 / (180 / 3.14159));
    EXPECT_EQ(turn::groundSubscript(-1, down), 1080 - 31);  // -30.3
    EXPECT_EQ(turn::tiltSubscript(-1, down), 1080 - 30);
}

TEST_F(Projection, a_difference_of_0_is_nudged_in_the_divisor_alone) {
    setAngles(0, 0);
    EXPECT_EQ(turn::groundSubscript(0, 5), 1080 + 809);     // a hair below 270 degrees
    EXPECT_EQ(turn::groundSubscript(0, -5), 1080 + 270);    // a hair above 90
    EXPECT_EQ(turn::groundSubscript(0, 1e-4), 1080 + 619);  // atan(1/2) + 180
    const RotatedPoint pivot = RotatePoint(5, 5, 0, 5);
    EXPECT_EQ(pivot.rx, 0);
    EXPECT_EQ(pivot.ry, 0);
    EXPECT_EQ(pivot.rz, 0);
    EXPECT_DOUBLE_EQ(RotatePoint(5, 8, 0, 5).rx, 3 * CosTable(1080 + 809));
}

TEST_F(Projection, no_depth_and_no_height_stays_the_pivot) {
    // The sine of 0 is exactly 0: the whole radius lies across the screen.
    setAngles(0, 135);
    const RotatedPoint point = RotatePoint(0, 5, 0, 5);
    EXPECT_EQ(point.rx, 5);
    EXPECT_EQ(point.ry, 0);
    EXPECT_EQ(point.rz, 0);
    EXPECT_DOUBLE_EQ(RotatePoint(0, 5, 4, 5).ry, 4 * CosTable(turn::tiltSubscript(0, 4)));
}

TEST_F(Projection, a_whole_turn_uses_the_last_entry) {
    setAngles(180, 180);
    EXPECT_EQ(turn::groundSubscript(4, 0), 2160);
    EXPECT_EQ(turn::tiltSubscript(4, 0), 2160);
    EXPECT_EQ(turn::groundSubscript(4, 1e-9), 1080);
    EXPECT_EQ(turn::tiltSubscript(4, 1e-9), 1080);
    EXPECT_EQ(turn::tiltSubscript(4, -1e-9), 2160);
}

TEST_F(Projection, an_angle_outside_the_tables_is_a_failure) {
    setAngles(-600, 0);
    EXPECT_THROW(RotatePoint(0, 0, 0, 128.7), SubscriptFailure);
    setAngles(0, -700);
    EXPECT_THROW(RotatePoint(0, 0, 0, 128.7), SubscriptFailure);
    setAngles(32767, 32767);
    EXPECT_NO_THROW(RotatePoint(0, 0, 0, 128.7));
}

TEST_F(Projection, the_pixel_follows_pan_and_zoom) {
    ViewPanX = 10;
    ViewPanY = -20;
    ViewZoom = 100;
    double X = 0;
    double Y = 0;
    ProjectPoint({30, 128, 44}, X, Y);
    EXPECT_EQ(X, 257 + 256 * 40.0 / 128 + 128.5);
    EXPECT_EQ(Y, 257 - 256 * 64.0 / 128 - 80);
    MapSize = 65;
    setViewOffset();
    ProjectPoint({30, 128, 44}, X, Y);
    EXPECT_EQ(X, 65 + 80 + 32.5 + 96);
    EXPECT_EQ(Y, 65 - 128 - 80 + 96);
}

TEST_F(Projection, a_point_behind_the_eye_is_mirrored) {
    ViewZoom = 195;
    double X = 0;
    double Y = 0;
    ProjectPoint({10, 171, 20}, X, Y);
    EXPECT_EQ(X, 257 - 256 + 128.5);
    EXPECT_EQ(Y, 257 + 512 - 80);
}

TEST_F(Projection, in_the_plane_of_the_eye_the_place_of_before_is_shifted) {
    ViewZoom = 100;
    double X = 7;
    double Y = 1000;
    ProjectPoint({10, 256, 20}, X, Y);
    EXPECT_EQ(X, 7 + 128.5);
    EXPECT_EQ(Y, 1000 - 80);
}

TEST_F(Projection, the_offset_follows_the_four_sizes_alone) {
    const int sizes[][2] = {{257, 0}, {193, 32}, {129, 64}, {65, 96}};
    for (const auto& row : sizes) {
        MapSize = static_cast<std::int16_t>(row[0]);
        setViewOffset();
        EXPECT_EQ(ViewOffset, row[1]);
    }
    MapSize = 100;
    setViewOffset();
    EXPECT_EQ(ViewOffset, 96);
}

TEST_F(Projection, a_new_window_keeps_the_pan) {
    ViewPanX = 12;
    ViewPanY = -7;
    ViewYaw = 1;
    ViewZoom = 50;
    InitEditor();
    EXPECT_EQ(ViewPanX, 12);
    EXPECT_EQ(ViewPanY, -7);
    EXPECT_EQ(ViewYaw, 180);
    EXPECT_EQ(ViewTilt, 135);
    EXPECT_EQ(ViewZoom, 1.0);
}

// Random points with the whole range of angles, against the plain projection.
TEST_F(Projection, agrees_with_the_plain_one) {
    PlainDraws draw(99);
    const auto whole = [&draw](int low, int high) {
        return low + static_cast<int>(std::floor(draw() * static_cast<float>(high - low + 1)));
    };
    for (int round = 0; round < 200000; ++round) {
        setAngles(whole(0, 359), whole(0, 359));
        ViewPanX = static_cast<std::int16_t>(whole(-300, 300));
        ViewPanY = static_cast<std::int16_t>(whole(-300, 300));
        ViewZoom = whole(-400, 195);
        const int x = whole(0, 257);
        const int y = whole(0, 257);
        const double z = whole(-20, 300) / 2.0;
        PlainPlace place{3, 4};
        plainProject(plainTurn(x, y, z, 128.7), place);
        double X = 3;
        double Y = 4;
        ProjectPoint(RotatePoint(x, y, z, viewCentre()), X, Y);
        ASSERT_EQ(X, place.X) << round;
        ASSERT_EQ(Y, place.Y) << round;
    }
}

}  // namespace

}  // namespace ombrelia
