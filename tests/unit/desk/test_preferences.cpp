#include <string>
#include <utility>
#include <vector>

#include "core/color_sets.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "desk/preferences.h"
#include "editor_fixture.h"

namespace ombrelia {

namespace {

constexpr int kButtons[] = {62, 63, 64, 65, 66, 67, 68, 69, 70, 71, 72, 73, 74};

// Keys in the order of loading and saving.
const std::vector<std::pair<std::string, int>> kTypedOrder = {
    {"OptCheck20to1", 68}, {"OptCheck10to1", 69}, {"OptCheck5to1", 70}, {"OptCheck2to1", 71},
    {"OptCheck1to1", 72},  {"OptHelpBox", 73},    {"OptCheckAuto", 66}, {"OptCheckUse", 67},
    {"OptUseCursors", 62}, {"OptUseSounds", 65},  {"OptUseColor", 63},  {"OptUseBW", 64},
    {"OptAdv3D", 74}};

// Keeps the order of reads and writes of the section "Settings".
class OrderedStore : public HeadlessPlatform {
  public:
    std::vector<std::string> reads;
    std::vector<std::string> writes;
    std::string read(const std::string& section, const std::string& key,
                     const std::string& ifMissing) override {
        if (section == "Settings") {
            reads.push_back(key + " " + ifMissing);
        }
        return HeadlessPlatform::read(section, key, ifMissing);
    }
    void write(const std::string& section, const std::string& key,
               const std::string& value) override {
        if (section == "Settings") {
            writes.push_back(key + " " + value);
        }
        HeadlessPlatform::write(section, key, value);
    }
};

class Preferences : public EditorTest {
  protected:
    std::string stored(const std::string& key) { return platform.Settings["Settings"][key]; }
    void store(const std::string& key, const std::string& value) {
        platform.Settings["Settings"][key] = value;
    }
    static int state(int button) { return OptionStates(button).State; }
};

TEST_F(Preferences, a_first_run_stores_defaults_and_shows_its_own_states) {
    for (const int on : {63, 65, 66, 68, 70, 71, 72, 73}) {
        EXPECT_EQ(state(on), 2) << on;
    }
    for (const int off : {62, 64, 67, 69, 74}) {
        EXPECT_EQ(state(off), 0) << off;
    }
    EXPECT_EQ(stored("OptCheck10to1"), "1");
    EXPECT_EQ(stored("SavedBefore"), "1");
    SavePreferences();
    EXPECT_EQ(stored("OptCheck10to1"), "0");
}

TEST_F(Preferences, saving_writes_in_its_order) {
    OrderedStore ordered;
    services().settings = &ordered;
    SavePreferences();
    ASSERT_EQ(ordered.writes.size(), 15U);
    EXPECT_EQ(ordered.writes[0], "SavedBefore 1");
    for (std::size_t n = 0; n < kTypedOrder.size(); ++n) {
        const auto& [key, button] = kTypedOrder[n];
        EXPECT_EQ(ordered.writes[n + 1], key + (state(button) == 2 ? " 1" : " 0"));
    }
    EXPECT_EQ(ordered.writes[14], "ColorPalCurrent Colors Current Colors");
}

TEST_F(Preferences, loading_reads_in_its_order_with_1_for_what_is_missing) {
    OrderedStore ordered;
    ordered.Settings["ColorPalCurrent Colors"] = {{"111", "5"}};
    services().settings = &ordered;
    LoadPreferences();
    ASSERT_EQ(ordered.reads.size(), 13U);
    for (std::size_t n = 0; n < kTypedOrder.size(); ++n) {
        EXPECT_EQ(ordered.reads[n], kTypedOrder[n].first + " 1");
    }
    for (const int button : kButtons) {
        EXPECT_EQ(state(button), 2) << button;
    }
    EXPECT_EQ(ColorRange(1, 1, 1), 5);
}

TEST_F(Preferences, every_state_comes_back) {
    for (const int on : kButtons) {
        for (const int button : kButtons) {
            OptionStates(button).State = button == on ? 2 : 0;
        }
        SavePreferences();
        for (const int button : kButtons) {
            OptionStates(button).State = 1;
        }
        LoadPreferences();
        for (const int button : kButtons) {
            EXPECT_EQ(state(button), button == on ? 2 : 0) << on << ' ' << button;
            EXPECT_EQ(Form1.NTool(button).Face.face, state(button));
        }
    }
}

TEST_F(Preferences, a_box_under_the_pointer_goes_out_as_on) {
    OptionStates(67).State = 1;
    SavePreferences();
    EXPECT_EQ(stored("OptCheckUse"), "1");
    LoadPreferences();
    EXPECT_EQ(state(67), 2);
}

TEST_F(Preferences, state_78_passes_through_both_ways) {
    store("OptCheckUse", "78");
    LoadPreferences();
    EXPECT_EQ(state(67), 78);
    EXPECT_TRUE(platform.Failures.empty());
    SavePreferences();
    EXPECT_EQ(stored("OptCheckUse"), "78");
}

TEST_F(Preferences, odd_texts_are_rounded_or_0) {
    const struct {
        const char* text;
        int state;
    } rows[] = {{"12abc", 0}, {"", 0},      {"1.0", 2}, {" 1 ", 2}, {"1.5", 2},
                {"2.5", 2},   {"0.5", 0},   {"-1", -1}, {"nan", 0}, {"1e3", 1000},
                {"2", 2},     {"70000", 0}, {"yes", 0}};
    for (const auto& row : rows) {
        store("OptAdv3D", row.text);
        LoadPreferences();
        EXPECT_EQ(state(74), row.state) << row.text;
    }
}

TEST_F(Preferences, the_group_of_the_cursor_colours_is_not_touched) {
    store("OptUseColor", "0");
    store("OptUseBW", "1");
    LoadPreferences();
    EXPECT_EQ(GroupCurrent(8), 63);
    EXPECT_EQ(state(63), 0);
    EXPECT_EQ(state(64), 2);
    store("OptUseColor", "1");
    LoadPreferences();
    EXPECT_EQ(state(63), 2);
    EXPECT_EQ(state(64), 2);
}

TEST_F(Preferences, two_readouts_follow_their_sliders) {
    SliderValues(4).Value = 7;
    SliderValues(5).Value = 10;
    SliderValues(9).Value = 12;
    LoadPreferences();
    EXPECT_EQ(Form1.Readout(4).Caption, "7");
    EXPECT_EQ(Form1.Readout(5).Caption, "10");
    EXPECT_EQ(Form1.Readout(9).Caption, "1");
    EXPECT_NEAR(Form1.VertScroller(5).Left,
                Form1.VertFiller(5).Left + Form1.VertFiller(5).Width - Form1.VertScroller(5).Width,
                1e-4);
}

TEST_F(Preferences, working_colours_without_any_value_reset_the_store_and_not_the_states) {
    platform.Settings.clear();
    store("OptCheckUse", "1");
    LoadPreferences();
    EXPECT_EQ(stored("OptCheckUse"), "0");
    EXPECT_EQ(state(67), 0);  // read after the reset
    EXPECT_EQ(state(69), 2);
    EXPECT_TRUE(ColorRange == ColorTable{});
}

TEST_F(Preferences, resetting_leaves_the_states_in_memory) {
    OptionStates(69).State = 0;
    ResetPreferences();
    EXPECT_EQ(state(69), 0);
    EXPECT_EQ(stored("OptCheck10to1"), "1");
}

}  // namespace

}  // namespace ombrelia
