// The window's life: pictures, menus, size, tilt, close.
#include <algorithm>

#include "core/progress.h"
#include "games/maze/maze_events.h"
#include "games/maze/maze_play_test.h"
#include "platform/window_life.h"

namespace ombrelia::maze {

namespace {

TEST_F(MazePlay, the_first_picture_grows_a_slice_at_each_tick) {
    open(MazeStyle::Square);
    EXPECT_EQ(DrawState, 0);
    EXPECT_EQ(SeedString, " 43200");
    EXPECT_EQ(TimerRunning, -1);
    tick();
    EXPECT_EQ(DrawState, 1);
    EXPECT_EQ(NumColumns, 17);
    tick();
    EXPECT_EQ(DrawState, 4);
    EXPECT_FALSE(hasMenus());
    const long before = platform.Yields;
    const int ticks = finish();
    EXPECT_EQ(ticks, NumRows + 1);
    EXPECT_EQ(platform.Yields - before, ticks);
    EXPECT_EQ(DrawState, 5);
    EXPECT_TRUE(hasMenus());
    EXPECT_EQ(text(), "Use the arrow keys to solve.");
}

TEST_F(MazePlay, a_hexagonal_picture_has_bands_caps_and_a_row_a_tick) {
    open(MazeStyle::Hexagonal);
    tick();
    tick();
    EXPECT_EQ(DrawState, 2);
    EXPECT_EQ(finish(), NumRows + (MaxX / 8 + 1) + MaxY + 1);
    EXPECT_EQ(text(), "Use Home, Up Arrow, PgUp, End, Down Arrow, and PgDn to solve.");
}

TEST_F(MazePlay, the_line_between_the_entries_does_nothing) {
    open(MazeStyle::Square);
    finish();
    const MazeGrid page = MazePage;
    deliver(frm3DMaze.mnuActionItem(3), Event::Click);
    EXPECT_EQ(DrawState, 5);
    EXPECT_EQ(Solved, 0);
    EXPECT_EQ(MazePage, page);
    EXPECT_TRUE(frm3DMaze.Visible);
}

TEST_F(MazePlay, clear_keeps_the_maze_and_new_makes_another) {
    open(MazeStyle::Square);
    finish();
    const MazeGrid page = MazePage;
    walkOut(MazeStyle::Square, false);
    choose(frm3DMaze.mnuActionItem(2));
    EXPECT_EQ(Won, 0);
    EXPECT_EQ(UserX + UserY, 2);
    EXPECT_FALSE(hasMenus());
    finish();
    EXPECT_TRUE(MazePage == page);
    EXPECT_EQ(std::count(UserPage.data(), UserPage.data() + 4, kMazeLeft), 0);
    platform.Seconds = 50000;
    choose(frm3DMaze.mnuActionItem(0));
    EXPECT_EQ(SeedString, " 50000");
    finish();
    EXPECT_FALSE(MazePage == page);
}

TEST_F(MazePlay, the_checked_style_does_nothing_the_other_makes_a_maze) {
    open(MazeStyle::Square);
    finish();
    choose(frm3DMaze.mnuStyleItem(1));
    EXPECT_FALSE(frm3DMaze.Timer1.Enabled);
    choose(frm3DMaze.mnuStyleItem(0));
    EXPECT_TRUE(frm3DMaze.mnuStyleItem(0).Checked);
    EXPECT_FALSE(frm3DMaze.mnuStyleItem(1).Checked);
    EXPECT_EQ(NewMazeRequested, -1);
    finish();
    EXPECT_EQ(MaxY, 4 * NumRows);
}

TEST_F(MazePlay, a_change_of_style_at_every_yield_of_a_picture_ends_well) {
    for (int at = 0; at < 40; ++at) {
        open(at % 2 == 0 ? MazeStyle::Square : MazeStyle::Hexagonal, 300, 200);
        int left = at;
        platform.OnYield = [&left] {
            if (left-- == 0) {
                choose(frm3DMaze.mnuStyleItem(frm3DMaze.mnuStyleItem(0).Checked ? 1 : 0));
            }
        };
        finish();
        platform.OnYield = nullptr;
        EXPECT_EQ(DrawState, 5);
        EXPECT_TRUE(hasMenus());
        runHandler([] { unloadWindow(frm3DMaze); });
    }
}

TEST_F(MazePlay, a_close_at_every_yield_of_a_picture_ends_well) {
    for (int at = 0; at < 25; ++at) {
        open(MazeStyle::Square, 300, 200);
        int left = at;
        platform.OnYield = [&left] {
            if (left-- == 0) {
                deliverClose(frm3DMaze);
            }
        };
        for (int ticks = 0; frm3DMaze.Loaded && frm3DMaze.Timer1.Enabled && ticks < 100; ++ticks) {
            tick();
        }
        platform.OnYield = nullptr;
        deliverClose(frm3DMaze);
        EXPECT_FALSE(frm3DMaze.Loaded);
        EXPECT_EQ(DrawState, 6);
        EXPECT_TRUE(MazePage.isEmpty());
    }
}

TEST_F(MazePlay, a_new_size_makes_a_new_maze_and_lays_the_parts_out) {
    open(MazeStyle::Square);
    finish();
    deliverResize(frm3DMaze, 300, 200);
    EXPECT_EQ(NewMazeRequested, -1);
    EXPECT_EQ(frm3DMaze.Text1.Top, 180);
    EXPECT_EQ(frm3DMaze.Text1.Width, 300);
    EXPECT_EQ(frm3DMaze.VScroll1.Left, 283);
    EXPECT_EQ(frm3DMaze.VScroll1.Height, 180);
    finish();
    EXPECT_EQ(NumColumns, 11);
}

TEST_F(MazePlay, a_window_too_small_says_so_and_a_larger_one_begins_anew) {
    open(MazeStyle::Square);
    finish();
    deliverResize(frm3DMaze, 300, 59);
    EXPECT_EQ(text(), "This window is too small!");
    EXPECT_EQ(DrawState, 5);
    EXPECT_TRUE(hasMenus());
    deliverResize(frm3DMaze, 300, 60);
    EXPECT_EQ(NewMazeRequested, -1);
    finish();
    EXPECT_EQ(text(), "Use the arrow keys to solve.");
}

TEST_F(MazePlay, too_small_while_a_picture_grows_ends_it_without_a_track) {
    open(MazeStyle::Square);
    tick();
    tick();
    note();
    deliverResize(frm3DMaze, 300, 40);
    painter.notes.clear();
    finish();
    EXPECT_TRUE(painter.notes.empty());
    EXPECT_EQ(text(), "This window is too small!");
}

TEST_F(MazePlay, minimizing_stops_the_picture_and_restoring_paints_the_same_maze) {
    open(MazeStyle::Hexagonal);
    tick();
    tick();
    const MazeGrid page = MazePage;
    deliverMinimized(frm3DMaze, true);
    EXPECT_EQ(DrawState, 5);
    EXPECT_EQ(TimerRunning, 0);
    finish();
    EXPECT_FALSE(hasMenus());
    deliverMinimized(frm3DMaze, false);
    EXPECT_EQ(NewMazeRequested, 0);
    EXPECT_EQ(DrawState, 0);
    finish();
    EXPECT_TRUE(MazePage == page);
    EXPECT_TRUE(hasMenus());
}

TEST_F(MazePlay, a_change_of_tilt_paints_anew_and_a_drag_waits_for_it) {
    open(MazeStyle::Square);
    finish();
    frm3DMaze.VScroll1.Value = 60;
    deliver(frm3DMaze.VScroll1, Event::Scroll);
    EXPECT_EQ(DrawState, 5);
    EXPECT_EQ(TiltDegrees, 45);
    deliver(frm3DMaze.VScroll1, Event::Change);
    EXPECT_EQ(DrawState, 0);
    EXPECT_EQ(TiltDegrees, 30);
    tick();
    tick();
    frm3DMaze.VScroll1.Value = 50;
    deliver(frm3DMaze.VScroll1, Event::Scroll);
    EXPECT_EQ(DrawState, 0);
    EXPECT_EQ(TiltDegrees, 40);
    EXPECT_FALSE(hasMenus());
}

TEST_F(MazePlay, about_and_exit) {
    open(MazeStyle::Square);
    choose(frm3DMaze.mnuHelpItem(0));
    EXPECT_TRUE(
        platform.Calls.back().starts_with("message 0 Ombrelia Terrain Editor | 3DMaze "
                                          "Easter Egg - Quillbyte Terrain Editor\\r\\r"))
        << platform.Calls.back();
    finish();
    EXPECT_THROW(choose(frm3DMaze.mnuActionItem(4)), ProcessEnd);
    EXPECT_TRUE(platform.HasEnded);
    EXPECT_EQ(DrawState, 6);
    EXPECT_TRUE(MazePage.isEmpty());
    EXPECT_EQ(platform.Calls.back(), "end");
}

TEST_F(MazePlay, exit_inside_an_operation_asks_it_to_stop_and_waits_for_it) {
    open(MazeStyle::Square);
    finish();
    platform.OnYield = [] { choose(frm3DMaze.mnuActionItem(4)); };
    bool hasReturned = false;
    const auto operation = [&] {
        StopFlag = 0;
        yieldToEvents();
        EXPECT_EQ(DrawState, 6);
        EXPECT_FALSE(platform.HasEnded);
        EXPECT_NE(StopFlag, 0);
        hasReturned = true;
    };
    EXPECT_THROW(runHandler(operation), ProcessEnd);
    EXPECT_TRUE(hasReturned);
    EXPECT_TRUE(platform.HasEnded);
}

TEST_F(MazePlay, the_clocks_text_has_a_blank_and_seven_digits) {
    EXPECT_EQ(clockText(43200), " 43200");
    EXPECT_EQ(clockText(12345.678F), " 12345.68");
    EXPECT_EQ(clockText(0), " 0");
    EXPECT_EQ(clockText(-2.5F), "-2.5");
}

}  // namespace

}  // namespace ombrelia::maze
