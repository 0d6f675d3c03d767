// What one core can do at best with the same data: bare loops without a rule of the editor.
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cmath>
#include <cstdint>
#include <vector>

#include "bench_gestures.h"
#include "games/maze/maze_seed.h"
#include "platform/color.h"

#if defined(__x86_64__) && defined(__GNUC__)
#define OMBRELIA_WIDE __attribute__((target("avx2")))
#else
#define OMBRELIA_WIDE
#endif

namespace ombrelia {

namespace {

constexpr std::size_t kRings = 20;
constexpr std::size_t kTurn = 360;

// The cell of each sample of a disc and a store into it.
OMBRELIA_WIDE void storeSamples(double x, double y, const std::vector<double>& dx,
                                const std::vector<double>& dy, std::int16_t* heights,
                                std::vector<std::int32_t>& cells) {
    for (std::size_t n = 0; n < dx.size(); ++n) {
        cells[n] =
            static_cast<std::int32_t>(x + dx[n]) + 258 * static_cast<std::int32_t>(y + dy[n]);
    }
    for (const std::int32_t cell : cells) {
        heights[cell] = 90;
    }
}

void visitSamples(benchmark::State& state) {
    std::vector<double> dx;
    std::vector<double> dy;
    for (std::size_t r = 1; r <= kRings; ++r) {
        for (std::size_t a = 1; a <= kTurn; ++a) {
            const double angle = static_cast<double>(a) * 3.14159 / 180;
            dx.push_back(static_cast<double>(r) * std::cos(angle));
            dy.push_back(static_cast<double>(r) * std::sin(angle));
        }
    }
    std::vector<std::int32_t> cells(dx.size());
    std::vector<std::int16_t> heights(258 * 258);
    double place = 100;
    for (auto _ : state) {
        place = place < 120 ? place + 0.37 : 100;
        storeSamples(place, place, dx, dy, heights.data(), cells);
        benchmark::DoNotOptimize(heights.data());
        benchmark::ClobberMemory();
    }
    state.counters["samples"] = static_cast<double>(kRings * kTurn);
}
BENCHMARK(visitSamples)->Unit(benchmark::kMicrosecond);

// Two roots and two divisions for each point, which no projection of these rules can do without.
OMBRELIA_WIDE void projectBarely(const std::vector<double>& heights, std::vector<double>& places) {
    for (std::size_t n = 0; n < heights.size(); ++n) {
        const double ground = std::sqrt(heights[n]);
        const double depth = std::sqrt(ground + heights[n]);
        places[2 * n] = 256 * ground / depth;
        places[2 * n + 1] = 256 / (depth + 7);
    }
}

void projectAndClear(benchmark::State& state) {
    std::vector<double> heights(258 * 258, 40);
    std::vector<double> places(2 * heights.size());
    std::vector<Pixel> picture(257 * 257);
    for (auto _ : state) {
        std::fill(picture.begin(), picture.end(), 0xFF000000U);
        projectBarely(heights, places);
        benchmark::DoNotOptimize(picture.data());
        benchmark::DoNotOptimize(places.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(projectAndClear)->Unit(benchmark::kMicrosecond);

// A picture of so many pixels in one colour.
void fillPixels(benchmark::State& state) {
    std::vector<Pixel> picture(static_cast<std::size_t>(state.range(0) * state.range(1)));
    for (auto _ : state) {
        std::fill(picture.begin(), picture.end(), 0xFF000000U);
        benchmark::DoNotOptimize(picture.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(fillPixels)->Args({257, 257})->Args({1457, 1000})->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace ombrelia
