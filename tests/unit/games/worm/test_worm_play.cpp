// Whole games: against the plain second way, and as properties of any play.
#include <cmath>
#include <set>

#include "games/worm/pilot.h"
#include "games/worm/plain_worm.h"
#include "games/worm/worm_test.h"
#include "pixel_at.h"

namespace ombrelia::worm {

namespace {

class WormPlay : public WormTest {
  protected:
    // Both games opened with the same draws.
    void openBoth(std::uint32_t seed) {
        openGame(seed);
        plain_ = plain::Worm();
        plain_.draw = [draws = PlainDraws(seed)]() mutable { return double{draws()}; };
        plain_.load();
    }

    void keyBoth(int code) {
        key(code);
        plain_.key(code);
    }

    void tickBoth() {
        tick();
        plain_.tick();
    }

    void compareNumbers() {
        EXPECT_EQ(plain::Cell(HeadX, HeadY), plain_.head);
        EXPECT_EQ(Heading, plain_.heading);
        EXPECT_EQ(WormLength, plain_.length);
        EXPECT_EQ(Lives, plain_.lives);
        EXPECT_EQ(Level, plain_.level);
        EXPECT_EQ(ItemIndex, plain_.item);
        EXPECT_EQ(Form2.Label2.Left, plain_.food.first * 30);
        EXPECT_EQ(Form2.Label2.Top, plain_.food.second * 30);
        EXPECT_EQ(Form2.Label1.Visible, plain_.isMoreShown);
        EXPECT_EQ(Form2.Loaded, !plain_.isOver);
    }

    void compareBoards() {
        for (int y = 0; y <= kLastBoard; ++y) {
            for (int x = 0; x <= kLastBoard; ++x) {
                ASSERT_EQ(Board(x, y), plain_.board[plain::Cell(x, y)]) << x << ' ' << y;
            }
        }
    }

    void comparePictures() {
        const Surface& canvas = Form2.Picture1.Canvas;
        for (int y = 0; y <= 16; ++y) {
            for (int x = 0; x <= 16; ++x) {
                const Color expected = plain_.painted[plain::Cell(x, y)];
                for (const auto& [dx, dy] : {std::pair(0, 0), {29, 0}, {0, 29}, {29, 29}}) {
                    ASSERT_EQ(static_cast<Color>(pixelAt(canvas, x * 30 + dx, y * 30 + dy)),
                              expected)
                        << x << ' ' << y;
                }
            }
        }
    }

    plain::Worm plain_;
};

TEST_F(WormPlay, random_games_agree_with_the_plain_way) {
    for (std::uint32_t seed = 1; seed <= 150; ++seed) {
        SCOPED_TRACE(testing::Message() << "random-lcg " << seed);
        PlainDraws dice(seed * 77);
        openBoth(seed);
        for (int step = 0; step < 400 && Form2.Loaded; ++step) {
            if (dice() < 0.3F) {
                keyBoth(36 + static_cast<int>(dice() * 6));
            }
            tickBoth();
            compareNumbers();
            ASSERT_FALSE(HasFailure()) << "tick " << step;
        }
        compareBoards();
        comparePictures();
        ASSERT_FALSE(HasFailure());
    }
}

TEST_F(WormPlay, games_through_many_levels_agree_with_the_plain_way) {
    for (std::uint32_t seed = 1; seed <= 6; ++seed) {
        SCOPED_TRACE(testing::Message() << "random-lcg " << seed);
        openBoth(seed);
        for (int step = 0; step < 4000 && Form2.Loaded && Level < 6; ++step) {
            keyBoth(keyToFood());
            tickBoth();
            compareNumbers();
            ASSERT_FALSE(HasFailure()) << "tick " << step;
            if (step % 50 == 0) {
                compareBoards();
                comparePictures();
            }
        }
        EXPECT_GE(Level, 3);
        ASSERT_FALSE(HasFailure());
    }
}

TEST_F(WormPlay, a_worm_plays_itself_through_four_levels) {
    openGame(2);
    std::set<int> pictures;
    int ticks = 0;
    while (Form2.Loaded && Level < 5 && ticks < 5000) {
        pictures.insert(Form2.Label2.Face.face);
        key(keyToFood());
        tick();
        ++ticks;
        ASSERT_LE(WormLength, 40);
    }
    EXPECT_EQ(Level, 5);
    EXPECT_TRUE(Form2.Label1.Visible);
    EXPECT_EQ(pictures.size(), 17U);
}

TEST_F(WormPlay, the_board_holds_no_more_worm_than_its_length) {
    for (std::uint32_t seed = 1; seed <= 40; ++seed) {
        openGame(seed);
        PlainDraws dice(seed);
        for (int step = 0; step < 200 && Form2.Loaded; ++step) {
            if (dice() < 0.25F) {
                key(37 + static_cast<int>(dice() * 4));
            }
            tick();
            int cells = 0;
            for (int y = 1; y <= 16; ++y) {
                for (int x = 1; x <= 16; ++x) {
                    cells += Board(x, y) == kCellWorm ? 1 : 0;
                }
            }
            ASSERT_LE(cells, WormLength) << "random-lcg " << seed << " tick " << step;
            ASSERT_EQ(Board(16, 9), kCellWall);
        }
    }
}

}  // namespace

}  // namespace ombrelia::worm
