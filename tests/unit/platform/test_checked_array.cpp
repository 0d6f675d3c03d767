#include <gtest/gtest.h>

#include "platform/checked_array.h"

namespace ombrelia {

namespace {

TEST(CheckedArray, both_ends_can_be_reached_and_no_further) {
    CheckedArray<int, -2, 3> array;
    array(-2) = 7;
    array(3) = 9;
    EXPECT_EQ(array.data()[0], 7);
    EXPECT_EQ(array.data()[5], 9);
    EXPECT_EQ(array.size(), 6U);
    EXPECT_THROW(array(-3), SubscriptFailure);
    EXPECT_THROW(array(4), SubscriptFailure);
    const auto& fixed = array;
    EXPECT_EQ(fixed(-2), 7);
    EXPECT_THROW(fixed(4), SubscriptFailure);
}

TEST(CheckedArray, begins_with_zeros_and_fills) {
    CheckedArray<int, 0, 4> array;
    for (int i = 0; i <= 4; ++i) {
        EXPECT_EQ(array(i), 0);
    }
    array.fill(3);
    CheckedArray<int, 0, 4> other;
    EXPECT_FALSE(array == other);
    other.fill(3);
    EXPECT_TRUE(array == other);
}

TEST(CheckedArray, the_failure_names_place_and_range) {
    CheckedArray<int, 1, 6> array;
    try {
        array(7) = 1;
        FAIL();
    } catch (const SubscriptFailure& failure) {
        EXPECT_STREQ(failure.what(),
                     "This step could not be finished: place 7 lies outside 1 to 6. The map is as "
                     "it was left.");
    }
}

TEST(CheckedGrid, all_four_edges_hold) {
    CheckedGrid<int, 257> grid;
    grid(257, 0) = 1;
    grid(0, 257) = 2;
    grid(257, 257) = 3;
    EXPECT_EQ(grid.data()[257], 1);
    EXPECT_EQ(grid.data()[258 * 257], 2);
    EXPECT_EQ(grid.data()[258 * 258 - 1], 3);
    EXPECT_THROW(grid(-1, 0), SubscriptFailure);
    EXPECT_THROW(grid(258, 0), SubscriptFailure);
    EXPECT_THROW(grid(0, -1), SubscriptFailure);
    EXPECT_THROW(grid(0, 258), SubscriptFailure);
    const auto& fixed = grid;
    EXPECT_EQ(fixed(257, 257), 3);
    EXPECT_THROW(fixed(258, 257), SubscriptFailure);
}

TEST(CheckedGrid, a_row_is_checked_too) {
    CheckedGrid<int, 3> grid;
    grid(2, 3) = 8;
    EXPECT_EQ(grid.row(3)[2], 8);
    EXPECT_THROW(grid.row(4), SubscriptFailure);
    EXPECT_THROW(grid.row(-1), SubscriptFailure);
}

}  // namespace

}  // namespace ombrelia
