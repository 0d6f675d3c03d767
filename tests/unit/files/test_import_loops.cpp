// Both loops of the import against a second plain way, on pictures of chance.
#include <cmath>
#include <cstdlib>
#include <utility>
#include <vector>

#include "core/progress.h"
#include "files/import_test.h"
#include "pixel_at.h"

namespace ombrelia {

namespace {

// The cells, their shadows and the positions of the bar as the plain way leaves them.
struct PlainMap {
    explicit PlainMap(int value) : heights(258, std::vector<int>(258, value)), shadows(heights) {}

    std::vector<std::vector<int>> heights;  // by column, then by row
    std::vector<std::vector<int>> shadows;
    std::vector<int> bar;
    int mapSize = 0;

    void set(int x, int y, int height) {
        heights[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)] = height;
        shadows[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)] = -1;
    }
    static int at(const std::vector<std::vector<int>>& cells, int x, int y) {
        return cells[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)];
    }
};

int plainHeight(const Surface& picture, int x, int y) {
    const int color = pixelAt(picture, x, y);
    const std::div_t low = std::div(color, 256);
    const std::div_t middle = std::div(low.quot, 256);
    return static_cast<int>(std::nearbyint((low.rem + middle.rem + middle.quot) / 3.0));
}

float onMap(int target, int pixel, int side) {
    const float share = static_cast<float>(pixel) / static_cast<float>(side);
    return static_cast<float>(target) * share;
}

int nearest(float value) {
    return static_cast<int>(std::nearbyint(value));
}

void plainSample(const Surface& picture, PlainMap& map) {
    const int target = map.mapSize;
    const int width = picture.width();
    const int height = picture.height();
    int a = 0;
    while (a <= width) {
        int b = 0;
        while (b <= height) {
            map.set(nearest(onMap(target, a, width)), nearest(onMap(target, b, height)),
                    plainHeight(picture, a, b));
            b += height / target;
        }
        map.bar.push_back(static_cast<int>(std::floor(onMap(target, a, width))));
        a += width / target;
    }
}

void plainCopy(const Surface& picture, PlainMap& map) {
    for (int a = 0; a < map.mapSize + 1; ++a) {
        for (int b = 0; b < map.mapSize + 1; ++b) {
            map.set(a, b, plainHeight(picture, a, b));
        }
        map.bar.push_back(a);
    }
}

void plainImport(const Surface& picture, PlainMap& map) {
    const int n = picture.width() < picture.height() ? picture.width() : picture.height();
    map.mapSize = 65;
    for (const int size : {129, 193, 257}) {
        map.mapSize = n >= size ? size : map.mapSize;
    }
    if (n > map.mapSize) {
        plainSample(picture, map);
    } else {
        plainCopy(picture, map);
    }
}

class Chance {
  public:
    explicit Chance(std::uint32_t seed) : draws_(seed) {}
    int operator()(int low, int high) {
        return low + static_cast<int>(draws_() * static_cast<float>(high - low + 1));
    }

  private:
    PlainDraws draws_;
};

class ImportLoops : public ImportTest {
  protected:
    static constexpr int kBefore = 77;

    // Imports the picture and compares with the plain way: the bar at each yield, the shadows at
    // the import's last one, and what is left in the end.
    void compare(const Surface& picture) {
        PlainMap plain(kBefore);
        plainImport(picture, plain);
        fillMap(kBefore);
        std::vector<int> bar;
        platform.OnYield = [&] {
            if (!isImporting()) {
                return;
            }
            bar.push_back(ProgressDone);
            if (bar.size() == plain.bar.size()) {
                expectCells(ShadowMap, plain.shadows, "shadow");
            }
        };
        importPixels(picture.width(), picture.height(),
                     [&](int x, int y) { return static_cast<Color>(pixelAt(picture, x, y)); });
        platform.OnYield = nullptr;
        EXPECT_EQ(bar, plain.bar);
        ASSERT_EQ(MapSize, plain.mapSize);
        expectCells(HeightMap, plain.heights, "height");
        for (int y = 0; y <= MapSize; ++y) {  // painted by now
            for (int x = 0; x <= MapSize; ++x) {
                PlainMap& all = plain;
                all.shadows[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)] =
                    PlainMap::at(all.heights, x, y);
            }
        }
        expectCells(ShadowMap, plain.shadows, "painted shadow");
    }

  private:
    static void expectCells(const HeightGrid& cells, const std::vector<std::vector<int>>& plain,
                            const char* what) {
        for (int y = 0; y <= 257; ++y) {
            for (int x = 0; x <= 257; ++x) {
                ASSERT_EQ(cells(x, y), PlainMap::at(plain, x, y)) << what << " " << x << "," << y;
            }
        }
    }
};

Surface chancePicture(int width, int height, Chance& chance) {
    const bool isGrey = chance(0, 3) == 0;
    return pictureOf(width, height, [&](int, int) {
        const auto red = static_cast<unsigned>(chance(0, 255));
        return isGrey ? rgb(red, red, red)
                      : rgb(red, static_cast<unsigned>(chance(0, 255)),
                            static_cast<unsigned>(chance(0, 255)));
    });
}

TEST_F(ImportLoops, pictures_of_any_size_agree_with_the_plain_way) {
    for (std::uint32_t seed = 1; seed <= 300; ++seed) {
        Chance chance(seed);
        const int width = chance(1, 700);
        const int height = chance(1, 400);
        SCOPED_TRACE(testing::Message() << "seed " << seed << ": " << width << "x" << height);
        compare(chancePicture(width, height, chance));
        ASSERT_FALSE(HasFailure());
    }
}

TEST_F(ImportLoops, sizes_around_each_bound_agree_with_the_plain_way) {
    constexpr int kSides[] = {1,   2,   64,  65,  66,  128, 129, 130, 192,
                              193, 194, 256, 257, 258, 385, 386, 514, 515};
    Chance chance(9);
    for (const int width : kSides) {
        for (const int height : kSides) {
            SCOPED_TRACE(testing::Message() << width << "x" << height);
            compare(chancePicture(width, height, chance));
            ASSERT_FALSE(HasFailure());
        }
    }
}

// Of these only the pixels that are read are kept.
TEST_F(ImportLoops, large_pictures_agree_with_the_plain_way) {
    constexpr std::pair<int, int> kSizes[] = {{2600, 2311}, {16001, 263}, {65, 65000}, {66, 64000},
                                              {70000, 60},  {257, 16400}, {2049, 2048}};
    Chance chance(11);
    for (const auto& [width, height] : kSizes) {
        SCOPED_TRACE(testing::Message() << width << "x" << height);
        compare(chancePicture(width, height, chance));
        ASSERT_FALSE(HasFailure());
    }
}

// 2 pixels a step reach 192.5 of 193: the last column is not written, and neither it nor its
// shadow changes.
TEST_F(ImportLoops, a_side_that_the_step_does_not_divide_keeps_the_last_column) {
    Chance chance(4);
    compare(chancePicture(770, 200, chance));
    EXPECT_EQ(HeightMap(193, 100), kBefore);
}

}  // namespace

}  // namespace ombrelia
