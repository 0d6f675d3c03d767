#include "core/objects.h"
#include "editor_fixture.h"

namespace ombrelia {

namespace {

class Objects : public ProcessTest {};

TEST_F(Objects, each_size_has_its_suffix_and_others_have_none) {
    const struct {
        std::int16_t size;
        const char* suffix;
    } cases[] = {{65, " - Miniature Map"},
                 {129, " - Small Map"},
                 {193, " - Medium Map"},
                 {257, " - Large Map"},
                 {66, ""},
                 {0, ""}};
    for (const auto& row : cases) {
        MapSize = row.size;
        EXPECT_STREQ(sizeSuffix(), row.suffix) << row.size;
    }
}

TEST_F(Objects, a_constant_table_of_colours_reads_the_same_cells) {
    ColorTable table;
    std::int16_t value = 0;
    for (int row = 1; row <= 6; ++row) {
        for (int end = 1; end <= 2; ++end) {
            for (int component = 0; component <= 3; ++component) {
                table(row, end, component) = ++value;
            }
        }
    }
    const ColorTable& same = table;
    EXPECT_EQ(same(1, 1, 0), 1);
    EXPECT_EQ(same(1, 2, 3), 8);
    EXPECT_EQ(same(6, 1, 1), 42);
    EXPECT_EQ(same(6, 2, 3), 48);
}

}  // namespace

}  // namespace ombrelia
