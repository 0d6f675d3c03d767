#include <array>
#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

#include "platform/passing_file.h"
#include "temp_folder.h"

namespace ombrelia {

namespace {

constexpr const char* kFirstPassing = ".ombrelia-terrain-editor.saving";
constexpr const char* kSecondPassing = ".ombrelia-terrain-editor.saving2";

using FileNames = std::vector<std::string>;

class PassingFileTest : public testing::Test {
  protected:
    std::string place() const { return folder / ""; }

    TempFolder folder;
};

void writeWord(PassingFile& passing) {
    constexpr std::array<std::uint8_t, 4> kWord = {'w', 'o', 'r', 'd'};
    passing.file().write(kWord);
}

TEST_F(PassingFileTest, it_goes_unless_it_gets_its_name) {
    {
        PassingFile passing(place(), "told");
        ASSERT_TRUE(passing.isThere());
        writeWord(passing);
        EXPECT_EQ(folder.names(), FileNames{kFirstPassing});
    }
    EXPECT_TRUE(folder.names().empty());
    {
        PassingFile passing(place(), "told");
        writeWord(passing);
        EXPECT_TRUE(passing.becomeNew(folder / "a"));
    }
    EXPECT_EQ(folder.names(), FileNames{"a"});
    EXPECT_EQ(contentOf(folder / "a"), "word");
}

TEST_F(PassingFileTest, it_does_not_become_what_is_there) {
    writeContent(folder / "empty", "");
    writeContent(folder / "full", "x");
    std::filesystem::create_symlink("gone", folder / "link");
    for (const char* name : {"empty", "full", "link"}) {
        PassingFile passing(place(), "told");
        writeWord(passing);
        EXPECT_FALSE(passing.becomeNew(folder / name)) << name;
    }
    EXPECT_EQ(folder.names(), (FileNames{"empty", "full", "link"}));
    EXPECT_EQ(contentOf(folder / "empty"), "");
    EXPECT_EQ(contentOf(folder / "full"), "x");
}

TEST_F(PassingFileTest, it_takes_the_place_of_a_file) {
    writeContent(folder / "a", "");
    {
        PassingFile passing(place(), "told");
        writeWord(passing);
        EXPECT_FALSE(passing.replace(folder / "gone/a"));
        EXPECT_TRUE(passing.replace(folder / "a"));
    }
    EXPECT_EQ(folder.names(), FileNames{"a"});
    EXPECT_EQ(contentOf(folder / "a"), "word");
}

TEST_F(PassingFileTest, a_folder_that_takes_no_file_has_none) {
    EXPECT_FALSE(PassingFile(folder / "gone/", "told").isThere());
    ASSERT_EQ(::chmod(folder.path().c_str(), 0555), 0);
    const OrdinaryUser user;
    EXPECT_FALSE(PassingFile(place(), "told").isThere());
}

TEST_F(PassingFileTest, what_nobody_works_at_is_taken_away) {
    writeContent(folder / kFirstPassing, "left");
    writeContent(folder / kSecondPassing, "");
    writeContent(folder / "map.bmp", "map");
    removeLeftovers(place());
    EXPECT_EQ(folder.names(), FileNames{"map.bmp"});
}

TEST_F(PassingFileTest, one_that_has_its_name_already_is_left_whole_under_it) {
    writeContent(folder / "map.bmp", "map");
    std::filesystem::create_hard_link(folder / "map.bmp", folder / kFirstPassing);
    removeLeftovers(place());
    EXPECT_EQ(folder.names(), FileNames{"map.bmp"});
    EXPECT_EQ(contentOf(folder / "map.bmp"), "map");
}

TEST_F(PassingFileTest, what_an_editor_works_at_stays_its_own) {
    PassingFile first(place(), "told");
    writeWord(first);
    removeLeftovers(place());
    {
        PassingFile second(place(), "told");
        ASSERT_TRUE(second.isThere());
        EXPECT_FALSE(PassingFile(place(), "told").isThere());
        EXPECT_TRUE(second.becomeNew(folder / "second"));
    }
    EXPECT_EQ(folder.names(), (FileNames{kFirstPassing, "second"}));
    EXPECT_TRUE(first.becomeNew(folder / "first"));
    EXPECT_EQ(contentOf(folder / "first"), "word");
    EXPECT_EQ(contentOf(folder / "second"), "");
}

TEST_F(PassingFileTest, what_is_no_file_of_ours_stays_and_holds_nothing_up) {
    ASSERT_EQ(::mkfifo((folder / kFirstPassing).c_str(), 0666), 0);
    writeContent(folder / "a", "x");
    removeLeftovers(place());
    EXPECT_TRUE(PassingFile(place(), "told").isThere());
    std::filesystem::create_symlink("a", folder / kSecondPassing);
    removeLeftovers(place());
    EXPECT_FALSE(PassingFile(place(), "told").isThere());
    EXPECT_EQ(folder.names(), (FileNames{kFirstPassing, kSecondPassing, "a"}));
    EXPECT_EQ(contentOf(folder / "a"), "x");
}

TEST_F(PassingFileTest, it_takes_the_mode_of_a_file) {
    for (const mode_t mode : {0600U, 0640U, 0666U, 0777U}) {
        writeContent(folder / "a", "");
        ASSERT_EQ(::chmod((folder / "a").c_str(), mode), 0);
        PassingFile passing(place(), "told");
        ASSERT_TRUE(passing.takeRightsOf(BinaryFile(folder / "a")));
        ASSERT_TRUE(passing.replace(folder / "a"));
        struct stat status {};
        ASSERT_EQ(::stat((folder / "a").c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777U, mode);
    }
}

TEST_F(PassingFileTest, an_owner_that_cannot_be_given_is_told) {
    if (::geteuid() != 0) {
        GTEST_SKIP() << "another owner's file takes root to make";
    }
    writeContent(folder / "a", "");
    ASSERT_EQ(::chmod((folder / "a").c_str(), 0666), 0);
    {
        const OrdinaryUser user;
        PassingFile passing(place(), "told");
        EXPECT_FALSE(passing.takeRightsOf(BinaryFile(folder / "a")));
    }
    constexpr uid_t kOther = 65534;
    ASSERT_EQ(::chown((folder / "a").c_str(), kOther, kOther), 0);
    PassingFile passing(place(), "told");
    ASSERT_TRUE(passing.takeRightsOf(BinaryFile(folder / "a")));
    ASSERT_TRUE(passing.replace(folder / "a"));
    struct stat status {};
    ASSERT_EQ(::stat((folder / "a").c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, kOther);
    EXPECT_EQ(status.st_gid, kOther);
}

TEST_F(PassingFileTest, a_file_of_two_names_is_no_model) {
    writeContent(folder / "a", "");
    std::filesystem::create_hard_link(folder / "a", folder / "b");
    PassingFile passing(place(), "told");
    EXPECT_FALSE(passing.takeRightsOf(BinaryFile(folder / "a")));
}

TEST_F(PassingFileTest, a_list_of_those_who_may_use_it_is_no_model) {
    writeContent(folder / "a", "");
    // Version 2; owner rw, user 65534 rw, group r, mask rw, others none: tag, rights, who.
    constexpr std::array<std::uint8_t, 44> kList = {
        2, 0,    0,    0,    0x01, 0,    6,    0, 0xFF, 0xFF, 0xFF, 0xFF, 0x02, 0,    6,
        0, 0xFE, 0xFF, 0,    0,    0x04, 0,    4, 0,    0xFF, 0xFF, 0xFF, 0xFF, 0x10, 0,
        6, 0,    0xFF, 0xFF, 0xFF, 0xFF, 0x20, 0, 0,    0,    0xFF, 0xFF, 0xFF, 0xFF};
    if (::setxattr((folder / "a").c_str(), "system.posix_acl_access", kList.data(), kList.size(),
                   0) != 0) {
        ASSERT_EQ(errno, EOPNOTSUPP);
        GTEST_SKIP() << "the file system of this folder has no such lists";
    }
    PassingFile passing(place(), "told");
    EXPECT_FALSE(passing.takeRightsOf(BinaryFile(folder / "a")));
}

}  // namespace

}  // namespace ombrelia
