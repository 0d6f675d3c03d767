// Pictures of every kind through the real loader.
#include <QBuffer>
#include <QImageWriter>
#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>

#include "picture_corpus.h"
#include "picture_files.h"
#include "platform/bitmap_bytes.h"
#include "platform/qt/picture_loader.h"

namespace ombrelia {

namespace {

constexpr const char* kExactKinds[] = {"png", "ppm", "xpm", "tiff", "tga", "ico"};

void expectNear(const Surface& picture, const QImage& image, int tolerance) {
    ASSERT_EQ(picture.width(), image.width());
    ASSERT_EQ(picture.height(), image.height());
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = picture.row(y)[x];
            const QRgb wanted = image.pixel(x, y);
            ASSERT_EQ(pixel >> 24U, 255U);
            ASSERT_LE(std::abs(qRed(pixel) - qRed(wanted)), tolerance) << x << "," << y;
            ASSERT_LE(std::abs(qGreen(pixel) - qGreen(wanted)), tolerance) << x << "," << y;
            ASSERT_LE(std::abs(qBlue(pixel) - qBlue(wanted)), tolerance) << x << "," << y;
        }
    }
}

TEST(PictureLoader, kinds_without_loss_are_exact) {
    for (const char* kind : kExactKinds) {
        SCOPED_TRACE(kind);
        const QImage image = colorful(32, 32);
        expectNear(loadBytes(fileOf(image, kind)), image, 0);
    }
    const QImage wide = colorful(301, 203);
    for (const char* kind : {"png", "ppm", "tiff", "tga"}) {
        SCOPED_TRACE(kind);
        expectNear(loadBytes(fileOf(wide, kind)), wide, 0);
    }
}

TEST(PictureLoader, kinds_with_loss_are_near) {
    for (const char* kind : {"jpeg", "webp"}) {
        SCOPED_TRACE(kind);
        const QImage image = colorful(128, 96);
        expectNear(loadBytes(fileOf(image, kind)), image, 12);
    }
}

TEST(PictureLoader, two_coloured_kinds_are_black_and_white) {
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(qRgb(255, 255, 255));
    for (int i = 0; i < 30; ++i) {
        image.setPixel(i, i, qRgb(0, 0, 0));
    }
    for (const char* kind : {"pbm", "wbmp"}) {
        SCOPED_TRACE(kind);
        expectNear(loadBytes(fileOf(image.convertToFormat(QImage::Format_Mono), kind)), image, 0);
    }
}

TEST(PictureLoader, a_gif_gives_its_first_picture) {
    QImage image(60, 50, QImage::Format_RGB32);
    for (int y = 0; y < 50; ++y) {
        for (int x = 0; x < 60; ++x) {
            const int grey = (x * 4 + y) / 2 * 2 % 256;
            image.setPixel(x, y, qRgb(grey, grey, grey));
        }
    }
    const std::string one = fileOf(image, "gif");
    expectNear(loadBytes(one), image, 0);
    image.invertPixels();
    // Its picture alone, from the mark 2C to the end, before the final byte of the first file.
    const std::string other = fileOf(image, "gif").substr(13 + 3 * 128);
    image.invertPixels();
    expectNear(loadBytes(one.substr(0, one.size() - 1) + other), image, 0);
}

TEST(PictureLoader, sixteen_bits_of_grey_keep_the_highest_eight) {
    QImage image(256, 256, QImage::Format_Grayscale16);
    for (int y = 0; y < 256; ++y) {
        auto* row = reinterpret_cast<quint16*>(image.scanLine(y));
        for (int x = 0; x < 256; ++x) {
            row[x] = static_cast<quint16>(256 * y + x);
        }
    }
    for (const char* kind : {"png", "tiff"}) {
        const Surface picture = loadBytes(fileOf(image, kind));
        ASSERT_EQ(picture.height(), 256);
        for (unsigned y = 0; y < 256; ++y) {
            const Pixel* row = picture.row(static_cast<int>(y));
            ASSERT_TRUE(
                std::all_of(row, row + 256, [y](Pixel p) { return p == pixelOf(rgb(y, y, y)); }))
                << kind << " " << y;
        }
    }
}

TEST(PictureLoader, greys_palettes_and_deep_colours_are_exact) {
    const QImage source = colorful(50, 40);
    for (const QImage::Format format : {QImage::Format_Grayscale8, QImage::Format_Indexed8,
                                        QImage::Format_Mono, QImage::Format_RGBX64}) {
        const QImage image = source.convertToFormat(format);
        SCOPED_TRACE(format);
        expectNear(loadBytes(fileOf(image, "png")), image.convertToFormat(QImage::Format_RGB32), 0);
    }
}

TEST(PictureLoader, transparent_parts_come_over_black) {
    QImage image(3, 1, QImage::Format_ARGB32);
    image.setPixel(0, 0, qRgba(200, 100, 50, 255));
    image.setPixel(1, 0, qRgba(255, 255, 255, 0));
    image.setPixel(2, 0, qRgba(200, 100, 50, 128));
    for (const char* kind : {"png", "tiff"}) {
        const Surface picture = loadBytes(fileOf(image, kind));
        EXPECT_EQ(picture.row(0)[0], pixelOf(rgb(200, 100, 50))) << kind;
        EXPECT_EQ(picture.row(0)[1], pixelOf(rgb(0, 0, 0))) << kind;
        EXPECT_EQ(picture.row(0)[2], pixelOf(rgb(100, 50, 25))) << kind;
    }
    QImage indexed(2, 1, QImage::Format_Indexed8);
    indexed.setColorTable({qRgba(255, 255, 255, 0), qRgba(9, 8, 7, 255)});
    indexed.setPixel(0, 0, 0);
    indexed.setPixel(1, 0, 1);
    const Surface picture = loadBytes(fileOf(indexed, "png"));
    EXPECT_EQ(picture.row(0)[0], pixelOf(rgb(0, 0, 0)));
    EXPECT_EQ(picture.row(0)[1], pixelOf(rgb(9, 8, 7)));
}

TEST(PictureLoader, a_turned_photograph_is_upright) {
    const QImage image = colorful(96, 64);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(100);
    writer.setTransformation(QImageIOHandler::TransformationRotate90);
    ASSERT_TRUE(writer.write(image));
    const QImage upright = image.transformed(QTransform().rotate(90));
    expectNear(loadBytes(buffer.data().toStdString()), upright, 6);
}

TEST(PictureLoader, a_turned_webp_is_upright) {
    const QImage image = colorful(96, 64);
    std::string bytes = fileOf(image, "webp");
    ByteLine notes;
    notes.text("EXIF").number(26).text("II").word(42).number(8).word(1);
    notes.word(0x0112).word(3).number(1).word(6).word(0).number(0);
    bytes += notes.bytes();
    const auto size = static_cast<std::uint32_t>(bytes.size() - 8);
    for (unsigned i = 0; i < 4; ++i) {
        bytes[4 + i] = static_cast<char>(size >> 8 * i);
    }
    expectNear(loadBytes(bytes), image.transformed(QTransform().rotate(90)), 24);
}

TEST(PictureLoader, an_icon_gives_its_largest_picture) {
    std::string pictures;
    ByteLine head;
    head.word(0).word(1).word(3);
    std::uint32_t place = 6 + 3 * 16;
    for (const int side : {16, 70, 32}) {
        const std::string one = fileOf(colorful(side, side), "png");
        head.byte(static_cast<unsigned>(side)).byte(static_cast<unsigned>(side)).byte(0).byte(0);
        head.word(1).word(32).number(static_cast<std::uint32_t>(one.size())).number(place);
        place += static_cast<std::uint32_t>(one.size());
        pictures += one;
    }
    expectNear(loadBytes(head.bytes() + pictures), colorful(70, 70), 0);
}

TEST(PictureLoader, bitmaps_go_to_our_own_reader) {
    BitmapParts parts;
    parts.width = 2;
    parts.height = 1;
    parts.bits = 16;
    parts.pixels = packedRows({{0x7FFF, 0}}, 16);
    EXPECT_EQ(loadBytes(parts.file()).row(0)[0], pixelOf(rgb(255, 255, 255)));
}

TEST(PictureLoader, every_seed_of_the_fuzzers_is_a_picture) {
    std::vector<NamedFile> files = bitmapCorpus();
    const std::vector<NamedFile> others = pictureCorpus();
    files.insert(files.end(), others.begin(), others.end());
    for (const auto& [name, bytes] : files) {
        SCOPED_TRACE(name);
        EXPECT_EQ(refusalOfFile(bytes), "");
    }
}

TEST(PictureLoader, pictures_above_128_megabytes_are_taken) {
    QImage image(5900, 5900, QImage::Format_Grayscale8);
    image.fill(77);
    const Surface picture = loadBytes(fileOf(image, "png"));
    EXPECT_EQ(picture.width(), 5900);
    EXPECT_EQ(picture.row(5899)[5899], pixelOf(rgb(77, 77, 77)));
}

}  // namespace

}  // namespace ombrelia
