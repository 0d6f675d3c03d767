#include <array>
#include <cstdint>
#include <gtest/gtest.h>
#include <random>
#include <vector>

#include "lesser_processor.h"
#include "views/map2d/cell_row.h"

namespace ombrelia {

namespace {

// A row by chance; about every equalShare-th cell is clean.
struct RowOfChance {
    static constexpr std::size_t kBeyond = 70;  // pixels behind the picture's last column

    RowOfChance(std::uint32_t seed, std::size_t cells, std::size_t pictureColumns,
                unsigned equalShare)
        : heights(cells), shadows(cells), columns(pictureColumns), pixels(columns + kBeyond) {
        std::mt19937 random(seed);
        for (std::size_t x = 0; x < cells; ++x) {
            heights[x] = static_cast<std::int16_t>(random() % 256);
            shadows[x] = random() % equalShare == 0 ? heights[x]
                                                    : static_cast<std::int16_t>(random() % 258 - 2);
        }
        for (Pixel& pixel : pixels) {
            pixel = static_cast<Pixel>(random());
        }
        for (Pixel& color : colors) {
            color = 0xFF000000U | static_cast<Pixel>(random());
        }
    }

    CellRow row() {
        return {heights.data(), shadows.data(), pixels.data(), columns, heights.size()};
    }

    std::vector<std::int16_t> heights;
    std::vector<std::int16_t> shadows;
    std::size_t columns;
    std::vector<Pixel> pixels;
    std::array<Pixel, 256> colors{};
};

void paintOneByOne(RowOfChance& chance) {
    for (std::size_t x = 0; x < chance.heights.size(); ++x) {
        if (chance.shadows[x] != chance.heights[x] && x < chance.columns) {
            chance.pixels[x] = chance.colors[static_cast<std::size_t>(chance.heights[x])];
        }
        chance.shadows[x] = chance.heights[x];
    }
}

}  // namespace

TEST(CellRow, each_way_paints_what_a_look_at_each_cell_paints) {
    for (const Vectors vectors : {Vectors::Narrow, Vectors::Avx2}) {
        const LesserProcessor processor(vectors);
        for (std::uint32_t seed = 0; seed < 200; ++seed) {
            const std::size_t cells = 1 + seed * 7 % 258;
            const std::size_t columns = cells - seed % 2;
            RowOfChance expected(seed, cells, columns, 1 + seed % 5);
            RowOfChance actual = expected;
            paintOneByOne(expected);
            paintCells(actual.row(), actual.colors.data());
            ASSERT_EQ(actual.pixels, expected.pixels) << "seed " << seed;
            ASSERT_EQ(actual.shadows, expected.shadows) << "seed " << seed;
        }
    }
}

TEST(CellRow, one_different_cell_makes_a_row_dirty) {
    RowOfChance chance(1, 258, 257, 1);
    EXPECT_FALSE(isDirty(chance.row()));
    for (const std::size_t x : std::array<std::size_t, 3>{0, 131, 257}) {
        RowOfChance changed = chance;
        changed.shadows[x] = -2;
        EXPECT_TRUE(isDirty(changed.row()));
    }
}

TEST(CellRow, one_height_beyond_the_colours_puts_a_row_out_of_range) {
    RowOfChance chance(1, 258, 257, 1);
    EXPECT_TRUE(isInRange(chance.row()));
    for (const int height : {-1, 256, -32768, 32767}) {
        for (const std::size_t x : std::array<std::size_t, 3>{0, 131, 257}) {
            RowOfChance changed = chance;
            changed.heights[x] = static_cast<std::int16_t>(height);
            EXPECT_FALSE(isInRange(changed.row())) << height << " at " << x;
        }
    }
}

}  // namespace ombrelia
