#include <filesystem>
#include <gtest/gtest.h>
#include <span>
#include <string>
#include <sys/stat.h>
#include <vector>

#include "platform/failure.h"
#include "platform/whole_file.h"
#include "temp_folder.h"

namespace ombrelia {

namespace {

std::span<const std::uint8_t> wholeLetters(const std::string& text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

class WholeFileTest : public testing::Test {
  protected:
    TempFolder folder;
};

TEST_F(WholeFileTest, a_whole_file_is_there_at_once) {
    ASSERT_TRUE(makeNameless(SavePlace(folder / "a"), wholeLetters("hello")));
    EXPECT_EQ(contentOf(folder / "a"), "hello");
    EXPECT_FALSE(makeNameless(SavePlace(folder / "a"), wholeLetters("other")));
    EXPECT_EQ(contentOf(folder / "a"), "hello");
    EXPECT_FALSE(makeNameless(SavePlace(folder / "gone/a"), wholeLetters("hello")));
}

TEST_F(WholeFileTest, a_whole_file_without_room_is_a_failure_and_not_there) {
    const FileSizeLimit full(3);
    EXPECT_THROW(static_cast<void>(makeNameless(SavePlace(folder / "a"), wholeLetters("hello"))),
                 FileFailure);
    EXPECT_TRUE(folder.names().empty());
}

TEST_F(WholeFileTest, a_save_fills_a_new_name_and_an_empty_file) {
    EXPECT_TRUE(saveWholeFile(folder / "new", wholeLetters("hello")));
    EXPECT_EQ(contentOf(folder / "new"), "hello");
    writeContent(folder / "empty", "");
    EXPECT_TRUE(saveWholeFile(folder / "empty", wholeLetters("other")));
    EXPECT_EQ(contentOf(folder / "empty"), "other");
}

TEST_F(WholeFileTest, a_save_leaves_alone_what_holds_something) {
    writeContent(folder / "a", "x");
    EXPECT_FALSE(saveWholeFile(folder / "a", wholeLetters("hello")));
    EXPECT_EQ(contentOf(folder / "a"), "x");
}

TEST_F(WholeFileTest, a_save_without_room_leaves_what_was_there) {
    writeContent(folder / "empty", "");
    std::filesystem::create_symlink("end", folder / "link");
    const FileSizeLimit full(3);
    EXPECT_THROW(static_cast<void>(saveWholeFile(folder / "new", wholeLetters("hello"))),
                 FileFailure);
    EXPECT_THROW(static_cast<void>(saveWholeFile(folder / "empty", wholeLetters("hello"))),
                 FileFailure);
    EXPECT_THROW(static_cast<void>(saveWholeFile(folder / "link", wholeLetters("hello"))),
                 FileFailure);
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"empty", "link"}));
    EXPECT_EQ(contentOf(folder / "empty"), "");
}

TEST_F(WholeFileTest, a_place_is_where_the_links_lead) {
    std::filesystem::create_directory(folder / "sub");
    std::filesystem::create_symlink("sub/second", folder / "first");
    std::filesystem::create_symlink(folder / "end", folder / "sub/second");
    const SavePlace place(folder / "first");
    EXPECT_EQ(place.path, folder / "first");
    EXPECT_EQ(place.end, folder / "end");
    EXPECT_EQ(place.folder, folder / "");
    EXPECT_EQ(SavePlace("a").end, "a");
    EXPECT_EQ(SavePlace("a").folder, "./");
    EXPECT_EQ(SavePlace("/a").folder, "/");
}

TEST_F(WholeFileTest, a_folder_that_cannot_be_read_takes_a_save) {
    std::filesystem::create_directory(folder / "blind");
    ASSERT_EQ(::chmod((folder / "blind").c_str(), 0333), 0);
    {
        const OrdinaryUser user;
        EXPECT_TRUE(saveWholeFile(folder / "blind/a", wholeLetters("hello")));
    }
    EXPECT_EQ(contentOf(folder / "blind/a"), "hello");
}

}  // namespace

}  // namespace ombrelia
