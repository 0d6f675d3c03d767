#include "files/bitmap_export.h"

#include <span>

#include "core/objects.h"
#include "platform/whole_file.h"

namespace ombrelia {

namespace {

constexpr int kRowPadding = 3;  // after each row, for every size
constexpr std::uint32_t kPixelOffset = 1078;
constexpr std::uint32_t kHeaderBytes = 40;
constexpr std::uint32_t kPixelsPerMetre = 3780;
constexpr std::uint32_t kBitsPerPixel = 8;

struct SizeFields {
    std::int16_t mapSize;
    std::uint32_t fileBytes;
    std::uint32_t imageBytes;
};

// Required: the image size of 193 is not the true one (the_193_header_keeps_its_odd_image_size).
constexpr SizeFields kSizes[] = {
    {kMiniatureSize, 5498, 4420},
    {kSmallSize, 18106, 17028},
    {kMediumSize, 38906, 50628},
    {kLargeSize, 67898, 66820},
};

void append(std::string& bytes, std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i) {
        bytes.push_back(static_cast<char>((value >> (8 * i)) & 0xFFU));
    }
}

SizeFields fieldsOf(std::int16_t mapSize) {
    for (const SizeFields& row : kSizes) {
        if (row.mapSize == mapSize) {
            return row;
        }
    }
    return {0, 0, 0};
}

void appendPalette(std::string& header) {
    for (std::uint32_t grey = 0; grey <= 255; ++grey) {
        append(header, grey | (grey << 8U) | (grey << 16U), 4);
    }
}

void appendRow(std::string& bytes, int y, int mapSize) {
    const std::size_t start = bytes.size();
    bytes.resize(start + static_cast<std::size_t>(mapSize) + kRowPadding);  // zeros
    const std::int16_t* row = HeightMap.row(y);
    char* out = bytes.data() + start;
    for (int x = 0; x < mapSize; ++x) {
        out[x] = static_cast<char>(row[x] < 0 ? 0 : row[x]);
    }
}

std::span<const std::uint8_t> bytesOf(const std::string& text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

}  // namespace

void BuildBitmapHeader(std::string& header, std::int16_t mapSize) {
    const SizeFields size = fieldsOf(mapSize);
    const auto side = static_cast<std::uint32_t>(size.mapSize);
    header = "BM";
    append(header, size.fileBytes, 4);
    append(header, 0, 4);
    append(header, kPixelOffset, 4);
    append(header, kHeaderBytes, 4);
    append(header, side, 4);
    append(header, side, 4);
    append(header, 1, 2);
    append(header, kBitsPerPixel, 2);
    append(header, 0, 4);
    append(header, size.imageBytes, 4);
    append(header, kPixelsPerMetre, 4);
    append(header, kPixelsPerMetre, 4);
    append(header, 0, 4);
    append(header, 0, 4);
    appendPalette(header);
}

namespace {

std::string bitmapOf(std::int16_t mapSize) {
    std::string bytes;
    bytes.reserve(fieldsOf(mapSize).fileBytes);
    BuildBitmapHeader(bytes, mapSize);
    for (int y = mapSize - 1; y >= 0; --y) {
        appendRow(bytes, y, mapSize);
    }
    return bytes;
}

}  // namespace

void WriteTerrainBitmap(const std::string& fileName, std::int16_t mapSize, std::int16_t& result) {
    const std::string bytes = bitmapOf(mapSize);
    if (!saveWholeFile(fileName, bytesOf(bytes))) {
        // Required: what holds something is never replaced, and no word is said
        // (a_second_save_changes_nothing).
        result = 1;
    }
}

}  // namespace ombrelia
