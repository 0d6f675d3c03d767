// Pictures through the process that reads them: what it may take, and how it ends.
#include <QBuffer>
#include <QElapsedTimer>
#include <QImageWriter>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include "picture_files.h"
#include "platform/bitmap_bytes.h"
#include "platform/failure.h"
#include "platform/qt/picture_loader.h"
#include "slow_picture.h"
#include "temp_folder.h"
#include "whole_picture.h"

namespace ombrelia {

namespace {

// What the import wants of a large picture.
class FewPixels : public WholePicture {
  public:
    PictureGrid gridFor(int width, int height) override {
        return {width / 257 + 1, height / 257 + 1, width, height};
    }
};

// Gives up at the first frame that it is asked for.
class Impatient : public FewPixels {
  public:
    bool goesOn() override { return false; }
};

// Gives up after some seconds.
class PatientFor : public FewPixels {
  public:
    explicit PatientFor(int seconds) : milliseconds_(1000 * seconds) { waited_.start(); }
    bool goesOn() override { return waited_.elapsed() < milliseconds_; }

  private:
    qint64 milliseconds_;
    QElapsedTimer waited_;
};

// The reason of the refusal; empty if the picture is taken.
std::string reasonOfRefusal(const std::string& bytes, const char* program = OMBRELIA_EDITOR,
                            int seconds = 30) {
    const TempFolder folder;
    const std::string path = folder / "P";
    writeContent(path, bytes);
    FewPixels wish;
    Surface picture;
    try {
        EXPECT_TRUE(QtPictureLoader(program, seconds).loadPicture(path, wish, picture));
        return {};
    } catch (const PictureFailure& failure) {
        const std::string sentence = failure.what();
        const std::string begin = "The picture \"" + path + "\" could not be loaded: ";
        const std::string end = ". The map is unharmed.";
        EXPECT_TRUE(sentence.starts_with(begin) && sentence.ends_with(end)) << sentence;
        return sentence.substr(begin.size(), sentence.size() - begin.size() - end.size());
    }
}

// The most memory that a process of this one has had, MiB.
long peak() {
    rusage usage{};
    ::getrusage(RUSAGE_CHILDREN, &usage);
    return usage.ru_maxrss / 1024;
}

constexpr long kMostMegabytes = 256;

ByteLine& bigNumber(ByteLine& line, unsigned number) {
    return line.byte(number >> 24U)
        .byte(number >> 16U & 255U)
        .byte(number >> 8U & 255U)
        .byte(number & 255U);
}

std::string pngHead(unsigned width, unsigned height, unsigned depth, unsigned type) {
    ByteLine chunk;
    chunk.text("IHDR");
    bigNumber(chunk, width);
    bigNumber(chunk, height);
    chunk.byte(depth).byte(type).byte(0).byte(0).byte(0);
    const std::string bytes = chunk.bytes();
    std::uint32_t sum = 0xFFFFFFFFU;
    for (const char c : bytes) {
        sum ^= static_cast<unsigned char>(c);
        for (int bit = 0; bit < 8; ++bit) {
            sum = sum >> 1U ^ ((sum & 1U) != 0 ? 0xEDB88320U : 0U);
        }
    }
    ByteLine file;
    file.text("\x89PNG\r\n\x1a\n");
    bigNumber(file, 13).text(bytes);
    bigNumber(file, ~sum);
    return file.bytes();
}

}  // namespace

TEST(PictureProcess, gives_the_pixels_that_are_wished_for) {
    const QImage image = colorful(600, 400);
    const TempFolder folder;
    writeContent(folder / "P", fileOf(image, "png"));
    FewPixels wish;
    Surface picture;
    ASSERT_TRUE(QtPictureLoader(OMBRELIA_EDITOR).loadPicture(folder / "P", wish, picture));
    ASSERT_EQ(picture.width(), 200);
    ASSERT_EQ(picture.height(), 200);
    for (int y = 0; y < 200; ++y) {
        for (int x = 0; x < 200; ++x) {
            ASSERT_EQ(picture.row(y)[x], image.pixel(3 * x, 2 * y)) << x << "," << y;
        }
    }
}

TEST(PictureProcess, a_large_picture_is_never_held_as_a_whole) {
    QImage image(9000, 7000, QImage::Format_Grayscale8);
    image.fill(77);
    for (const char* kind : {"png", "jpeg"}) {
        EXPECT_EQ(reasonOfRefusal(fileOf(image, kind)), "") << kind;
    }
    EXPECT_LT(peak(), kMostMegabytes);
}

TEST(PictureProcess, heads_that_claim_much_take_little) {
    const std::string tooLarge = ", which is more than can be held";
    EXPECT_EQ(reasonOfRefusal(pngHead(16384, 16384, 16, 6)), "It is cut off before its end");
    std::string gif = fileOf(colorful(60, 50), "gif");
    for (const std::size_t at : {6U, 8U, 13U + 3 * 128 + 5, 13U + 3 * 128 + 7}) {
        gif[at] = '\0';
        gif[at + 1] = '\x40';
    }
    EXPECT_EQ(reasonOfRefusal(gif), "It has 16384 x 16384 pixels" + tooLarge);
    std::string webp = fileOf(colorful(60, 50), "webp");
    const std::size_t size = webp.find("VP8 ") + 14;
    ASSERT_LT(size, webp.size());
    webp.replace(size, 4, "\xFF\x3F\xFF\x3F");
    EXPECT_EQ(reasonOfRefusal(webp), "It has 16383 x 16383 pixels" + tooLarge);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setProgressiveScanWrite(true);
    ASSERT_TRUE(writer.write(colorful(64, 64)));
    std::string jpeg = buffer.data().toStdString();
    const std::size_t frame = jpeg.find("\xFF\xC2");
    ASSERT_NE(frame, std::string::npos);
    jpeg.replace(frame + 5, 4, "\x40\x40\x40\x40");
    EXPECT_EQ(reasonOfRefusal(jpeg), "It has 16448 x 16448 pixels" + tooLarge);
    EXPECT_LT(peak(), kMostMegabytes);
}

TEST(PictureProcess, a_chunk_of_the_largest_length_takes_little) {
    ByteLine chunk;
    bigNumber(chunk, 0x7FFFFFFF).text("tEXt");
    EXPECT_EQ(reasonOfRefusal(pngHead(65, 65, 8, 0) + chunk.bytes()),
              "It is cut off before its end");
    ByteLine palette;
    bigNumber(palette, 0x7FFFFFFF).text("eXIf");
    EXPECT_NE(reasonOfRefusal(pngHead(65, 65, 8, 0) + palette.bytes()), "");
    EXPECT_LT(peak(), kMostMegabytes);
}

TEST(PictureProcess, work_without_an_end_is_refused) {
    EXPECT_EQ(reasonOfRefusal(slowPicture(), OMBRELIA_EDITOR, 1), "It takes too long to read");
}

TEST(PictureProcess, reading_is_given_up_at_once) {
    const TempFolder folder;
    writeContent(folder / "P", slowPicture());
    QElapsedTimer time;
    time.start();
    Impatient wish;
    Surface picture;
    EXPECT_FALSE(QtPictureLoader(OMBRELIA_EDITOR).loadPicture(folder / "P", wish, picture));
    EXPECT_LT(time.elapsed(), 2000);
}

TEST(PictureProcess, a_reader_that_dies_or_is_not_there_is_told) {
    EXPECT_EQ(reasonOfRefusal("P6 1 1 255\nabc", "/bin/false"),
              "Its contents cannot be made sense of");
    EXPECT_NE(reasonOfRefusal("P6 1 1 255\nabc", "/nowhere/at/all"), "");
}

// The reader among less and less memory, where threads cannot be started either: each time it gives
// the picture or says why not, and never hangs.
TEST(PictureProcess, a_reader_short_of_memory_gives_the_picture_or_the_reason) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer reserves more than any limit leaves";
#endif
    const TempFolder folder;
    const QImage image = colorful(1200, 900);
    int given = 0;
    int refused = 0;
    for (const char* kind : {"png", "jpeg", "webp", "gif", "ppm"}) {
        const std::string path = folder / "P";
        writeContent(path, fileOf(image, kind));
        for (int mebibytes = 40; mebibytes <= 440; mebibytes += 40) {
            const std::string program = folder / "reader";
            writeContent(program, "#!/bin/sh\nulimit -v " + std::to_string(1024 * mebibytes) +
                                      "\nexec " OMBRELIA_EDITOR " \"$@\"\n");
            std::filesystem::permissions(program, std::filesystem::perms::owner_all);
            PatientFor wish(10);
            Surface picture;
            try {
                EXPECT_TRUE(QtPictureLoader(program).loadPicture(path, wish, picture))
                    << kind << " hangs in " << mebibytes << " MiB";
                EXPECT_EQ(picture.width(), 240) << kind << " in " << mebibytes << " MiB";
                ++given;
            } catch (const PictureFailure& failure) {
                EXPECT_NE(std::string(failure.what()).find("The map is unharmed."),
                          std::string::npos);
                ++refused;
            }
        }
    }
    EXPECT_GT(given, 0);
    EXPECT_GT(refused, 0);
}

TEST(PictureProcess, a_name_of_any_letters_reaches_it) {
    const TempFolder folder;
    const std::string path = folder / "--grün \"a\nb\" &.png";
    writeContent(path, fileOf(colorful(65, 65), "png"));
    FewPixels wish;
    Surface picture;
    EXPECT_TRUE(QtPictureLoader(OMBRELIA_EDITOR).loadPicture(path, wish, picture));
}

}  // namespace ombrelia
