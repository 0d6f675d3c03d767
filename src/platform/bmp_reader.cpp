#include "platform/bmp_reader.h"

#include <algorithm>
#include <bit>
#include <vector>

#include "platform/bmp_header.h"
#include "platform/bmp_rle.h"
#include "platform/byte_source.h"
#include "platform/failure.h"
#include "platform/messages.h"
#include "platform/picture_sink.h"
#include "platform/surface.h"

namespace ombrelia {

namespace {

constexpr std::uint64_t kChunkBytes = 262144;  // rows are read in chunks of about this size
constexpr Pixel kOpaque = 0xFF000000U;

// One component under its mask, stretched to 0..255.
class Channel {
  public:
    explicit Channel(std::uint32_t mask)
        : mask_(mask),
          shift_(mask == 0 ? 0U : static_cast<unsigned>(std::countr_zero(mask))),
          most_(mask >> shift_) {
        constexpr std::uint32_t kMostInTable = 0xFFFF;
        if (most_ > 0 && most_ <= kMostInTable) {
            table_.resize(most_ + std::size_t{1});
            for (std::uint32_t i = 0; i <= most_; ++i) {
                table_[i] = static_cast<std::uint8_t>(stretched(i));
            }
        }
    }

    std::uint32_t of(std::uint32_t pixel) const {
        const std::uint32_t value = (pixel & mask_) >> shift_;
        return table_.empty() ? stretched(value) : table_[value];
    }

    bool exists() const { return mask_ != 0; }

  private:
    std::uint32_t stretched(std::uint32_t value) const {
        if (most_ == 0) {
            return 0;
        }
        return static_cast<std::uint32_t>((std::uint64_t{value} * 255 + most_ / 2) / most_);
    }

    std::uint32_t mask_;
    unsigned shift_;
    std::uint32_t most_;
    std::vector<std::uint8_t> table_;
};

std::uint32_t numberAt(const std::uint8_t* bytes, int bits) {
    const std::uint32_t low = bytes[0] | static_cast<std::uint32_t>(bytes[1]) << 8U;
    if (bits == 16) {
        return low;
    }
    return low | static_cast<std::uint32_t>(bytes[2]) << 16U |
           static_cast<std::uint32_t>(bytes[3]) << 24U;
}

std::uint32_t overBlack(std::uint32_t component, std::uint32_t alpha) {
    return (component * alpha + 127) / 255;
}

// Turns the bytes of a row into pixels.
class RowDecoder {
  public:
    explicit RowDecoder(const BitmapHeader& header)
        : header_(header),
          red_(header.masks[0]),
          green_(header.masks[1]),
          blue_(header.masks[2]),
          alpha_(header.masks[3]) {}

    bool hasAlpha() const { return alpha_.exists(); }
    void ignoreAlpha() { isAlphaIgnored_ = true; }

    bool isAnyVisible(const std::uint8_t* bytes) const {
        for (std::int64_t x = 0; x < header_.width; ++x, bytes += header_.bits / 8) {
            if (alpha_.of(numberAt(bytes, header_.bits)) != 0) {
                return true;
            }
        }
        return false;
    }

    void decode(const std::uint8_t* bytes, Pixel* pixels) const {
        if (header_.bits <= 8) {
            takeIndices(bytes, pixels);
        } else if (header_.bits == 24) {
            takeTriples(bytes, pixels);
        } else if (isUsual32()) {
            takeQuadruples(bytes, pixels);
        } else {
            takeFields(bytes, pixels);
        }
    }

  private:
    bool isUsual32() const {
        return header_.bits == 32 && (isAlphaIgnored_ || !alpha_.exists()) &&
               header_.masks[0] == 0xFF0000 && header_.masks[1] == 0x00FF00 &&
               header_.masks[2] == 0x0000FF;
    }

    void takeIndices(const std::uint8_t* bytes, Pixel* pixels) const {
        const auto bits = static_cast<unsigned>(header_.bits);
        const unsigned mask = (1U << bits) - 1;
        unsigned shift = 8;
        for (std::int64_t x = 0; x < header_.width; ++x) {
            shift -= bits;
            pixels[x] = header_.palette[(static_cast<unsigned>(*bytes) >> shift) & mask];
            if (shift == 0) {
                shift = 8;
                ++bytes;
            }
        }
    }

    void takeTriples(const std::uint8_t* bytes, Pixel* pixels) const {
        for (std::int64_t x = 0; x < header_.width; ++x, bytes += 3) {
            pixels[x] = kOpaque | static_cast<Pixel>(bytes[2]) << 16U |
                        static_cast<Pixel>(bytes[1]) << 8U | bytes[0];
        }
    }

    void takeQuadruples(const std::uint8_t* bytes, Pixel* pixels) const {
        for (std::int64_t x = 0; x < header_.width; ++x, bytes += 4) {
            pixels[x] = kOpaque | numberAt(bytes, 32);
        }
    }

    void takeFields(const std::uint8_t* bytes, Pixel* pixels) const {
        const bool isBlended = alpha_.exists() && !isAlphaIgnored_;
        for (std::int64_t x = 0; x < header_.width; ++x, bytes += header_.bits / 8) {
            const std::uint32_t raw = numberAt(bytes, header_.bits);
            const std::uint32_t alpha = isBlended ? alpha_.of(raw) : 255;
            pixels[x] = kOpaque | overBlack(red_.of(raw), alpha) << 16U |
                        overBlack(green_.of(raw), alpha) << 8U | overBlack(blue_.of(raw), alpha);
        }
    }

    const BitmapHeader& header_;
    Channel red_, green_, blue_, alpha_;
    bool isAlphaIgnored_ = false;
};

// Calls visit(bytes of the row, its number in the file) for the rows one after the other, until it
// says false.
template <typename Visit>
void forEachRow(ByteSource& source, const BitmapHeader& header, Visit visit) {
    const std::uint64_t rowBytes = header.paddedRowBytes();
    const auto rows = static_cast<std::uint64_t>(header.height);
    const std::uint64_t inChunk = std::clamp<std::uint64_t>(kChunkBytes / rowBytes, 1, rows);
    std::vector<std::uint8_t> chunk(static_cast<std::size_t>(inChunk * rowBytes));
    for (std::uint64_t first = 0; first < rows; first += inChunk) {
        const std::uint64_t count = std::min(inChunk, rows - first);
        // The padding of the last row may be missing.
        const bool isLast = first + count == rows;
        const auto bytes = static_cast<std::size_t>(
            isLast ? (count - 1) * rowBytes + header.bareRowBytes() : count * rowBytes);
        source.read(header.pixelOffset + first * rowBytes, std::span(chunk).first(bytes));
        for (std::uint64_t i = 0; i < count; ++i) {
            if (!visit(chunk.data() + i * rowBytes, static_cast<std::int64_t>(first + i))) {
                return;
            }
        }
    }
}

void checkLength(const ByteSource& source, const BitmapHeader& header) {
    const std::uint64_t before = static_cast<std::uint64_t>(header.height) - 1;
    const std::uint64_t size = source.size();
    // The size is checked, so nothing overflows.
    const std::uint64_t needed = before * header.paddedRowBytes() + header.bareRowBytes();
    if (header.pixelOffset > size || needed > size - header.pixelOffset) {
        throw PictureFailure(source.path(), messages::kCutOff);
    }
}

void readRows(ByteSource& source, const BitmapHeader& header, PictureSink& picture) {
    RowDecoder decoder(header);
    if (decoder.hasAlpha()) {
        bool isAnyVisible = false;
        forEachRow(source, header, [&](const std::uint8_t* bytes, std::int64_t) {
            isAnyVisible = decoder.isAnyVisible(bytes);
            return !isAnyVisible;
        });
        if (!isAnyVisible) {
            decoder.ignoreAlpha();
        }
    }
    std::vector<Pixel> pixels(static_cast<std::size_t>(header.width));
    forEachRow(source, header, [&](const std::uint8_t* bytes, std::int64_t row) {
        const auto y = static_cast<int>(header.isTopDown ? row : header.height - 1 - row);
        if (picture.keepsRow(y)) {
            decoder.decode(bytes, pixels.data());
            picture.putRow(y, pixels.data());
        }
        return true;
    });
}

}  // namespace

void readBitmap(ByteSource& source, PictureWish& wish, Surface& picture) {
    const BitmapHeader header = readBitmapHeader(source);
    const bool isCoded = header.coding == BitmapCoding::Rle8 || header.coding == BitmapCoding::Rle4;
    checkPictureSize(source.path(), header.width, header.height);
    if (!isCoded) {
        checkLength(source, header);
    }
    PictureSink sink(source.path(), header.width, header.height, wish, picture);
    if (isCoded) {
        readRunLengths(source, header, sink);
    } else {
        readRows(source, header, sink);
    }
    picture.changed();
}

}  // namespace ombrelia
