#include <array>
#include <cmath>

#include "core/color_ramp.h"
#include "core/color_sets.h"
#include "core/color_sets_table.h"
#include "editor_fixture.h"

namespace ombrelia {

namespace {

using Rgb = std::array<double, 3>;

constexpr double kUntouched = -7;

class ColorRamp : public ProcessTest {
  protected:
    ColorRamp() { fillDefaultColors(); }

    static Rgb colorOf(int height) {
        Rgb c = {kUntouched, kUntouched, kUntouched};
        auto h = static_cast<std::int16_t>(height);
        HeightToRGB(h, c[0], c[1], c[2]);
        return c;
    }

    static void setRow(int row, const std::array<int, 8>& fields) {
        for (int n = 0; n < 8; ++n) {
            ColorRange(row, n / 4 + 1, n % 4) =
                static_cast<std::int16_t>(fields[static_cast<std::size_t>(n)]);
        }
    }

    static constexpr Rgb kNone = {kUntouched, kUntouched, kUntouched};
};

TEST_F(ColorRamp, the_shore_is_a_jump) {
    EXPECT_EQ(colorOf(30), (Rgb{0, 0, 255}));
    EXPECT_EQ(colorOf(31), (Rgb{191, 191, 175}));
    EXPECT_EQ(colorOf(0), (Rgb{0, 0, 150}));
    EXPECT_EQ(colorOf(255), (Rgb{236, 234, 231}));
}

TEST_F(ColorRamp, heights_between_are_mixed) {
    const Rgb c = colorOf(32);
    EXPECT_NEAR(c[0], 172, 1e-9);
    EXPECT_NEAR(c[1], 181, 1e-9);
    EXPECT_NEAR(c[2], 152 + 1.0 / 3, 1e-9);
    std::int16_t h = 32;
    EXPECT_EQ(HeightToColor(h), rgb(172, 181, 152));
}

TEST_F(ColorRamp, heights_out_of_range_are_cut_back_themselves) {
    std::int16_t h = 300;
    EXPECT_EQ(HeightToColor(h), rgb(236, 234, 231));
    EXPECT_EQ(h, 255);
    h = -5;
    EXPECT_EQ(HeightToColor(h), rgb(0, 0, 150));
    EXPECT_EQ(h, 0);
    for (std::int16_t inside = 0; inside <= 255; ++inside) {
        h = inside;
        HeightToColor(h);
        EXPECT_EQ(h, inside);
    }
}

TEST_F(ColorRamp, a_height_is_cut_back_even_without_a_colour) {
    ColorRange = {};
    std::int16_t h = 300;
    EXPECT_EQ(HeightToColor(h), rgb(0, 0, 0));
    EXPECT_EQ(h, 255);
}

TEST_F(ColorRamp, a_row_of_one_height_leaves_the_colour_alone) {
    setRow(3, {50, 10, 20, 30, 50, 40, 50, 60});
    setRow(4, {51, 1, 1, 1, 195, 2, 2, 2});
    EXPECT_EQ(colorOf(50), kNone);
    EXPECT_NE(colorOf(51), kNone);
    std::int16_t h = 50;
    EXPECT_EQ(HeightToColor(h), rgb(0, 0, 0));
}

TEST_F(ColorRamp, a_height_in_no_row_leaves_the_colour_alone) {
    setRow(2, {31, 1, 2, 3, 33, 4, 5, 6});
    EXPECT_EQ(colorOf(34), kNone);
    EXPECT_NE(colorOf(33), kNone);
    EXPECT_NE(colorOf(35), kNone);
}

TEST_F(ColorRamp, the_first_of_two_rows_wins) {
    setRow(1, {0, 0, 0, 0, 40, 100, 100, 100});
    EXPECT_EQ(colorOf(40), (Rgb{100, 100, 100}));
    setRow(1, {40, 9, 9, 9, 40, 9, 9, 9});
    EXPECT_EQ(colorOf(40), kNone);  // though row 3 has a colour for it
}

TEST_F(ColorRamp, ties_round_to_even) {
    EXPECT_EQ(packRounded(0.5, 1.5, 2.5), rgb(0, 2, 2));
    EXPECT_EQ(packRounded(253.5, 254.5, 254.51), rgb(254, 254, 255));
    setRow(1, {0, 2, 3, 0, 2, 3, 4, 5});
    std::int16_t h = 1;
    EXPECT_EQ(HeightToColor(h), rgb(2, 4, 2));
}

TEST_F(ColorRamp, metres_count_from_31) {
    EXPECT_EQ(metresText(255), "2912m");
    EXPECT_EQ(metresText(31), "0m");
    EXPECT_EQ(metresText(0), "-403m");
    EXPECT_EQ(metresText(40), "117m");
    EXPECT_EQ(metresText(30), "-13m");
}

// What each height gives through the table, rows searched from the last.
Rgb plainColor(int h) {
    Rgb c = {kUntouched, kUntouched, kUntouched};
    int found = 0;
    for (int row = 6; row >= 1; --row) {
        if (ColorRange(row, 1, 0) <= h && h <= ColorRange(row, 2, 0)) {
            found = row;
        }
    }
    if (found == 0 || ColorRange(found, 1, 0) == ColorRange(found, 2, 0)) {
        return c;
    }
    const double low = ColorRange(found, 1, 0);
    const double t = (h - low) / (ColorRange(found, 2, 0) - low);
    for (int k = 1; k <= 3; ++k) {
        c[static_cast<std::size_t>(k - 1)] =
            t * ColorRange(found, 2, k) + (1 - t) * ColorRange(found, 1, k);
    }
    return c;
}

void expectLookupAgrees(ColorLookup& lookup) {
    lookup.update();
    bool isComplete = true;
    for (int h = 0; h <= 255; ++h) {
        Rgb c = {kUntouched, kUntouched, kUntouched};
        auto height = static_cast<std::int16_t>(h);
        HeightToRGB(height, c[0], c[1], c[2]);
        ASSERT_EQ(c, plainColor(h)) << h;
        const bool has = c[0] != kUntouched || c[1] != kUntouched || c[2] != kUntouched;
        isComplete = isComplete && has;
        ASSERT_EQ(lookup.hasColor(h), has) << h;
        if (has) {
            ASSERT_EQ(lookup.pixel(h), pixelOf(packRounded(c[0], c[1], c[2]))) << h;
        }
    }
    EXPECT_EQ(lookup.isComplete(), isComplete);
}

TEST_F(ColorRamp, the_lookup_agrees_on_the_eight_sets) {
    ColorLookup lookup;
    for (const BuiltInColorSet& set : kBuiltInColorSets) {
        SCOPED_TRACE(set.name);
        for (int row = 1; row <= 6; ++row) {
            for (int n = 0; n < 8; ++n) {
                ColorRange(row, n / 4 + 1, n % 4) = set.value(row, n / 4 + 1, n % 4);
            }
        }
        expectLookupAgrees(lookup);
        EXPECT_TRUE(lookup.isComplete());
    }
}

TEST_F(ColorRamp, the_lookup_agrees_on_malformed_tables) {
    PlainDraws draw(99);
    ColorLookup lookup;
    for (int round = 0; round < 300; ++round) {
        SCOPED_TRACE(round);
        for (int row = 1; row <= 6; ++row) {
            for (int n = 0; n < 8; ++n) {
                const double value = n % 4 == 0 ? draw() * 340 - 40 : draw() * 255;
                ColorRange(row, n / 4 + 1, n % 4) = static_cast<std::int16_t>(value);
            }
            if (round % 3 == 0) {
                ColorRange(row, 2, 0) = ColorRange(row, 1, 0);  // a row of one height
            }
        }
        expectLookupAgrees(lookup);
        if (HasFatalFailure()) {
            return;
        }
    }
}

TEST_F(ColorRamp, the_lookup_follows_a_change_at_its_next_update) {
    ColorLookup lookup;
    lookup.update();
    const Pixel before = lookup.pixel(100);
    setRow(4, {93, 1, 1, 1, 195, 1, 1, 1});
    EXPECT_EQ(lookup.pixel(100), before);
    lookup.update();
    EXPECT_EQ(lookup.pixel(100), pixelOf(rgb(1, 1, 1)));
}

}  // namespace

}  // namespace ombrelia
