#include "platform/bmp_rle.h"

#include <algorithm>

#include "platform/byte_source.h"
#include "platform/picture_sink.h"

namespace ombrelia {

namespace {

// What a count of 0 is followed by.
constexpr unsigned kEndOfRow = 0;
constexpr unsigned kEndOfPicture = 1;
constexpr unsigned kMove = 2;

class RunLengthDecoder {
  public:
    RunLengthDecoder(ByteSource& source, const BitmapHeader& header, PictureSink& picture)
        : bytes_(source, header.pixelOffset), header_(header), picture_(picture) {}

    void decode() {
        // Behind the last pixel nothing counts; the mark of the end may be missing there.
        while (!isFull()) {
            const unsigned count = bytes_.take();
            const unsigned value = bytes_.take();
            if (count > 0) {
                putRun(count, value);
            } else if (value == kEndOfPicture) {
                return;
            } else {
                escape(value);
            }
            if (y_ >= header_.height) {
                return;
            }
        }
    }

  private:
    bool isFull() const { return y_ == header_.height - 1 && x_ >= header_.width; }

    // A byte holds one index, or two, the first in its upper half.
    unsigned indexIn(unsigned byte, unsigned n) const {
        if (header_.coding == BitmapCoding::Rle8) {
            return byte;
        }
        return n % 2 == 0 ? byte >> 4U : byte & 0xFU;
    }

    // What lies beyond the right edge is dropped.
    void put(unsigned index) {
        if (x_ < header_.width) {
            const std::int64_t row = header_.isTopDown ? y_ : header_.height - 1 - y_;
            picture_.putPixel(static_cast<int>(x_), static_cast<int>(row), header_.palette[index]);
            ++x_;
        }
    }

    void putRun(unsigned count, unsigned value) {
        for (unsigned n = 0; n < count; ++n) {
            put(indexIn(value, n));
        }
    }

    void escape(unsigned value) {
        if (value == kEndOfRow) {
            x_ = 0;
            ++y_;
        } else if (value == kMove) {
            const unsigned across = bytes_.take();
            x_ = std::min(x_ + across, header_.width);
            y_ += bytes_.take();
        } else {
            putLiteral(value);
        }
    }

    // Indices as they stand, filled up to an even number of bytes.
    void putLiteral(unsigned count) {
        const unsigned inByte = header_.coding == BitmapCoding::Rle8 ? 1 : 2;
        const unsigned length = (count + inByte - 1) / inByte;
        unsigned byte = 0;
        for (unsigned n = 0; n < count; ++n) {
            if (n % inByte == 0) {
                byte = bytes_.take();
            }
            put(indexIn(byte, n));
        }
        if (length % 2 == 1 && !bytes_.atEnd()) {
            bytes_.take();
        }
    }

    ByteStream bytes_;
    const BitmapHeader& header_;
    PictureSink& picture_;
    std::int64_t x_ = 0;
    std::int64_t y_ = 0;  // counted as the file does
};

}  // namespace

void readRunLengths(ByteSource& source, const BitmapHeader& header, PictureSink& picture) {
    picture.fill(header.palette[0]);
    RunLengthDecoder(source, header, picture).decode();
}

}  // namespace ombrelia
