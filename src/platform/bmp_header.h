// What stands before the pixels of a Windows or OS/2 bitmap.
#pragma once

#include <array>
#include <cstdint>

#include "platform/color.h"

namespace ombrelia {

class ByteSource;

enum class BitmapCoding { Plain, Rle8, Rle4, Fields };

struct BitmapHeader {
    std::int64_t width = 0;   // pixels, 1 and above
    std::int64_t height = 0;  // pixels, 1 and above
    bool isTopDown = false;   // the first row in the file is the uppermost
    int bits = 0;             // of a pixel: 1, 2, 4, 8, 16, 24, 32
    BitmapCoding coding = BitmapCoding::Plain;
    // Bits of a pixel that hold red, green, blue, alpha; of 16 and 32 bits alone.
    std::array<std::uint32_t, 4> masks{};
    std::array<Pixel, 256> palette{};  // up to 8 bits; an entry that the file lacks is black
    std::uint64_t pixelOffset = 0;     // of the first row in the file

    // Bytes of a row of a picture that is not run-length coded, padding included and left out.
    std::uint64_t paddedRowBytes() const;
    std::uint64_t bareRowBytes() const;
};

// Whether the bytes begin as a bitmap does.
bool isBitmap(ByteSource& source);

// Reads and checks the header; the lengths of rows are not compared with the file's. Throws
// PictureFailure.
BitmapHeader readBitmapHeader(ByteSource& source);

}  // namespace ombrelia
