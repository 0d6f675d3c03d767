#include <algorithm>
#include <cmath>
#include <vector>

#include "core/objects.h"
#include "terrain/prepared_ring.h"
#include "terrain/ring.h"
#include "terrain/tool_test.h"

namespace ombrelia {

namespace {

class PreparedRingTest : public ToolTest {
  protected:
    // Each cell by itself, from the definition.
    static std::vector<std::int32_t> cellsOf(double x, double y, int r, const Directions& all) {
        std::vector<std::int32_t> cells;
        for (std::size_t n = 0; n < all.size(); ++n) {
            const double px = std::floor(x + r * all.cosines()[n]);
            const double py = std::floor(y + r * all.sines()[n]);
            const bool isOnMap = px >= 0 && px <= MapSize && py >= 0 && py <= MapSize;
            cells.push_back(isOnMap ? static_cast<std::int32_t>(px + 258 * py) : -1);
        }
        return cells;
    }

    static void expectSameCells(double x, double y, int r, const Directions& all) {
        const auto expected = cellsOf(x, y, r, all);
        RingCells ring;
        const auto found = ring.at(x, y, r, all);
        ASSERT_TRUE(std::equal(found.begin(), found.end(), expected.begin(), expected.end()))
            << "at once, " << x << ' ' << y << ' ' << r;
        NearCells near;
        PreparedRing(r, all).find(x, y, near);
        ASSERT_EQ(cellsOf(near), expected) << "prepared, " << x << ' ' << y << ' ' << r;
    }

    static std::vector<std::int32_t> cellsOf(const NearCells& near) {
        std::vector<std::int32_t> cells;
        for (std::size_t n = 0; n < near.offsets.size(); ++n) {
            const bool isOnMap = near.areAllOnMap || near.isOnMap[n] != 0;
            cells.push_back(isOnMap ? near.anchor + near.offsets[n] : -1);
        }
        return cells;
    }
};

TEST_F(PreparedRingTest, its_cells_are_those_of_the_definition) {
    openMap(129);
    const Directions fine = Directions::fromTable(0, 1, 1081);
    for (int round = 0; round < 2000; ++round) {
        Dice dice(static_cast<std::uint32_t>(11000 + round));
        expectSameCells(dice.place(-40, 170), dice.place(-40, 170), dice(1, 55), fine);
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
}

TEST_F(PreparedRingTest, its_cells_are_exact_beside_the_borders_of_cells) {
    const Directions fine = Directions::fromTable(0, 1, 1081);
    constexpr double kHairs[] = {0,     1e-14, -1e-14, 1e-10, -1e-10, 5e-8,
                                 -5e-8, 1e-7,  -1e-7,  3e-7,  -3e-7,  0.5};
    for (int r = 1; r <= 55; ++r) {
        for (const double hairX : kHairs) {
            for (const double hairY : {0.0, -1e-14, 6e-8, 0.25}) {
                expectSameCells(32 + hairX, 33 + hairY, r, fine);
                expectSameCells(hairX, 65 + hairY, r, fine);
            }
        }
        ASSERT_FALSE(HasFailure()) << "radius " << r;
    }
}

// Centres from which a chosen sample lies a hair from a border.
TEST_F(PreparedRingTest, its_cells_are_exact_where_single_samples_are_in_doubt) {
    const Directions fine = Directions::fromTable(0, 1, 1081);
    for (int round = 0; round < 2000; ++round) {
        Dice dice(static_cast<std::uint32_t>(14000 + round));
        const int r = dice(1, 55);
        const auto n = static_cast<std::size_t>(dice(0, 1080));
        const double hair = (dice(0, 4) - 2) * 3e-8;
        const double x = dice(20, 40) - r * fine.cosines()[n] + hair;
        const double y = dice.coin() ? dice.place(0, 65) : dice(0, 65) - r * fine.sines()[n] - hair;
        expectSameCells(x, y, r, fine);
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
}

}  // namespace

}  // namespace ombrelia
