#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>

#include "platform/binary_file.h"
#include "platform/failure.h"
#include "temp_folder.h"

namespace ombrelia {

namespace {

std::span<const std::uint8_t> letters(const std::string& text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

// What opening says.
std::string wordsOf(const std::string& path) {
    try {
        const BinaryFile file(path);
        return "no failure";
    } catch (const FileFailure& failure) {
        return failure.what();
    }
}

std::string words(const std::string& path, const std::string& reason) {
    return "The file \"" + path + "\" could not be saved: " + reason + ". The map is unharmed.";
}

class BinaryFileTest : public testing::Test {
  protected:
    TempFolder folder;
};

TEST_F(BinaryFileTest, a_missing_file_is_made_and_new) {
    BinaryFile file(folder / "a");
    EXPECT_TRUE(file.isNew());
    EXPECT_EQ(file.length(), 0U);
    file.write(letters("hello"));
    EXPECT_EQ(file.length(), 5U);
    file.close();
    file.close();
    EXPECT_EQ(contentOf(folder / "a"), "hello");
}

TEST_F(BinaryFileTest, an_existing_file_keeps_its_bytes) {
    writeContent(folder / "a", "12345678");
    BinaryFile file(folder / "a");
    EXPECT_FALSE(file.isNew());
    EXPECT_EQ(file.length(), 8U);
    file.write(letters("ab"));
    file.close();
    EXPECT_EQ(contentOf(folder / "a"), "ab345678");
}

TEST_F(BinaryFileTest, an_empty_file_is_not_new) {
    writeContent(folder / "a", "");
    const BinaryFile file(folder / "a");
    EXPECT_FALSE(file.isNew());
    EXPECT_EQ(file.length(), 0U);
}

TEST_F(BinaryFileTest, what_is_no_ordinary_file_is_refused_at_once) {
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0666), 0);
    const std::string reason = "It is not an ordinary file";
    EXPECT_EQ(wordsOf(folder / "pipe"), words(folder / "pipe", reason));
    EXPECT_EQ(wordsOf("/dev/full"), words("/dev/full", reason));
    EXPECT_EQ(wordsOf("/dev/null"), words("/dev/null", reason));
    EXPECT_EQ(wordsOf(folder.path()), words(folder.path(), std::strerror(EISDIR)));
}

TEST_F(BinaryFileTest, the_systems_reason_is_named) {
    EXPECT_EQ(wordsOf(folder / "gone/a"), words(folder / "gone/a", std::strerror(ENOENT)));
    EXPECT_EQ(wordsOf(""), words("", std::strerror(ENOENT)));
    writeContent(folder / "file", "x");
    EXPECT_EQ(wordsOf(folder / "file/a"), words(folder / "file/a", std::strerror(ENOTDIR)));
    ASSERT_EQ(::chmod((folder / "file").c_str(), 0444), 0);
    const OrdinaryUser user;
    EXPECT_EQ(wordsOf(folder / "file"), words(folder / "file", std::strerror(EACCES)));
}

TEST_F(BinaryFileTest, a_write_that_stops_half_way_is_a_failure) {
    const FileSizeLimit full(3);
    BinaryFile file(folder / "a");
    EXPECT_THROW(file.write(letters("hello")), FileFailure);
    EXPECT_EQ(file.length(), 3U);
}

TEST_F(BinaryFileTest, nothing_to_write_writes_nothing) {
    const FileSizeLimit full(0);
    BinaryFile file(folder / "a");
    file.write({});
    EXPECT_EQ(file.length(), 0U);
}

TEST_F(BinaryFileTest, a_flush_that_fails_is_told) {
    BinaryFile closed(folder / "a", -1);
    EXPECT_THROW(closed.flush(), FileFailure);
    EXPECT_THROW(closed.flushAll(), FileFailure);
}

TEST_F(BinaryFileTest, what_knows_no_flush_is_not_flushed) {
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0666), 0);
    BinaryFile pipe(folder / "pipe", ::open((folder / "pipe").c_str(), O_RDWR | O_CLOEXEC));
    EXPECT_NO_THROW(pipe.flush());
}

TEST_F(BinaryFileTest, undoing_removes_a_new_file_and_empties_an_old_one) {
    writeContent(folder / "new", "x");
    writeContent(folder / "old", "x");
    undoCreation(folder / "new", true);
    undoCreation(folder / "old", false);
    EXPECT_EQ(folder.names(), std::vector<std::string>{"old"});
    EXPECT_EQ(contentOf(folder / "old"), "");
    undoCreation(folder / "gone", true);
    undoCreation(folder / "gone", false);
    EXPECT_EQ(folder.names(), std::vector<std::string>{"old"});
}

TEST_F(BinaryFileTest, the_file_behind_a_loose_link_is_new_and_can_be_undone) {
    std::filesystem::create_symlink("end", folder / "link");
    {
        const BinaryFile first(folder / "link");
        EXPECT_TRUE(first.isNew());
        const BinaryFile second(folder / "link");
        EXPECT_FALSE(second.isNew());
    }
    undoCreation(folder / "link", true);
    EXPECT_EQ(folder.names(), std::vector<std::string>{"link"});
}

}  // namespace

}  // namespace ombrelia
