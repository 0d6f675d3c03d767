// Bitmaps put together byte by byte, for tests of what reads them.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/surface.h"

namespace ombrelia {

// Appends whole numbers, the lowest byte first.
class ByteLine {
  public:
    ByteLine& byte(unsigned value);
    ByteLine& word(unsigned value);
    ByteLine& number(std::uint32_t value);
    ByteLine& text(const std::string& bytes);
    const std::string& bytes() const { return bytes_; }

  private:
    std::string bytes_;
};

// Bytes given as numbers.
std::string bytesOf(const std::vector<int>& values);

// Red, green, blue.
using Triple = std::array<unsigned, 3>;

// A bitmap's file, field by field; what is not set is as usual.
struct BitmapParts {
    std::uint32_t headerBytes = 40;
    std::int64_t width = 0;
    std::int64_t height = 0;  // below 0: rows from above
    unsigned planes = 1;
    unsigned bits = 8;
    std::uint32_t compression = 0;
    std::uint32_t imageBytes = 0;
    std::uint32_t colorsUsed = 0;
    std::vector<std::uint32_t>
        masks;  // behind a header of 40 bytes, in a longer one at their place
    std::vector<Triple> palette;
    std::string gap;  // between palette and pixels
    std::optional<std::uint32_t> offset;
    std::string pixels;

    std::string file() const;
};

// Rows of pixel values, from above; the lowest bits of each count.
using Values = std::vector<std::vector<std::uint32_t>>;

// The same as rows of a file, each filled up to a multiple of four bytes.
std::string packedRows(const Values& values, unsigned bits, bool isTopDown = false);

// Values below limit that tell columns and rows apart.
Values tellingValues(int width, int height, std::uint64_t limit);

// A bitmap of 24 bits with these pixels, rows from above.
std::string trueColorBitmap(const Surface& picture);

// What the reader makes of the bytes.
Surface readBytes(const std::string& bytes);

// What it says when it refuses them; empty if it does not.
std::string refusalOf(const std::string& bytes);

// The sentence for this reason.
std::string refusal(const std::string& reason);

}  // namespace ombrelia
