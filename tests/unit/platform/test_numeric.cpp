#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "platform/numeric.h"

namespace ombrelia {

namespace {

TEST(Numeric, halves_round_to_the_even_neighbour) {
    EXPECT_EQ(roundToEven(0.5), 0);
    EXPECT_EQ(roundToEven(1.5), 2);
    EXPECT_EQ(roundToEven(2.5), 2);
    EXPECT_EQ(roundToEven(-0.5), 0);
    EXPECT_EQ(roundToEven(-1.5), -2);
    EXPECT_EQ(roundToEven(-2.5), -2);
    EXPECT_EQ(roundToEven(229.5), 230);
}

TEST(Numeric, everything_else_rounds_to_the_nearest) {
    EXPECT_EQ(roundToEven(2.4999999), 2);
    EXPECT_EQ(roundToEven(2.5000001), 3);
    EXPECT_EQ(roundToEven(-2.5000001), -3);
    EXPECT_EQ(roundToEven(std::nextafter(0.5, 0)), 0);
}

TEST(Numeric, floor_goes_down_below_zero_too) {
    EXPECT_EQ(floorToWhole(2.999), 2);
    EXPECT_EQ(floorToWhole(-0.001), -1);
    EXPECT_EQ(floorToWhole(-3), -3);
    EXPECT_EQ(floorToInt16(-0.5), -1);
    EXPECT_EQ(floorToInt16(32767.9), 32767);
    EXPECT_THROW(floorToInt16(32768), OverflowFailure);
    EXPECT_EQ(floorToInt16(-32768), -32768);
    EXPECT_THROW(floorToInt16(-32768.1), OverflowFailure);
}

TEST(Numeric, sixteen_bits_end_at_their_edges) {
    EXPECT_EQ(roundToInt16(32767.49), 32767);
    EXPECT_THROW(roundToInt16(32767.5), OverflowFailure);
    EXPECT_EQ(roundToInt16(-32768.5), -32768);
    EXPECT_THROW(roundToInt16(-32768.51), OverflowFailure);
    EXPECT_THROW(roundToInt16(1e300), OverflowFailure);
    EXPECT_THROW(narrowTo<std::int16_t>(32768), OverflowFailure);
    EXPECT_THROW(narrowTo<std::int16_t>(-32769), OverflowFailure);
    EXPECT_EQ(narrowTo<std::int16_t>(-32768), -32768);
}

TEST(Numeric, thirty_two_bits_end_at_their_edges) {
    EXPECT_EQ(roundToInt32(2147483647.25), 2147483647);
    EXPECT_THROW(roundToInt32(2147483647.5), OverflowFailure);
    EXPECT_EQ(roundToInt32(-2147483648.5), std::numeric_limits<std::int32_t>::min());
    EXPECT_THROW(roundToInt32(-2147483649.0), OverflowFailure);
    EXPECT_THROW(narrowTo<std::int32_t>(2147483648), OverflowFailure);
}

TEST(Numeric, what_is_no_number_does_not_fit) {
    EXPECT_THROW(roundToInt16(std::numeric_limits<double>::quiet_NaN()), OverflowFailure);
    EXPECT_THROW(floorToInt16(std::numeric_limits<double>::quiet_NaN()), OverflowFailure);
    EXPECT_THROW(roundToInt32(std::numeric_limits<double>::infinity()), OverflowFailure);
    EXPECT_THROW(roundToInt32(-std::numeric_limits<double>::infinity()), OverflowFailure);
}

}  // namespace

}  // namespace ombrelia
