// Our readers of rows against the toolkit's of whole pictures, pixel by pixel.
#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>
#include <csetjmp>
#include <cstdio>  // before jpeglib.h, which needs it
#include <gtest/gtest.h>
#include <jpeglib.h>
#include <png.h>
#include <random>

#include "picture_files.h"

namespace ombrelia {

namespace {

QImage chanceImage(QImage::Format format, int width, int height) {
    std::minstd_rand draws(static_cast<unsigned>(format * 1000 + width));
    QImage image(width, height, format);
    image.fill(0);
    if (format == QImage::Format_Indexed8) {
        for (int i = 0; i < 256; ++i) {
            image.setColor(i, qRgba(i, 255 - i, i * 7 % 256, i % 5 == 0 ? i : 255));
        }
    }
    for (int y = 0; y < height; ++y) {
        uchar* row = image.scanLine(y);
        for (qsizetype i = 0; i < (qsizetype{width} * image.depth() + 7) / 8; ++i) {
            row[i] = static_cast<uchar>(draws() >> 8U);
        }
    }
    return image;
}

// As the toolkit reads it, over black; of sixteen bits of grey the upper eight.
QImage toolkitReads(const std::string& bytes) {
    QByteArray copy = QByteArray::fromStdString(bytes);
    QBuffer buffer(&copy);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    QImage image = reader.read();
    EXPECT_FALSE(image.isNull()) << reader.errorString().toStdString();
    if (image.format() == QImage::Format_Grayscale16) {
        QImage grey(image.size(), QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y) {
            const auto* from = reinterpret_cast<const quint16*>(image.constScanLine(y));
            for (int x = 0; x < image.width(); ++x) {
                grey.setPixel(x, y, qRgb(from[x] >> 8, from[x] >> 8, from[x] >> 8));
            }
        }
        return grey;
    }
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

// leeway: by how much a component may differ.
void expectAsTheToolkit(const std::string& bytes, int leeway = 0) {
    const QImage image = toolkitReads(bytes);
    const Surface picture = loadBytes(bytes);
    ASSERT_EQ(picture.width(), image.width());
    ASSERT_EQ(picture.height(), image.height());
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = reinterpret_cast<const Pixel*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            ASSERT_EQ(picture.row(y)[x] >> 24U, 255U);
            for (const int shift : {0, 8, 16}) {
                const int ours = static_cast<int>(picture.row(y)[x] >> shift & 255U);
                ASSERT_NEAR(ours, row[x] >> shift & 255U, leeway) << x << "," << y;
            }
        }
    }
}

// A PNG as the library writes it, of bytes by chance.
std::string pngOf(int colorType, int depth, int width, int height, int interlace,
                  std::vector<png_byte> notes = {}) {
    std::string bytes;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    png_set_write_fn(
        png, &bytes,
        [](png_structp writer, png_bytep from, std::size_t count) {
            static_cast<std::string*>(png_get_io_ptr(writer))
                ->append(reinterpret_cast<char*>(from), count);
        },
        nullptr);
    png_set_IHDR(png, info, static_cast<png_uint_32>(width), static_cast<png_uint_32>(height),
                 depth, colorType, interlace, PNG_COMPRESSION_TYPE_DEFAULT,
                 PNG_FILTER_TYPE_DEFAULT);
    png_color palette[256];
    for (int i = 0; i < 256; ++i) {
        palette[i] = {static_cast<png_byte>(i), static_cast<png_byte>(255 - i),
                      static_cast<png_byte>(i * 5)};
    }
    if (colorType == PNG_COLOR_TYPE_PALETTE) {
        png_set_PLTE(png, info, palette, 1 << depth);
    }
    if (!notes.empty()) {
        png_set_eXIf_1(png, info, static_cast<png_uint_32>(notes.size()), notes.data());
    }
    png_write_info(png, info);
    std::minstd_rand draws(static_cast<unsigned>(depth * 100 + width));
    std::vector<std::vector<png_byte>> rows(static_cast<std::size_t>(height));
    std::vector<png_bytep> begins;
    for (auto& row : rows) {
        row.resize(png_get_rowbytes(png, info));
        for (png_byte& byte : row) {
            byte = static_cast<png_byte>(draws() >> 8U);
        }
        begins.push_back(row.data());
    }
    png_write_image(png, begins.data());
    png_write_end(png, info);
    png_destroy_write_struct(&png, &info);
    return bytes;
}

// A JPEG of inks, which the toolkit does not write.
std::string printedJpeg(int width, int height) {
    jpeg_compress_struct jpeg{};
    jpeg_error_mgr errors{};
    jpeg.err = jpeg_std_error(&errors);
    jpeg_create_compress(&jpeg);
    unsigned char* bytes = nullptr;
    unsigned long count = 0;
    jpeg_mem_dest(&jpeg, &bytes, &count);
    jpeg.image_width = static_cast<JDIMENSION>(width);
    jpeg.image_height = static_cast<JDIMENSION>(height);
    jpeg.input_components = 4;
    jpeg.in_color_space = JCS_CMYK;
    jpeg_set_defaults(&jpeg);
    jpeg_start_compress(&jpeg, TRUE);
    for (int y = 0; y < height; ++y) {
        std::vector<JSAMPLE> row(static_cast<std::size_t>(4 * width));
        for (std::size_t i = 0; i < row.size(); ++i) {
            row[i] = static_cast<JSAMPLE>(i * 3 + static_cast<std::size_t>(y) * 7);
        }
        JSAMPROW rows[] = {row.data()};
        jpeg_write_scanlines(&jpeg, rows, 1);
    }
    jpeg_finish_compress(&jpeg);
    jpeg_destroy_compress(&jpeg);
    std::string file(reinterpret_cast<char*>(bytes), count);
    std::free(bytes);
    return file;
}

// A JPEG of 96 by 64 with these notes behind the mark of its begin.
std::string jpegWith(const std::string& notes) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(QImageWriter(&buffer, "jpeg").write(colorful(96, 64)));
    return buffer.data().toStdString().insert(2, notes);
}

TEST(RowReaders, each_format_of_a_png_is_as_the_toolkit_has_it) {
    for (const QImage::Format format :
         {QImage::Format_Mono, QImage::Format_Indexed8, QImage::Format_Grayscale8,
          QImage::Format_Grayscale16, QImage::Format_RGB888, QImage::Format_ARGB32,
          QImage::Format_RGBX64, QImage::Format_RGBA64}) {
        SCOPED_TRACE(format);
        expectAsTheToolkit(fileOf(chanceImage(format, 131, 57), "png"));
    }
}

TEST(RowReaders, each_depth_and_kind_of_a_png_is_as_the_toolkit_has_it) {
    const std::pair<int, std::vector<int>> rows[] = {{PNG_COLOR_TYPE_GRAY, {1, 2, 4, 8, 16}},
                                                     {PNG_COLOR_TYPE_PALETTE, {1, 2, 4, 8}},
                                                     {PNG_COLOR_TYPE_RGB, {8, 16}},
                                                     {PNG_COLOR_TYPE_GRAY_ALPHA, {8, 16}},
                                                     {PNG_COLOR_TYPE_RGB_ALPHA, {8, 16}}};
    for (const auto& [type, depths] : rows) {
        for (const int depth : depths) {
            for (const int interlace : {PNG_INTERLACE_NONE, PNG_INTERLACE_ADAM7}) {
                for (const auto& [width, height] : {std::pair{67, 41}, {1, 1}, {3, 9}, {5, 2}}) {
                    SCOPED_TRACE(testing::Message() << "type " << type << ", " << depth << " bits, "
                                                    << width << "x" << height << ", " << interlace);
                    expectAsTheToolkit(pngOf(type, depth, width, height, interlace));
                }
            }
        }
    }
}

TEST(RowReaders, the_notes_of_a_png_turn_it) {
    const std::vector<png_byte> quarter = {'M', 'M', 0, 42, 0, 0, 0, 8, 0, 1,  // one entry
                                           1,   18,  0, 3,  0, 0, 0, 1, 0, 6, 0, 0, 0, 0, 0, 0};
    for (const int interlace : {PNG_INTERLACE_NONE, PNG_INTERLACE_ADAM7}) {
        const Surface plain = loadBytes(pngOf(PNG_COLOR_TYPE_RGB, 8, 20, 9, interlace));
        const Surface turned = loadBytes(pngOf(PNG_COLOR_TYPE_RGB, 8, 20, 9, interlace, quarter));
        ASSERT_EQ(turned.width(), 9);
        ASSERT_EQ(turned.height(), 20);
        for (int y = 0; y < 9; ++y) {
            for (int x = 0; x < 20; ++x) {
                ASSERT_EQ(turned.row(x)[8 - y], plain.row(y)[x]) << x << "," << y;
            }
        }
    }
}

TEST(RowReaders, each_kind_of_jpeg_is_as_the_toolkit_has_it) {
    for (const bool isProgressive : {false, true}) {
        for (const int quality : {30, 75, 100}) {
            for (const bool isGrey : {false, true}) {
                const QImage image = colorful(133, 71);
                QBuffer buffer;
                buffer.open(QIODevice::WriteOnly);
                QImageWriter writer(&buffer, "jpeg");
                writer.setQuality(quality);
                writer.setProgressiveScanWrite(isProgressive);
                ASSERT_TRUE(writer.write(isGrey ? image.convertToFormat(QImage::Format_Grayscale8)
                                                : image));
                SCOPED_TRACE(testing::Message() << quality << (isGrey ? " grey" : " colours")
                                                << (isProgressive ? " progressive" : ""));
                expectAsTheToolkit(buffer.data().toStdString());
            }
        }
    }
    expectAsTheToolkit(printedJpeg(90, 40), 1);  // whose inks younger toolkits round
}

TEST(RowReaders, notes_of_others_in_a_jpeg_are_passed_over) {
    const std::string note = "\xFF\xE5\xFF\xFF" + std::string(0xFFFF - 2, '\xFF');
    expectAsTheToolkit(jpegWith(note + note + note + note));
}

TEST(RowReaders, each_way_to_hold_a_camera_is_as_the_toolkit_has_it) {
    // One entry, the orientation, whose value stands at the place of the nine.
    constexpr char kNotes[] =
        "\xFF\xE1\0\x22"
        "Exif\0\0MM\0\x2A\0\0\0\x08\0\1\x01\x12\0\3\0\0\0\1\0\x09\0\0\0\0\0\0";
    std::string notes(std::begin(kNotes), std::end(kNotes) - 1);
    char& orientation = notes[notes.find('\x09')];
    for (int turn = 0; turn <= 9; ++turn) {  // 1 to 8 mean something
        orientation = static_cast<char>(turn);
        const std::string jpeg = jpegWith(notes);
        SCOPED_TRACE(turn);
        ASSERT_EQ(toolkitReads(jpeg).width(), turn >= 5 && turn <= 8 ? 64 : 96);
        expectAsTheToolkit(jpeg);
    }
}

}  // namespace

}  // namespace ombrelia
