#include <algorithm>

#include "core/objects.h"
#include "core/progress.h"
#include "games/worm/board.h"
#include "games/worm/worm.h"
#include "games/worm/worm_test.h"
#include "platform/failure.h"
#include "register/reset_process.h"

namespace ombrelia::worm {

namespace {

constexpr int kLeftKey = 37;
constexpr int kUpKey = 38;
constexpr int kRightKey = 39;
constexpr int kDownKey = 40;

class Worm : public WormTest {
  protected:
    Worm() { openGame(); }

    long sleeps() { return std::count(platform.Calls.begin(), platform.Calls.end(), "sleep 30"); }
};

TEST_F(Worm, a_game_begins_with_five_lives_at_3_3) {
    EXPECT_EQ(Lives, 5);
    EXPECT_EQ(Level, 1);
    EXPECT_EQ(ItemIndex, 1);
    EXPECT_EQ(HeadX, 3);
    EXPECT_EQ(HeadY, 3);
    EXPECT_EQ(Heading, kHeadRight);
    EXPECT_EQ(WormLength, 4);
    EXPECT_EQ(Form2.Caption, "Fun Game");
    EXPECT_EQ(Form2.Width, 520);
    EXPECT_EQ(Form2.Height, 530);
    EXPECT_EQ(Form2.Timer1.Interval, 150);
    EXPECT_TRUE(Form2.Timer1.Enabled);
    EXPECT_FALSE(Form2.Label1.Visible);
    EXPECT_EQ(Form2.Label28.Caption, "1");
}

TEST_F(Worm, a_tick_moves_the_head_and_says_how_things_stand) {
    putFood(15, 15);
    tick();
    EXPECT_EQ(HeadX, 4);
    EXPECT_EQ(Form2.Caption, "Lives: 5   Level: 1");
    EXPECT_EQ(Board(4, 3), kCellWorm);
}

TEST_F(Worm, it_grows_to_its_length_without_erasing_itself) {
    putFood(15, 15);
    tick(3);
    EXPECT_EQ(Board(4, 3), kCellWorm);
    tick();
    EXPECT_EQ(Board(4, 3), kCellEmpty);
    EXPECT_EQ(colorAt(4, 3), rgb(0, 0, 0));
    EXPECT_EQ(Board(7, 3), kCellWorm);
}

TEST_F(Worm, a_second_turn_in_one_tick_is_ignored) {
    tick();
    key(kDownKey);
    key(kLeftKey);
    EXPECT_EQ(Heading, kHeadDown);
    tick();
    key(kLeftKey);
    EXPECT_EQ(Heading, kHeadLeft);
}

TEST_F(Worm, a_reversal_is_refused) {
    constexpr int kPairs[][2] = {
        {kHeadRight, kLeftKey}, {kHeadLeft, kRightKey}, {kHeadUp, kDownKey}, {kHeadDown, kUpKey}};
    for (const auto& [heading, code] : kPairs) {
        putHead(8, 8, heading);
        LastTurnX = 0;
        key(code);
        EXPECT_EQ(Heading, heading);
    }
}

TEST_F(Worm, any_key_uses_up_the_turn) {
    tick();
    key(65);
    key(kDownKey);
    EXPECT_EQ(Heading, kHeadRight);
    tick();
    key(kDownKey);
    EXPECT_EQ(Heading, kHeadDown);
}

TEST_F(Worm, the_first_key_counts_before_the_first_tick) {
    key(kDownKey);
    EXPECT_EQ(Heading, kHeadDown);
}

TEST_F(Worm, the_wall_at_the_right_costs_a_life) {
    putHead(15, 8, kHeadRight);
    tick();
    EXPECT_EQ(Lives, 4);
    EXPECT_EQ(HeadX, 3);
    EXPECT_EQ(Heading, kHeadRight);
    EXPECT_EQ(Board(16, 8), kCellWall);
}

TEST_F(Worm, the_wall_below_costs_a_life) {
    putHead(8, 15, kHeadDown);
    tick();
    EXPECT_EQ(Lives, 4);
}

TEST_F(Worm, a_bar_of_a_level_costs_a_life) {
    BuildLevel(2);
    ShowBoard();
    putHead(8, 9, kHeadUp);
    tick();
    EXPECT_EQ(Lives, 4);
    EXPECT_EQ(Board(8, 8), kCellWall);
}

TEST_F(Worm, its_own_body_costs_a_life) {
    putFood(15, 15);
    WormLength = 8;
    for (const int code : {kRightKey, kDownKey, kLeftKey, kUpKey}) {
        tick();
        key(code);
    }
    tick();
    EXPECT_EQ(Lives, 4);
    EXPECT_EQ(WormLength, 4);
}

TEST_F(Worm, the_head_can_leave_through_row_0) {
    putHead(8, 1, kHeadUp);
    tick();
    EXPECT_EQ(HeadY, 0);
    EXPECT_EQ(Lives, 5);
    EXPECT_EQ(Board(8, 0), kCellWorm);
}

TEST_F(Worm, leaving_the_array_costs_a_life_on_each_side) {
    constexpr int kExits[][3] = {
        {8, 0, kHeadUp}, {0, 8, kHeadLeft}, {100, 0, kHeadRight}, {0, 100, kHeadDown}};
    int lives = 5;
    for (const auto& [x, y, heading] : kExits) {
        putHead(x, y, heading);
        tick();
        EXPECT_EQ(Lives, --lives);
        EXPECT_EQ(HeadY, 3);
    }
    EXPECT_TRUE(platform.Failures.empty());
}

TEST_F(Worm, row_0_leads_out_of_the_picture_and_back) {
    putHead(16, 0, kHeadRight);
    tick(3);
    EXPECT_EQ(HeadX, 19);
    EXPECT_EQ(Lives, 5);
    EXPECT_EQ(Board(19, 0), kCellWorm);
}

TEST_F(Worm, a_meal_lengthens_by_two_and_brings_the_next_item) {
    putFood(4, 3);
    tick();
    EXPECT_EQ(WormLength, 6);
    EXPECT_EQ(ItemIndex, 2);
    EXPECT_EQ(Form2.Label2.Face, Form2.Arr(1).Face);
}

TEST_F(Worm, an_item_is_drawn_until_its_cell_is_empty) {
    Board(9, 9) = kCellWall;
    platform.RandomQueue = {0.5F, 0.5F, 0.999F, 0.5F, 0.25F, 0.0F};
    PlaceItem();
    EXPECT_EQ(Form2.Label2.Left, 5 * 30);
    EXPECT_EQ(Form2.Label2.Top, 1 * 30);
    EXPECT_TRUE(platform.RandomQueue.empty());
}

TEST_F(Worm, the_first_item_may_lie_on_a_wall_to_be) {
    resetProcess();
    platform.RandomQueue = {0.999F, 0.999F};
    platform.RandomState = 1;
    openWormGame();
    EXPECT_EQ(Form2.Label2.Left, 16 * 30);
    EXPECT_EQ(Form2.Label2.Top, 16 * 30);
    EXPECT_EQ(Board(16, 16), kCellWall);
}

TEST_F(Worm, a_new_item_may_lie_under_the_head) {
    platform.RandomQueue = {0.25F, 0.125F};
    putFood(5, 3);
    HeadX = 4;
    tick();
    EXPECT_EQ(Form2.Label2.Left, HeadX * 30);
    EXPECT_EQ(Form2.Label2.Top, HeadY * 30);
}

TEST_F(Worm, the_17th_meal_ends_the_level_and_leaves_length_6) {
    ItemIndex = 17;
    WormLength = 36;
    putFood(4, 3);
    tick();
    EXPECT_EQ(Level, 2);
    EXPECT_EQ(ItemIndex, 1);
    EXPECT_EQ(WormLength, 6);
    EXPECT_EQ(HeadX, 3);
    EXPECT_EQ(Board(8, 8), kCellWall);
    EXPECT_FALSE(Form2.Label1.Visible);
}

TEST_F(Worm, the_last_picture_is_never_shown) {
    for (int meal = 1; meal <= 60; ++meal) {
        putFood(HeadX + 1, HeadY);
        const int x = HeadX;
        tick();
        ASSERT_LT(Form2.Label2.Face.face, 17);
        ASSERT_EQ(Form2.Label2.Face.face, ItemIndex - 1);
        if (x > 8) {
            putHead(3, 3, kHeadRight);
            Board = NextBoard;
        }
        WormLength = 4;
    }
}

TEST_F(Worm, level_4_promises_more_and_level_5_keeps_its_walls) {
    Level = 3;
    for (int level = 4; level <= 6; ++level) {
        ItemIndex = 17;
        PlaceItem();
        EXPECT_EQ(Level, level);
        EXPECT_TRUE(Form2.Label1.Visible);
        EXPECT_EQ(Board(12, 4), kCellWall);
    }
    putFood(15, 15);
    tick();
    EXPECT_EQ(Form2.Caption, "Lives: 5   Level: 6");
}

TEST_F(Worm, a_death_fades_with_pauses_and_leaves_a_dark_worm) {
    putFood(15, 15);
    tick(6);
    ColorR = 255;
    ColorG = 101;
    ColorB = 30;
    HeadX = 15;
    tick();
    // 255 takes 25 steps of 10 down to 5.
    EXPECT_EQ(sleeps(), 25);
    EXPECT_EQ(colorAt(8, 3), rgb(15, 1, 10));
    EXPECT_EQ(Board(8, 3), kCellEmpty);
}

TEST_F(Worm, a_death_paints_all_of_the_trail_but_its_last_cell) {
    TrailX(1) = 10;
    TrailX(2) = 11;
    TrailX(3) = 12;
    TrailX(4) = 13;
    for (int i = 1; i <= 4; ++i) {
        TrailY(i) = 10;
    }
    ColorR = 31;
    ColorG = 31;
    ColorB = 31;
    EXPECT_FALSE(LoseLife());
    EXPECT_EQ(colorAt(12, 10), rgb(11, 11, 11));
    EXPECT_EQ(colorAt(13, 10), rgb(0, 0, 0));
    EXPECT_EQ(TrailX(4), 13);
}

TEST_F(Worm, the_tick_of_the_last_life_runs_to_its_end_and_closes_the_window) {
    Lives = 1;
    putHead(15, 8, kHeadRight);
    ColorR = 255;
    DeltaR = 4;
    DeltaG = 0;
    DeltaB = 0;
    ColorG = 100;
    ColorB = 100;
    const long draws = platform.Draws;
    tick();
    EXPECT_FALSE(Form2.Loaded);
    EXPECT_EQ(platform.Calls.back(), "unload Form2");
    EXPECT_EQ(platform.Draws, draws + 3);  // a cell for the item, a delta
    EXPECT_EQ(Board(3, 3), kCellWorm);
}

TEST_F(Worm, green_drifts_against_its_delta) {
    putFood(15, 15);
    ColorR = ColorG = ColorB = 100;
    DeltaR = DeltaG = DeltaB = 3;
    tick();
    EXPECT_EQ(ColorR, 103);
    EXPECT_EQ(ColorG, 97);
    EXPECT_EQ(ColorB, 103);
    EXPECT_EQ(colorAt(4, 3), rgb(103, 97, 103));
}

TEST_F(Worm, components_that_leave_their_range_draw_red_then_green_then_blue) {
    putFood(15, 15);
    ColorR = 255;
    ColorG = 30;
    ColorB = 255;
    DeltaR = DeltaG = DeltaB = 1;
    platform.RandomQueue = {0.0F, 0.5F, 0.99F};
    tick();
    EXPECT_EQ(ColorR, 255);
    EXPECT_EQ(ColorG, 30);
    EXPECT_EQ(ColorB, 255);
    EXPECT_EQ(DeltaR, -4);
    EXPECT_EQ(DeltaG, 0);  // -0.5 to even
    EXPECT_EQ(DeltaB, 3);
}

TEST_F(Worm, first_colours_are_rounded_to_even) {
    resetProcess();
    // 0.5 * 255 + 1 = 128.5; 0.5 * 7 - 3 = 0.5
    platform.RandomQueue = {0.0F, 0.0F, 0.5F, 0.0F, 0.99999F, 0.5F, 0.0F, 0.99999F};
    openWormGame();
    EXPECT_EQ(ColorR, 128);
    EXPECT_EQ(ColorG, 1);
    EXPECT_EQ(ColorB, 256);
    EXPECT_EQ(DeltaR, 0);
    EXPECT_EQ(DeltaG, -3);
    EXPECT_EQ(DeltaB, 4);
}

TEST_F(Worm, a_tail_on_a_wall_leaves_the_wall) {
    putFood(15, 15);
    TrailX(3) = 16;
    TrailY(3) = 5;
    tick();
    EXPECT_EQ(Board(16, 5), kCellWall);
    EXPECT_EQ(colorAt(16, 5), rgb(240, 50, 240));
}

TEST_F(Worm, a_worm_of_100_cells_moves_and_one_of_101_is_a_failure) {
    putFood(15, 15);
    WormLength = 100;
    tick();
    EXPECT_TRUE(platform.Failures.empty());
    WormLength = 101;
    tick();
    EXPECT_EQ(platform.Failures.size(), 1U);
}

TEST_F(Worm, opened_again_while_it_runs_it_goes_on) {
    putFood(15, 15);
    tick(2);
    openWormGame();
    EXPECT_EQ(HeadX, 5);
}

TEST_F(Worm, its_surface_keeps_its_picture_whatever_happens_to_the_window) {
    const Surface& board = Form2.Picture1.Canvas;
    const int width = board.width();
    const int x = 16 * CellSize + 5;
    const int y = 5 * CellSize + 5;
    const Pixel wall = board.row(y)[x];
    ASSERT_NE(wall, pixelOf(rgb(0, 0, 0)));
    deliverResize(Form2, 300, 200);
    EXPECT_EQ(board.width(), width);
    EXPECT_EQ(board.row(y)[x], wall);
}

TEST_F(Worm, opened_after_a_close_it_begins_anew) {
    Level = 4;
    ItemIndex = 16;
    tick(3);
    deliverClose(Form2);
    EXPECT_FALSE(Form2.Loaded);
    openWormGame();
    EXPECT_EQ(Level, 1);
    EXPECT_EQ(HeadX, 3);
    EXPECT_EQ(TrailX(1), 0);
    EXPECT_EQ(Board(8, 8), kCellEmpty);
}

// Closes the window in the first picture of a fade.
class ClosingPlatform : public HeadlessPlatform {
  public:
    bool WasLoaded = false;
    void refresh(Control& /*control*/) override {
        deliverClose(Form2);
        WasLoaded = Form2.Loaded;
    }
};

TEST_F(Worm, a_close_during_a_fade_waits_for_its_end_and_stops_no_operation) {
    ClosingPlatform closing;
    closing.RandomState = 5;
    closing.install();
    putHead(15, 8, kHeadRight);
    StopFlag = 0;
    tick();
    EXPECT_TRUE(closing.WasLoaded);
    EXPECT_FALSE(Form2.Loaded);
    EXPECT_EQ(StopFlag, 0);
    EXPECT_EQ(Lives, 4);
    platform.install();
}

TEST_F(Worm, the_map_is_not_touched) {
    HeightMap.fill(77);
    MapSize = 129;
    const HeightGrid before = HeightMap;
    tick(40);
    EXPECT_TRUE(HeightMap == before);
    EXPECT_EQ(MapSize, 129);
}

}  // namespace

}  // namespace ombrelia::worm
