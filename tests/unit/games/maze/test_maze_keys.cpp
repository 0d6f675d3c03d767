// The walk by keys.
#include <algorithm>

#include "games/maze/maze_events.h"
#include "games/maze/maze_play_test.h"

namespace ombrelia::maze {

namespace {

constexpr int kA = 65;
constexpr int kB = 66;

TEST_F(MazePlay, the_solution_walked_by_keys_wins) {
    for (const MazeStyle style : kStyles) {
        for (const bool isPad : {false, true}) {
            open(style, 440, isPad ? 300 : 320);
            finish();
            note();
            painter.notes.clear();
            EXPECT_EQ(walkOut(style, isPad), RoomsInSolution);
            EXPECT_EQ(text(), "Congratulations!");
            EXPECT_EQ(painter.notes.size(), static_cast<std::size_t>(RoomsInSolution));
            EXPECT_TRUE(std::all_of(painter.notes.begin(), painter.notes.end(),
                                    [](const auto& n) { return n.starts_with("line ff00 "); }));
            const int x = UserX;
            key(keysOf(style)[directionWhere(style, true)].code);
            EXPECT_EQ(UserX, x);
            deliver(frm3DMaze, Event::Paint);
            finish();
            EXPECT_EQ(text(), "Congratulations!");
            setMazePainter(nullptr);
            choose(frm3DMaze.mnuStyleItem(1));
        }
    }
}

TEST_F(MazePlay, a_walk_in_the_world_follows_the_page) {
    for (const MazeStyle style : kStyles) {
        open(style);
        finish();
        walkOut(style, false);
        const bool isSquare = style == MazeStyle::Square;
        EXPECT_NEAR(UserFloatX, isSquare ? UserX / 2.0 + 0.125 : (UserX - 3) / 8.0 * 3 + 1, 1e-9);
        EXPECT_NEAR(UserFloatY, isSquare ? UserY / 2.0 + 0.125 : UserY * kRoot3 / 4, 1e-9);
    }
}

TEST_F(MazePlay, keys_do_nothing_while_a_picture_grows) {
    open(MazeStyle::Square);
    tick();
    key(kSquareKeys[directionWhere(MazeStyle::Square, true)].code);
    EXPECT_EQ(UserX + UserY, 2);
}

TEST_F(MazePlay, a_wall_refuses_silently) {
    openBesideWall(MazeStyle::Square);
    note();
    painter.notes.clear();
    key(kSquareKeys[directionWhere(MazeStyle::Square, false)].code);
    key(37);  // the rim
    key(38);  // the entrance
    EXPECT_EQ(UserX + UserY, 2);
    EXPECT_TRUE(painter.notes.empty());
    EXPECT_EQ(text(), "Use the arrow keys to solve.");
}

TEST_F(MazePlay, a_retreat_is_yellow_and_a_second_advance_green_again) {
    for (const MazeStyle style : kStyles) {
        open(style);
        finish();
        note();
        const int d = directionWhere(style, true);
        const int x = UserX;
        const int y = UserY;
        key(keysOf(style)[d].code);
        const int x2 = UserX;
        const int y2 = UserY;
        EXPECT_EQ(UserPage(x2, y2), kMazeTrack);
        key(keysOf(style)[opposite(style, d)].code);
        EXPECT_EQ(UserPage(x2, y2), kMazeLeft);
        EXPECT_EQ(UserX, x);
        EXPECT_EQ(UserY, y);
        EXPECT_TRUE(painter.notes.back().starts_with("line ffff ")) << painter.notes.back();
        key(keysOf(style)[d].code);
        EXPECT_EQ(UserPage(x2, y2), kMazeTrack);
        EXPECT_TRUE(painter.notes.back().starts_with("line ff00 ")) << painter.notes.back();
        setMazePainter(nullptr);
    }
}

TEST_F(MazePlay, a_and_a_direction_pass_one_wall) {
    for (const MazeStyle style : kStyles) {
        openBesideWall(style);
        const int d = directionWhere(style, false);
        const MazeDelta delta = directionsOf(style)[static_cast<std::size_t>(d)];
        const int x = UserX;
        const int y = UserY;
        key(kA);
        key(keysOf(style)[d].code);
        EXPECT_EQ(UserX, x + 2 * delta.x);
        EXPECT_EQ(UserY, y + 2 * delta.y);
        EXPECT_EQ(UserPage(x + delta.x, y + delta.y), kMazeWall);
        EXPECT_EQ(WallWalkArmed, 0);
        // A repaint shows no line through that wall: of the track, the entrance's stroke alone.
        note();
        painter.notes.clear();
        deliver(frm3DMaze, Event::Paint);
        finish();
        EXPECT_EQ(std::count_if(painter.notes.begin(), painter.notes.end(),
                                [](const auto& n) { return n.starts_with("line"); }),
                  1);
        setMazePainter(nullptr);
    }
}

TEST_F(MazePlay, another_key_disarms_the_walk_through_walls) {
    open(MazeStyle::Square);
    finish();
    key(kA);
    EXPECT_EQ(WallWalkArmed, 1);
    key(67);
    EXPECT_EQ(WallWalkArmed, 0);
}

TEST_F(MazePlay, a_walk_off_the_page_ends_the_key_without_a_word) {
    open(MazeStyle::Hexagonal);
    finish();
    key(kA);
    key(35);  // End: the room would lie left of the page
    EXPECT_EQ(UserX, 3);
    EXPECT_EQ(UserY, 2);
    EXPECT_EQ(WallWalkArmed, 1);
    EXPECT_TRUE(platform.Failures.empty());
}

TEST_F(MazePlay, keys_of_the_other_style_are_swallowed) {
    for (const MazeStyle style : kStyles) {
        open(style);
        finish();
        const bool isSquare = style == MazeStyle::Square;
        const int x = UserX;
        for (const int code : isSquare ? std::vector<int>{36, 35, 33, 34, 103, 97, 105, 99}
                                       : std::vector<int>{37, 39, 100, 102}) {
            EventArgs args;
            args.KeyCode = code;
            frm3DMaze_KeyDown(args);
            EXPECT_EQ(args.KeyCode, 0) << code;
            EXPECT_EQ(UserX, x);
        }
    }
}

TEST_F(MazePlay, solve_shows_the_way_and_ends_the_walk) {
    for (const MazeStyle style : kStyles) {
        open(style);
        finish();
        note();
        painter.notes.clear();
        choose(frm3DMaze.mnuActionItem(1));
        EXPECT_EQ(painter.notes.size(), static_cast<std::size_t>(RoomsInSolution) + 1);
        EXPECT_TRUE(std::all_of(painter.notes.begin(), painter.notes.end(),
                                [](const auto& n) { return n.starts_with("line ff "); }));
        EXPECT_EQ(text(), "");
        const int x = UserX + UserY;
        key(keysOf(style)[directionWhere(style, true)].code);
        EXPECT_EQ(UserX + UserY, x);
        deliver(frm3DMaze, Event::Paint);
        painter.notes.clear();
        finish();
        EXPECT_TRUE(painter.notes.back().starts_with("line ff "));
        EXPECT_EQ(text(), "");
        setMazePainter(nullptr);
    }
}

TEST_F(MazePlay, b_shows_the_way_and_lets_the_walk_go_on_for_good) {
    open(MazeStyle::Square);
    finish();
    key(kB);
    EXPECT_EQ(Solved, -1);
    EXPECT_EQ(ShowedSolutionByKey, 1);
    const int d = directionWhere(MazeStyle::Square, true);
    key(kSquareKeys[d].code);
    EXPECT_EQ(UserX + UserY, 4);
    choose(frm3DMaze.mnuActionItem(2));
    finish();
    EXPECT_EQ(Solved, 0);
    choose(frm3DMaze.mnuActionItem(0));
    finish();
    choose(frm3DMaze.mnuActionItem(1));
    key(kSquareKeys[directionWhere(MazeStyle::Square, true)].code);
    EXPECT_EQ(UserX + UserY, 4);
}

TEST_F(MazePlay, b_before_the_first_tick_draws_nothing) {
    open(MazeStyle::Square);
    note();
    key(kB);
    EXPECT_TRUE(painter.notes.empty());
    finish();
    EXPECT_EQ(text(), "");
}

}  // namespace

}  // namespace ombrelia::maze
