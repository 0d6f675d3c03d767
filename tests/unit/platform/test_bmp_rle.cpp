// Run-length coded bitmaps, written here byte by byte.
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "platform/bitmap_bytes.h"
#include "platform/color.h"

namespace ombrelia {

namespace {

// A picture of indices in hexadecimal digits, rows from above; its palette is a grey of 10 a step.
using Digits = std::vector<std::string>;

class BmpRle : public testing::Test {
  protected:
    static std::string coded(unsigned bits, std::int64_t width, std::int64_t height,
                             const std::vector<int>& bytes) {
        BitmapParts parts;
        parts.width = width;
        parts.height = height;
        parts.bits = bits;
        parts.compression = bits == 8 ? 1 : 2;
        for (unsigned i = 0; i < 16; ++i) {
            parts.palette.push_back({i * 10 + 3, i * 10 + 3, i * 10 + 3});
        }
        parts.colorsUsed = 16;
        parts.pixels = bytesOf(bytes);
        return parts.file();
    }

    static Digits read(const std::string& file) {
        const Surface surface = readBytes(file);
        Digits rows;
        for (int y = 0; y < surface.height(); ++y) {
            rows.emplace_back();
            for (int x = 0; x < surface.width(); ++x) {
                const unsigned blue = surface.row(y)[x] & 0xFFU;
                rows.back() += blue % 10 == 3 ? "0123456789abcdef"[blue / 10] : '?';
            }
        }
        return rows;
    }

    static Digits read(unsigned bits, std::int64_t width, std::int64_t height,
                       const std::vector<int>& bytes) {
        return read(coded(bits, width, height, bytes));
    }
};

TEST_F(BmpRle, runs_and_literals_of_bytes) {
    EXPECT_EQ(read(8, 8, 2, {3, 5, 0, 3, 1, 2, 7, 0, 2, 9, 0, 0, 0, 4, 4, 3, 2, 1, 4, 8, 0, 1}),
              (Digits{"43218888", "55512799"}));
}

TEST_F(BmpRle, runs_and_literals_of_halves) {
    EXPECT_EQ(read(4, 9, 2, {5, 0x1A, 0, 4, 0x23, 0x45, 0, 0, 0, 3, 0x67, 0x80, 6, 0xBC, 0, 1}),
              (Digits{"678bcbcbc", "1a1a12345"}));
}

TEST_F(BmpRle, a_literal_is_filled_up_to_an_even_number_of_bytes) {
    EXPECT_EQ(read(8, 5, 1, {0, 3, 1, 2, 3, 99, 2, 4, 0, 1}), (Digits{"12344"}));
    EXPECT_EQ(read(8, 6, 1, {0, 4, 1, 2, 3, 4, 2, 5, 0, 1}), (Digits{"123455"}));
    EXPECT_EQ(read(4, 7, 1, {0, 5, 0x12, 0x34, 0x50, 99, 2, 0x77, 0, 1}), (Digits{"1234577"}));
    EXPECT_EQ(read(4, 9, 1, {0, 7, 0x12, 0x34, 0x56, 0x70, 2, 0x88, 0, 1}), (Digits{"123456788"}));
}

TEST_F(BmpRle, what_the_runs_skip_has_the_first_colour) {
    EXPECT_EQ(read(8, 5, 4, {1, 1, 0, 2, 2, 1, 1, 2, 0, 0, 2, 3, 0, 1}),
              (Digits{"00000", "33000", "00020", "10000"}));
    EXPECT_EQ(read(4, 4, 3, {2, 0x12, 0, 0, 0, 1}), (Digits{"0000", "0000", "1200"}));
    EXPECT_EQ(read(8, 3, 2, {0, 1}), (Digits{"000", "000"}));
}

TEST_F(BmpRle, what_lies_outside_is_dropped) {
    EXPECT_EQ(read(8, 3, 2, {9, 4, 0, 0, 0, 5, 1, 2, 3, 4, 5, 0, 0, 1}), (Digits{"123", "444"}));
    EXPECT_EQ(read(8, 3, 2, {1, 4, 0, 2, 255, 0, 5, 5, 0, 1}), (Digits{"000", "400"}));
    EXPECT_EQ(read(8, 3, 2, {1, 4, 0, 2, 0, 255, 5, 5, 0, 1}), (Digits{"000", "400"}));
}

TEST_F(BmpRle, rows_beyond_the_last_end_the_picture) {
    EXPECT_EQ(read(8, 2, 1, {1, 4, 0, 0, 1, 5}), (Digits{"40"}));
}

TEST_F(BmpRle, behind_the_last_pixel_nothing_counts) {
    EXPECT_EQ(read(8, 2, 2, {2, 4, 0, 0, 2, 5}), (Digits{"55", "44"}));
    EXPECT_EQ(read(8, 2, 2, {2, 4, 0, 0, 2, 5, 0}), (Digits{"55", "44"}));
    EXPECT_EQ(read(8, 2, 2, {2, 4, 0, 0, 2, 5, 7, 7, 7}), (Digits{"55", "44"}));
}

TEST_F(BmpRle, rows_from_above_are_taken_too) {
    EXPECT_EQ(read(8, 2, -2, {2, 4, 0, 0, 2, 5, 0, 1}), (Digits{"44", "55"}));
}

TEST_F(BmpRle, an_index_behind_the_palette_is_black) {
    const Surface picture = readBytes(coded(8, 2, 1, {1, 200, 1, 1, 0, 1}));
    EXPECT_EQ(picture.row(0)[0], pixelOf(rgb(0, 0, 0)));
    EXPECT_EQ(picture.row(0)[1], pixelOf(rgb(13, 13, 13)));
}

TEST_F(BmpRle, every_shorter_file_is_refused) {
    const std::vector<std::vector<int>> pictures = {
        {3, 5, 0, 3, 1, 2, 7, 99, 0, 0, 0, 2, 2, 1, 1, 1, 0, 1}, {1, 1, 0, 1}};
    for (const auto& bytes : pictures) {
        for (const unsigned bits : {4U, 8U}) {
            const std::string file = coded(bits, 9, 4, bytes);
            EXPECT_EQ(refusalOf(file), "");
            for (std::size_t length = 2; length < file.size(); ++length) {
                ASSERT_EQ(refusalOf(file.substr(0, length)),
                          refusal("It is cut off before its end"))
                    << bits << " bits, " << length << " of " << file.size();
            }
        }
    }
}

// A row of more bytes than are read at once.
TEST_F(BmpRle, a_long_picture_is_read_in_parts) {
    std::vector<int> bytes;
    Digits expected;
    for (int y = 0; y < 300; ++y) {
        std::string row;
        for (int x = 0; x < 150; ++x) {
            const int index = (x * 7 + y * 3 + x * y) % 16;
            bytes.insert(bytes.end(), {1, index});
            row += "0123456789abcdef"[index];
        }
        bytes.insert(bytes.end(), {0, 0});
        expected.insert(expected.begin(), row);
    }
    bytes.insert(bytes.end(), {0, 1});
    EXPECT_TRUE(read(8, 150, 300, bytes) == expected);
}

}  // namespace

}  // namespace ombrelia
