#include <gtest/gtest.h>

#include "platform/color.h"

namespace ombrelia {

namespace {

TEST(Colors, red_is_the_lowest_byte) {
    EXPECT_EQ(rgb(1, 2, 3), 0x030201U);
    EXPECT_EQ(redOf(0x030201U), 1U);
    EXPECT_EQ(greenOf(0x030201U), 2U);
    EXPECT_EQ(blueOf(0x030201U), 3U);
}

TEST(Colors, a_pixel_has_red_on_top_and_no_transparency) {
    EXPECT_EQ(pixelOf(rgb(1, 2, 3)), 0xFF010203U);
    EXPECT_EQ(colorOf(0xFF010203U), rgb(1, 2, 3));
    EXPECT_EQ(colorOf(0x00010203U), rgb(1, 2, 3));
}

TEST(Colors, every_component_survives_the_way_there_and_back) {
    for (unsigned c = 0; c <= 255; ++c) {
        EXPECT_EQ(colorOf(pixelOf(rgb(c, 255 - c, c / 2))), rgb(c, 255 - c, c / 2));
    }
}

}  // namespace

}  // namespace ombrelia
