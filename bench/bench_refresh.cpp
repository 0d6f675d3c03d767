// The refresh of the map from above next to a bare compare loop and to QImage::setPixel.
#include <QImage>
#include <benchmark/benchmark.h>

#include "bench_desk.h"
#include "core/color_ramp.h"
#include "core/objects.h"
#include "views/map2d/update_map_view.h"

namespace ombrelia {

namespace {

void fillRough() {
    std::uint32_t x = 1;
    for (int y = 0; y <= 257; ++y) {
        for (int i = 0; i <= 257; ++i) {
            x = x * 1664525U + 1013904223U;
            HeightMap(i, y) = static_cast<std::int16_t>(x >> 24U);
        }
    }
}

void refreshNothing(benchmark::State& state) {
    benchDesk(kLargeSize);
    UpdateMapView(1);
    for (auto _ : state) {
        UpdateMapView(1);
    }
}
BENCHMARK(refreshNothing)->Unit(benchmark::kMicrosecond);

void refreshEverything(benchmark::State& state) {
    benchDesk(kLargeSize);
    fillRough();
    for (auto _ : state) {
        state.PauseTiming();
        MarkMapForRepaint();
        state.ResumeTiming();
        UpdateMapView(1);
    }
}
BENCHMARK(refreshEverything)->Unit(benchmark::kMicrosecond);

// One compare a cell over both arrays, counted.
void plainCompareLoop(benchmark::State& state) {
    benchDesk(kLargeSize);
    for (auto _ : state) {
        int different = 0;
        for (int y = 0; y <= 257; ++y) {
            const std::int16_t* heights = HeightMap.row(y);
            const std::int16_t* shadows = ShadowMap.row(y);
            for (int x = 0; x <= 257; ++x) {
                if (shadows[x] != heights[x]) {
                    benchmark::DoNotOptimize(++different);
                }
            }
        }
        benchmark::DoNotOptimize(different);
    }
}
BENCHMARK(plainCompareLoop)->Unit(benchmark::kMicrosecond);

void qImageSetPixel(benchmark::State& state) {
    benchDesk(kLargeSize);
    fillRough();
    QImage image(258, 258, QImage::Format_RGB32);
    for (auto _ : state) {
        for (int y = 0; y <= 257; ++y) {
            for (int x = 0; x <= 257; ++x) {
                image.setPixel(x, y, 0xFF000000U | static_cast<unsigned>(HeightMap(x, y)));
            }
        }
        benchmark::DoNotOptimize(image.constBits());
    }
}
BENCHMARK(qImageSetPixel)->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace ombrelia
