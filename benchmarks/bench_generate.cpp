// The fractal generator next to the plain second one of the tests, to a textbook diamond-square and
// to ImageMagick's plasma.
#include <Magick++.h>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <vector>

#include "bench_desk.h"
#include "core/objects.h"
#include "platform/services.h"
#include "terrain/fractal/fractal_terrain.h"
#include "terrain/fractal/plain_fractal.h"

namespace ombrelia {

namespace {

struct SmallGenerator {
    std::uint32_t state = 2463534242U;
    double operator()() {
        state ^= state << 13U;
        state ^= state >> 17U;
        state ^= state << 5U;
        return state * (1.0 / 4294967296.0) - 0.5;
    }
};

void generate(benchmark::State& state) {
    benchDesk(kLargeSize);
    SliderValues(14).Value = static_cast<std::int16_t>(state.range(0));
    for (auto _ : state) {
        double h = 0.1;
        GenerateFractalTerrain(h, SliderValues(10).Value);
        benchmark::DoNotOptimize(HeightMap.data());
    }
}
BENCHMARK(generate)->DenseRange(1, 8)->Unit(benchmark::kMicrosecond);

plain::FractalInput plainInput(int detail, SmallGenerator& random) {
    plain::FractalInput input;
    input.detail = detail;
    input.mapSize = kLargeSize;
    input.draw = [&random] { return static_cast<float>(random() + 0.5); };
    return input;
}

void generatePlainly(benchmark::State& state) {
    SmallGenerator random;
    const plain::FractalInput input = plainInput(static_cast<int>(state.range(0)), random);
    for (auto _ : state) {
        benchmark::DoNotOptimize(plain::generateFractal(input));
    }
}
BENCHMARK(generatePlainly)->Arg(8)->Arg(5)->Unit(benchmark::kMicrosecond);

// What no generator can leave out: its draws, and a store into each cell.
void drawsAndStores(benchmark::State& state) {
    benchDesk(kLargeSize);
    SmallGenerator random;
    const long draws =
        plain::generateFractal(plainInput(static_cast<int>(state.range(0)), random)).draws;
    std::vector<float> values(static_cast<std::size_t>(draws));
    std::vector<std::int16_t> heights(HeightGrid::kSide * HeightGrid::kSide);
    for (auto _ : state) {
        services().random->draw(values);
        std::fill(heights.begin(), heights.end(), static_cast<std::int16_t>(values[0] * 255));
        benchmark::DoNotOptimize(heights.data());
    }
}
BENCHMARK(drawsAndStores)->DenseRange(1, 8)->Unit(benchmark::kMicrosecond);

// The whole command: the generator and the refresh after it.
void generateCommand(benchmark::State& state) {
    benchDesk(kLargeSize);
    SliderValues(14).Value = 8;
    for (auto _ : state) {
        GenerateCommand();
    }
}
BENCHMARK(generateCommand)->Unit(benchmark::kMicrosecond);

// Every point of 257 x 257 doubles by the textbook's averages, then mapped to heights.
void textbookDiamondSquare(benchmark::State& state) {
    constexpr int kSide = 257;
    std::vector<double> v(kSide * kSide);
    std::vector<std::int16_t> heights(kSide * kSide);
    SmallGenerator random;
    const auto at = [&](int x, int y) -> double& {
        return v[static_cast<std::size_t>(x + kSide * y)];
    };
    for (auto _ : state) {
        std::fill(v.begin(), v.end(), 0.0);
        double scale = 1;
        for (int step = kSide - 1; step > 1; step /= 2, scale *= 0.93) {
            const int half = step / 2;
            for (int y = half; y < kSide; y += step) {
                for (int x = half; x < kSide; x += step) {
                    at(x, y) = (at(x - half, y - half) + at(x + half, y - half) +
                                at(x - half, y + half) + at(x + half, y + half)) *
                                   0.25 +
                               scale * random();
                }
            }
            for (int y = 0; y < kSide; y += half) {
                for (int x = (y / half) % 2 == 0 ? half : 0; x < kSide; x += step) {
                    double sum = 0;
                    int count = 0;
                    if (x >= half) {
                        sum += at(x - half, y);
                        ++count;
                    }
                    if (x + half < kSide) {
                        sum += at(x + half, y);
                        ++count;
                    }
                    if (y >= half) {
                        sum += at(x, y - half);
                        ++count;
                    }
                    if (y + half < kSide) {
                        sum += at(x, y + half);
                        ++count;
                    }
                    at(x, y) = sum / count + scale * random();
                }
            }
        }
        for (std::size_t k = 0; k < v.size(); ++k) {
            heights[k] = static_cast<std::int16_t>(std::clamp(v[k] * 64 + 128, 0.0, 255.0));
        }
        benchmark::DoNotOptimize(heights.data());
    }
}
BENCHMARK(textbookDiamondSquare)->Unit(benchmark::kMicrosecond);

void imageMagickPlasma(benchmark::State& state) {
    Magick::InitializeMagick(nullptr);
    for (auto _ : state) {
        Magick::Image image;
        image.size("257x257");
        image.read("plasma:fractal");
        benchmark::DoNotOptimize(image.columns());
    }
}
BENCHMARK(imageMagickPlasma)->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace ombrelia
