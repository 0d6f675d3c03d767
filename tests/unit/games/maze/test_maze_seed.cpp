#include <gtest/gtest.h>

#include "games/maze/maze_directions.h"
#include "games/maze/maze_seed.h"
#include "games/maze/plain_maze.h"
#include "games/maze/seed_digits.h"

namespace ombrelia::maze {

namespace {

SeedDigits lcgDigits(std::uint32_t& state) {
    SeedDigits digits;
    for (std::uint8_t& digit : digits) {
        state = state * 1664525U + 1013904223U;
        digit = static_cast<std::uint8_t>((state >> 16U) % 10);
    }
    return digits;
}

TEST(MazeSeed, a_short_text_is_filled_with_eights_at_the_low_end) {
    EXPECT_EQ(digitsOf("59"), (SeedDigits{8, 8, 8, 8, 8, 8, 3, 7}));
    EXPECT_EQ(digitsOf(""), (SeedDigits{8, 8, 8, 8, 8, 8, 8, 8}));
}

TEST(MazeSeed, a_leading_blank_gives_a_two) {
    EXPECT_EQ(digitsOf(" 43200"), (SeedDigits{8, 8, 2, 2, 1, 0, 8, 8}));
}

TEST(MazeSeed, a_long_text_is_cut_to_its_first_eight) {
    EXPECT_EQ(digitsOf("0123456789"), digitsOf("01234567"));
    EXPECT_EQ(digitsOf("0123456789"), (SeedDigits{8, 9, 0, 1, 2, 3, 4, 5}));
}

TEST(MazeSeed, nines_turn_to_zeros) {
    SeedDigits digits = {9, 9, 9, 9, 9, 9, 9, 9};
    IncrementSeed(digits);
    EXPECT_EQ(digits, SeedDigits{});
    digits = {9, 9, 4, 0, 0, 0, 0, 0};
    IncrementSeed(digits);
    EXPECT_EQ(digits, (SeedDigits{0, 0, 5, 0, 0, 0, 0, 0}));
}

TEST(MazeSeed, scrambling_and_counting_agree_with_the_second_way) {
    std::uint32_t state = 7;
    for (int i = 0; i < 2000; ++i) {
        SeedDigits digits = lcgDigits(state);
        SeedDigits scrambled = digits;
        ScrambleSeed(scrambled);
        ASSERT_EQ(plain(scrambled), plainScrambled(plain(digits))) << i;
        const PlainDigits next = plainIncremented(plain(digits));
        IncrementSeed(digits);
        ASSERT_EQ(plain(digits), next) << i;
    }
}

template <int kModulus>
void compareDraws() {
    std::uint32_t state = kModulus;
    for (int run = 0; run < 100; ++run) {
        const SeedDigits digits = lcgDigits(state);
        MazeRandom<kModulus> random(digits);
        PlainRandom second(plain(digits), kModulus);
        for (int i = 0; i < 500; ++i) {
            const int drawn = random();
            ASSERT_EQ(drawn, second.next());
            ASSERT_TRUE(drawn >= 0 && drawn < kModulus);
        }
    }
}

TEST(MazeSeed, draws_agree_with_the_ring_moved_along) {
    compareDraws<29>();
    compareDraws<727>();
}

template <std::size_t kDirections, std::size_t kOrders>
void compareOrders(bool isHex, const std::array<MazeDelta, kDirections>& deltas,
                   const MazeOrders<kDirections, kOrders>& orders) {
    const auto rows = plainDeltas(isHex);
    ASSERT_EQ(rows.size(), kOrders);
    for (std::size_t n = 0; n < kOrders; ++n) {
        for (std::size_t i = 0; i < kDirections; ++i) {
            const MazeDelta delta = deltas[orders[n][i]];
            ASSERT_EQ((PlainStep{delta.x, delta.y}), rows[n][i]) << n << ' ' << i;
        }
    }
}

TEST(MazeDirections, all_orders_agree_with_nested_choices) {
    compareOrders(false, kSquareDeltas, kSquareOrders);
    compareOrders(true, kHexDeltas, kHexOrders);
}

}  // namespace

}  // namespace ombrelia::maze
