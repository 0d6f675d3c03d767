#include <algorithm>
#include <chrono>
#include <cmath>
#include <gtest/gtest.h>
#include <iterator>
#include <limits>
#include <string>
#include <vector>

#include "editor_fixture.h"
#include "pixel_at.h"
#include "platform/failure.h"
#include "platform/plain_picture.h"
#include "platform/surface.h"
#include "platform/surface_letters.h"

namespace ombrelia {

namespace {

using Rows = std::vector<std::string>;
using Corners = std::vector<PixelPoint>;

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();

Rows lettersOf(int width, int height, const Corners& corners) {
    Surface surface = surfaceOf(width, height);
    surface.polygon(corners, kRed);
    return lettersOf(surface);
}

TEST(SurfacePolygon, a_rectangle_ends_before_its_right_and_lower_edge) {
    EXPECT_EQ(lettersOf(5, 4, {{1, 1}, {4, 1}, {4, 3}, {1, 3}}),
              (Rows{".....", ".rrr.", ".rrr.", "....."}));
    EXPECT_EQ(lettersOf(5, 4, {{1, 3}, {4, 3}, {4, 1}, {1, 1}}),
              (Rows{".....", ".rrr.", ".rrr.", "....."}));
}

TEST(SurfacePolygon, a_centre_on_an_edge_belongs_to_the_right) {
    // The slope runs through the centres of the diagonal.
    EXPECT_EQ(lettersOf(4, 4, {{0, 0}, {4, 4}, {0, 4}}), (Rows{"....", "r...", "rr..", "rrr."}));
    EXPECT_EQ(lettersOf(4, 4, {{0, 0}, {4, 0}, {4, 4}}), (Rows{"rrrr", ".rrr", "..rr", "...r"}));
}

TEST(SurfacePolygon, a_slanted_cell) {
    EXPECT_EQ(lettersOf(7, 4, {{0, 0}, {4, 0}, {6, 4}, {2, 4}}),
              (Rows{"rrrr...", ".rrrr..", ".rrrr..", "..rrrr."}));
}

TEST(SurfacePolygon, a_crossed_cell_is_two_triangles) {
    EXPECT_EQ(lettersOf(6, 6, {{0, 0}, {6, 6}, {0, 6}, {6, 0}}),
              (Rows{"rrrrr.", ".rrr..", "..r...", "..r...", ".rrr..", "rrrrr."}));
}

TEST(SurfacePolygon, what_is_covered_twice_is_outside) {
    // A ribbon that runs over itself.
    EXPECT_EQ(lettersOf(6, 6, {{0, 0}, {6, 0}, {6, 4}, {2, 4}, {2, 2}, {4, 2}, {4, 6}, {0, 6}}),
              (Rows{"rrrrrr", "rrrrrr", "rr..rr", "rr..rr", "rrrr..", "rrrr.."}));
}

TEST(SurfacePolygon, without_area_there_is_no_pixel) {
    Surface surface = surfaceOf(5, 5);
    const auto revision = surface.revision();
    surface.polygon(Corners{{2, 2}, {2, 2}, {2, 2}, {2, 2}}, kRed);
    surface.polygon(Corners{{0, 2}, {4, 2}, {3, 2}, {1, 2}}, kRed);
    surface.polygon(Corners{{2, 0}, {2, 4}, {2, 3}, {2, 1}}, kRed);
    surface.polygon(Corners{{7, 0}, {9, 0}, {9, 4}, {7, 4}}, kRed);
    EXPECT_EQ(lettersOf(surface), Rows(5, "....."));
    EXPECT_EQ(surface.revision(), revision);
    surface.polygon(Corners{{0, 0}, {4, 4}, {2, 2}, {1, 1}}, kRed);
    EXPECT_EQ(lettersOf(surface), Rows(5, "....."));
    surface.polygon(Corners{{0, 0}, {4, 0}, {4, 4}, {0, 4}}, kRed);
    EXPECT_GT(surface.revision(), revision);
}

TEST(SurfacePolygon, too_few_or_too_many_corners_are_a_failure) {
    Surface surface = surfaceOf(5, 5);
    EXPECT_THROW(surface.polygon(Corners(2, PixelPoint{1, 1}), kRed), SubscriptFailure);
    EXPECT_THROW(surface.polygon(Corners(9, PixelPoint{1, 1}), kRed), SubscriptFailure);
}

TEST(SurfacePolygon, the_scale_does_not_count) {
    Surface surface = surfaceOf(3, 3);
    surface.ScaleLeft = -100;
    surface.ScaleWidth = 1000;
    EXPECT_FALSE(surface.hasPixelScale());
    surface.polygon(Corners{{1, 1}, {3, 1}, {3, 3}, {1, 3}}, kRed);
    EXPECT_EQ(lettersOf(surface), (Rows{"...", ".rr", ".rr"}));
    surface.linePixels({0, 0}, {2, 0}, kRed);
    EXPECT_EQ(lettersOf(surface)[0], "rrr");
    EXPECT_TRUE(surfaceOf(3, 3).hasPixelScale());
}

// Numbers that are mostly near, at times far, at times at the very end.
class Places {
  public:
    explicit Places(std::uint32_t seed) : draw_(seed) {}

    std::int32_t below(std::int32_t limit) {
        return static_cast<std::int32_t>(std::floor(static_cast<double>(draw_()) * limit));
    }
    std::int32_t near(int side) { return below(2 * side) - side / 2; }
    std::int32_t far(int side) {
        switch (below(8)) {
            case 0:
                return below(2) == 0 ? kLowest + below(9) : kHighest - below(9);
            case 1:
                return (below(2000000) - 1000000) * 2000;
            case 2:
                return below(20000) - 10000;
            case 3:
                return below(2000) - 1000;
            default:
                return near(side);
        }
    }

  private:
    PlainDraws draw_;
};

void expectSame(const Surface& surface, const PlainPicture& plain, int round) {
    for (int y = 0; y < surface.height(); ++y) {
        for (int x = 0; x < surface.width(); ++x) {
            ASSERT_EQ(surface.row(y)[x],
                      plain.pixels()[static_cast<std::size_t>(y * surface.width() + x)])
                << "round " << round << " at " << x << ' ' << y;
        }
    }
}

Corners cornersAt(Places& places, int count, bool isFar) {
    Corners corners;
    for (int n = 0; n < count; ++n) {
        corners.push_back(isFar ? PixelPoint{places.far(13), places.far(11)}
                                : PixelPoint{places.near(13), places.near(11)});
    }
    return corners;
}

void expectSamePolygon(const Corners& corners, int width, int height, int round) {
    Surface surface = surfaceOf(width, height);
    PlainPicture plain(width, height);
    surface.polygon(corners, kRed);
    std::vector<PlainPicture::Corner> same;
    for (const PixelPoint& corner : corners) {
        same.push_back({corner.x, corner.y});
    }
    plain.polygon(same, kRed);
    expectSame(surface, plain, round);
}

TEST(SurfacePolygon, agrees_with_the_plain_one) {
    Places places(5);
    for (int round = 0; round < 40000; ++round) {
        expectSamePolygon(cornersAt(places, 3 + round % 6, round % 2 == 1), 13, 11, round);
        if (testing::Test::HasFatalFailure()) {
            return;
        }
    }
}

// Widths and heights around each of which another way of filling begins, and the longest edges of
// the ways with short numbers.
TEST(SurfacePolygon, narrow_and_flat_shapes_agree_with_the_plain_one) {
    constexpr std::int32_t kSides[] = {1, 2, 3, 4, 5, 6, 20, 63, 64, 65, 66, 300, 8190, 8300};
    constexpr auto kCount = static_cast<std::int32_t>(std::size(kSides));
    Places places(6);
    for (int round = 0; round < 12000; ++round) {
        const std::int32_t width = kSides[places.below(kCount)];
        const std::int32_t height = kSides[places.below(kCount)];
        const std::int32_t left = places.below(80) - std::min(width, 20 + places.below(8200));
        const std::int32_t top = places.below(30) - std::min(height, 10 + places.below(8200));
        Corners corners;
        for (int n = 0; n < 3 + round % 3; ++n) {
            corners.push_back({left + places.below(width + 1), top + places.below(height + 1)});
        }
        expectSamePolygon(corners, 70, 24, round);
        if (testing::Test::HasFatalFailure()) {
            return;
        }
    }
}

// Where single precision is worn out: the longest edges of the most columns, in full sight.
TEST(SurfacePolygon, the_steepest_narrow_shapes_agree_with_the_plain_one) {
    constexpr std::int32_t kFarthest = 8191;
    Places places(9);
    for (std::int32_t width = 2; width <= 64; ++width) {
        const std::int32_t top = -kFarthest + places.below(40);
        const std::int32_t bottom = kFarthest - places.below(40);
        expectSamePolygon({{0, top}, {width, bottom}, {width, bottom - 9}, {places.below(9), top}},
                          width, kFarthest, width);
        expectSamePolygon({{0, bottom}, {width, top}, {width - 1, bottom}, {0, top}}, width,
                          kFarthest, width);
        if (testing::Test::HasFatalFailure()) {
            return;
        }
    }
}

TEST(SurfaceLine, agrees_with_the_plain_one) {
    Places places(6);
    for (int round = 0; round < 40000; ++round) {
        const Corners ends = cornersAt(places, 2, round % 2 == 1);
        Surface surface = surfaceOf(13, 11);
        PlainPicture plain(13, 11);
        surface.DrawWidth = round % 3 == 0 ? 1 + places.below(10) : 1;
        surface.linePixels(ends[0], ends[1], kRed);
        plain.line(ends[0].x, ends[0].y, ends[1].x, ends[1].y, surface.DrawWidth, kRed);
        expectSame(surface, plain, round);
        if (testing::Test::HasFatalFailure()) {
            return;
        }
    }
}

TEST(SurfaceLine, ends_beyond_32_bits_count_as_the_last_number) {
    Surface surface = surfaceOf(4, 4);
    surface.line(1, 1, 1e300, 1, kRed);
    surface.line(2, 2, 2, -1e300, kRed);
    EXPECT_EQ(lettersOf(surface), (Rows{"..r.", ".rrr", "..r.", "...."}));
}

// A net of crooked cells that covers a field: each pixel in exactly one cell.
TEST(SurfacePolygon, neighbouring_cells_neither_overlap_nor_leave_a_gap) {
    constexpr int kCells = 6;
    constexpr int kSide = 30;
    Places places(77);
    for (int round = 0; round < 400; ++round) {
        PixelPoint net[kCells + 1][kCells + 1];
        for (int j = 0; j <= kCells; ++j) {
            for (int i = 0; i <= kCells; ++i) {
                const bool isInner = i > 0 && i < kCells && j > 0 && j < kCells;
                // Shaken by less than half a cell, the net does not fold.
                net[j][i] = {i * 5 + (isInner ? places.below(4) - 1 : 0),
                             j * 5 + (isInner ? places.below(4) - 1 : 0)};
            }
        }
        std::vector<int> hits(kSide * kSide);
        for (int j = 0; j < kCells; ++j) {
            for (int i = 0; i < kCells; ++i) {
                Surface surface = surfaceOf(kSide, kSide);
                surface.polygon(Corners{net[j][i], net[j + 1][i], net[j + 1][i + 1], net[j][i + 1]},
                                kRed);
                for (int p = 0; p < kSide * kSide; ++p) {
                    hits[static_cast<std::size_t>(p)] +=
                        pixelAt(surface, p % kSide, p / kSide) != 0 ? 1 : 0;
                }
            }
        }
        ASSERT_EQ(hits, std::vector<int>(kSide * kSide, 1)) << round;
    }
}

// Any two shapes on the two sides of one edge: their sum has no seam, in whatever order.
TEST(SurfacePolygon, two_halves_are_the_whole) {
    Places places(78);
    for (int round = 0; round < 20000; ++round) {
        const Corners all = cornersAt(places, 4, round % 2 == 1);
        Surface first = surfaceOf(13, 11);
        Surface second = surfaceOf(13, 11);
        Surface whole = surfaceOf(13, 11);
        first.polygon(Corners{all[0], all[1], all[2]}, kRed);
        second.polygon(Corners{all[2], all[3], all[0]}, kRed);
        whole.polygon(all, kRed);
        for (int p = 0; p < 13 * 11; ++p) {
            const bool isInOne = pixelAt(first, p % 13, p / 13) != pixelAt(second, p % 13, p / 13);
            ASSERT_EQ(pixelAt(whole, p % 13, p / 13) != 0, isInOne) << round;
        }
    }
}

// A hundred thousand lines of full length that miss the picture or graze it, and as many cells.
TEST(SurfaceLine, what_lies_far_away_costs_nothing) {
    Surface surface = surfaceOf(257, 257);
    const auto begin = std::chrono::steady_clock::now();
    for (int n = 0; n < 100000; ++n) {
        surface.linePixels({kLowest, -n - 1}, {kHighest, -9}, kRed);
        surface.linePixels({kLowest + n, kLowest}, {256 - n, kHighest}, kRed);
        surface.polygon(Corners{{kLowest, -5}, {kHighest, -n - 6}, {kHighest, -3}, {kLowest, -2}},
                        kRed);
    }
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - begin;
    EXPECT_LT(seconds.count(), 4);
}

}  // namespace

}  // namespace ombrelia
