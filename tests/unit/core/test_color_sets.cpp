#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "core/color_sets.h"
#include "core/color_sets_table.h"
#include "core/objects.h"
#include "editor_fixture.h"

namespace ombrelia {

namespace {

struct Write {
    std::string section, key, value;
    bool operator==(const Write&) const = default;
};

// Keeps every write in its order.
class RecordingStore : public HeadlessPlatform {
  public:
    std::vector<Write> writes;
    void write(const std::string& section, const std::string& key,
               const std::string& value) override {
        writes.push_back({section, key, value});
        HeadlessPlatform::write(section, key, value);
    }
};

class ColorSets : public ProcessTest {
  protected:
    ColorSets() {
        services().settings = &store;
        fillDefaultColors();
    }

    std::string stored(const std::string& set, const std::string& key) {
        return store.read("ColorPal" + set, key, "missing");
    }

    RecordingStore store;
};

// The 48 keys, typed by digits.
std::vector<std::string> typedKeys() {
    std::vector<std::string> keys;
    for (const char row : std::string("123456")) {
        for (const char end : std::string("12")) {
            for (const char component : std::string("0123")) {
                keys.push_back({row, end, component});
            }
        }
    }
    return keys;
}

TEST_F(ColorSets, a_set_is_written_key_by_key_and_then_indexed) {
    SaveColorSet("My Set");
    const auto keys = typedKeys();
    ASSERT_EQ(store.writes.size(), 49U);
    for (std::size_t n = 0; n < 48; ++n) {
        EXPECT_EQ(store.writes[n].section, "ColorPalMy Set");
        EXPECT_EQ(store.writes[n].key, keys[n]);
    }
    EXPECT_EQ(store.writes[0].key, "110");
    EXPECT_EQ(store.writes[47].key, "623");
    EXPECT_EQ(store.writes[48], (Write{"Settings", "ColorPalMy Set", "My Set"}));
    EXPECT_EQ(stored("My Set", "113"), "150");
    EXPECT_EQ(stored("My Set", "120"), "30");
    EXPECT_EQ(stored("My Set", "211"), "191");
    EXPECT_EQ(stored("My Set", "623"), "231");
}

TEST_F(ColorSets, a_saved_set_comes_back) {
    for (int n = 0; n < 48; ++n) {
        ColorRange.data()[n] = static_cast<std::int16_t>(n * 5 - 20);
    }
    const ColorTable saved = ColorRange;
    SaveColorSet("\u0411[/]\n");
    fillDefaultColors();
    LoadColorSet("\u0411[/]\n");
    EXPECT_TRUE(ColorRange == saved);
}

TEST_F(ColorSets, the_table_is_kept_with_the_row_fastest) {
    ColorRange = {};
    ColorRange(2, 1, 0) = 1;
    ColorRange(1, 2, 0) = 2;
    ColorRange(1, 1, 1) = 3;
    ColorRange(6, 2, 3) = 4;
    EXPECT_EQ(ColorRange.data()[1], 1);
    EXPECT_EQ(ColorRange.data()[6], 2);
    EXPECT_EQ(ColorRange.data()[12], 3);
    EXPECT_EQ(ColorRange.data()[47], 4);
}

TEST_F(ColorSets, what_is_missing_or_no_number_reads_as_0) {
    store.Settings["ColorPalodd"] = {{"110", "12abc"}, {"111", "2.5"}, {"112", " 7 "},
                                     {"113", "-3"},    {"623", "1e2"}, {"622", "99999"}};
    LoadColorSet("odd");
    EXPECT_EQ(ColorRange(1, 1, 0), 0);
    EXPECT_EQ(ColorRange(1, 1, 1), 2);
    EXPECT_EQ(ColorRange(1, 1, 2), 7);
    EXPECT_EQ(ColorRange(1, 1, 3), -3);
    EXPECT_EQ(ColorRange(6, 2, 3), 100);
    EXPECT_EQ(ColorRange(6, 2, 2), 0);
    EXPECT_EQ(ColorRange(3, 1, 1), 0);
    EXPECT_TRUE(store.writes.empty());
}

TEST_F(ColorSets, a_fraction_that_rounds_to_0_still_counts_as_a_colour) {
    store.Settings["ColorPalfaint"] = {{"412", "0.4"}};
    LoadColorSet("faint");
    EXPECT_TRUE(ColorRange == ColorTable{});
    EXPECT_TRUE(store.writes.empty());
}

TEST_F(ColorSets, a_set_of_zeros_resets_everything_with_zeros) {
    LoadColorSet("nowhere");
    EXPECT_TRUE(ColorRange == ColorTable{});
    EXPECT_EQ(stored("Current Colors", "113"), "0");
    EXPECT_EQ(stored("Default", "113"), "0");
    EXPECT_EQ(stored("Earth", "113"), "150");
    EXPECT_EQ(store.read("Settings", "SavedBefore", ""), "1");
}

TEST_F(ColorSets, the_defaults_of_a_first_run_are_written_in_order) {
    ResetPreferences();
    std::vector<Write> expected = {
        {"Settings", "SavedBefore", "1"},   {"Settings", "OptCheck20to1", "1"},
        {"Settings", "OptCheck10to1", "1"}, {"Settings", "OptCheck5to1", "1"},
        {"Settings", "OptCheck2to1", "1"},  {"Settings", "OptCheck1to1", "1"},
        {"Settings", "OptCheckAuto", "1"},  {"Settings", "OptCheckUse", "0"},
        {"Settings", "OptUseCursors", "0"}, {"Settings", "OptUseColor", "1"},
        {"Settings", "OptUseBW", "0"},      {"Settings", "OptUseSounds", "1"},
        {"Settings", "OptHelpBox", "1"},    {"Settings", "OptAdv3D", "0"}};
    ASSERT_EQ(store.writes.size(), expected.size() + 9 * 49);
    EXPECT_TRUE(std::equal(expected.begin(), expected.end(), store.writes.begin()));
    const char* sets[] = {"Current Colors", "Default",   "Earth",     "Rainbow",     "Grayscale",
                          "Redscale",       "Valentine", "The Blues", "Height Chart"};
    for (std::size_t n = 0; n < 9; ++n) {
        const Write& first = store.writes[expected.size() + 49 * n];
        const Write& index = store.writes[expected.size() + 49 * n + 48];
        EXPECT_EQ(first.section, std::string("ColorPal") + sets[n]);
        EXPECT_EQ(first.key, "110");
        EXPECT_EQ(index, (Write{"Settings", std::string("ColorPal") + sets[n], sets[n]}));
    }
}

TEST_F(ColorSets, the_built_in_sets_leave_the_table_alone) {
    ColorRange(1, 1, 1) = 77;
    const ColorTable before = ColorRange;
    WriteDefaultColorSets();
    EXPECT_TRUE(ColorRange == before);
    EXPECT_EQ(stored("Default", "111"), "77");
    EXPECT_EQ(stored("Earth", "111"), "0");
    EXPECT_EQ(store.writes.size(), 8U * 49U);
}

struct TypedRow {
    const char* set;
    int row;
    std::array<int, 8> fields;
};

// Rows typed once more, two or more of each set.
constexpr TypedRow kTyped[] = {
    {"Default", 1, {0, 0, 0, 150, 30, 0, 0, 255}},
    {"Default", 2, {31, 191, 191, 175, 34, 134, 161, 107}},
    {"Default", 3, {35, 134, 161, 107, 92, 177, 194, 129}},
    {"Default", 4, {93, 177, 194, 129, 195, 164, 141, 104}},
    {"Default", 5, {196, 164, 141, 104, 239, 130, 120, 101}},
    {"Default", 6, {240, 130, 120, 101, 255, 236, 234, 231}},
    {"Earth", 2, {31, 255, 255, 164, 32, 0, 255, 0}},
    {"Earth", 3, {33, 0, 255, 0, 98, 181, 141, 4}},
    {"Earth", 4, {99, 181, 141, 4, 249, 239, 239, 239}},
    {"Earth", 6, {252, 239, 239, 239, 255, 239, 239, 239}},
    {"Rainbow", 1, {0, 255, 0, 0, 30, 255, 128, 0}},
    {"Rainbow", 2, {31, 255, 128, 64, 45, 255, 255, 0}},
    {"Rainbow", 5, {156, 0, 0, 255, 210, 255, 0, 128}},
    {"Rainbow", 6, {211, 255, 0, 128, 255, 128, 0, 128}},
    {"Grayscale", 1, {0, 0, 0, 0, 30, 47, 47, 47}},
    {"Grayscale", 2, {31, 47, 47, 47, 243, 255, 255, 255}},
    {"Grayscale", 6, {253, 255, 255, 255, 255, 255, 255, 255}},
    {"Redscale", 2, {31, 47, 0, 0, 243, 255, 0, 0}},
    {"Redscale", 4, {247, 255, 0, 0, 249, 255, 0, 0}},
    {"Valentine", 2, {31, 255, 128, 255, 61, 255, 0, 0}},
    {"Valentine", 4, {137, 255, 0, 255, 185, 255, 0, 0}},
    {"Valentine", 6, {225, 255, 0, 128, 255, 255, 0, 0}},
    {"The Blues", 2, {31, 0, 0, 255, 63, 0, 0, 0}},
    {"The Blues", 4, {118, 128, 128, 255, 170, 0, 0, 0}},
    {"The Blues", 6, {227, 0, 255, 255, 255, 0, 0, 0}},
    {"Height Chart", 1, {0, 12, 4, 159, 30, 0, 0, 255}},
    {"Height Chart", 4, {157, 255, 128, 0, 226, 255, 0, 0}},
    {"Height Chart", 6, {249, 192, 192, 192, 255, 255, 255, 255}},
};

TEST_F(ColorSets, built_in_rows_are_as_typed_once_more) {
    WriteDefaultColorSets();
    for (const TypedRow& row : kTyped) {
        LoadColorSet(row.set);
        for (int n = 0; n < 8; ++n) {
            EXPECT_EQ(ColorRange(row.row, n / 4 + 1, n % 4),
                      row.fields[static_cast<std::size_t>(n)])
                << row.set << ' ' << row.row << ' ' << n;
        }
    }
}

TEST_F(ColorSets, built_in_sets_are_well_formed) {
    for (const BuiltInColorSet& set : kBuiltInColorSets) {
        EXPECT_EQ(set.value(1, 1, 0), 0) << set.name;
        EXPECT_EQ(set.value(6, 2, 0), 255) << set.name;
        for (int row = 1; row <= 5; ++row) {
            EXPECT_EQ(set.value(row, 2, 0) + 1, set.value(row + 1, 1, 0)) << set.name;
        }
    }
}

TEST(StoredNumber, reads_whole_numbers_and_reals) {
    EXPECT_EQ(storedNumber("0"), 0);
    EXPECT_EQ(storedNumber("78"), 78);
    EXPECT_EQ(storedNumber("-5"), -5);
    EXPECT_EQ(storedNumber("+5"), 5);
    EXPECT_EQ(storedNumber(" 7 "), 7);
    EXPECT_EQ(storedNumber("\t7"), 7);
    EXPECT_EQ(storedNumber("1e3"), 1000);
    EXPECT_EQ(storedNumber("2.5"), 2.5);
    EXPECT_EQ(storedNumber(".5"), 0.5);
}

TEST(StoredNumber, is_0_for_what_is_no_number_as_a_whole) {
    for (const char* text : {"", " ", "12abc", "abc", "nan", "inf", "-inf", "1e999", "0x10", "1,5",
                             "1 2", "--5", "+-5", "++5", "+", "-", "1e", "\u0663"}) {
        EXPECT_EQ(storedNumber(text), 0) << text;
    }
}

TEST(StoredNumber, goes_into_16_bits_or_is_0) {
    EXPECT_EQ(storedInt16(2.5), 2);
    EXPECT_EQ(storedInt16(-1.5), -2);
    EXPECT_EQ(storedInt16(32767), 32767);
    EXPECT_EQ(storedInt16(-32768), -32768);
    EXPECT_EQ(storedInt16(32767.49), 32767);
    EXPECT_EQ(storedInt16(32767.5), 0);
    EXPECT_EQ(storedInt16(32767.55), 0);
    EXPECT_EQ(storedInt16(-32768.5), -32768);
    EXPECT_EQ(storedInt16(-32768.55), 0);
    EXPECT_EQ(storedInt16(40000), 0);
    EXPECT_EQ(storedInt16(-1e300), 0);
}

}  // namespace

}  // namespace ombrelia
