#include "platform/bmp_header.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <vector>

#include "platform/byte_source.h"
#include "platform/failure.h"
#include "platform/messages.h"

namespace ombrelia {

namespace {

constexpr std::uint32_t kFileHeaderBytes = 14;
constexpr std::uint32_t kCoreHeaderBytes = 12;
constexpr std::uint32_t kShortHeaderBytes = 16;
constexpr std::uint32_t kInfoHeaderBytes = 40;
constexpr std::uint32_t kOs2HeaderBytes = 64;
constexpr std::uint32_t kLongestHeaderBytes = 124;
constexpr std::uint32_t kHeaderSizes[] = {
    kCoreHeaderBytes,   kShortHeaderBytes, kInfoHeaderBytes, 52, 56, kOs2HeaderBytes, 108,
    kLongestHeaderBytes};
constexpr std::uint32_t kAlphaMaskFrom = 56;  // headers of this size on have a mask of alpha
constexpr int kBits[] = {1, 2, 4, 8, 16, 24, 32};
constexpr Pixel kBlack = pixelOf(rgb(0, 0, 0));

// Compression as the file names it.
constexpr std::uint32_t kMasks = 3;
constexpr std::uint32_t kMasksWithAlpha = 6;

// Fields that are missing in a short header read as 0.
class Fields {
  public:
    // Reads the bytes from offset on that the source has, up to count.
    Fields(ByteSource& source, std::uint64_t offset, std::uint32_t count) {
        source.read(offset, std::span(bytes_).first(count));
    }
    std::uint32_t word(std::size_t at) const {
        return static_cast<std::uint32_t>(bytes_[at]) | static_cast<std::uint32_t>(bytes_[at + 1])
                                                            << 8U;
    }
    std::uint32_t number(std::size_t at) const { return word(at) | word(at + 2) << 16U; }

  private:
    std::array<std::uint8_t, kLongestHeaderBytes> bytes_{};
};

// The parts of a bitmap's beginning that are not kept.
struct Layout {
    std::uint32_t headerBytes = 0;
    std::uint32_t compression = 0;
    std::uint32_t colorsUsed = 0;
    std::uint32_t statedOffset = 0;

    std::uint32_t entryBytes() const { return headerBytes == kCoreHeaderBytes ? 3 : 4; }
    // Masks stand behind the header of 40 bytes and inside the longer ones.
    std::uint32_t masksBehind() const {
        if (headerBytes != kInfoHeaderBytes) {
            return 0;
        }
        return compression == kMasks ? 12 : (compression == kMasksWithAlpha ? 16 : 0);
    }
    std::uint64_t paletteOffset() const {
        return std::uint64_t{kFileHeaderBytes} + headerBytes + masksBehind();
    }
};

[[noreturn]] void fail(const ByteSource& source, const char* reason) {
    throw PictureFailure(source.path(), reason);
}

void takeSize(const Fields& fields, const Layout& layout, BitmapHeader& header) {
    if (layout.headerBytes == kCoreHeaderBytes) {
        header.width = fields.word(4);
        header.height = fields.word(6);
        header.bits = static_cast<int>(fields.word(10));
        return;
    }
    header.width = static_cast<std::int32_t>(fields.number(4));
    header.height = static_cast<std::int32_t>(fields.number(8));
    header.bits = static_cast<int>(fields.word(14));
    if (header.height < 0 && header.height != std::numeric_limits<std::int32_t>::min()) {
        header.height = -header.height;
        header.isTopDown = true;
    }
}

struct CodingRow {
    std::uint32_t compression;
    BitmapCoding coding;
    int bits, otherBits;  // 0: any
};
constexpr CodingRow kCodings[] = {
    {0, BitmapCoding::Plain, 0, 0},
    {1, BitmapCoding::Rle8, 8, 8},
    {2, BitmapCoding::Rle4, 4, 4},
    {kMasks, BitmapCoding::Fields, 16, 32},
    {kMasksWithAlpha, BitmapCoding::Fields, 16, 32},
};

BitmapCoding codingOf(const ByteSource& source, const Layout& layout, int bits) {
    const auto* row =
        std::find_if(std::begin(kCodings), std::end(kCodings),
                     [&](const CodingRow& r) { return r.compression == layout.compression; });
    // In the header of 64 bytes the number of the masks means something else.
    const bool isForeign = layout.headerBytes == kOs2HeaderBytes && layout.compression >= kMasks;
    if (row == std::end(kCodings) || isForeign) {
        fail(source, messages::kUnknownCompression);
    }
    if (row->bits != 0 && bits != row->bits && bits != row->otherBits) {
        fail(source, messages::kDamagedHeader);
    }
    return row->coding;
}

void takeMasks(ByteSource& source, const Layout& layout, BitmapHeader& header) {
    if (header.coding != BitmapCoding::Fields) {
        header.masks = header.bits == 16
                           ? std::array<std::uint32_t, 4>{0x7C00, 0x03E0, 0x001F, 0}
                           : std::array<std::uint32_t, 4>{0xFF0000, 0x00FF00, 0x0000FF, 0};
        return;
    }
    const bool hasAlpha =
        layout.compression == kMasksWithAlpha || layout.headerBytes >= kAlphaMaskFrom;
    const std::uint32_t count = hasAlpha ? 4 : 3;
    const Fields fields(source, kFileHeaderBytes + kInfoHeaderBytes, 4 * count);
    for (std::uint32_t i = 0; i < count; ++i) {
        header.masks[i] = fields.number(std::size_t{4} * i);
    }
}

void takePalette(ByteSource& source, const Layout& layout, BitmapHeader& header) {
    header.palette.fill(kBlack);
    const std::uint64_t start = layout.paletteOffset();
    std::uint64_t entries = 0;
    if (header.bits <= 8) {
        entries = std::uint64_t{1} << static_cast<unsigned>(header.bits);
        if (layout.colorsUsed != 0) {
            entries = std::min<std::uint64_t>(entries, layout.colorsUsed);
        }
    }
    const bool isOffsetStated = layout.statedOffset >= start;
    if (isOffsetStated) {
        entries = std::min(entries, (layout.statedOffset - start) / layout.entryBytes());
    }
    header.pixelOffset =
        isOffsetStated ? layout.statedOffset : start + entries * layout.entryBytes();
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(entries * layout.entryBytes()));
    source.read(start, bytes);
    for (std::size_t i = 0; i < entries; ++i) {
        const std::uint8_t* entry = bytes.data() + i * layout.entryBytes();
        header.palette[i] = pixelOf(rgb(entry[2], entry[1], entry[0]));
    }
}

}  // namespace

std::uint64_t BitmapHeader::bareRowBytes() const {
    return (static_cast<std::uint64_t>(width) * static_cast<unsigned>(bits) + 7) / 8;
}

std::uint64_t BitmapHeader::paddedRowBytes() const {
    return (bareRowBytes() + 3) / 4 * 4;
}

bool isBitmap(ByteSource& source) {
    std::array<std::uint8_t, 2> begin{};
    if (source.size() < begin.size()) {
        return false;
    }
    source.read(0, begin);
    return begin[0] == 'B' && begin[1] == 'M';
}

BitmapHeader readBitmapHeader(ByteSource& source) {
    const Fields file(source, 0, kFileHeaderBytes + 4);
    Layout layout;
    layout.statedOffset = file.number(10);
    layout.headerBytes = file.number(kFileHeaderBytes);
    if (std::find(std::begin(kHeaderSizes), std::end(kHeaderSizes), layout.headerBytes) ==
        std::end(kHeaderSizes)) {
        fail(source, messages::kDamagedHeader);
    }
    const Fields fields(source, kFileHeaderBytes, layout.headerBytes);
    BitmapHeader header;
    takeSize(fields, layout, header);
    if (layout.headerBytes > kShortHeaderBytes) {
        layout.compression = fields.number(16);
        layout.colorsUsed = fields.number(32);
    }
    header.coding = codingOf(source, layout, header.bits);
    const bool areBitsKnown =
        std::find(std::begin(kBits), std::end(kBits), header.bits) != std::end(kBits);
    if (!areBitsKnown || header.width < 1 || header.height < 1) {
        fail(source, messages::kDamagedHeader);
    }
    takeMasks(source, layout, header);
    takePalette(source, layout, header);
    return header;
}

}  // namespace ombrelia
