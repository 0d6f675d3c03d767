#include "picture_files.h"

#include <QBuffer>
#include <QImageWriter>
#include <gtest/gtest.h>

#include "platform/bitmap_bytes.h"
#include "platform/byte_source.h"
#include "platform/failure.h"
#include "platform/picture_kinds_table.h"
#include "platform/qt/picture_loader.h"
#include "whole_picture.h"

namespace ombrelia {

namespace {

// Greys of 7 bits in codes of 8, so that no code has a meaning of its own; the table is cleared
// before the codes grow.
std::string gifFile(const QImage& image) {
    constexpr int kBetweenClears = 100;
    constexpr unsigned kClear = 128;
    constexpr unsigned kEnd = 129;
    ByteLine line;
    line.text("GIF89a").word(static_cast<unsigned>(image.width()));
    line.word(static_cast<unsigned>(image.height())).byte(0xF6).byte(0).byte(0);
    for (unsigned i = 0; i < 128; ++i) {
        line.byte(2 * i).byte(2 * i).byte(2 * i);
    }
    line.byte(0x2C).word(0).word(0).word(static_cast<unsigned>(image.width()));
    line.word(static_cast<unsigned>(image.height())).byte(0).byte(7);
    std::string codes;
    int sinceClear = kBetweenClears;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (sinceClear++ == kBetweenClears) {
                codes += static_cast<char>(kClear);
                sinceClear = 1;
            }
            codes += static_cast<char>(qGray(image.pixel(x, y)) / 2);
        }
    }
    codes += static_cast<char>(kEnd);
    for (std::size_t i = 0; i < codes.size(); i += 255) {
        const std::string chunk = codes.substr(i, 255);
        line.byte(static_cast<unsigned>(chunk.size())).text(chunk);
    }
    return line.byte(0).byte(0x3B).bytes();
}

std::string tgaFile(const QImage& image) {
    ByteLine line;
    line.byte(0).byte(0).byte(2).word(0).word(0).byte(0).word(0).word(0);
    line.word(static_cast<unsigned>(image.width())).word(static_cast<unsigned>(image.height()));
    line.byte(24).byte(0x20);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            line.byte(static_cast<unsigned>(qBlue(pixel)));
            line.byte(static_cast<unsigned>(qGreen(pixel)));
            line.byte(static_cast<unsigned>(qRed(pixel)));
        }
    }
    // The toolkit takes no file without this end.
    line.number(0).number(0).text("TRUEVISION-XFILE.").byte(0);
    return line.bytes();
}

void readBytes(const std::string& bytes, Surface& picture) {
    MemorySource source(
        "P", std::span(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()));
    WholePicture wish;
    readPicture(source, wish, picture);
}

}  // namespace

QImage colorful(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            image.setPixel(x, y, qRgb(255 * x / width, 255 * y / height, 120));
        }
    }
    return image;
}

std::vector<std::string> toolkitKinds() {
    std::vector<std::string> kinds;
    for (const PictureKind& kind : kPictureKinds) {
        const std::string names = kind.toolkitNames;
        if (!names.empty()) {
            kinds.push_back(names.substr(0, names.find(' ')));
        }
    }
    return kinds;
}

QImage fittedTo(const std::string& kind, const QImage& image) {
    const bool isMono = kind == "pbm" || kind == "wbmp";
    return isMono ? image.convertToFormat(QImage::Format_Mono) : image;
}

std::string fileOf(const QImage& image, const std::string& kind) {
    if (kind == "gif") {
        return gifFile(image);
    }
    if (kind == "tga") {
        return tgaFile(image);
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, QByteArray::fromStdString(kind));
    EXPECT_TRUE(writer.write(image)) << kind << ": " << writer.errorString().toStdString();
    return buffer.data().toStdString();
}

Surface loadBytes(const std::string& bytes) {
    Surface picture;
    readBytes(bytes, picture);
    return picture;
}

std::string refusalOfFile(const std::string& bytes) {
    Surface picture;
    try {
        readBytes(bytes, picture);
    } catch (const PictureFailure& failure) {
        return failure.what();
    }
    return {};
}

}  // namespace ombrelia
