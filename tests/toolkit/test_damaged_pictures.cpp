// What the real loader does with files that are no pictures, or not whole ones.
#include <QImageReader>
#include <gtest/gtest.h>
#include <malloc.h>
#include <string>

#include "picture_files.h"
#include "platform/bitmap_bytes.h"

namespace ombrelia {

namespace {

std::string sentence(const std::string& reason) {
    return "The picture \"P\" could not be loaded: " + reason + ". The map is unharmed.";
}

// While it lives, memory is given out filled with this byte.
class DirtyMemory {
  public:
    explicit DirtyMemory(int fill) { ::mallopt(M_PERTURB, fill); }
    ~DirtyMemory() { ::mallopt(M_PERTURB, 0); }
    DirtyMemory(const DirtyMemory&) = delete;
    DirtyMemory& operator=(const DirtyMemory&) = delete;
};

bool samePixels(const Surface& a, const Surface& b) {
    bool isSame = a.width() == b.width() && a.height() == b.height();
    for (int y = 0; isSame && y < a.height(); ++y) {
        isSame = std::equal(a.row(y), a.row(y) + a.width(), b.row(y));
    }
    return isSame;
}

// Whether the bytes give a picture; if so it does not depend on what was in memory before.
bool isTaken(const std::string& bytes) {
    if (!refusalOfFile(bytes).empty()) {
        return false;
    }
    Surface pictures[2];
    for (int i = 0; i < 2; ++i) {
        const DirtyMemory memory(i == 0 ? 0x55 : 0xC7);
        pictures[i] = loadBytes(bytes);
    }
    EXPECT_TRUE(samePixels(pictures[0], pictures[1]));
    return true;
}

TEST(DamagedPictures, every_kind_that_is_cut_in_its_pixels_is_refused) {
    for (const std::string& kind : toolkitKinds()) {
        const std::string file = fileOf(fittedTo(kind, colorful(64, 64)), kind);
        ASSERT_TRUE(isTaken(file)) << kind;
        for (int part = 1; part < 10; ++part) {
            const std::size_t length = file.size() * static_cast<std::size_t>(part) / 10;
            EXPECT_FALSE(isTaken(file.substr(0, length)))
                << kind << " of " << file.size() << " cut at " << length;
        }
    }
}

TEST(DamagedPictures, a_tga_with_too_few_pixels_before_its_end_is_refused) {
    std::string file = fileOf(colorful(64, 64), "tga");
    file.erase(1000, 5000);
    EXPECT_EQ(refusalOfFile(file), sentence("It is cut off before its end"));
}

TEST(DamagedPictures, flipped_bits_never_show_old_memory) {
    for (const std::string& kind : toolkitKinds()) {
        const std::string file = fileOf(fittedTo(kind, colorful(64, 64)), kind);
        SCOPED_TRACE(kind);
        std::uint32_t chance = 1;
        for (int round = 0; round < 40; ++round) {
            std::string damaged = file;
            for (int i = 0; i < 1 + round % 4; ++i) {
                chance = chance * 1664525U + 1013904223U;
                const std::size_t place = (chance >> 8U) % file.size();
                damaged[place] = static_cast<char>(damaged[place] ^ (1 << (chance >> 4U & 7U)));
            }
            isTaken(damaged);
        }
    }
}

TEST(DamagedPictures, what_is_no_picture_is_named_so) {
    const std::string reason = sentence("It is not a picture of a kind that can be read");
    EXPECT_EQ(refusalOfFile("Some words."), reason);
    EXPECT_EQ(refusalOfFile("B"), reason);
    EXPECT_EQ(refusalOfFile(std::string(5000, '\0')), reason);
}

// The toolkit would fill up the one where it is cut off, and ask for as much memory as the other
// claims.
TEST(DamagedPictures, kinds_that_nobody_imports_are_no_pictures) {
    const QImage image = colorful(16, 16);
    const std::string reason = sentence("It is not a picture of a kind that can be read");
    EXPECT_EQ(refusalOfFile(fileOf(image.convertToFormat(QImage::Format_Mono), "xbm")), reason);
    EXPECT_EQ(refusalOfFile(fileOf(image, "icns")), reason);
}

TEST(DamagedPictures, drawings_of_vectors_are_no_pictures) {
    EXPECT_EQ(refusalOfFile("<svg xmlns='http://www.w3.org/2000/svg' width='70' height='70'>"
                            "<rect width='70' height='70' fill='red'/></svg>"),
              sentence("It is not a picture of a kind that can be read"));
    if (!QImageReader::supportedImageFormats().contains("svg")) {
        GTEST_SKIP() << "the toolkit's plug-in that could have read it is not here";
    }
}

// Only the header is there: nothing can have been decoded.
TEST(DamagedPictures, a_picture_above_the_limit_is_refused_by_its_header) {
    const std::string header = "P6 20000 20000 255\n";
    EXPECT_EQ(refusalOfFile(header + std::string(1000, 'x')),
              sentence("It has 20000 x 20000 pixels, which is more than can be held"));
}

}  // namespace

}  // namespace ombrelia
