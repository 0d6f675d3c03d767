// Every variant of a bitmap, written here byte by byte.
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <limits>

#include "platform/bitmap_bytes.h"
#include "platform/color.h"

namespace ombrelia {

namespace {

constexpr std::uint32_t kHeaders[] = {12, 16, 40, 52, 56, 64, 108, 124};
constexpr std::uint32_t kAnyLimit = 0xFFFFFFFF;

using ColorOf = std::function<Triple(std::uint32_t value)>;

void expectPicture(const std::string& file, const Values& values, const ColorOf& colorOf) {
    const Surface picture = readBytes(file);
    ASSERT_EQ(picture.height(), static_cast<int>(values.size()));
    ASSERT_EQ(picture.width(), static_cast<int>(values[0].size()));
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const auto value = values[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
            const Triple color = colorOf(value);
            ASSERT_EQ(picture.row(y)[x], pixelOf(rgb(color[0], color[1], color[2])))
                << x << "," << y << " value " << value;
        }
    }
}

std::vector<Triple> tellingPalette(std::size_t entries) {
    std::vector<Triple> palette;
    for (unsigned i = 0; i < entries; ++i) {
        palette.push_back({(i * 37 + 5) % 256, (i * 101 + 90) % 256, (255 - i * 53) % 256});
    }
    return palette;
}

BitmapParts partsFor(const Values& values, unsigned bits) {
    BitmapParts parts;
    parts.width = static_cast<std::int64_t>(values[0].size());
    parts.height = static_cast<std::int64_t>(values.size());
    parts.bits = bits;
    parts.pixels = packedRows(values, bits);
    return parts;
}

// A mask's share of a value, as a component of 0..255 rounded to nearest.
unsigned componentUnder(std::uint32_t mask, std::uint32_t value) {
    std::uint64_t part = 0;
    std::uint64_t most = 0;
    for (int bit = 31; bit >= 0; --bit) {
        if ((mask >> bit & 1U) != 0) {
            part = part * 2 + (value >> bit & 1U);
            most = most * 2 + 1;
        }
    }
    return most == 0 ? 0U
                     : static_cast<unsigned>(std::lround(static_cast<double>(part) * 255.0 /
                                                         static_cast<double>(most)));
}

TEST(BmpReader, indices_of_every_depth_width_and_header) {
    for (const unsigned bits : {1U, 2U, 4U, 8U}) {
        const auto palette = tellingPalette(std::size_t{1} << bits);
        for (const std::uint32_t header : kHeaders) {
            for (int width = 1; width <= 34; ++width) {
                const Values values = tellingValues(width, 3, palette.size());
                BitmapParts parts = partsFor(values, bits);
                parts.headerBytes = header;
                parts.palette = palette;
                SCOPED_TRACE(testing::Message() << bits << " bits, " << header << ", " << width);
                expectPicture(parts.file(), values, [&](auto value) { return palette[value]; });
            }
        }
    }
}

TEST(BmpReader, true_colours_of_every_header) {
    const auto threeBytes = [](std::uint32_t value) {
        return Triple{value >> 16U & 0xFFU, value >> 8U & 0xFFU, value & 0xFFU};
    };
    for (const unsigned bits : {24U, 32U}) {
        for (const std::uint32_t header : kHeaders) {
            for (int width = 1; width <= 9; ++width) {
                const Values values = tellingValues(width, 4, kAnyLimit);
                BitmapParts parts = partsFor(values, bits);
                parts.headerBytes = header;
                SCOPED_TRACE(testing::Message() << bits << " bits, " << header << ", " << width);
                expectPicture(parts.file(), values, threeBytes);
            }
        }
    }
}

TEST(BmpReader, sixteen_bits_are_exact_at_every_level) {
    Values values(1);
    for (std::uint32_t i = 0; i < 65536; ++i) {
        values[0].push_back(i);
    }
    const BitmapParts parts = partsFor(values, 16);
    expectPicture(parts.file(), values, [](std::uint32_t value) {
        return Triple{componentUnder(0x7C00, value), componentUnder(0x03E0, value),
                      componentUnder(0x001F, value)};
    });
    EXPECT_EQ(readBytes(parts.file()).row(0)[0x7FFF], pixelOf(rgb(255, 255, 255)));
}

struct MaskCase {
    unsigned bits;
    std::uint32_t red, green, blue;
};
constexpr MaskCase kMaskCases[] = {
    {16, 0xF800, 0x07E0, 0x001F},              // 5-6-5
    {16, 0x0F00, 0x00F0, 0x000F},              // 4-4-4
    {16, 0x001F, 0x07E0, 0xF800},              // blue above
    {16, 0x8000, 0x4000, 0x3FFF},              // 1-1-14
    {16, 0xFFFF, 0, 0},                        // one component alone
    {32, 0x3FF00000, 0x000FFC00, 0x000003FF},  // 10-10-10
    {32, 0xFF000000, 0x00FF0000, 0x0000FF00},  // one byte up
    {32, 0x000000FF, 0x0000FF00, 0x00FF0000},  // the other way round
    {32, 0xFFE00000, 0x001FFC00, 0x000003FF},  // 11-11-10
    {32, 0xFFFFFFFE, 0x00000001, 0},           // 31 bits and 1
    {32, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF},  // all bits, three times
    {32, 0x00FFFF00, 0x000000FF, 0xFF000000},  // 16-8-8
};

TEST(BmpReader, bit_fields_of_any_width) {
    for (const MaskCase& row : kMaskCases) {
        const Values values =
            tellingValues(64, 8, row.bits == 16 ? 65536 : std::uint64_t{kAnyLimit} + 1);
        for (const std::uint32_t header : {40U, 52U, 56U, 108U, 124U}) {
            BitmapParts parts = partsFor(values, row.bits);
            parts.headerBytes = header;
            parts.compression = 3;
            parts.masks = {row.red, row.green, row.blue};
            SCOPED_TRACE(testing::Message() << row.bits << " bits, " << row.red << ", " << header);
            expectPicture(parts.file(), values, [&](std::uint32_t value) {
                return Triple{componentUnder(row.red, value), componentUnder(row.green, value),
                              componentUnder(row.blue, value)};
            });
        }
    }
}

TEST(BmpReader, rows_may_run_from_above) {
    for (const unsigned bits : {1U, 4U, 8U, 16U, 24U, 32U}) {
        const Values values = tellingValues(5, 7, bits >= 24 ? kAnyLimit : 2);
        BitmapParts parts = partsFor(values, bits);
        if (bits <= 8) {
            parts.palette = tellingPalette(std::size_t{1} << bits);
        }
        const Surface fromBelow = readBytes(parts.file());
        parts.height = -7;
        parts.pixels = packedRows(values, bits, true);
        const Surface fromAbove = readBytes(parts.file());
        ASSERT_EQ(fromAbove.height(), 7);
        for (int y = 0; y < 7; ++y) {
            EXPECT_TRUE(std::equal(fromAbove.row(y), fromAbove.row(y) + 5, fromBelow.row(y)));
        }
    }
}

TEST(BmpReader, an_index_behind_a_short_palette_is_black) {
    for (const std::uint32_t header : kHeaders) {
        for (const unsigned bits : {2U, 4U, 8U}) {
            const auto palette = tellingPalette(3);
            const Values values = tellingValues(11, 5, std::uint64_t{1} << bits);
            BitmapParts parts = partsFor(values, bits);
            parts.headerBytes = header;
            parts.palette = palette;
            parts.colorsUsed = 3;  // the two shortest headers have no such field
            SCOPED_TRACE(testing::Message() << bits << " bits, " << header);
            expectPicture(parts.file(), values, [&](std::uint32_t value) {
                return value < 3 ? palette[value] : Triple{0, 0, 0};
            });
        }
    }
}

TEST(BmpReader, more_colours_than_the_depth_can_name_are_left_out) {
    const auto palette = tellingPalette(256);
    const Values values = tellingValues(9, 3, 16);
    BitmapParts parts = partsFor(values, 4);
    parts.palette = palette;
    for (const std::uint32_t stated : {256U, 0xFFFFFFFFU}) {
        parts.colorsUsed = stated;
        expectPicture(parts.file(), values, [&](auto value) { return palette[value]; });
    }
}

TEST(BmpReader, a_palette_of_true_colours_is_skipped) {
    const Values values = tellingValues(3, 3, 0x1000000);
    BitmapParts parts = partsFor(values, 24);
    parts.palette = tellingPalette(10);
    parts.colorsUsed = 10;
    expectPicture(parts.file(), values, [](std::uint32_t value) {
        return Triple{value >> 16U, value >> 8U & 0xFFU, value & 0xFFU};
    });
}

TEST(BmpReader, the_stated_offset_counts_and_a_missing_one_is_made_up) {
    const auto palette = tellingPalette(16);
    const Values values = tellingValues(6, 4, 16);
    BitmapParts parts = partsFor(values, 4);
    parts.palette = palette;
    const auto color = [&](auto value) { return palette[value]; };
    parts.offset = 0;
    expectPicture(parts.file(), values, color);
    parts.offset.reset();
    parts.gap = "something of a later version";
    expectPicture(parts.file(), values, color);
}

TEST(BmpReader, sizes_and_planes_that_are_wrong_do_no_harm) {
    const Values values = tellingValues(6, 4, 2);
    BitmapParts parts = partsFor(values, 1);
    parts.palette = tellingPalette(2);
    const std::string good = parts.file();
    parts.planes = 7;
    parts.imageBytes = 123456789;
    std::string bad = parts.file();
    bad.replace(2, 4, "\xFF\xFF\xFF\xFF");
    expectPicture(bad, values, [&](auto value) { return parts.palette[value]; });
    expectPicture(good + "trailing bytes", values,
                  [&](auto value) { return parts.palette[value]; });
}

TEST(BmpReader, transparent_parts_come_over_black) {
    for (const std::uint32_t header : {40U, 56U, 108U, 124U}) {
        BitmapParts parts;
        parts.headerBytes = header;
        parts.width = 4;
        parts.height = 1;
        parts.bits = 32;
        parts.compression = header == 40 ? 6 : 3;
        parts.masks = {0xFF0000, 0x00FF00, 0x0000FF, 0xFF000000};
        parts.pixels = packedRows({{0xFF406080, 0x80FF8000, 0x00FFFFFF, 0x01FFFFFF}}, 32);
        const Surface picture = readBytes(parts.file());
        EXPECT_EQ(picture.row(0)[0], pixelOf(rgb(0x40, 0x60, 0x80))) << header;
        EXPECT_EQ(picture.row(0)[1], pixelOf(rgb(128, 64, 0))) << header;
        EXPECT_EQ(picture.row(0)[2], pixelOf(rgb(0, 0, 0))) << header;
        EXPECT_EQ(picture.row(0)[3], pixelOf(rgb(1, 1, 1))) << header;
    }
}

TEST(BmpReader, an_alpha_that_was_never_filled_in_is_no_alpha) {
    BitmapParts parts;
    parts.headerBytes = 108;
    parts.width = 3;
    parts.height = 2;
    parts.bits = 32;
    parts.compression = 3;
    parts.masks = {0xFF0000, 0x00FF00, 0x0000FF, 0xFF000000};
    const Values values = tellingValues(3, 2, 0x1000000);
    parts.pixels = packedRows(values, 32);
    expectPicture(parts.file(), values, [](std::uint32_t value) {
        return Triple{value >> 16U, value >> 8U & 0xFFU, value & 0xFFU};
    });
}

TEST(BmpReader, every_shorter_file_is_refused) {
    for (const unsigned bits : {1U, 2U, 4U, 8U, 16U, 24U, 32U}) {
        const Values values = tellingValues(13, 3, 2);
        BitmapParts parts = partsFor(values, bits);
        if (bits <= 8) {
            parts.palette = tellingPalette(std::size_t{1} << bits);
        }
        const std::string file = parts.file();
        // The padding behind the last row is no pixel.
        const std::size_t padding = (13 * bits + 31) / 32 * 4 - (13 * bits + 7) / 8;
        for (std::size_t length = 2; length < file.size() - padding; ++length) {
            ASSERT_EQ(refusalOf(file.substr(0, length)), refusal("It is cut off before its end"))
                << bits << " bits, " << length << " of " << file.size();
        }
        EXPECT_EQ(refusalOf(file.substr(0, file.size() - padding)), "");
    }
}

TEST(BmpReader, damaged_headers_are_refused) {
    const Values values = tellingValues(4, 4, 2);
    const BitmapParts good = partsFor(values, 8);
    constexpr auto kLowest = std::numeric_limits<std::int32_t>::min();
    const auto refuses = [&](auto change, const char* reason) {
        BitmapParts parts = good;
        change(parts);
        EXPECT_EQ(refusalOf(parts.file()), refusal(reason));
    };
    constexpr const char* kDamaged = "Its header is damaged";
    constexpr const char* kForeign = "Its kind of compression cannot be read";
    refuses([](BitmapParts& p) { p.width = 0; }, kDamaged);
    refuses([](BitmapParts& p) { p.width = -4; }, kDamaged);
    refuses([](BitmapParts& p) { p.height = 0; }, kDamaged);
    refuses([](BitmapParts& p) { p.height = kLowest; }, kDamaged);
    for (const unsigned bits : {0U, 3U, 5U, 12U, 48U, 64U, 65535U}) {
        refuses([bits](BitmapParts& p) { p.bits = bits; }, kDamaged);
    }
    for (const std::uint32_t bytes : {20U, 41U, 128U}) {
        refuses([bytes](BitmapParts& p) { p.headerBytes = bytes; }, kDamaged);
    }
    for (const std::uint32_t compression : {4U, 5U, 7U, 11U, kAnyLimit}) {
        refuses([compression](BitmapParts& p) { p.compression = compression; }, kForeign);
    }
    refuses([](BitmapParts& p) { p.compression = 2; }, kDamaged);
    refuses([](BitmapParts& p) { p.compression = 3; }, kDamaged);
    // In this header the numbers mean other things.
    refuses([](BitmapParts& p) { p.headerBytes = 64, p.compression = 3; }, kForeign);
}

TEST(BmpReader, a_picture_above_the_limit_is_refused_by_its_header_alone) {
    BitmapParts parts;
    parts.width = 16384;
    parts.height = 16385;
    EXPECT_EQ(refusalOf(parts.file()),
              refusal("It has 16384 x 16385 pixels, which is more than can be held"));
    parts.compression = 1;
    EXPECT_EQ(refusalOf(parts.file()),
              refusal("It has 16384 x 16385 pixels, which is more than can be held"));
    parts.width = std::numeric_limits<std::int32_t>::max();
    parts.height = -std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(refusalOf(parts.file()),
              refusal("It has 2147483647 x 2147483647 pixels, which is more than can be held"));
    parts.compression = 0;
    parts.width = 16384;
    parts.height = 16384;
    EXPECT_EQ(refusalOf(parts.file()), refusal("It is cut off before its end"));
}

}  // namespace

}  // namespace ombrelia
