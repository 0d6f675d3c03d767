// The refresh of the map from above next to bare loops, to plain drawing and to the toolkit.
#include <QImage>
#include <benchmark/benchmark.h>
#include <cstring>
#include <vector>

#include "bench_desk.h"
#include "core/button_numbers.h"
#include "core/color_ramp.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "desk/run_command.h"
#include "platform/dispatch.h"
#include "platform/plain_copy.h"
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

// The same by a look-up of the colour for each cell, one pixel after the other.
void refreshPlainly(benchmark::State& state) {
    benchDesk(kLargeSize);
    fillRough();
    Surface& buffer = Form1.Mapview2.Canvas;
    Surface& view = Form1.MapView.Canvas;
    for (auto _ : state) {
        for (int y = 0; y <= 257; ++y) {
            for (int x = 0; x <= 257; ++x) {
                buffer.setPixel(x, y, HeightToColor(HeightMap(x, y)));
                ShadowMap(x, y) = HeightMap(x, y);
            }
            yieldToEvents();
        }
        plainCopy(view, buffer, {0, 0, 257, 257}, {0, 0, 257, 257});
    }
}
BENCHMARK(refreshPlainly)->Unit(benchmark::kMicrosecond);

// A look-up in a table of colours and a store for each cell, nothing else.
void lookUpAndStore(benchmark::State& state) {
    benchDesk(kLargeSize);
    fillRough();
    ColorLookup colors;
    colors.update();
    std::vector<Pixel> pixels(258 * 258);
    for (auto _ : state) {
        for (int y = 0; y <= 257; ++y) {
            const std::int16_t* heights = HeightMap.row(y);
            Pixel* row = pixels.data() + static_cast<std::size_t>(y) * 258;
            for (int x = 0; x <= 257; ++x) {
                row[x] = colors.pixel(heights[x]);
            }
            benchmark::DoNotOptimize(row);
            benchmark::ClobberMemory();
        }
    }
}
BENCHMARK(lookUpAndStore)->Unit(benchmark::kMicrosecond);

// The same work by the toolkit: an image of 8 bits and a table of colours, turned into 32 bits.
void qImageIndexed(benchmark::State& state) {
    benchDesk(kLargeSize);
    fillRough();
    QImage image(258, 258, QImage::Format_Indexed8);
    image.setColorTable(QList<QRgb>(256, 0xFF123456));
    for (int y = 0; y <= 257; ++y) {
        for (int x = 0; x <= 257; ++x) {
            image.scanLine(y)[x] = static_cast<uchar>(HeightMap(x, y));
        }
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(image.convertToFormat(QImage::Format_RGB32).constBits());
    }
}
BENCHMARK(qImageIndexed)->Unit(benchmark::kMicrosecond);

// The bytes that a refresh of all cells moves: a copy of the heights, a fill of both pictures.
void moveMapBytes(benchmark::State& state) {
    benchDesk(kLargeSize);
    std::vector<std::int16_t> shadows(258 * 258);
    std::vector<Pixel> pixels(257 * 257 * 2);
    Pixel value = 0;
    for (auto _ : state) {
        std::memcpy(shadows.data(), HeightMap.data(), shadows.size() * sizeof(std::int16_t));
        std::fill(pixels.begin(), pixels.end(), ++value);
        benchmark::DoNotOptimize(shadows.data());
        benchmark::DoNotOptimize(pixels.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(moveMapBytes)->Unit(benchmark::kMicrosecond);

// The bytes that a look for changed cells reads.
void compareMapBytes(benchmark::State& state) {
    benchDesk(kLargeSize);
    for (auto _ : state) {
        int result =
            std::memcmp(HeightMap.data(), ShadowMap.data(), sizeof(std::int16_t) * 258 * 258);
        benchmark::DoNotOptimize(result);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(compareMapBytes)->Unit(benchmark::kMicrosecond);

// Another set of colours chosen, and all cells painted in it.
void changeColors(benchmark::State& state) {
    benchDesk(kLargeSize);
    fillRough();
    bool isRainbow = false;
    for (auto _ : state) {
        isRainbow = !isRainbow;
        Form1.Combo1.Caption = isRainbow ? "Rainbow" : "Earth";
        deliver(Form1.Combo1, Event::Click);
        int command = button::kUpdate2D;
        RunCommand(command);
    }
}
BENCHMARK(changeColors)->Unit(benchmark::kMicrosecond);

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
