#include <vector>

#include "editor_fixture.h"
#include "terrain/ring.h"

namespace ombrelia {

namespace {

using Ring = EditorTest;

std::vector<std::int32_t> withoutRepeats(std::span<const std::int32_t> cells) {
    std::vector<std::int32_t> kept;
    for (const std::int32_t cell : cells) {
        if (kept.empty() || kept.back() != cell) {
            kept.push_back(cell);
        }
    }
    return kept;
}

}  // namespace

TEST_F(Ring, changes_are_the_samples_without_their_repeats) {
    const Directions directions = Directions::fromTable(0, 1, 1081);
    RingCells ring;
    // Small and wide circles, on the map and across its border.
    for (const double x : {128.0, 100.5, 3.0, 255.5}) {
        for (const double r : {0.0, 0.4, 1.0, 7.5, 30.0, 115.0}) {
            const std::vector<std::int32_t> expected =
                withoutRepeats(ring.at(x, 128, r, directions));
            const auto changes = ring.changesAt(x, 128, r, directions);
            EXPECT_EQ(std::vector<std::int32_t>(changes.begin(), changes.end()), expected)
                << "radius " << r << " around " << x;
        }
    }
}

}  // namespace ombrelia
