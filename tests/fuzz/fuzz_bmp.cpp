// Bytes in, heights out through our own reader of bitmaps. The same bytes give the same heights,
// each of 0..255, or a PictureFailure.
#include <cstdlib>
#include <vector>

#include "files/bitmap_import.h"
#include "pixel_at.h"
#include "platform/bmp_header.h"
#include "platform/bmp_reader.h"
#include "platform/byte_source.h"
#include "platform/failure.h"
#include "platform/picture_sink.h"
#include "platform/surface.h"

namespace ombrelia {

namespace {

// Every pixel of a small picture, some of a large one.
class SomePixels : public PictureWish {
  public:
    PictureGrid gridFor(int width, int height) override {
        constexpr int kMostKept = 1024;
        return {width / kMostKept + 1, height / kMostKept + 1, width, height};
    }
    bool goesOn() override { return true; }
};

std::vector<std::int16_t> heightsOf(ByteSource& source) {
    std::vector<std::int16_t> heights;
    Surface picture;
    SomePixels wish;
    readBitmap(source, wish, picture);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            heights.push_back(heightOfColor(pixelAt(picture, x, y)));
            if (heights.back() < 0 || heights.back() > 255) {
                std::abort();
            }
        }
    }
    return heights;
}

}  // namespace

}  // namespace ombrelia

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ombrelia::MemorySource source("fuzz", {data, size});
    try {
        if (ombrelia::isBitmap(source) &&
            ombrelia::heightsOf(source) != ombrelia::heightsOf(source)) {
            std::abort();
        }
    } catch (const ombrelia::PictureFailure&) {  // refused, as it may be
    }
    return 0;
}
