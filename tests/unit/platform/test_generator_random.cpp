#include <array>
#include <gtest/gtest.h>
#include <vector>

#include "platform/generator_random.h"

namespace ombrelia {

namespace {

std::vector<float> drawsOf(GeneratorRandom& random, std::size_t count) {
    std::vector<float> draws(count);
    random.draw(draws);
    return draws;
}

TEST(GeneratorRandom, a_start_gives_its_row_of_draws_however_they_are_asked_for) {
    GeneratorRandom together;
    GeneratorRandom oneByOne;
    together.seed(7);
    oneByOne.seed(7);
    std::vector<float> single;
    for (int i = 0; i < 100; ++i) {
        single.push_back(drawsOf(oneByOne, 1)[0]);
    }
    EXPECT_EQ(drawsOf(together, 100), single);
    together.seed(8);
    EXPECT_NE(drawsOf(together, 100), single);
}

TEST(GeneratorRandom, draws_are_spread_evenly_from_0_to_below_1) {
    GeneratorRandom random;
    random.seed(2026);
    constexpr int kBins = 16;
    constexpr int kDraws = 160000;
    std::array<int, kBins> bins{};
    for (const float draw : drawsOf(random, kDraws)) {
        ASSERT_GE(draw, 0);
        ASSERT_LT(draw, 1);
        ++bins[static_cast<std::size_t>(draw * kBins)];
    }
    for (const int count : bins) {
        EXPECT_NEAR(count, kDraws / kBins, 500);  // five times the standard deviation
    }
}

TEST(GeneratorRandom, the_clock_gives_another_start_each_time) {
    GeneratorRandom random;
    const std::vector<float> first = drawsOf(random, 8);
    random.seedFromClock();
    EXPECT_NE(drawsOf(random, 8), first);
}

}  // namespace

}  // namespace ombrelia
