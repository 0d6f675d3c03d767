#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "editor_fixture.h"
#include "pixel_at.h"
#include "platform/plain_copy.h"
#include "platform/surface.h"
#include "platform/surface_letters.h"

namespace ombrelia {

namespace {

using Rows = std::vector<std::string>;

// Every pixel told from every other.
Surface tellingSurface(int width, int height) {
    Surface surface = surfaceOf(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            surface.setPixel(x, y, rgb(static_cast<unsigned>(x), static_cast<unsigned>(y), 200));
        }
    }
    return surface;
}

TEST(Surface, a_new_size_is_black_with_one_unit_a_pixel) {
    Surface surface = surfaceOf(4, 3);
    surface.ScaleLeft = 9;
    surface.setPixel(1, 1, kRed);
    surface.setSize(2, 5);
    EXPECT_EQ(surface.width(), 2);
    EXPECT_EQ(surface.height(), 5);
    EXPECT_EQ(surface.ScaleLeft, 0);
    EXPECT_EQ(surface.ScaleWidth, 2);
    EXPECT_EQ(surface.ScaleHeight, 5);
    EXPECT_EQ(lettersOf(surface), Rows(5, ".."));
}

TEST(Surface, a_negative_size_is_none) {
    const Surface surface = surfaceOf(-3, 2);
    EXPECT_EQ(surface.width(), 0);
    EXPECT_EQ(pixelAt(surface, 0, 0), -1);
}

TEST(Surface, clear_leaves_the_background) {
    Surface surface = surfaceOf(2, 2);
    surface.Background = kBlue;
    surface.setPixel(0, 0, kRed);
    surface.clear();
    EXPECT_EQ(lettersOf(surface), Rows(2, "bb"));
}

TEST(Surface, pixels_outside_are_discarded_and_read_as_minus_1) {
    Surface surface = surfaceOf(2, 2);
    for (const int outside : {-1, 2, 1000}) {
        surface.setPixel(outside, 0, kRed);
        surface.setPixel(0, outside, kRed);
        EXPECT_EQ(pixelAt(surface, outside, 0), -1);
        EXPECT_EQ(pixelAt(surface, 0, outside), -1);
    }
    EXPECT_EQ(lettersOf(surface), Rows(2, ".."));
    surface.setPixel(1, 0, kRed);
    EXPECT_EQ(lettersOf(surface), (Rows{".r", ".."}));
    EXPECT_EQ(pixelAt(surface, 1, 0), static_cast<std::int32_t>(kRed));
}

TEST(Surface, a_dot_goes_to_the_nearest_pixel_ties_to_even) {
    Surface surface = surfaceOf(5, 1);
    surface.dot(0.5, 0, kRed);
    surface.dot(1.5, 0, kRed);
    surface.dot(3.49, 0, kBlue);
    EXPECT_EQ(lettersOf(surface), Rows{"r.rb."});
    surface.dot(-0.6, 0, kRed);
    surface.dot(4.6, 0, kRed);
    surface.dot(0, 1, kRed);
    EXPECT_EQ(lettersOf(surface), Rows{"r.rb."});
}

TEST(Surface, the_scale_moves_and_stretches) {
    Surface surface = surfaceOf(4, 4);
    surface.ScaleLeft = -10;
    surface.ScaleTop = 100;
    surface.ScaleWidth = 40;
    surface.ScaleHeight = 2;
    surface.dot(0, 100.5, kRed);     // pixel 1, 1
    surface.dot(-10, 101.5, kBlue);  // pixel 0, 3
    EXPECT_EQ(lettersOf(surface), (Rows{"....", ".r..", "....", "b..."}));
    surface.setPixel(3, 0, kRed);
    EXPECT_EQ(lettersOf(surface)[0], "...r");
}

TEST(Surface, a_box_includes_both_corners_in_any_order) {
    Surface surface = surfaceOf(5, 4);
    surface.box(1, 1, 3, 2, kRed);
    EXPECT_EQ(lettersOf(surface), (Rows{".....", ".rrr.", ".rrr.", "....."}));
    surface.box(4, 3, 3, 0, kBlue);
    EXPECT_EQ(lettersOf(surface), (Rows{"...bb", ".rrbb", ".rrbb", "...bb"}));
    surface.box(2, 2, 2, 2, kBlue);
    EXPECT_EQ(lettersOf(surface)[2], ".rbbb");
}

TEST(Surface, a_box_is_cut_at_the_image) {
    Surface surface = surfaceOf(3, 3);
    surface.box(-100, -100, 0, 0, kRed);
    surface.box(2, 2, 1e6, 1e6, kBlue);
    surface.box(5, 0, 9, 2, kRed);
    surface.box(0, -5, 2, -1, kRed);
    EXPECT_EQ(lettersOf(surface), (Rows{"r..", "...", "..b"}));
}

TEST(Surface, lines_include_both_ends) {
    Surface surface = surfaceOf(5, 5);
    surface.line(0, 0, 4, 0, kRed);
    surface.line(0, 2, 0, 4, kBlue);
    surface.line(4, 4, 2, 2, kRed);
    EXPECT_EQ(lettersOf(surface), (Rows{"rrrrr", ".....", "b.r..", "b..r.", "b...r"}));
}

TEST(Surface, a_flat_line_takes_the_nearest_pixels) {
    Surface surface = surfaceOf(7, 3);
    surface.line(0, 0, 6, 2, kRed);
    EXPECT_EQ(lettersOf(surface), (Rows{"rr.....", "..rrr..", ".....rr"}));
    Surface steep = surfaceOf(3, 7);
    steep.line(0, 0, 2, 6, kRed);
    EXPECT_EQ(lettersOf(steep), (Rows{"r..", "r..", ".r.", ".r.", ".r.", "..r", "..r"}));
}

TEST(Surface, halves_of_a_line_lie_away_from_its_first_end) {
    Surface surface = surfaceOf(3, 2);
    surface.line(0, 0, 2, 1, kRed);
    EXPECT_EQ(lettersOf(surface), (Rows{"r..", ".rr"}));
    surface.clear();
    surface.line(2, 1, 0, 0, kRed);
    EXPECT_EQ(lettersOf(surface), (Rows{"rr.", "..r"}));
}

TEST(Surface, a_line_of_no_length_is_a_pixel) {
    Surface surface = surfaceOf(3, 3);
    surface.line(1, 1, 1, 1, kRed);
    EXPECT_EQ(lettersOf(surface), (Rows{"...", ".r.", "..."}));
}

TEST(Surface, wide_lines_spread_across_their_direction) {
    Surface surface = surfaceOf(5, 5);
    surface.DrawWidth = 3;
    surface.line(1, 2, 3, 2, kRed);
    EXPECT_EQ(lettersOf(surface), (Rows{".....", ".rrr.", ".rrr.", ".rrr.", "....."}));
    surface.clear();
    surface.DrawWidth = 2;
    surface.line(2, 0, 2, 4, kRed);
    EXPECT_EQ(lettersOf(surface), Rows(5, "..rr."));
}

TEST(Surface, lines_are_cut_at_the_image) {
    Surface surface = surfaceOf(3, 3);
    surface.line(-3, 1, 9, 1, kRed);
    surface.line(0, -9, 0, -1, kBlue);
    EXPECT_EQ(lettersOf(surface), (Rows{"...", "rrr", "..."}));
}

TEST(Surface, every_drawing_is_counted) {
    Surface surface = surfaceOf(3, 3);
    const Surface source = tellingSurface(3, 3);
    std::uint64_t before = surface.revision();
    const auto expectMore = [&] {
        EXPECT_GT(surface.revision(), before);
        before = surface.revision();
    };
    surface.setPixel(0, 0, kRed);
    expectMore();
    surface.dot(1, 1, kRed);
    expectMore();
    surface.box(0, 0, 1, 1, kRed);
    expectMore();
    surface.line(0, 0, 1, 1, kRed);
    expectMore();
    surface.stretchedCopy(source, {0, 0, 3, 3}, {0, 0, 3, 3});
    expectMore();
    surface.clear();
    expectMore();
    surface.setPixel(7, 7, kRed);
    EXPECT_EQ(surface.revision(), before);
}

void expectSamePixels(const Surface& a, const Surface& b) {
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            ASSERT_EQ(pixelAt(a, x, y), pixelAt(b, x, y)) << x << ' ' << y;
        }
    }
}

void compareCopies(Surface target, const Surface& source, const Surface::Area& to,
                   const Surface::Area& from) {
    Surface plain = target;
    plainCopy(plain, source, to, from);
    target.stretchedCopy(source, to, from);
    expectSamePixels(target, plain);
}

TEST(StretchedCopy, the_same_size_is_the_same_picture) {
    const Surface source = tellingSurface(9, 7);
    Surface target = surfaceOf(9, 7);
    target.stretchedCopy(source, {0, 0, 9, 7}, {0, 0, 9, 7});
    expectSamePixels(target, source);
}

TEST(StretchedCopy, twice_the_size_doubles_each_pixel) {
    Surface source = surfaceOf(2, 2);
    source.setPixel(1, 0, kRed);
    source.setPixel(0, 1, kBlue);
    Surface target = surfaceOf(4, 4);
    target.stretchedCopy(source, {0, 0, 4, 4}, {0, 0, 2, 2});
    EXPECT_EQ(lettersOf(target), (Rows{"..rr", "..rr", "bb..", "bb.."}));
}

TEST(StretchedCopy, half_the_size_takes_the_pixel_under_the_centre) {
    const Surface source = tellingSurface(8, 8);
    Surface target = surfaceOf(4, 4);
    target.stretchedCopy(source, {0, 0, 4, 4}, {0, 0, 8, 8});
    EXPECT_EQ(pixelAt(target, 0, 0), pixelAt(source, 1, 1));
    EXPECT_EQ(pixelAt(target, 3, 2), pixelAt(source, 7, 5));
}

TEST(StretchedCopy, a_single_source_pixel_fills_the_target) {
    const Surface source = tellingSurface(8, 8);
    Surface target = surfaceOf(4, 4);
    target.stretchedCopy(source, {0, 0, 4, 4}, {3, 5, 1, 1});
    for (int k = 0; k < 4; ++k) {
        EXPECT_EQ(pixelAt(target, k, 3 - k), pixelAt(source, 3, 5));
    }
}

TEST(StretchedCopy, what_lies_outside_the_source_leaves_the_pixels_alone) {
    const Surface source = tellingSurface(2, 2);
    Surface target = surfaceOf(4, 4);
    target.box(0, 0, 3, 3, kRed);
    target.stretchedCopy(source, {0, 0, 4, 4}, {-1, -1, 4, 4});
    EXPECT_EQ(lettersOf(target), (Rows{"rrrr", "r??r", "r??r", "rrrr"}));
}

TEST(StretchedCopy, only_the_target_area_is_painted) {
    const Surface source = tellingSurface(4, 4);
    Surface target = surfaceOf(5, 5);
    target.stretchedCopy(source, {1, 2, 2, 2}, {0, 0, 4, 4});
    EXPECT_EQ(lettersOf(target), (Rows{".....", ".....", ".??..", ".??..", "....."}));
    EXPECT_EQ(pixelAt(target, 2, 3), pixelAt(source, 3, 3));
}

TEST(StretchedCopy, an_area_outside_the_target_paints_nothing) {
    const Surface source = tellingSurface(4, 4);
    Surface target = surfaceOf(3, 3);
    const auto revision = target.revision();
    target.stretchedCopy(source, {5, 0, 2, 2}, {0, 0, 4, 4});
    target.stretchedCopy(source, {0, -5, 2, 2}, {0, 0, 4, 4});
    target.stretchedCopy(source, {0, 0, 0, 3}, {0, 0, 4, 4});
    EXPECT_EQ(lettersOf(target), Rows(3, "..."));
    EXPECT_EQ(target.revision(), revision);
}

TEST(StretchedCopy, both_scales_count) {
    Surface source = tellingSurface(4, 4);
    source.ScaleWidth = 2;
    source.ScaleHeight = 2;
    source.ScaleLeft = -1;
    Surface target = surfaceOf(4, 4);
    target.ScaleTop = 10;
    target.stretchedCopy(source, {0, 10, 4, 4}, {0, 0, 1, 1});
    EXPECT_EQ(pixelAt(target, 0, 0), pixelAt(source, 2, 0));
    EXPECT_EQ(pixelAt(target, 3, 3), pixelAt(source, 3, 1));
}

TEST(StretchedCopy, agrees_with_the_plain_one_on_random_areas) {
    PlainDraws draw(2024);
    const auto between = [&draw](double low, double high) { return low + draw() * (high - low); };
    const Surface base = tellingSurface(40, 30);
    for (int round = 0; round < 3000; ++round) {
        SCOPED_TRACE(round);
        Surface source = base;
        Surface target = surfaceOf(23, 31);
        source.ScaleLeft = static_cast<float>(between(-5, 5));
        source.ScaleWidth = static_cast<float>(between(5, 80));
        target.ScaleTop = static_cast<float>(between(-20, 20));
        target.ScaleHeight = static_cast<float>(between(5, 80));
        compareCopies(target, source,
                      {between(-20, 20), between(-20, 20), between(0.1, 60), between(0.1, 60)},
                      {between(-20, 40), between(-20, 40), between(0.01, 70), between(0.01, 70)});
        if (testing::Test::HasFatalFailure()) {
            return;
        }
    }
}

TEST(StretchedCopy, agrees_with_the_plain_one_where_rows_are_copied_whole) {
    PlainDraws draw(7);
    const Surface source = tellingSurface(40, 40);
    for (int round = 0; round < 1000; ++round) {
        SCOPED_TRACE(round);
        const auto whole = [&draw](int below) {
            return std::floor(static_cast<double>(draw()) * below);
        };
        const double side = 1 + whole(30);
        // One to one, one column, and just beyond the edges.
        compareCopies(surfaceOf(35, 35), source, {whole(30) - 5, whole(30) - 5, side, side},
                      {whole(30) - 5, whole(30) - 5, side, side});
        compareCopies(surfaceOf(35, 35), source, {whole(9), whole(9), side, side},
                      {whole(44) - 2, whole(44) - 2, 1, 1});
        compareCopies(surfaceOf(35, 35), source, {0, 0, 35, 35}, {whole(9), 0, side + 1, side});
        if (testing::Test::HasFatalFailure()) {
            return;
        }
    }
}

}  // namespace

}  // namespace ombrelia
