#include <gtest/gtest.h>

#include "platform/screen_fit.h"

namespace ombrelia {

namespace {

constexpr EditorSize kEditor{771, 136, 355};

TEST(ScreenFit, the_largest_scale_with_the_hint_frame_is_taken) {
    EXPECT_EQ(fittingScale(kEditor, 907, 355), 1);
    EXPECT_EQ(fittingScale(kEditor, 1280, 800), 1.25);
    EXPECT_EQ(fittingScale(kEditor, 1920, 1080), 2);
    EXPECT_EQ(fittingScale(kEditor, 3840, 2160), 4);
    EXPECT_EQ(fittingScale(kEditor, 100000, 100000), 4);
    EXPECT_EQ(fittingScale(kEditor, 3840, 400), 1);
}

TEST(ScreenFit, the_editor_alone_keeps_scale_one) {
    EXPECT_EQ(fittingScale(kEditor, 906, 600), 1);
    EXPECT_EQ(fittingScale(kEditor, 800, 600), 1);
    EXPECT_EQ(fittingScale(kEditor, 771, 355), 1);
}

TEST(ScreenFit, a_smaller_screen_takes_a_smaller_scale) {
    EXPECT_EQ(fittingScale(kEditor, 770, 600), 0.9);
    EXPECT_EQ(fittingScale(kEditor, 640, 480), 0.8);
    EXPECT_EQ(fittingScale(kEditor, 800, 200), 0.5);
    EXPECT_EQ(fittingScale(kEditor, 10, 10), 0.5);
}

TEST(ScreenFit, a_window_with_a_frame_is_no_higher_than_the_screen) {
    EXPECT_EQ(scaleForHeight(2, 530, 1040), 1.75);
    EXPECT_EQ(scaleForHeight(1.25, 530, 1040), 1.25);
    EXPECT_EQ(scaleForHeight(0.8, 530, 440), 0.8);
    EXPECT_EQ(scaleForHeight(1, 530, 440), 0.8);
    EXPECT_EQ(scaleForHeight(1, 530, 10), 0.5);
}

TEST(ScreenFit, a_window_comes_inside) {
    EXPECT_EQ(keptInside(50, 100, 0, 640), 50);
    EXPECT_EQ(keptInside(600, 100, 0, 640), 540);
    EXPECT_EQ(keptInside(-30, 100, 0, 640), 0);
    EXPECT_EQ(keptInside(1300, 100, 1280, 640), 1300);
    EXPECT_EQ(keptInside(0, 100, 1280, 640), 1280);
    EXPECT_EQ(keptInside(40, 700, 20, 640), 20);
}

TEST(ScreenFit, a_list_drops_down_beside_its_field) {
    EXPECT_EQ(droppedFrom(100, 20, 200, 0, 480), 120);
    EXPECT_EQ(droppedFrom(260, 20, 200, 0, 480), 280);
    EXPECT_EQ(droppedFrom(261, 20, 200, 0, 480), 61);
    EXPECT_EQ(droppedFrom(261, 20, 200, 62, 418), 280);  // the top of the screen is taken
    EXPECT_EQ(droppedFrom(240, 20, 400, 0, 480), 80);
    EXPECT_EQ(droppedFrom(240, 20, 900, 0, 480), 0);
}

constexpr ScreenBox kScreen{0, 20, 1000, 700};

void expectAt(const ScreenPlace& place, double left, double top) {
    EXPECT_EQ(place.left, left);
    EXPECT_EQ(place.top, top);
}

TEST(ScreenFit, a_window_opens_in_the_middle_with_room_for_what_docks) {
    expectAt(openingPlace(600, 300, 0, kScreen, kScreen, 0), 200, 220);
    expectAt(openingPlace(600, 300, 100, kScreen, kScreen, 0), 150, 220);
    expectAt(openingPlace(600, 300, 100, kScreen, kScreen, 24), 174, 244);
    expectAt(openingPlace(200, 100, 0, {300, 100, 600, 300}, kScreen, 0), 500, 200);
}

TEST(ScreenFit, a_window_opens_at_the_top_where_nothing_can_dock_beside_it) {
    expectAt(openingPlace(600, 300, 400, kScreen, kScreen, 0), 0, 220);
    expectAt(openingPlace(600, 300, 401, kScreen, kScreen, 0), 0, 20);
    expectAt(openingPlace(1200, 900, 0, kScreen, kScreen, 0), 0, 20);
}

TEST(ScreenFit, a_window_comes_inside_with_what_docks_to_it_if_both_fit) {
    expectAt(placeInside({500, 100, 600, 300}, 0, kScreen), 400, 100);
    expectAt(placeInside({500, 100, 600, 300}, 300, kScreen), 100, 100);
    expectAt(placeInside({500, 100, 600, 300}, 500, kScreen), 400, 100);
    expectAt(placeInside({-50, -50, 600, 300}, 0, kScreen), 0, 20);
    expectAt(placeInside({10, 700, 600, 300}, 0, kScreen), 10, 420);
}

TEST(ScreenFit, what_docks_stands_beside_or_at_the_bottom) {
    expectAt(dockedPlace({800, 100, 200, 300}, kScreen), 800, 100);
    expectAt(dockedPlace({801, 100, 200, 300}, kScreen), 800, 420);
    expectAt(dockedPlace({801, 100, 200, 900}, kScreen), 800, 20);
}

}  // namespace

}  // namespace ombrelia
