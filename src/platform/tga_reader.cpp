#include "platform/tga_reader.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <vector>

#include "platform/byte_source.h"
#include "platform/failure.h"
#include "platform/messages.h"
#include "platform/picture_sink.h"
#include "platform/surface.h"

namespace ombrelia {

namespace {

constexpr std::size_t kHeaderBytes = 18;
constexpr unsigned kPalette = 1;
constexpr unsigned kColors = 2;
constexpr unsigned kGreys = 3;
constexpr unsigned kCoded = 8;  // added to the kind
constexpr unsigned kRightToLeft = 0x10;
constexpr unsigned kTopDown = 0x20;
constexpr unsigned kAlphaBits = 0x0F;
constexpr Pixel kOpaque = 0xFF000000U;

bool isOneOf(unsigned value, std::initializer_list<unsigned> values) {
    return std::find(values.begin(), values.end(), value) != values.end();
}

struct TargaHeader {
    explicit TargaHeader(ByteSource& source) {
        if (source.size() >= bytes.size()) {
            source.read(0, bytes);
        }
    }

    unsigned byte(std::size_t at) const { return bytes[at]; }
    unsigned word(std::size_t at) const { return byte(at) + byte(at + 1) * 256; }

    unsigned nameBytes() const { return byte(0); }
    unsigned kind() const { return byte(2) & ~kCoded; }
    bool isCoded() const { return (byte(2) & kCoded) != 0; }
    bool hasPalette() const { return byte(1) == 1; }
    unsigned paletteFirst() const { return word(3); }
    unsigned paletteCount() const { return word(5); }
    unsigned paletteBits() const { return byte(7); }
    unsigned width() const { return word(12); }
    unsigned height() const { return word(14); }
    unsigned bits() const { return byte(16); }
    unsigned flags() const { return byte(17); }

    bool isWhole() const {
        if (width() == 0 || height() == 0 || byte(1) > 1 || (flags() & 0xC0U) != 0) {
            return false;
        }
        if (hasPalette() ? !isOneOf(paletteBits(), {15, 16, 24, 32})
                         : word(3) + word(5) + byte(7) != 0) {
            return false;
        }
        switch (kind()) {
            case kPalette:
                return hasPalette() && isOneOf(bits(), {8, 16});
            case kColors:
                return isOneOf(bits(), {15, 16, 24, 32});
            case kGreys:
                return isOneOf(bits(), {8, 16});
            default:
                return false;
        }
    }

    std::array<std::uint8_t, kHeaderBytes> bytes{};
};

unsigned bytesOf(unsigned bits) {
    return (bits + 7) / 8;
}

unsigned stretched(unsigned fiveBits) {
    return (fiveBits * 255 + 15) / 31;
}

unsigned overBlack(unsigned component, unsigned alpha) {
    return (component * alpha + 127) / 255;
}

// A colour of 15, 16, 24 or 32 bits, the low byte first.
Pixel colorOf(const std::uint8_t* bytes, unsigned bits, bool hasAlpha) {
    if (bits <= 16) {
        const unsigned value = bytes[0] + bytes[1] * 256U;
        return pixelOf(rgb(stretched(value >> 10U & 31U), stretched(value >> 5U & 31U),
                           stretched(value & 31U)));
    }
    const unsigned alpha = bits == 32 && hasAlpha ? bytes[3] : 255;
    return pixelOf(
        rgb(overBlack(bytes[2], alpha), overBlack(bytes[1], alpha), overBlack(bytes[0], alpha)));
}

class TargaReader {
  public:
    TargaReader(ByteSource& source, const TargaHeader& header)
        : header_(header),
          bytes_(source, kHeaderBytes + header.nameBytes()),
          pixelBytes_(bytesOf(header.bits())) {
        readPalette();
    }

    void read(PictureSink& sink) {
        std::vector<Pixel> row(header_.width());
        for (unsigned y = 0; y < header_.height(); ++y) {
            for (Pixel& pixel : row) {
                pixel = next();
            }
            if ((header_.flags() & kRightToLeft) != 0) {
                std::reverse(row.begin(), row.end());
            }
            const bool isTopDown = (header_.flags() & kTopDown) != 0;
            sink.putRow(static_cast<int>(isTopDown ? y : header_.height() - 1 - y), row.data());
        }
    }

  private:
    void readPalette() {
        const unsigned length = bytesOf(header_.paletteBits());
        std::array<std::uint8_t, 4> entry{};
        for (unsigned i = 0; header_.hasPalette() && i < header_.paletteCount(); ++i) {
            bytes_.fill(std::span(entry).first(length));
            palette_.push_back(colorOf(entry.data(), header_.paletteBits(), false));
        }
    }

    Pixel next() {
        if (!header_.isCoded()) {
            return decoded();
        }
        constexpr unsigned kRun = 0x80;
        if (left_ == 0) {
            const unsigned packet = bytes_.take();
            left_ = (packet & ~kRun) + 1;
            isRun_ = (packet & kRun) != 0;
            run_ = isRun_ ? decoded() : 0;
        }
        --left_;
        return isRun_ ? run_ : decoded();
    }

    Pixel decoded() {
        std::array<std::uint8_t, 4> bytes{};
        bytes_.fill(std::span(bytes).first(pixelBytes_));
        switch (header_.kind()) {
            case kPalette: {
                // An entry that the file lacks is black.
                const unsigned index = bytes[0] + bytes[1] * 256U - header_.paletteFirst();
                return index < palette_.size() ? palette_[index] : kOpaque;
            }
            case kGreys: {
                const unsigned grey = bytes[pixelBytes_ - 1];  // the upper byte of two
                return pixelOf(rgb(grey, grey, grey));
            }
            default:
                return colorOf(bytes.data(), header_.bits(), (header_.flags() & kAlphaBits) != 0);
        }
    }

    const TargaHeader& header_;
    ByteStream bytes_;
    unsigned pixelBytes_;
    std::vector<Pixel> palette_;
    unsigned left_ = 0;  // pixels of the packet that are still to come
    bool isRun_ = false;
    Pixel run_ = 0;
};

}  // namespace

bool isTarga(ByteSource& source) {
    return TargaHeader(source).isWhole();
}

void readTarga(ByteSource& source, PictureWish& wish, Surface& picture) {
    const TargaHeader header(source);
    if (!header.isWhole()) {
        throw PictureFailure(source.path(), messages::kDamagedHeader);
    }
    TargaReader reader(source, header);
    PictureSink sink(source.path(), header.width(), header.height(), wish, picture);
    reader.read(sink);
    picture.changed();
}

}  // namespace ombrelia
