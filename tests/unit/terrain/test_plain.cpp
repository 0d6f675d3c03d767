#include "core/button_numbers.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "platform/failure.h"
#include "terrain/plain.h"
#include "terrain/tool_test.h"

namespace ombrelia {

namespace {

constexpr int kSize = 8;

class Plain : public ToolTest {
  protected:
    void build(int x, int y, int size) {
        SliderValues(kSize).Value = static_cast<std::int16_t>(size);
        SCOPED_TRACE(testing::Message()
                     << "size " << MapSize << " at " << x << ' ' << y << " radius " << size);
        compare([&] { BuildPlain(static_cast<std::int16_t>(x), static_cast<std::int16_t>(y)); },
                [&](slow::World& world) { slow::buildPlain(world, x, y, size); });
    }
};

TEST_F(Plain, agrees_with_the_slow_way_anywhere) {
    for (int round = 0; round < 600; ++round) {
        Dice dice(static_cast<std::uint32_t>(1000 + round));
        if (round % 150 == 0) {
            openMap(sizeFor(round / 150));
        }
        OptionStates(button::kAutoRefresh).State = round % 10 == 0 ? kOn : kUp;
        layGround(dice);
        build(dice(0, MapSize), dice(0, MapSize), dice(5, 30));
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
}

TEST_F(Plain, agrees_with_the_slow_way_at_edges_and_corners) {
    for (int round = 0; round < 4; ++round) {
        openMap(sizeFor(round));
        Dice dice(7);
        for (const int x : {0, 1, 33, MapSize - 1, int{MapSize}, 257}) {
            for (const int y : {0, 1, 40, MapSize - 1, int{MapSize}, 257}) {
                layGround(dice);
                build(x, y, 5 + (x + y) % 26);
            }
        }
    }
}

TEST_F(Plain, ground_of_0_levels_to_0) {
    layFlat(90);
    HeightMap(30, 30) = 0;
    build(30, 30, 10);
    EXPECT_EQ(HeightMap(33, 28), 0);
}

TEST_F(Plain, the_centre_keeps_its_height) {
    layFlat(90);
    HeightMap(30, 30) = 17;
    build(30, 30, 30);
    EXPECT_EQ(HeightMap(30, 30), 17);
}

TEST_F(Plain, a_centre_outside_the_array_is_a_failure) {
    EXPECT_THROW(BuildPlain(258, 3), SubscriptFailure);
    EXPECT_THROW(BuildPlain(3, -1), SubscriptFailure);
}

TEST_F(Plain, it_neither_yields_nor_shows_progress) {
    build(30, 30, 10);
    EXPECT_EQ(yieldsOfLastRun, 0);
    EXPECT_TRUE(Form1.MapView.Enabled);
}

TEST_F(Plain, the_view_follows_if_it_is_asked_to) {
    HeightMap(30, 30) = 17;
    build(30, 30, 10);
    EXPECT_EQ(ShadowMap(31, 31), 40);
    OptionStates(button::kAutoRefresh).State = kOn;
    build(30, 30, 10);
    EXPECT_EQ(ShadowMap(31, 31), 17);
}

}  // namespace

}  // namespace ombrelia
