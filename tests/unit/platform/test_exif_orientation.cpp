#include <gtest/gtest.h>
#include <vector>

#include "platform/exif_orientation.h"

namespace ombrelia {

namespace {

// Notes with one entry before the orientation.
std::vector<std::uint8_t> notes(unsigned value, bool isBigEndian) {
    std::vector<std::uint8_t> bytes;
    const auto number = [&](unsigned figure, int length) {
        for (int i = 0; i < length; ++i) {
            const int byte = isBigEndian ? length - 1 - i : i;
            bytes.push_back(static_cast<std::uint8_t>(figure >> (8 * byte)));
        }
    };
    bytes.assign(2, static_cast<std::uint8_t>(isBigEndian ? 'M' : 'I'));
    number(42, 2);
    number(8, 4);
    number(2, 2);
    for (const unsigned tag : {0x0100U, 0x0112U}) {
        number(tag, 2);
        number(3, 2);
        number(1, 4);
        number(tag == 0x0112 ? value : 77, 2);
        number(0, 2);
    }
    number(0, 4);
    return bytes;
}

std::vector<bool> flags(PictureTurn turn) {
    return {turn.exchangesAxes, turn.mirrorsX, turn.mirrorsY};
}

TEST(ExifOrientation, each_of_the_eight_has_its_turn) {
    const std::vector<bool> turns[] = {
        {false, false, false}, {false, true, false}, {false, true, true}, {false, false, true},
        {true, false, false},  {true, true, false},  {true, true, true},  {true, false, true}};
    for (unsigned value = 1; value <= 8; ++value) {
        for (const bool isBigEndian : {false, true}) {
            EXPECT_EQ(flags(exifTurn(notes(value, isBigEndian))), turns[value - 1]) << value;
        }
    }
}

TEST(ExifOrientation, damaged_notes_turn_nothing) {
    const std::vector<bool> none(3, false);
    EXPECT_EQ(flags(exifTurn({})), none);
    EXPECT_EQ(flags(exifTurn(notes(0, true))), none);
    EXPECT_EQ(flags(exifTurn(notes(9, true))), none);
    const std::vector<std::uint8_t> whole = notes(6, false);
    for (std::size_t length = 0; length < 32; ++length) {
        EXPECT_EQ(flags(exifTurn(std::span(whole).first(length))), none) << length;
    }
    std::vector<std::uint8_t> far = whole;
    far[7] = 0xFF;
    EXPECT_EQ(flags(exifTurn(far)), none);
}

}  // namespace

}  // namespace ombrelia
