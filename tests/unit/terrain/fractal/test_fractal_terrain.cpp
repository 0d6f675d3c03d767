#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "core/button_numbers.h"
#include "core/objects.h"
#include "core/progress.h"
#include "core/windows/form1.h"
#include "editor_fixture.h"
#include "platform/dispatch.h"
#include "terrain/fractal/fractal_state.h"
#include "terrain/fractal/fractal_terrain.h"
#include "terrain/fractal/plain_fractal.h"

namespace ombrelia {

namespace {

constexpr int kSmoothness = 9;
constexpr int kHeight = 10;
constexpr int kDetail = 14;

struct Settings {
    int mapSize;
    int detail;
    int smoothness;
    int height;
    std::uint32_t seed;
};

std::vector<int> cellsOf(const HeightGrid& grid) {
    return {grid.data(), grid.data() + HeightGrid::size()};
}

class FractalTerrain : public EditorTest {
  protected:
    FractalTerrain() { turnRefreshOff(); }

    static void turnRefreshOff() { OptionStates(button::kAutoRefresh).State = kUp; }

    static void setSliders(int detail, int smoothness, int height) {
        SliderValues(kDetail).Value = static_cast<std::int16_t>(detail);
        SliderValues(kSmoothness).Value = static_cast<std::int16_t>(smoothness);
        SliderValues(kHeight).Value = static_cast<std::int16_t>(height);
    }

    // Runs the product, and keeps what each of its yields saw.
    void generate(const Settings& settings, long stopAtYield = 0) {
        MapSize = static_cast<std::int16_t>(settings.mapSize);
        setSliders(settings.detail, settings.smoothness, settings.height);
        platform.RandomState = settings.seed;
        platform.Draws = 0;
        seen.clear();
        platform.OnYield = [this, stopAtYield] {
            seen.push_back({Form1.WorkWhat.Caption, ProgressTotal, ProgressDone, ProgressState,
                            platform.Draws});
            if (static_cast<long>(seen.size()) == stopAtYield) {
                StopFlag = 1;
            }
        };
        GenerateCommand();
        platform.OnYield = nullptr;
    }

    // The second way to the same terrain, over the map as it stands now.
    static plain::FractalOutcome plainRun(const Settings& settings, long stopAtYield = 0) {
        plain::FractalInput input;
        input.mapSize = settings.mapSize;
        input.detail = settings.detail;
        input.smoothness = settings.smoothness;
        input.height = settings.height;
        input.heights = cellsOf(HeightMap);
        input.done = ProgressDone;
        input.stopAtYield = stopAtYield;
        input.draw = PlainDraws(settings.seed);
        return plain::generateFractal(input);
    }

    void expectSame(const plain::FractalOutcome& plain) const {
        EXPECT_EQ(cellsOf(HeightMap), plain.heights);
        EXPECT_EQ(FractalValues, plain.values);
        EXPECT_TRUE(std::equal(FractalBytes.begin(), FractalBytes.end(), plain.bytes.begin(),
                               plain.bytes.end()));
        EXPECT_EQ(platform.Draws, plain.draws);
        EXPECT_TRUE(seen == plain.yields) << seen.size() << " against " << plain.yields.size();
        EXPECT_EQ(Form1.WorkWhat.Caption, plain.text);
        EXPECT_EQ(StopFlag, plain.stopFlag);
        EXPECT_EQ(ProgressState, plain.progressState);
        EXPECT_EQ(ProgressTotal, plain.total);
        EXPECT_EQ(ProgressDone, plain.done);
        EXPECT_EQ(FractalPart, plain.part);
        EXPECT_EQ(FractalParts, plain.parts);
    }

    void compare(const Settings& settings, long stopAtYield = 0) {
        SCOPED_TRACE(testing::Message()
                     << "size " << settings.mapSize << " detail " << settings.detail
                     << " smoothness " << settings.smoothness << " height " << settings.height
                     << " seed " << settings.seed << " stop " << stopAtYield);
        const plain::FractalOutcome plain = plainRun(settings, stopAtYield);
        generate(settings, stopAtYield);
        expectSame(plain);
    }

    std::vector<plain::YieldView> seen;
};

// A terrain of known heights that differ from cell to cell.
void fillUnevenly() {
    for (int y = 0; y <= 257; ++y) {
        for (int x = 0; x <= 257; ++x) {
            HeightMap(x, y) = static_cast<std::int16_t>((x * 7 + y * 13) % 256);
        }
    }
}

TEST_F(FractalTerrain, agrees_with_the_plain_generator_on_every_size) {
    for (const int mapSize : {65, 129, 193, 257}) {
        for (const int detail : {1, 3, 5, 7, 8}) {
            compare({mapSize, detail, 1, 60, 1});
            compare({mapSize, detail, 1, 20, 77});
            compare({mapSize, detail, 20, 200, 4242});
        }
    }
}

// No slider gives such a height; a scenario does.
TEST_F(FractalTerrain, agrees_with_the_plain_generator_below_the_least_height) {
    for (const int height : {-1, 0, -2}) {
        fillUnevenly();
        compare({65, 5, 1, height, 3});
        compare({65, 8, 1, height, 3});
    }
}

TEST_F(FractalTerrain, agrees_with_the_plain_generator_at_the_other_details) {
    for (const int detail : {2, 4, 6}) {
        compare({193, detail, 7, 110, 5});
    }
}

TEST_F(FractalTerrain, agrees_with_the_plain_generator_over_an_uneven_map) {
    for (const int mapSize : {65, 129, 193, 257}) {
        for (const int detail : {1, 2, 3, 4, 5, 6, 7, 8}) {
            fillUnevenly();
            compare({mapSize, detail, 3, 90, 9});
        }
    }
}

TEST_F(FractalTerrain, agrees_with_the_plain_generator_at_the_ends_of_the_draws) {
    for (const float r : {0.0F, 0.99999994F}) {
        const Settings settings{65, 6, 1, 60, 0};
        plain::FractalInput input;
        input.mapSize = settings.mapSize;
        input.detail = settings.detail;
        input.done = ProgressDone;
        input.heights = cellsOf(HeightMap);
        input.draw = [r] { return r; };
        const plain::FractalOutcome plain = plain::generateFractal(input);
        platform.RandomQueue.assign(static_cast<std::size_t>(plain.draws), r);
        generate(settings);
        expectSame(plain);
        EXPECT_TRUE(platform.RandomQueue.empty());
    }
}

TEST_F(FractalTerrain, a_stop_at_every_yield_leaves_what_the_plain_generator_leaves) {
    for (const int detail : {1, 2, 3}) {
        const Settings settings{65, detail, 4, 60, 31};
        const auto yields = static_cast<long>(plainRun(settings).yields.size());
        ASSERT_GT(yields, 8);
        for (long stop = 1; stop <= yields; ++stop) {
            openEditor(65);
            turnRefreshOff();
            fillUnevenly();
            compare(settings, stop);
            EXPECT_EQ(StopFlag, 2);
            EXPECT_EQ(ProgressState, 1);
        }
    }
}

TEST_F(FractalTerrain, a_stop_at_full_detail_leaves_what_the_plain_generator_leaves) {
    const Settings settings{65, 8, 1, 60, 3};
    const auto yields = static_cast<long>(plainRun(settings).yields.size());
    for (long stop = 1; stop <= yields; stop += 37) {
        openEditor(65);
        turnRefreshOff();
        fillUnevenly();
        compare(settings, stop);
    }
}

TEST_F(FractalTerrain, a_stop_asked_for_before_the_run_ends_it_after_the_first_row) {
    StopFlag = 1;
    const HeightGrid before = HeightMap;
    generate({65, 5, 1, 60, 1});
    EXPECT_EQ(StopFlag, 2);
    EXPECT_EQ(seen.size(), 1U);
    EXPECT_EQ(platform.Draws, 1);
    EXPECT_TRUE(HeightMap == before);
}

TEST_F(FractalTerrain, full_detail_visits_52977_points) {
    for (const std::uint32_t seed : {1U, 2U}) {
        const Settings settings{65, 8, 1, 60, seed};
        EXPECT_EQ(plainRun(settings).pointsVisited, 52977);
        compare(settings);
        EXPECT_EQ(platform.Draws, 58395);  // some points are visited on several levels
        const auto zeros = std::count(FractalValues.begin(), FractalValues.end(), 0.0);
        EXPECT_EQ(66050 - zeros, 52977 + 257);  // copies to the last row and column
    }
}

TEST_F(FractalTerrain, the_least_detail_draws_three_points_and_counts_to_four_of_four) {
    platform.RandomQueue = {0.75F, 1.0F / 8, 0.5F};
    generate({65, 1, 20, 60, 0});
    EXPECT_EQ(FractalSide, 2);
    EXPECT_EQ(platform.Draws, 3);
    const double scale = 0.25;  // smoothness 20
    const double middle = scale * 0.25;
    const double top = scale * -0.375 + middle + 0.25 * middle;  // the neighbour at both ends
    const double left = 0.25 * middle;                           // the row of line 1 is off by one
    const std::vector<double> expected = {0, top, 0, left, middle, left, 0, top, 0, 0};
    ASSERT_EQ(FractalValues.size(), expected.size());
    for (std::size_t k = 0; k < expected.size(); ++k) {
        EXPECT_NEAR(FractalValues[k], expected[k], 1e-15) << k;
    }
    EXPECT_EQ(seen.front().text, "Generating Fractal Part 0/4");
    EXPECT_EQ(Form1.WorkWhat.Caption, "Generating Fractal Part 4/4");
}

TEST_F(FractalTerrain, full_detail_counts_to_17_of_18_and_spares_the_outer_lines) {
    openEditor(257);
    turnRefreshOff();
    fillUnevenly();
    const HeightGrid before = HeightMap;
    generate({257, 8, 1, 60, 6});
    EXPECT_EQ(Form1.WorkWhat.Caption, "Generating Fractal Part 17/18");
    for (int k = 0; k <= 257; ++k) {
        EXPECT_EQ(HeightMap(k, 0), before(k, 0));
        EXPECT_EQ(HeightMap(k, 257), before(k, 257));
        EXPECT_EQ(HeightMap(257, k), before(257, k));
    }
}

TEST_F(FractalTerrain, below_full_detail_row_0_is_written) {
    openEditor(257);
    turnRefreshOff();
    HeightMap.fill(250);
    generate({257, 7, 1, 60, 6});
    EXPECT_EQ(Form1.WorkWhat.Caption, "Generating Fractal Part 16/16");
    for (int x = 0; x <= 250; ++x) {
        EXPECT_LT(HeightMap(x, 0), 250) << x;
    }
}

TEST_F(FractalTerrain, a_miniature_map_at_full_detail_writes_no_further_than_65) {
    HeightMap.fill(250);
    generate({65, 8, 1, 60, 8});
    for (int y = 0; y <= 257; ++y) {
        for (int x = 0; x <= 257; ++x) {
            const bool isInside = x <= 65 && y >= 1 && y <= 65;
            EXPECT_EQ(HeightMap(x, y) != 250, isInside) << x << ' ' << y;
        }
    }
}

TEST_F(FractalTerrain, column_256_of_a_large_map_is_150_below_the_height) {
    openEditor(257);
    turnRefreshOff();
    generate({257, 8, 1, 200, 8});
    EXPECT_EQ(HeightMap(256, 1), 50);
    EXPECT_EQ(HeightMap(256, 256), 50);
    generate({257, 8, 1, 20, 8});
    EXPECT_EQ(HeightMap(256, 1), 1);
    EXPECT_EQ(HeightMap(256, 256), 1);
    generate({257, 8, 1, 150, 8});
    EXPECT_EQ(HeightMap(256, 100), 1);
}

TEST_F(FractalTerrain, heights_lie_between_the_ends_of_the_bytes) {
    generate({65, 8, 1, 60, 8});
    int least = 255;
    int most = 0;
    for (int y = 1; y <= 65; ++y) {
        for (int x = 0; x <= 65; ++x) {
            least = std::min<int>(least, HeightMap(x, y));
            most = std::max<int>(most, HeightMap(x, y));
        }
    }
    EXPECT_EQ(least, 55);  // 60 + (102 + 102 + 230) / 3 - 150
    EXPECT_EQ(most, 140);  // 60 + 230 - 150
}

TEST_F(FractalTerrain, blending_unwritten_ground_of_height_0_gives_0) {
    HeightMap.fill(0);
    generate({65, 1, 1, 60, 8});
    EXPECT_EQ(HeightMap(200, 200), 0);
    EXPECT_GT(HeightMap(0, 0), 0);
}

// With detail 1 on a miniature map the block at (128, 129) has corners that the run leaves alone.
struct FarBlock {
    std::int16_t a, b, c, e;

    void place() const {
        HeightMap(128, 129) = a;
        HeightMap(256, 129) = b;
        HeightMap(128, 257) = c;
        HeightMap(256, 257) = e;
    }

    double blend(int p, int q, double pi) const {
        const double wx = (std::sin((p / 128.0 * 180 - 90) * (pi / 180)) + 1) / 2;
        const double wy = (std::sin((q / 128.0 * 180 - 90) * (pi / 180)) + 1) / 2;
        const double top = (1 - wx) * a + wx * b;
        const double bottom = (1 - wx) * c + wx * e;
        return (1 - wy) * top + wy * bottom;
    }
};

TEST_F(FractalTerrain, interpolation_uses_short_pi) {
    const FarBlock block{17, 254, 251, 3};
    int told = 0;
    block.place();
    generate({65, 1, 1, 60, 8});
    for (int p = 0; p <= 127; ++p) {
        for (int q = 0; q <= 127; ++q) {
            const auto asWritten = std::nearbyint(block.blend(p, q, 3.14159));
            EXPECT_EQ(HeightMap(128 + p, 128 + q), asWritten);
            told += asWritten != std::nearbyint(block.blend(p, q, std::numbers::pi)) ? 1 : 0;
        }
    }
    EXPECT_GT(told, 0) << "these corners cannot tell the two constants apart";
}

TEST_F(FractalTerrain, blocks_land_one_row_higher) {
    FarBlock{200, 100, 100, 100}.place();
    generate({65, 1, 1, 60, 8});
    EXPECT_EQ(HeightMap(128, 128), 200);
    EXPECT_EQ(HeightMap(128, 192), 150);  // half of the way down, which begins at row 128
    EXPECT_EQ(HeightMap(192, 128), 150);
}

TEST_F(FractalTerrain, a_corner_of_height_0_takes_the_blocks_own_height) {
    FarBlock{200, 0, 0, 0}.place();
    generate({65, 1, 1, 60, 8});
    EXPECT_EQ(HeightMap(255, 255), 200);
    EXPECT_EQ(HeightMap(192, 192), 200);
}

TEST_F(FractalTerrain, a_stop_among_the_bytes_writes_one_column) {
    fillUnevenly();
    const HeightGrid before = HeightMap;
    const Settings settings{65, 5, 1, 60, 8};
    generate(settings, 0);
    const auto isByteYield = [](const plain::YieldView& view) {
        return view.text == "Generating Fractal Part 10/12";
    };
    const auto first = std::find_if(seen.begin(), seen.end(), isByteYield) - seen.begin() + 1;
    HeightMap = before;
    generate(settings, first + 2);
    EXPECT_EQ(StopFlag, 2);
    EXPECT_EQ(static_cast<long>(seen.size()), first + 3);
    EXPECT_EQ(Form1.WorkWhat.Caption, "Generating Fractal Part 11/12");
    for (int y = 0; y <= 257; ++y) {
        for (int x = 0; x <= 257; ++x) {
            const bool isWritten = x == 0 && y <= 65 && y % 8 == 1;
            if (!isWritten) {
                EXPECT_EQ(HeightMap(x, y), before(x, y)) << x << ' ' << y;
            }
        }
    }
    EXPECT_NE(HeightMap(0, 1), before(0, 1));
}

TEST_F(FractalTerrain, the_height_is_read_anew_for_later_columns) {
    openEditor(257);
    turnRefreshOff();
    setSliders(8, 1, 60);
    platform.RandomState = 5;
    platform.OnYield = [] {
        if (Form1.WorkWhat.Caption == "Generating Fractal Part 17/18" && ProgressDone == 255) {
            SliderValues(kHeight).Value = 200;
        }
    };
    GenerateCommand();
    EXPECT_LE(HeightMap(255, 100), 140);
    EXPECT_EQ(HeightMap(256, 100), 50);
}

TEST_F(FractalTerrain, a_run_leaves_the_tools_to_the_timer) {
    generate({65, 2, 1, 60, 5});
    EXPECT_EQ(ProgressState, 2);
    EXPECT_FALSE(Form1.MapView.Enabled);
    Form1.Picture1.Visible = false;
    showProgress();
    EXPECT_TRUE(Form1.MapView.Enabled);
}

TEST_F(FractalTerrain, the_view_follows_only_if_it_is_asked_to) {
    generate({65, 8, 1, 60, 5});
    EXPECT_EQ(ShadowMap(10, 10), 40);
    OptionStates(button::kAutoRefresh).State = kOn;
    generate({65, 8, 1, 60, 5});
    EXPECT_EQ(ShadowMap(10, 10), HeightMap(10, 10));
    EXPECT_EQ(Form1.WorkWhat.Caption, "Updating View");
    OptionStates(button::kAutoRefresh).State = kHover;
    const auto shadow = ShadowMap(10, 10);
    generate({65, 8, 1, 200, 6});
    EXPECT_EQ(ShadowMap(10, 10), shadow);
}

TEST_F(FractalTerrain, a_stopped_run_is_still_followed_by_the_refresh) {
    OptionStates(button::kAutoRefresh).State = kOn;
    const Settings settings{65, 8, 1, 60, 5};
    const auto yields = static_cast<long>(plainRun(settings).yields.size());
    generate(settings, yields - 200);
    EXPECT_EQ(StopFlag, 2);
    EXPECT_EQ(ProgressState, 2);
    EXPECT_EQ(ShadowMap(5, 5), HeightMap(5, 5));
    EXPECT_NE(HeightMap(5, 5), 40);
    finishStop();
    EXPECT_EQ(StopFlag, 0);
}

// Counts how often it is seeded.
class SeedCounter : public HeadlessPlatform {
  public:
    int seeds = 0;
    void seedFromClock() override { ++seeds; }
};

TEST_F(FractalTerrain, each_run_seeds_the_random_source_once) {
    SeedCounter counter;
    counter.RandomState = 1;
    services().random = &counter;
    setSliders(2, 1, 60);
    GenerateCommand();
    EXPECT_EQ(counter.seeds, 1);
    GenerateCommand();
    EXPECT_EQ(counter.seeds, 2);
}

}  // namespace

}  // namespace ombrelia
