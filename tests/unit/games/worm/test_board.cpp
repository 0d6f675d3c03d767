#include <algorithm>

#include "games/worm/board.h"
#include "games/worm/worm_test.h"
#include "pixel_at.h"

namespace ombrelia::worm {

namespace {

class WormBoard : public WormTest {
  protected:
    WormBoard() { openGame(); }

    static int innerWalls() {
        int count = 0;
        for (int x = 1; x < 16; ++x) {
            for (int y = 1; y < 16; ++y) {
                count += NextBoard(x, y) == kCellWall ? 1 : 0;
            }
        }
        return count;
    }

    // How often the window was shown since the game was opened.
    long shows() { return std::count(platform.Calls.begin(), platform.Calls.end(), "show Form2"); }
};

TEST_F(WormBoard, every_level_has_a_wall_around) {
    for (int level = 1; level <= 6; ++level) {
        NextBoard.fill(kCellEmpty);
        BuildLevel(level);
        for (int i = 0; i <= 16; ++i) {
            EXPECT_EQ(NextBoard(i, 0), kCellWall);
            EXPECT_EQ(NextBoard(i, 16), kCellWall);
            EXPECT_EQ(NextBoard(0, i), kCellWall);
            EXPECT_EQ(NextBoard(16, i), kCellWall);
        }
    }
}

TEST_F(WormBoard, bars_cross_and_pinwheel_have_their_walls) {
    constexpr int kWalls[] = {0, 7, 13, 28};
    for (int level = 1; level <= 4; ++level) {
        BuildLevel(level);
        EXPECT_EQ(innerWalls(), kWalls[level - 1]) << level;
    }
}

TEST_F(WormBoard, the_bar_ends_a_quarter_from_the_edges) {
    BuildLevel(2);
    EXPECT_EQ(NextBoard(4, 8), kCellEmpty);
    EXPECT_EQ(NextBoard(5, 8), kCellWall);
    EXPECT_EQ(NextBoard(11, 8), kCellWall);
    EXPECT_EQ(NextBoard(12, 8), kCellEmpty);
}

TEST_F(WormBoard, level_1_and_those_above_4_leave_the_inner_cells) {
    for (const int level : {1, 5, 6, 100}) {
        BuildLevel(4);
        BuildLevel(level);
        EXPECT_EQ(innerWalls(), 28) << level;
    }
}

TEST_F(WormBoard, new_walls_end_one_step_below_their_colour_and_kept_ones_have_it) {
    EXPECT_EQ(colorAt(16, 5), rgb(240, 50, 240));
    BuildLevel(2);
    ShowBoard();
    EXPECT_EQ(colorAt(16, 5), rgb(255, 50, 255));
    EXPECT_EQ(colorAt(8, 8), rgb(240, 50, 240));
}

TEST_F(WormBoard, a_wall_that_goes_ends_black) {
    BuildLevel(2);
    ShowBoard();
    BuildLevel(4);
    ShowBoard();
    EXPECT_EQ(colorAt(8, 8), rgb(0, 0, 0));
    EXPECT_EQ(Board(8, 8), kCellEmpty);
}

TEST_F(WormBoard, a_worm_on_the_old_board_is_gone) {
    Board(7, 7) = kCellWorm;
    Board(7, 0) = kCellWorm;
    ShowBoard();
    EXPECT_EQ(Board(7, 7), kCellEmpty);
    EXPECT_EQ(Board(7, 0), kCellWorm);
}

TEST_F(WormBoard, row_0_and_column_0_stay_open) {
    BuildLevel(3);
    ShowBoard();
    for (int i = 0; i <= 16; ++i) {
        EXPECT_EQ(Board(i, 0), kCellEmpty);
        EXPECT_EQ(Board(0, i), kCellEmpty);
    }
}

TEST_F(WormBoard, each_fade_shows_the_window) {
    const long before = shows();
    ShowBoard();
    EXPECT_EQ(shows(), before + 1);
}

// Counts the pictures that are shown and keeps the colours of one cell.
class PictureCounter : public HeadlessPlatform {
  public:
    std::vector<Color> Colors;
    void refresh(Control& control) override {
        EXPECT_EQ(&control, &Form2);
        Colors.push_back(static_cast<Color>(pixelAt(Form2.Picture1.Canvas, 495, 165)));
    }
};

TEST_F(WormBoard, a_fade_has_25_pictures_with_10_between_them) {
    PictureCounter counter;
    counter.install();
    Board.fill(kCellEmpty);
    BuildLevel(1);
    ShowBoard();
    platform.install();
    ASSERT_EQ(counter.Colors.size(), 25U);
    for (std::size_t n = 0; n < 25; ++n) {
        const auto red = static_cast<unsigned>(10 * n);
        EXPECT_EQ(counter.Colors[n], rgb(red, std::min(red, 50U), red));
    }
}

TEST_F(WormBoard, an_old_wall_falls_from_green) {
    PictureCounter counter;
    counter.install();
    NextBoard.fill(kCellEmpty);
    ShowBoard();
    platform.install();
    ASSERT_EQ(counter.Colors.size(), 25U);
    EXPECT_EQ(counter.Colors[0], rgb(0, 200, 0));
    EXPECT_EQ(counter.Colors[1], rgb(0, 190, 0));
    EXPECT_EQ(counter.Colors[20], rgb(0, 0, 0));
    EXPECT_EQ(counter.Colors[24], rgb(0, 0, 0));
}

}  // namespace

}  // namespace ombrelia::worm
