#include <array>
#include <map>
#include <string>

#include "core/button_numbers.h"
#include "core/button_table.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "editor_fixture.h"

namespace ombrelia {

namespace {

struct TypedButton {
    int first, last;
    std::array<int, 5> fields;  // kind, latching, exclusive, group, state
};

// Every record of the editor, typed once more.
constexpr TypedButton kTypedButtons[] = {
    {0, 4, {4, -1, -1, 1, 0}},   {5, 5, {4, -1, -1, 2, 2}},   {6, 6, {4, -1, -1, 2, 0}},
    {7, 7, {4, -1, -1, 1, 2}},   {8, 10, {4, -1, -1, 1, 0}},  {11, 11, {2, 0, 0, 0, 0}},
    {12, 21, {1, 0, 0, 0, 0}},   {22, 23, {4, 0, 0, 0, 0}},   {24, 24, {5, 0, 0, 0, 0}},
    {25, 25, {6, 0, 0, 0, 0}},   {26, 27, {1, 0, 0, 0, 0}},   {28, 29, {4, -1, -1, 9, 0}},
    {30, 32, {7, -1, -1, 5, 0}}, {33, 33, {7, -1, -1, 5, 2}}, {34, 35, {7, -1, -1, 6, 0}},
    {36, 36, {7, -1, -1, 6, 2}}, {37, 37, {7, -1, -1, 6, 0}}, {38, 38, {4, -1, -1, 9, 2}},
    {40, 40, {4, -1, -1, 4, 2}}, {41, 42, {4, -1, -1, 4, 0}}, {43, 44, {4, -1, -1, 1, 0}},
    {50, 53, {4, -1, -1, 1, 0}}, {60, 61, {8, -1, 0, 0, 2}},  {62, 62, {8, -1, 0, 0, 0}},
    {63, 63, {8, -1, -1, 8, 2}}, {64, 64, {8, -1, -1, 8, 0}}, {65, 66, {8, -1, 0, 0, 2}},
    {67, 67, {8, -1, 0, 0, 0}},  {68, 68, {8, -1, 0, 0, 2}},  {69, 69, {8, -1, 0, 0, 0}},
    {70, 73, {8, -1, 0, 0, 2}},  {74, 74, {8, -1, 0, 0, 0}},
};

class ButtonTable : public EditorTest {};

TEST_F(ButtonTable, the_records_start_as_the_table_says) {
    for (const TypedButton& row : kTypedButtons) {
        for (int i = row.first; i <= row.last; ++i) {
            const ButtonRecord& record = OptionStates(i);
            const std::array<int, 5> fields = {record.Kind, record.Latching, record.Exclusive,
                                               record.Group, record.State};
            EXPECT_EQ(fields, row.fields) << i;
            EXPECT_EQ(record.SavedState, i == 38 ? 2 : 0) << i;
        }
    }
    for (const int none : {39, 45, 46, 47, 48, 49}) {
        EXPECT_EQ(OptionStates(none), ButtonRecord{}) << none;
    }
}

TEST_F(ButtonTable, the_records_beyond_74_are_those_of_the_size_dialog_alone) {
    for (int i = 75; i <= 100; ++i) {
        EXPECT_EQ(OptionStates(i), ButtonRecord{}) << i;  // the dialog was not opened here
    }
}

TEST_F(ButtonTable, each_group_starts_with_its_member) {
    const std::map<int, int> starts = {{1, 7}, {2, 5}, {4, 40}, {5, 33}, {6, 36}, {8, 63}, {9, 38}};
    for (int group = 1; group <= 30; ++group) {
        const auto found = starts.find(group);
        EXPECT_EQ(GroupCurrent(group), found == starts.end() ? 0 : found->second) << group;
    }
}

TEST_F(ButtonTable, a_second_load_brings_the_start_back) {
    for (int i = 0; i <= 74; ++i) {
        OptionStates(i).State = 1;
    }
    GroupCurrent.fill(3);
    openEditor(65);
    EXPECT_EQ(OptionStates(7).State, 2);
    EXPECT_EQ(OptionStates(8).State, 0);
    EXPECT_EQ(GroupCurrent(1), 7);
    EXPECT_EQ(GroupCurrent(3), 0);
}

TEST(ButtonRows, are_found_by_their_numbers) {
    for (const ButtonRow& row : button::kRows) {
        EXPECT_EQ(button::row(row.number), &row);
    }
    for (const int none : {-1, 39, 45, 59, 75, 100}) {
        EXPECT_EQ(button::row(none), nullptr) << none;
    }
}

}  // namespace

}  // namespace ombrelia
