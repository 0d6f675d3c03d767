#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

#include "core/objects.h"
#include "register/value_row.h"

namespace ombrelia {

namespace {

void expectRoundTrip(const ValueRow& row, const std::string& text) {
    EXPECT_TRUE(setFromText(row, row.first, text)) << text;
    EXPECT_EQ(textOf(row, row.first), text);
}

TEST(ValueRow, every_kind_reads_back_what_it_writes) {
    std::int16_t small = 0;
    std::int32_t large = 0;
    std::uint32_t color = 0;
    std::string words;
    expectRoundTrip(valueRow("v", small), "-32768");
    expectRoundTrip(valueRow("v", small), "32767");
    EXPECT_EQ(small, 32767);
    expectRoundTrip(valueRow("v", large), "-2147483648");
    expectRoundTrip(valueRow("v", color), "4294967295");
    expectRoundTrip(valueRow("v", words), " any \"text\"\n");
    expectRoundTrip(valueRow("v", words), "");
}

TEST(ValueRow, reals_read_back_to_the_last_digit) {
    float single = 0;
    double real = 0;
    for (const double value : {0.0, 0.1, -1.0 / 3, 1e300, 5e-324, 3.14159, 123456789.125}) {
        real = value;
        const std::string text = textOf(valueRow("v", real), &real);
        real = 0;
        EXPECT_TRUE(setFromText(valueRow("v", real), &real, text));
        EXPECT_EQ(real, value);
        single = static_cast<float>(0.1F * static_cast<float>(value < 1e30 ? value : 1));
        const float before = single;
        const std::string singleText = textOf(valueRow("v", single), &single);
        single = 99;
        EXPECT_TRUE(setFromText(valueRow("v", single), &single, singleText));
        EXPECT_EQ(single, before);
    }
}

TEST(ValueRow, a_text_that_is_no_such_number_is_refused_and_changes_nothing) {
    std::int16_t small = 7;
    std::uint32_t color = 7;
    double real = 7;
    for (const char* text : {"", "abc", "12abc", "70000", "1.5", " 1", "1 "}) {
        EXPECT_FALSE(setFromText(valueRow("v", small), &small, text)) << text;
        EXPECT_EQ(small, 7) << text;
    }
    EXPECT_FALSE(setFromText(valueRow("v", color), &color, "-1"));
    EXPECT_EQ(color, 7U);
    for (const char* text : {"", "x", "1.5y", "1e999"}) {
        EXPECT_FALSE(setFromText(valueRow("v", real), &real, text)) << text;
        EXPECT_EQ(real, 7) << text;
    }
}

TEST(ValueRow, subscripts_reach_both_ends_and_no_further) {
    CheckedArray<std::int16_t, 1, 5> array;
    const ValueRow row = arrayRow("v", array);
    EXPECT_EQ(row.at(std::vector{1}), &array(1));
    EXPECT_EQ(row.at(std::vector{5}), &array(5));
    EXPECT_EQ(row.at(std::vector{0}), nullptr);
    EXPECT_EQ(row.at(std::vector{6}), nullptr);
    EXPECT_EQ(row.at({}), nullptr);
    EXPECT_EQ(row.at(std::vector{1, 1}), nullptr);
}

TEST(ValueRow, a_grid_has_the_column_first) {
    CheckedGrid<std::int16_t, 9> grid;
    const ValueRow row = gridRow("v", grid);
    EXPECT_EQ(row.at(std::vector{3, 7}), &grid(3, 7));
    EXPECT_EQ(row.at(std::vector{9, 9}), &grid(9, 9));
    EXPECT_EQ(row.at(std::vector{10, 0}), nullptr);
    EXPECT_EQ(row.at(std::vector{0, 10}), nullptr);
    EXPECT_EQ(row.at(std::vector{0}), nullptr);
}

TEST(ValueRow, a_field_is_found_in_each_record) {
    CheckedArray<SliderRecord, 0, 4> records;
    const ValueRow row = fieldRow("v", "Max", records, &SliderRecord::Max);
    EXPECT_EQ(row.at(std::vector{3}), &records(3).Max);
    EXPECT_EQ(row.field, "Max");
}

TEST(ValueRow, the_colour_table_has_three_subscripts) {
    for (const ValueRow& row : allValues()) {
        if (row.name == "ColorRange") {
            for (int n = 0; n < 48; ++n) {
                const std::vector<int> place = {n / 8 + 1, n / 4 % 2 + 1, n % 4};
                EXPECT_EQ(row.at(place), &ColorRange(place[0], place[1], place[2]));
            }
            EXPECT_EQ(row.at(std::vector{0, 1, 0}), nullptr);
            EXPECT_EQ(row.at(std::vector{6, 2, 4}), nullptr);
            return;
        }
    }
    FAIL() << "there is no row ColorRange";
}

TEST(ValueRow, reset_sets_every_element_to_its_start) {
    CheckedGrid<std::int16_t, 3> grid;
    CheckedArray<SliderRecord, 0, 2> records;
    std::string words = "x";
    grid.fill(5);
    records.fill({1, 2, 3, 4});
    gridRow("v", grid).reset();
    fieldRow("v", "Max", records, &SliderRecord::Max).reset();
    valueRow("v", words).reset();
    EXPECT_TRUE(grid == (CheckedGrid<std::int16_t, 3>{}));
    EXPECT_EQ(records(2), (SliderRecord{1, 2, 0, 4}));
    EXPECT_EQ(words, "");
}

}  // namespace

}  // namespace ombrelia
