#include <cmath>
#include <vector>

#include "core/progress.h"
#include "core/windows/form1.h"
#include "editor_fixture.h"
#include "terrain/fractal/fractal_lattice.h"
#include "terrain/fractal/fractal_state.h"

namespace ombrelia {

namespace {

// A lattice of 4 cells a side (5 points) whose values are powers of two apart: each sum of some of
// them is told from every other.
std::vector<double> tellingValues() {
    std::vector<double> v;
    for (double value = 1; v.size() < 26; value *= 2) {
        v.push_back(value);
    }
    return v;
}

double at(int i, int j) {
    return static_cast<double>(1L << (j + 5 * i));
}

TEST(FractalLattice, edge_averages_are_three_times_too_high) {
    const auto v = tellingValues();
    EXPECT_EQ(AverageDiamondNeighbours(0, 2, 2, 5, 4, v.data()),
              at(0, 4) + at(0, 0) + at(2, 2) + 0.25 * at(2, 2));
    EXPECT_EQ(AverageDiamondNeighbours(2, 0, 1, 5, 4, v.data()),
              at(3, 0) + at(1, 0) + at(2, 1) + 0.25 * at(2, 0));
    EXPECT_EQ(AverageDiamondNeighbours(2, 4, 2, 5, 4, v.data()),
              at(4, 4) + at(0, 4) + at(2, 2) + 0.25 * at(2, 2));
}

TEST(FractalLattice, the_last_row_has_an_even_average_that_nothing_asks_for) {
    auto v = tellingValues();
    EXPECT_EQ(AverageDiamondNeighbours(4, 2, 1, 5, 4, v.data()),
              (at(4, 3) + at(4, 1) + at(3, 2) + at(1, 2)) * 0.25);
}

TEST(FractalLattice, the_inner_average_reads_no_point_above) {
    const auto v = tellingValues();
    EXPECT_EQ(AverageDiamondNeighbours(2, 2, 1, 5, 4, v.data()),
              (at(3, 2) + at(2, 3) + at(2, 1)) * 0.25);
}

TEST(FractalLattice, the_row_of_an_odd_line_is_off_by_one) {
    const auto v = tellingValues();
    // i = 1: 1 * 5 = 5 becomes 4; i = 3: 3 * 5 = 15 becomes 16.
    EXPECT_EQ(AverageDiamondNeighbours(1, 2, 1, 5, 4, v.data()),
              (at(2, 2) + v[4 + 3] + v[4 + 1]) * 0.25);
    EXPECT_EQ(AverageDiamondNeighbours(3, 2, 1, 5, 4, v.data()),
              (at(4, 2) + v[16 + 3] + v[16 + 1]) * 0.25);
    EXPECT_EQ(AverageDiamondNeighbours(3, 0, 1, 5, 4, v.data()),
              at(4, 0) + at(2, 0) + v[16 + 1] + 0.25 * v[16]);
}

class FilledLattice : public EditorTest {
  protected:
    // A lattice of which every visited point holds a value other than 0.
    std::vector<double> fill(int cells, double h) {
        platform.RandomState = 12345;
        std::vector<double> values(static_cast<std::size_t>((cells + 1) * (cells + 1) + 1), 0.0);
        FillFractalValues(values, static_cast<std::int16_t>(cells), 5, 1.0, h);
        return values;
    }
};

TEST_F(FilledLattice, odd_lines_visit_each_third_point) {
    const int cells = 32;
    const auto values = fill(cells, 0.1);
    const auto isVisited = [&](int i, int j) {
        return values[static_cast<std::size_t>(j + (cells + 1) * i)] != 0;
    };
    // Row 0 is the odd line of every level: stride 1 meets 1, 4, 7 ... 31, stride 2 meets 2, 8 ...,
    // and so on; row 32 is its copy. Stride 1 alone meets odd columns.
    for (int j = 1; j < cells; j += 2) {
        EXPECT_EQ(isVisited(0, j), j % 3 == 1) << j;
        EXPECT_EQ(isVisited(cells, j), j % 3 == 1) << j;
    }
    for (int j = 2; j < cells; j += 4) {
        EXPECT_EQ(isVisited(0, j), j % 6 == 2 || j % 3 == 1) << j;
    }
    EXPECT_TRUE(isVisited(2, 31));
    EXPECT_FALSE(isVisited(2, 3));
}

TEST_F(FilledLattice, the_walk_of_an_odd_line_can_meet_the_last_column) {
    // Stride 4 of 16 cells: 4 and 16, not 28.
    const auto values = fill(16, 0.1);
    EXPECT_NE(values[16], 0);
}

TEST_F(FilledLattice, the_corner_of_the_first_point_stays_0) {
    const auto values = fill(16, 0.1);
    EXPECT_EQ(values[0], 0);
    EXPECT_EQ(values.back(), 0);
}

TEST_F(FilledLattice, square_average_is_uneven) {
    // The first point of the second level has no noise of its own.
    platform.RandomQueue = {0.9F, 0.7F, 0.2F, 0.5F};
    const auto v = fill(4, 1.0);
    EXPECT_NE(v[2], 0);
    EXPECT_NE(v[5 * 2], v[2 + 5 * 2]);
    EXPECT_EQ(v[1 + 5 * 1], (v[0] + v[2] + v[5 * 2] + v[5 * 2]) * 0.25);
}

TEST_F(FilledLattice, the_noise_decays_by_the_ratio_from_level_to_level) {
    // All draws but one are the middle, which is no noise.
    for (const double h : {0.1, 2.0}) {
        platform.RandomQueue.assign(10000, 0.5F);
        platform.RandomQueue[0] = 0.75F;
        std::vector<double> first(26, 0.0);
        FillFractalValues(first, 4, 5, 1.0, h);
        EXPECT_DOUBLE_EQ(first[2 + 5 * 2], 0.25 * std::pow(2.0, -h));
        platform.RandomQueue.assign(10000, 0.5F);
        platform.RandomQueue[3] = 0.75F;  // first point of the second level's squares
        std::vector<double> second(26, 0.0);
        FillFractalValues(second, 4, 5, 1.0, h);
        EXPECT_DOUBLE_EQ(second[1 + 5 * 1], 0.25 * std::pow(2.0, -2 * h));
    }
}

TEST_F(FilledLattice, the_scale_of_the_heights_multiplies_the_noise) {
    platform.RandomQueue.assign(3, 0.75F);
    std::vector<double> values(10, 0.0);
    FillFractalValues(values, 2, 5, 8.0, 1.0);
    EXPECT_DOUBLE_EQ(values[4], 1.0);
}

class FractalBytesOf : public EditorTest {
  protected:
    // The bytes of a lattice of one point (and its three neighbours) around a mean of 0.
    static std::vector<std::uint8_t> bytesOf(double first, double second) {
        std::vector<double> values(10, 0.0);
        values[0] = first;
        values[1] = second;
        values[8] = -first - second;
        std::vector<std::uint8_t> bytes(20, 0);
        EXPECT_TRUE(FractalValuesToBytes(values, 2, bytes));
        return bytes;
    }
};

TEST_F(FractalBytesOf, the_band_around_the_mean_goes_from_102_to_230) {
    const auto wide = bytesOf(-0.3, 0.3);
    EXPECT_EQ(wide, (std::vector<std::uint8_t>{102, 102, 230, 230, 230, 230, 166, 166, 230, 166,
                                               166, 230, 0,   0,   0,   0,   0,   0,   0,   0}));
    const auto narrow = bytesOf(-0.1, 0.1);
    EXPECT_EQ(narrow[0], 134);  // 255 * 0.525 = 133.875
    EXPECT_EQ(narrow[3], 198);  // 255 * 0.775 = 197.625
}

// 0.7 in single precision lies below this value.
TEST_F(FractalBytesOf, the_band_ends_where_double_precision_says) {
    std::vector<double> values(10, 0.5);
    values[0] = 0.69999999;
    values[8] = 0.30000001;
    std::vector<std::uint8_t> bytes(20, 0);
    EXPECT_TRUE(FractalValuesToBytes(values, 2, bytes));
    EXPECT_EQ(bytes[0], 229);  // 229.499994
}

// The mean is 0.1, which single precision takes for 0.1000000015.
TEST_F(FractalBytesOf, the_mean_is_taken_in_double_precision) {
    std::vector<double> values(10, 0.1);
    values[0] = -0.0952941170;
    values[8] = 0.2952941170;
    std::vector<std::uint8_t> bytes(20, 0);
    EXPECT_TRUE(FractalValuesToBytes(values, 2, bytes));
    EXPECT_EQ(bytes[0], 104);  // 103.5000002
}

TEST_F(FractalBytesOf, spikes_count_in_the_mean) {
    std::vector<double> values(10, 0.0);
    values[8] = 9;  // the last point has no bytes of its own
    values[9] = 1e6;
    std::vector<std::uint8_t> bytes(20, 0);
    EXPECT_TRUE(FractalValuesToBytes(values, 2, bytes));
    EXPECT_EQ(bytes[0], 102);  // the mean is 1
}

TEST_F(FractalBytesOf, a_stop_is_seen_after_a_row_and_before_its_yield) {
    std::vector<double> values(26, 0.0);
    std::vector<std::uint8_t> bytes(60, 0);
    int yields = 0;
    platform.OnYield = [&] {
        ++yields;
        StopFlag = 1;
    };
    EXPECT_FALSE(FractalValuesToBytes(values, 4, bytes));
    EXPECT_EQ(yields, 1);
    EXPECT_EQ(bytes[23], 230);
    EXPECT_EQ(bytes[24], 0);
    EXPECT_EQ(StopFlag, 1);
    EXPECT_EQ(ProgressDone, 0);
}

TEST_F(FractalBytesOf, the_panel_names_the_part) {
    FractalPart = 3;
    FractalParts = 5;
    announceFractalPart(4, 99);
    EXPECT_EQ(Form1.WorkWhat.Caption, "Generating Fractal Part 4/8");
    EXPECT_EQ(ProgressTotal, 99);
    EXPECT_EQ(ProgressState, 1);
}

}  // namespace

}  // namespace ombrelia
