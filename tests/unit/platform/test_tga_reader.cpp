#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "pixel_at.h"
#include "platform/bitmap_bytes.h"
#include "platform/byte_source.h"
#include "platform/failure.h"
#include "platform/surface.h"
#include "platform/tga_reader.h"
#include "whole_picture.h"

namespace ombrelia {

namespace {

struct TargaParts {
    unsigned kind = 2;
    unsigned width = 3;
    unsigned height = 2;
    unsigned bits = 24;
    unsigned flags = 0x20;  // from the top
    unsigned paletteFirst = 0;
    unsigned paletteCount = 0;
    unsigned paletteBits = 0;
    std::string name;
    std::vector<unsigned> body;  // palette and pixels

    std::string file() const {
        ByteLine line;
        line.byte(static_cast<unsigned>(name.size())).byte(paletteBits == 0 ? 0 : 1).byte(kind);
        line.word(paletteFirst).word(paletteCount).byte(paletteBits);
        line.word(0).word(0).word(width).word(height).byte(bits).byte(flags).text(name);
        for (const unsigned value : body) {
            line.byte(value);
        }
        return line.bytes();
    }
};

std::span<const std::uint8_t> spanOf(const std::string& bytes) {
    return {reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()};
}

bool isTarga(const TargaParts& parts) {
    const std::string bytes = parts.file();
    MemorySource source("p", spanOf(bytes));
    return ombrelia::isTarga(source);
}

using Colors = std::vector<std::vector<std::int32_t>>;

Colors colorsOf(const TargaParts& parts) {
    const std::string bytes = parts.file();
    MemorySource source("p", spanOf(bytes));
    EXPECT_TRUE(ombrelia::isTarga(source));
    WholePicture wish;
    Surface picture;
    readTarga(source, wish, picture);
    Colors rows;
    for (int y = 0; y < picture.height(); ++y) {
        rows.emplace_back();
        for (int x = 0; x < picture.width(); ++x) {
            rows.back().push_back(pixelAt(picture, x, y));
        }
    }
    return rows;
}

std::int32_t grey(unsigned value) {
    return static_cast<std::int32_t>(rgb(value, value, value));
}

std::int32_t color(unsigned red, unsigned green, unsigned blue) {
    return static_cast<std::int32_t>(rgb(red, green, blue));
}

TEST(TargaReader, true_colours_have_blue_first) {
    TargaParts parts;
    parts.body = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18};
    EXPECT_EQ(colorsOf(parts), (Colors{{color(3, 2, 1), color(6, 5, 4), color(9, 8, 7)},
                                       {color(12, 11, 10), color(15, 14, 13), color(18, 17, 16)}}));
}

TEST(TargaReader, greys_of_eight_and_sixteen_bits) {
    TargaParts parts;
    parts.kind = 3;
    parts.bits = 8;
    parts.body = {0, 100, 255, 7, 8, 9};
    const Colors eight{{grey(0), grey(100), grey(255)}, {grey(7), grey(8), grey(9)}};
    EXPECT_EQ(colorsOf(parts), eight);
    parts.bits = 16;
    parts.body = {77, 0, 88, 100, 99, 255, 1, 7, 2, 8, 3, 9};
    EXPECT_EQ(colorsOf(parts), eight);
}

TEST(TargaReader, palettes_of_every_depth) {
    TargaParts parts;
    parts.kind = 1;
    parts.bits = 8;
    parts.paletteFirst = 10;
    parts.paletteCount = 2;
    const Colors wanted{{color(255, 0, 0), color(0, 0, 255), 0}, {0, color(255, 0, 0), 0}};
    const std::vector<unsigned> pixels = {10, 11, 12, 9, 10, 255};
    const std::pair<unsigned, std::vector<unsigned>> rows[] = {{15, {0, 0x7C, 0x1F, 0}},
                                                               {16, {0, 0xFC, 0x1F, 0}},
                                                               {24, {0, 0, 255, 255, 0, 0}},
                                                               {32, {0, 0, 255, 0, 255, 0, 0, 0}}};
    for (const auto& [bits, palette] : rows) {
        parts.paletteBits = bits;
        parts.body = palette;
        parts.body.insert(parts.body.end(), pixels.begin(), pixels.end());
        EXPECT_EQ(colorsOf(parts), wanted) << bits;
    }
}

TEST(TargaReader, runs_and_literals_go_over_the_ends_of_rows) {
    TargaParts parts;
    parts.kind = 11;
    parts.bits = 8;
    parts.body = {0x83, 50, 0x01, 60, 70};
    EXPECT_EQ(colorsOf(parts),
              (Colors{{grey(50), grey(50), grey(50)}, {grey(50), grey(60), grey(70)}}));
    parts.kind = 10;
    parts.bits = 24;
    parts.body = {0x84, 1, 2, 3, 0x00, 4, 5, 6};
    EXPECT_EQ(colorsOf(parts), (Colors{{color(3, 2, 1), color(3, 2, 1), color(3, 2, 1)},
                                       {color(3, 2, 1), color(3, 2, 1), color(6, 5, 4)}}));
    parts.kind = 9;
    parts.bits = 8;
    parts.paletteCount = 1;
    parts.paletteBits = 24;
    parts.body = {0, 0, 255, 0x85, 0};
    EXPECT_EQ(colorsOf(parts), Colors(2, std::vector<std::int32_t>(3, color(255, 0, 0))));
}

TEST(TargaReader, each_corner_can_be_the_first) {
    TargaParts parts;
    parts.kind = 3;
    parts.bits = 8;
    parts.name = "a name";
    parts.body = {1, 2, 3, 4, 5, 6};
    parts.flags = 0x00;
    EXPECT_EQ(colorsOf(parts), (Colors{{grey(4), grey(5), grey(6)}, {grey(1), grey(2), grey(3)}}));
    parts.flags = 0x10;
    EXPECT_EQ(colorsOf(parts), (Colors{{grey(6), grey(5), grey(4)}, {grey(3), grey(2), grey(1)}}));
    parts.flags = 0x30;
    EXPECT_EQ(colorsOf(parts), (Colors{{grey(3), grey(2), grey(1)}, {grey(6), grey(5), grey(4)}}));
}

TEST(TargaReader, transparent_parts_come_over_black_if_the_file_says_that_it_has_them) {
    TargaParts parts;
    parts.width = 2;
    parts.height = 1;
    parts.bits = 32;
    parts.flags = 0x28;
    parts.body = {255, 255, 255, 0, 50, 100, 200, 128};
    EXPECT_EQ(colorsOf(parts), (Colors{{0, color(100, 50, 25)}}));
    parts.flags = 0x20;
    EXPECT_EQ(colorsOf(parts), (Colors{{grey(255), color(200, 100, 50)}}));
}

TEST(TargaReader, five_bits_are_stretched_to_eight) {
    TargaParts parts;
    parts.width = 2;
    parts.height = 1;
    parts.bits = 16;
    parts.body = {0xFF, 0x7F, 0x10, 0x42};
    EXPECT_EQ(colorsOf(parts), (Colors{{grey(255), color(132, 132, 132)}}));
}

TEST(TargaReader, a_header_that_does_not_fit_together_is_none) {
    EXPECT_TRUE(isTarga({}));
    for (const unsigned kind : {0U, 4U, 8U, 32U, 255U}) {
        TargaParts parts;
        parts.kind = kind;
        EXPECT_FALSE(isTarga(parts)) << kind;
    }
    TargaParts flat;
    flat.height = 0;
    EXPECT_FALSE(isTarga(flat));
    TargaParts deep;
    deep.bits = 48;
    EXPECT_FALSE(isTarga(deep));
    TargaParts bare;  // of indices, without colours
    bare.kind = 1;
    bare.bits = 8;
    EXPECT_FALSE(isTarga(bare));
    TargaParts counted;  // as a file of one cursor begins
    counted.paletteFirst = 256;
    EXPECT_FALSE(isTarga(counted));
    const std::string shortFile(10, '\0');
    MemorySource source("p", spanOf(shortFile));
    EXPECT_FALSE(ombrelia::isTarga(source));
    WholePicture wish;
    Surface picture;
    EXPECT_THROW(readTarga(source, wish, picture), PictureFailure);
}

TEST(TargaReader, what_is_cut_off_is_refused) {
    TargaParts parts;
    parts.kind = 11;
    parts.bits = 8;
    parts.body = {0x83, 50, 0x01, 60, 70};
    const std::string whole = parts.file();
    for (std::size_t length = 18; length < whole.size(); ++length) {
        const std::string bytes = whole.substr(0, length);
        MemorySource source("p", spanOf(bytes));
        WholePicture wish;
        Surface picture;
        EXPECT_THROW(readTarga(source, wish, picture), PictureFailure) << length;
    }
}

}  // namespace

}  // namespace ombrelia
