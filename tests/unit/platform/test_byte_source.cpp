#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <vector>

#include "platform/bmp_header.h"
#include "platform/byte_source.h"
#include "platform/failure.h"
#include "platform/surface.h"
#include "temp_folder.h"

namespace ombrelia {

namespace {

class FileSourceTest : public testing::Test {
  protected:
    static std::string refusalOf(const std::string& path) {
        try {
            const FileSource source(path);
        } catch (const PictureFailure& failure) {
            return failure.what();
        }
        return {};
    }

    static std::string refusal(const std::string& path, const std::string& reason) {
        return "The picture \"" + path + "\" could not be loaded: " + reason +
               ". The map is unharmed.";
    }

    TempFolder folder;
};

TEST_F(FileSourceTest, gives_the_bytes_of_any_place) {
    writeContent(folder / "file", "0123456789");
    FileSource source(folder / "file");
    EXPECT_EQ(source.size(), 10U);
    std::vector<std::uint8_t> bytes(4);
    source.read(3, bytes);
    EXPECT_EQ(bytes, (std::vector<std::uint8_t>{'3', '4', '5', '6'}));
    source.read(6, bytes);
    EXPECT_EQ(bytes, (std::vector<std::uint8_t>{'6', '7', '8', '9'}));
    EXPECT_THROW(source.read(7, bytes), PictureFailure);
    EXPECT_THROW(source.read(~std::uint64_t{0}, bytes), PictureFailure);
}

TEST_F(FileSourceTest, a_bitmap_is_told_by_its_first_two_bytes) {
    const auto begins = [](const std::string& text) {
        const std::vector<std::uint8_t> bytes(text.begin(), text.end());
        MemorySource source("x", bytes);
        return isBitmap(source);
    };
    EXPECT_TRUE(begins("BM"));
    EXPECT_TRUE(begins("BMxyz"));
    EXPECT_FALSE(begins("B"));
    EXPECT_FALSE(begins(""));
    EXPECT_FALSE(begins("MB"));
    EXPECT_FALSE(begins("BA"));
}

TEST_F(FileSourceTest, a_file_that_shrinks_is_cut_off) {
    writeContent(folder / "file", "0123456789");
    FileSource source(folder / "file");
    writeContent(folder / "file", "01");
    std::vector<std::uint8_t> bytes(4);
    EXPECT_THROW(source.read(0, bytes), PictureFailure);
}

TEST_F(FileSourceTest, says_why_a_file_cannot_be_read) {
    EXPECT_EQ(refusalOf(folder / "none"), refusal(folder / "none", "No such file or directory"));
    writeContent(folder / "empty", "");
    EXPECT_EQ(refusalOf(folder / "empty"), refusal(folder / "empty", "It is empty"));
    writeContent(folder / "closed", "BM");
    ASSERT_EQ(::chmod((folder / "closed").c_str(), 0), 0);
    const OrdinaryUser user;
    EXPECT_EQ(refusalOf(folder / "closed"), refusal(folder / "closed", "Permission denied"));
}

TEST_F(FileSourceTest, takes_ordinary_files_alone) {
    constexpr const char* kReason = "It is not an ordinary file";
    EXPECT_EQ(refusalOf(folder.path()), refusal(folder.path(), kReason));
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(refusalOf(folder / "pipe"), refusal(folder / "pipe", kReason));
    EXPECT_EQ(refusalOf("/dev/null"), refusal("/dev/null", kReason));
    EXPECT_EQ(refusalOf("/dev/zero"), refusal("/dev/zero", kReason));
}

TEST_F(FileSourceTest, links_and_odd_names_are_followed) {
    const std::string name = folder / "\xE5\x9C\xB0 \"quoted\" \xFF.bmp";
    writeContent(name, "BM");
    std::filesystem::create_symlink(name, folder / "link");
    EXPECT_EQ(FileSource(name).size(), 2U);
    EXPECT_EQ(FileSource(folder / "link").size(), 2U);
}

TEST(ByteStream, gives_the_bytes_in_order_however_they_are_asked_for) {
    std::vector<std::uint8_t> bytes(200'000);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<std::uint8_t>(i * 7 % 251);
    }
    MemorySource source("p", bytes);
    ByteStream stream(source, 3);
    EXPECT_EQ(stream.take(), bytes[3]);
    std::vector<std::uint8_t> next(100'000);
    stream.fill(next);
    EXPECT_TRUE(std::equal(next.begin(), next.end(), bytes.begin() + 4));
    std::size_t place = 100'004;
    while (!stream.atEnd()) {
        const auto chunk = stream.takeChunk();
        ASSERT_FALSE(chunk.empty());
        ASSERT_TRUE(std::equal(chunk.begin(), chunk.end(),
                               bytes.begin() + static_cast<std::ptrdiff_t>(place)));
        place += chunk.size();
    }
    EXPECT_EQ(place, bytes.size());
    EXPECT_TRUE(stream.takeChunk().empty());
    EXPECT_THROW(stream.take(), PictureFailure);
    EXPECT_THROW(stream.fill(next), PictureFailure);
}

}  // namespace

}  // namespace ombrelia
