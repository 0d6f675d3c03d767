#include <gtest/gtest.h>

#include "files/formats_table.h"

namespace ombrelia {

namespace {

void writeNothing(const std::string& /*fileName*/, std::int16_t /*mapSize*/,
                  std::int16_t& /*result*/) {}

constexpr FileFormat kThree[] = {
    {"Terrain Files", ".bmp", writeNothing},
    {"Deep Terrain", ".png", writeNothing},
    {"Plain Numbers", ".raw", writeNothing},
};

TEST(Formats, a_filter_has_a_pair_for_each_format_and_ends_with_all_files) {
    EXPECT_EQ(dialogFilter(kThree),
              "Terrain Files (*.bmp)|*.bmp|Deep Terrain (*.png)|*.png|"
              "Plain Numbers (*.raw)|*.raw|All Files (*.*)|*.*");
    EXPECT_EQ(dialogFilter({}), "All Files (*.*)|*.*");
}

TEST(Formats, the_suffix_chooses_the_format_in_letters_of_any_case) {
    EXPECT_EQ(&formatOfName(kThree, "/a/b.bmp"), &kThree[0]);
    EXPECT_EQ(&formatOfName(kThree, "/a/b.png"), &kThree[1]);
    EXPECT_EQ(&formatOfName(kThree, "/a/b.pNG"), &kThree[1]);
    EXPECT_EQ(&formatOfName(kThree, "/a/B.bmp.RAW"), &kThree[2]);
}

TEST(Formats, another_name_means_the_first_format) {
    for (const char* name : {"", "png", "/a.png/b", "/a/b", "/a/b.png.txt", "b.pn", "b.png "}) {
        EXPECT_EQ(&formatOfName(kThree, name), &kThree[0]) << name;
    }
}

TEST(Formats, each_format_that_is_saved_can_be_written) {
    for (const FileFormat& format : kSavedFormats) {
        EXPECT_NE(format.write, nullptr) << format.name;
    }
}

}  // namespace

}  // namespace ombrelia
