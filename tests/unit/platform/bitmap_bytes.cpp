#include "platform/bitmap_bytes.h"

#include <algorithm>
#include <span>

#include "platform/bmp_reader.h"
#include "platform/byte_source.h"
#include "platform/failure.h"
#include "whole_picture.h"

namespace ombrelia {

namespace {

constexpr std::uint32_t kFileHeaderBytes = 14;
constexpr std::uint32_t kCoreHeaderBytes = 12;
constexpr std::uint32_t kShortHeaderBytes = 16;
constexpr std::uint32_t kInfoHeaderBytes = 40;
constexpr const char* kPath = "some.bmp";

std::span<const std::uint8_t> viewOf(const std::string& bytes) {
    return {reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()};
}

void writeHeader(const BitmapParts& parts, ByteLine& line) {
    const auto width = static_cast<std::uint32_t>(parts.width);
    const auto height = static_cast<std::uint32_t>(parts.height);
    line.number(parts.headerBytes);
    if (parts.headerBytes == kCoreHeaderBytes) {
        line.word(width).word(height).word(parts.planes).word(parts.bits);
        return;
    }
    line.number(width).number(height).word(parts.planes).word(parts.bits);
    if (parts.headerBytes == kShortHeaderBytes) {
        return;
    }
    line.number(parts.compression).number(parts.imageBytes).number(2835).number(2835);
    line.number(parts.colorsUsed).number(0);
}

}  // namespace

ByteLine& ByteLine::byte(unsigned value) {
    bytes_ += static_cast<char>(value & 0xFFU);
    return *this;
}

ByteLine& ByteLine::word(unsigned value) {
    return byte(value).byte(value >> 8U);
}

ByteLine& ByteLine::number(std::uint32_t value) {
    return word(value & 0xFFFFU).word(value >> 16U);
}

ByteLine& ByteLine::text(const std::string& bytes) {
    bytes_ += bytes;
    return *this;
}

std::string bytesOf(const std::vector<int>& values) {
    std::string bytes;
    for (const int value : values) {
        bytes += static_cast<char>(value);
    }
    return bytes;
}

std::string BitmapParts::file() const {
    ByteLine header;
    writeHeader(*this, header);
    for (const std::uint32_t mask : masks) {
        header.number(mask);
    }
    const std::size_t length = headerBytes == kInfoHeaderBytes
                                   ? headerBytes + masks.size() * 4
                                   : std::max<std::size_t>(headerBytes, header.bytes().size());
    header.text(std::string(length - header.bytes().size(), '\0'));
    for (const Triple& color : palette) {
        header.byte(color[2]).byte(color[1]).byte(color[0]);
        if (headerBytes != kCoreHeaderBytes) {
            header.byte(0);
        }
    }
    header.text(gap);
    const std::size_t before = kFileHeaderBytes + header.bytes().size();
    ByteLine file;
    file.text("BM").number(static_cast<std::uint32_t>(before + pixels.size())).number(0);
    file.number(offset.value_or(static_cast<std::uint32_t>(before)));
    return file.text(header.bytes()).text(pixels).bytes();
}

std::string packedRows(const Values& values, unsigned bits, bool isTopDown) {
    std::string packed;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const auto& row = values[isTopDown ? i : values.size() - 1 - i];
        std::string line((row.size() * bits + 31) / 32 * 4, '\0');
        for (std::size_t x = 0; x < row.size(); ++x) {
            for (unsigned bit = 0; bit < bits; ++bit) {
                // Up to 8 bits: the first pixel in the highest bits; above: the lowest byte first.
                const std::size_t place =
                    bits <= 8 ? x * bits + bits - 1 - bit : x * bits + (bit / 8) * 8 + 7 - bit % 8;
                if ((row[x] >> bit & 1U) != 0) {
                    line[place / 8] = static_cast<char>(line[place / 8] | 0x80 >> place % 8);
                }
            }
        }
        packed += line;
    }
    return packed;
}

Values tellingValues(int width, int height, std::uint64_t limit) {
    Values values;
    std::uint64_t next = 7;
    for (int y = 0; y < height; ++y) {
        values.emplace_back();
        for (int x = 0; x < width; ++x) {
            next = (next * 1664525 + 1013904223) & 0xFFFFFFFFU;
            values.back().push_back(static_cast<std::uint32_t>(next * limit >> 32U));
        }
    }
    return values;
}

std::string trueColorBitmap(const Surface& picture) {
    BitmapParts parts;
    parts.width = picture.width();
    parts.height = picture.height();
    parts.bits = 24;
    for (int y = picture.height() - 1; y >= 0; --y) {
        for (int x = 0; x < picture.width(); ++x) {
            const Pixel pixel = picture.row(y)[x];
            parts.pixels += static_cast<char>(pixel & 0xFFU);
            parts.pixels += static_cast<char>(pixel >> 8U & 0xFFU);
            parts.pixels += static_cast<char>(pixel >> 16U & 0xFFU);
        }
        parts.pixels.append(static_cast<std::size_t>(picture.width() % 4), '\0');
    }
    return parts.file();
}

Surface readBytes(const std::string& bytes) {
    Surface picture;
    MemorySource source(kPath, viewOf(bytes));
    WholePicture wish;
    readBitmap(source, wish, picture);
    return picture;
}

std::string refusalOf(const std::string& bytes) {
    try {
        readBytes(bytes);
    } catch (const PictureFailure& failure) {
        return failure.what();
    }
    return {};
}

std::string refusal(const std::string& reason) {
    std::string text = "The picture \"";
    text.append(kPath).append("\" could not be loaded: ").append(reason);
    return text.append(". The map is unharmed.");
}

}  // namespace ombrelia
