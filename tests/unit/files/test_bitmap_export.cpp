#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <vector>

#include "core/objects.h"
#include "editor_fixture.h"
#include "files/bitmap_export.h"
#include "files/save_command.h"
#include "platform/dispatch.h"
#include "platform/failure.h"
#include "temp_folder.h"

namespace ombrelia {

namespace {

using Bytes = std::vector<int>;

struct SizeCase {
    int mapSize;
    int rowBytes;
    int fileBytes;
    Bytes fileSizeField;
    Bytes widthField;
    Bytes imageSizeField;
};

const std::vector<SizeCase>& sizeCases() {
    static const std::vector<SizeCase> cases = {
        {65, 68, 5498, {0x7A, 0x15, 0, 0}, {0x41, 0, 0, 0}, {0x44, 0x11, 0, 0}},
        {129, 132, 18106, {0xBA, 0x46, 0, 0}, {0x81, 0, 0, 0}, {0x84, 0x42, 0, 0}},
        {193, 196, 38906, {0xFA, 0x97, 0, 0}, {0xC1, 0, 0, 0}, {0xC4, 0xC5, 0, 0}},
        {257, 260, 67898, {0x3A, 0x09, 1, 0}, {0x01, 1, 0, 0}, {0x04, 0x05, 1, 0}},
    };
    return cases;
}

// The header typed byte by byte.
std::string typedHeader(const SizeCase& size) {
    const std::vector<Bytes> fields = {
        {'B', 'M'},
        size.fileSizeField,
        {0, 0, 0, 0},
        {0x36, 0x04, 0, 0},
        {0x28, 0, 0, 0},
        size.widthField,
        size.widthField,
        {1, 0},
        {8, 0},
        {0, 0, 0, 0},
        size.imageSizeField,
        {0xC4, 0x0E, 0, 0},
        {0xC4, 0x0E, 0, 0},
        {0, 0, 0, 0},
        {0, 0, 0, 0},
    };
    std::string header;
    for (const Bytes& field : fields) {
        for (const int byte : field) {
            header += static_cast<char>(byte);
        }
    }
    for (int i = 0; i < 256; ++i) {
        header.append(3, static_cast<char>(i));
        header += '\0';
    }
    return header;
}

// A terrain of every height in which no two neighbouring rows or columns are alike.
void fillTellingTerrain() {
    for (int y = 0; y <= 257; ++y) {
        for (int x = 0; x <= 257; ++x) {
            HeightMap(x, y) = static_cast<std::int16_t>((x * 3 + y * 31 + x * y / 7) % 256);
        }
    }
}

std::string typedFile(const SizeCase& size) {
    std::string file = typedHeader(size);
    for (int y = size.mapSize - 1; y >= 0; --y) {
        for (int x = 0; x < size.mapSize; ++x) {
            file += static_cast<char>(HeightMap(x, y) < 0 ? 0 : HeightMap(x, y));
        }
        file += std::string(3, '\0');
    }
    return file;
}

// What a command prints.
std::string outputOf(const std::string& command) {
    std::string output;
    FILE* pipe = ::popen(command.c_str(), "r");
    if (pipe == nullptr) {
        return output;
    }
    char buffer[4096];
    for (std::size_t got = 0; (got = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;) {
        output.append(buffer, got);
    }
    EXPECT_EQ(::pclose(pipe), 0) << command;
    return output;
}

class BitmapExport : public ProcessTest {
  protected:
    BitmapExport() { MapSize = 65; }

    // The command "Save" as an event, with this answer in its dialog.
    void save(const std::string& path) {
        platform.SaveAnswers.push_back(path);
        runHandler(SaveCommand);
    }

    // A save to this path fails with this reason, says so once and harms nothing.
    void expectFailure(const std::string& path, const std::string& reason) {
        SCOPED_TRACE(path);
        const HeightGrid before = HeightMap;
        platform.Failures.clear();
        save(path);
        ASSERT_EQ(platform.Failures.size(), 1U);
        const std::string& words = platform.Failures.front();
        EXPECT_EQ(words, "The file \"" + path + "\" could not be saved: " + reason +
                             ". The map is unharmed.");
        EXPECT_TRUE(HeightMap == before);
    }

    // And the next save, elsewhere, works.
    void expectNextSaveWorks() {
        platform.Failures.clear();
        const std::string path = folder / "next.bmp";
        save(path);
        EXPECT_TRUE(platform.Failures.empty());
        EXPECT_TRUE(contentOf(path) == typedFile(sizeCases().front()));
        std::filesystem::remove(path);
    }

    TempFolder folder;
};

TEST_F(BitmapExport, the_header_of_each_size_is_the_fixed_template) {
    for (const SizeCase& size : sizeCases()) {
        std::string header = "something of before";
        BuildBitmapHeader(header, static_cast<std::int16_t>(size.mapSize));
        EXPECT_EQ(header.size(), 1078U);
        EXPECT_TRUE(header == typedHeader(size)) << size.mapSize;
    }
}

TEST_F(BitmapExport, the_193_header_keeps_its_odd_image_size) {
    std::string header;
    BuildBitmapHeader(header, 193);
    EXPECT_EQ(header.substr(34, 4), std::string("\xC4\xC5\0\0", 4));
    EXPECT_EQ(header.substr(2, 4), std::string("\xFA\x97\0\0", 4));
}

TEST_F(BitmapExport, another_size_has_a_header_without_the_parts_that_depend_on_it) {
    std::string header;
    BuildBitmapHeader(header, 100);
    const SizeCase none = {100, 0, 0, {0, 0, 0, 0}, {0, 0, 0, 0}, {0, 0, 0, 0}};
    EXPECT_TRUE(header == typedHeader(none));
}

TEST_F(BitmapExport, the_file_of_each_size_is_right_to_the_byte) {
    fillTellingTerrain();
    for (const SizeCase& size : sizeCases()) {
        MapSize = static_cast<std::int16_t>(size.mapSize);
        const std::string path = folder / std::to_string(size.mapSize);
        save(path);
        const std::string content = contentOf(path);
        EXPECT_EQ(content.size(), static_cast<std::size_t>(size.fileBytes));
        EXPECT_TRUE(content == typedFile(size)) << size.mapSize;
    }
    EXPECT_TRUE(platform.Failures.empty());
}

TEST_F(BitmapExport, two_foreign_programs_read_the_same_map) {
    fillTellingTerrain();
    for (const SizeCase& size : sizeCases()) {
        MapSize = static_cast<std::int16_t>(size.mapSize);
        const std::string path = folder / ("map" + std::to_string(size.mapSize) + ".bmp");
        save(path);
        std::string map;
        for (int y = 0; y < size.mapSize; ++y) {
            for (int x = 0; x < size.mapSize; ++x) {
                map += static_cast<char>(HeightMap(x, y));
            }
        }
        const std::string side = std::to_string(size.mapSize);
        EXPECT_TRUE(
            outputOf(std::string(IMAGEMAGICK_CONVERT) + " '" + path + "' -depth 8 gray:-") == map)
            << side;
        EXPECT_TRUE(outputOf(std::string(NETPBM_BMPTOPNM) + " -quiet '" + path + "'") ==
                    "P5\n" + side + " " + side + "\n255\n" + map)
            << side;
    }
}

TEST_F(BitmapExport, the_first_cell_lands_in_the_last_row) {
    HeightMap(0, 0) = 255;
    save(folder / "a.bmp");
    const std::string content = contentOf(folder / "a.bmp");
    EXPECT_EQ(content[5498 - 68], '\xFF');
    EXPECT_EQ(content[5498 - 68 + 65], '\0');
    EXPECT_EQ(std::count(content.begin() + 1078, content.end(), '\xFF'), 1);
}

TEST_F(BitmapExport, points_from_the_map_size_on_are_not_written) {
    HeightMap(65, 10) = 99;
    HeightMap(10, 65) = 99;
    save(folder / "a.bmp");
    const std::string content = contentOf(folder / "a.bmp");
    EXPECT_EQ(std::count(content.begin() + 1078, content.end(), '\x63'), 0);
}

TEST_F(BitmapExport, a_negative_height_is_written_as_0) {
    HeightMap.fill(7);
    HeightMap(0, 64) = -1;
    HeightMap(1, 64) = -300;
    save(folder / "a.bmp");
    EXPECT_EQ(contentOf(folder / "a.bmp").substr(1078, 3), std::string("\0\0\7", 3));
    EXPECT_EQ(HeightMap(0, 64), -1);
}

TEST_F(BitmapExport, a_second_save_changes_nothing) {
    HeightMap.fill(50);
    save(folder / "a.bmp");
    const std::string first = contentOf(folder / "a.bmp");
    HeightMap.fill(60);
    save(folder / "a.bmp");
    EXPECT_TRUE(contentOf(folder / "a.bmp") == first);
    EXPECT_TRUE(platform.Failures.empty());
    std::int16_t result = 0;
    WriteTerrainBitmap(folder / "a.bmp", 65, result);
    EXPECT_EQ(result, 1);
    EXPECT_TRUE(contentOf(folder / "a.bmp") == first);
}

TEST_F(BitmapExport, a_file_of_one_byte_is_left_alone) {
    writeContent(folder / "a.bmp", "x");
    save(folder / "a.bmp");
    EXPECT_EQ(contentOf(folder / "a.bmp"), "x");
}

TEST_F(BitmapExport, an_existing_empty_file_is_filled) {
    writeContent(folder / "a.bmp", "");
    std::int16_t result = 5;
    WriteTerrainBitmap(folder / "a.bmp", 65, result);
    EXPECT_EQ(result, 5);
    EXPECT_TRUE(contentOf(folder / "a.bmp") == typedFile(sizeCases().front()));
}

TEST_F(BitmapExport, names_of_every_kind_are_used_as_they_stand) {
    const std::vector<std::string> names = {"no ending", " a name  with blanks.bmp",
                                            "\u5C71\u8108 \u0433\u043E\u0440\u044B.bmp",
                                            "a'b\"c.txt", "line\nbreak"};
    for (const std::string& name : names) {
        save(folder / name);
        EXPECT_TRUE(contentOf(folder / name) == typedFile(sizeCases().front())) << name;
    }
    EXPECT_EQ(folder.names().size(), names.size());
}

TEST_F(BitmapExport, a_save_does_not_yield_and_leaves_the_map) {
    fillTellingTerrain();
    const HeightGrid before = HeightMap;
    save(folder / "a.bmp");
    EXPECT_EQ(yieldCount(), 0);
    EXPECT_TRUE(HeightMap == before);
}

TEST_F(BitmapExport, a_link_leads_to_the_place_that_it_names) {
    std::filesystem::create_symlink("target.bmp", folder / "link.bmp");
    save(folder / "link.bmp");
    EXPECT_TRUE(contentOf(folder / "target.bmp") == typedFile(sizeCases().front()));
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link.bmp"));
    const std::string first = contentOf(folder / "target.bmp");
    HeightMap.fill(3);
    save(folder / "link.bmp");
    EXPECT_TRUE(contentOf(folder / "target.bmp") == first);
    EXPECT_TRUE(platform.Failures.empty());
}

TEST_F(BitmapExport, a_missing_folder_is_reported_and_not_made) {
    expectFailure(folder / "gone/a.bmp", std::strerror(ENOENT));
    EXPECT_TRUE(folder.names().empty());
    expectNextSaveWorks();
}

TEST_F(BitmapExport, a_folder_in_the_place_of_the_file_is_reported) {
    std::filesystem::create_directory(folder / "a.bmp");
    expectFailure(folder / "a.bmp", std::strerror(EISDIR));
    expectFailure(folder / "new.bmp/", std::strerror(EISDIR));
    EXPECT_EQ(folder.names(), std::vector<std::string>{"a.bmp"});
    expectNextSaveWorks();
}

TEST_F(BitmapExport, a_file_in_the_place_of_the_folder_is_reported) {
    writeContent(folder / "file", "");
    expectFailure(folder / "file/a.bmp", std::strerror(ENOTDIR));
    EXPECT_EQ(contentOf(folder / "file"), "");
    expectNextSaveWorks();
}

TEST_F(BitmapExport, a_name_that_is_too_long_is_reported) {
    expectFailure(folder / std::string(300, 'a'), std::strerror(ENAMETOOLONG));
    EXPECT_TRUE(folder.names().empty());
    expectNextSaveWorks();
}

TEST_F(BitmapExport, a_link_to_itself_is_reported) {
    std::filesystem::create_symlink("a.bmp", folder / "a.bmp");
    expectFailure(folder / "a.bmp", std::strerror(ELOOP));
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "a.bmp"));
    expectNextSaveWorks();
}

TEST_F(BitmapExport, a_read_only_folder_is_reported) {
    std::filesystem::create_directory(folder / "locked");
    ASSERT_EQ(::chmod((folder / "locked").c_str(), 0555), 0);
    {
        const OrdinaryUser user;
        expectFailure(folder / "locked/a.bmp", std::strerror(EACCES));
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder / "locked"));
    expectNextSaveWorks();
}

TEST_F(BitmapExport, a_read_only_empty_file_is_reported_and_stays) {
    writeContent(folder / "a.bmp", "");
    ASSERT_EQ(::chmod((folder / "a.bmp").c_str(), 0444), 0);
    {
        const OrdinaryUser user;
        expectFailure(folder / "a.bmp", std::strerror(EACCES));
    }
    EXPECT_EQ(contentOf(folder / "a.bmp"), "");
    expectNextSaveWorks();
}

TEST_F(BitmapExport, a_pipe_or_a_device_is_reported_and_stays) {
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0666), 0);
    expectFailure(folder / "pipe", "It is not an ordinary file");
    expectFailure("/dev/full", "It is not an ordinary file");
    EXPECT_TRUE(std::filesystem::is_fifo(folder / "pipe"));
    expectNextSaveWorks();
}

// The first byte, the header, the first rows, the last byte.
const std::vector<std::uint64_t> kLimits = {0, 1, 54, 1078, 1079, 1200, 5497};

TEST_F(BitmapExport, a_new_file_that_cannot_be_finished_is_removed) {
    for (const std::uint64_t limit : kLimits) {
        {
            const FileSizeLimit full(limit);
            expectFailure(folder / "a.bmp", std::strerror(EFBIG));
        }
        EXPECT_TRUE(folder.names().empty()) << limit;
        expectNextSaveWorks();
    }
}

TEST_F(BitmapExport, an_empty_file_that_cannot_be_finished_is_empty_again) {
    writeContent(folder / "a.bmp", "");
    for (const std::uint64_t limit : kLimits) {
        {
            const FileSizeLimit full(limit);
            expectFailure(folder / "a.bmp", std::strerror(EFBIG));
        }
        EXPECT_EQ(contentOf(folder / "a.bmp"), "") << limit;
    }
    save(folder / "a.bmp");
    EXPECT_TRUE(contentOf(folder / "a.bmp") == typedFile(sizeCases().front()));
}

TEST_F(BitmapExport, a_file_made_through_a_link_is_removed_and_the_link_stays) {
    std::filesystem::create_symlink("target.bmp", folder / "link.bmp");
    {
        const FileSizeLimit full(1200);
        expectFailure(folder / "link.bmp", std::strerror(EFBIG));
    }
    EXPECT_EQ(folder.names(), std::vector<std::string>{"link.bmp"});
    save(folder / "link.bmp");
    EXPECT_TRUE(contentOf(folder / "target.bmp") == typedFile(sizeCases().front()));
}

TEST_F(BitmapExport, a_limit_that_the_file_just_meets_is_no_failure) {
    const FileSizeLimit enough(5498);
    save(folder / "a.bmp");
    EXPECT_TRUE(platform.Failures.empty());
    EXPECT_EQ(std::filesystem::file_size(folder / "a.bmp"), 5498U);
}

TEST_F(BitmapExport, a_failure_reaches_the_caller_of_the_writer) {
    std::int16_t result = 7;
    EXPECT_THROW(WriteTerrainBitmap(folder / "gone/a.bmp", 65, result), FileFailure);
    EXPECT_EQ(result, 7);
}

}  // namespace

}  // namespace ombrelia
