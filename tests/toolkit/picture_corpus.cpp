#include "picture_corpus.h"

#include "picture_files.h"
#include "platform/bitmap_bytes.h"

namespace ombrelia {

namespace {

constexpr int kWidth = 7;
constexpr int kHeight = 5;

BitmapParts partsOf(unsigned bits, bool isTopDown) {
    BitmapParts parts;
    parts.width = kWidth;
    parts.height = isTopDown ? -kHeight : kHeight;
    parts.bits = bits;
    const std::uint64_t limit = std::uint64_t{1} << bits;
    parts.pixels = packedRows(tellingValues(kWidth, kHeight, limit), bits, isTopDown);
    for (unsigned i = 0; bits <= 8 && i < limit; ++i) {
        parts.palette.push_back({i, 255 - i, i * 7 % 256});
    }
    return parts;
}

void addPlain(std::vector<NamedFile>& files) {
    for (const std::uint32_t header : {12U, 16U, 40U, 52U, 56U, 64U, 108U, 124U}) {
        for (const unsigned bits : {1U, 2U, 4U, 8U, 16U, 24U, 32U}) {
            BitmapParts parts = partsOf(bits, false);
            parts.headerBytes = header;
            files.emplace_back(std::to_string(header) + "_" + std::to_string(bits) + ".bmp",
                               parts.file());
        }
    }
    files.emplace_back("top_down.bmp", partsOf(24, true).file());
}

void addMasked(std::vector<NamedFile>& files) {
    for (const std::uint32_t header : {40U, 56U, 124U}) {
        BitmapParts parts = partsOf(32, false);
        parts.headerBytes = header;
        parts.compression = header == 40 ? 6 : 3;
        parts.masks = {0x3FF00000, 0x000FFC00, 0x000003FF, 0xC0000000};
        files.emplace_back("masks_" + std::to_string(header) + ".bmp", parts.file());
    }
    BitmapParts parts = partsOf(16, false);
    parts.compression = 3;
    parts.masks = {0xF800, 0x07E0, 0x001F};
    files.emplace_back("masks_16.bmp", parts.file());
}

void addCoded(std::vector<NamedFile>& files) {
    for (const unsigned bits : {4U, 8U}) {
        BitmapParts parts = partsOf(bits, false);
        parts.compression = bits == 8 ? 1 : 2;
        parts.pixels = bytesOf({3, 0x12, 0, 3, 1, 2, 3, 0, 0, 0, 0, 2, 2, 1, 2, 0x35, 0, 1});
        files.emplace_back("coded_" + std::to_string(bits) + ".bmp", parts.file());
    }
}

}  // namespace

std::vector<NamedFile> bitmapCorpus() {
    std::vector<NamedFile> files;
    addPlain(files);
    addMasked(files);
    addCoded(files);
    return files;
}

std::vector<NamedFile> pictureCorpus() {
    std::vector<NamedFile> files;
    const QImage image = colorful(16, 16);
    for (const std::string& kind : toolkitKinds()) {
        files.emplace_back("picture." + kind, fileOf(fittedTo(kind, image), kind));
    }
    for (const auto format :
         {QImage::Format_Grayscale8, QImage::Format_Grayscale16, QImage::Format_Indexed8,
          QImage::Format_ARGB32, QImage::Format_RGBA64}) {
        files.emplace_back("format_" + std::to_string(format) + ".png",
                           fileOf(image.convertToFormat(format), "png"));
    }
    return files;
}

}  // namespace ombrelia
