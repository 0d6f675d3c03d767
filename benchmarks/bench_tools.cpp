// The dearest case of each terrain tool next to the same work done slowly and plainly: every sample
// in its order, nothing kept, nothing skipped. Both over the same ground, laid anew each time.
#include <benchmark/benchmark.h>

#include "bench_gestures.h"
#include "core/button_numbers.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "platform/dispatch.h"
#include "terrain/canyon.h"
#include "terrain/mountain.h"
#include "terrain/plain.h"
#include "terrain/raise_lower.h"
#include "terrain/slow_world.h"
#include "terrain/stroke.h"

namespace ombrelia {

namespace {

template <typename Work>
void measure(benchmark::State& state, Work work) {
    openToolDesk(kLargeSize);
    for (auto _ : state) {
        state.PauseTiming();
        layGround();
        state.ResumeTiming();
        work();
        benchmark::DoNotOptimize(HeightMap.data());
    }
}

template <typename Work>
void measureSlow(benchmark::State& state, Work work) {
    slow::World world = slowToolWorld(kLargeSize);
    for (auto _ : state) {
        state.PauseTiming();
        layGround(world);
        state.ResumeTiming();
        work(world);
        benchmark::DoNotOptimize(world.heights.data());
    }
}

void pencil(benchmark::State& state) {
    measure(state, [] {
        recordPath(kLongestPath);
        DrawStroke(kPencilStroke);
    });
    state.counters["samples"] = pencilSamples(20);
}
void pencilSlow(benchmark::State& state) {
    measureSlow(state, [](slow::World& world) {
        recordPath(world, kLongestPath);
        slow::drawStroke(world, kPencilStroke);
    });
}
BENCHMARK(pencil)->Unit(benchmark::kMicrosecond);
BENCHMARK(pencilSlow)->Unit(benchmark::kMicrosecond);

void line(benchmark::State& state) {
    measure(state, [] {
        recordDiagonal(kLargeSize);
        DrawStroke(kLineStroke);
    });
    state.counters["samples"] = lineSamples(20);
}
void lineSlow(benchmark::State& state) {
    measureSlow(state, [](slow::World& world) {
        recordDiagonal(world, kLargeSize);
        slow::drawStroke(world, kLineStroke);
    });
}
BENCHMARK(line)->Unit(benchmark::kMicrosecond);
BENCHMARK(lineSlow)->Unit(benchmark::kMicrosecond);

void mountain(benchmark::State& state) {
    measure(state, [] { BuildMountain(128, 128); });
    state.counters["samples"] = mountainSamples(30, 85);
}
void mountainSlow(benchmark::State& state) {
    measureSlow(state, [](slow::World& world) {
        slow::buildMountain(world, 128, 128, {255, 30, button::kMountainSmooth, false});
    });
}
BENCHMARK(mountain)->Unit(benchmark::kMicrosecond);
BENCHMARK(mountainSlow)->Unit(benchmark::kMicrosecond);

void canyon(benchmark::State& state) {
    measure(state, [] {
        recordPath(kLongestPath);
        CarveCanyon();
    });
    state.counters["samples"] = canyonSamples(25, 30, 15);
}
void canyonSlow(benchmark::State& state) {
    measureSlow(state, [](slow::World& world) {
        recordPath(world, kLongestPath);
        slow::carveCanyon(world, {25, 15, button::kCanyonSmooth, true});
    });
}
BENCHMARK(canyon)->Unit(benchmark::kMicrosecond);
BENCHMARK(canyonSlow)->Unit(benchmark::kMicrosecond);

void plainObject(benchmark::State& state) {
    measure(state, [] { BuildPlain(128, 128); });
    state.counters["samples"] = 30 * 360.0;
}
void plainObjectSlow(benchmark::State& state) {
    measureSlow(state, [](slow::World& world) { slow::buildPlain(world, 128, 128, 30); });
}
BENCHMARK(plainObject)->Unit(benchmark::kMicrosecond);
BENCHMARK(plainObjectSlow)->Unit(benchmark::kMicrosecond);

void raiseDrag(benchmark::State& state) {
    measure(state, [] {
        for (int n = 0; n < kDragMoves; ++n) {
            RaiseTerrain(dragX(n), dragY(n));
        }
    });
    state.counters["samples"] = kDragMoves * 15 * 72.0;
}
void raiseDragSlow(benchmark::State& state) {
    openToolDesk(kLargeSize);
    slow::Pictures pictures{Form1.MapView.Canvas, Form1.Mapview2.Canvas};
    measureSlow(state, [&](slow::World& world) {
        for (int n = 0; n < kDragMoves; ++n) {
            slow::raiseTerrain(world, pictures, dragX(n), dragY(n), 10);
        }
    });
}
BENCHMARK(raiseDrag)->Unit(benchmark::kMicrosecond);
BENCHMARK(raiseDragSlow)->Unit(benchmark::kMicrosecond);

void lowerDrag(benchmark::State& state) {
    measure(state, [] {
        for (int n = 0; n < kDragMoves; ++n) {
            LowerTerrain(dragX(n), dragY(n));
        }
    });
    state.counters["samples"] = kDragMoves * 10 * 72.0;
}
void lowerDragSlow(benchmark::State& state) {
    openToolDesk(kLargeSize);
    slow::Pictures pictures{Form1.MapView.Canvas, Form1.Mapview2.Canvas};
    measureSlow(state, [&](slow::World& world) {
        for (int n = 0; n < kDragMoves; ++n) {
            slow::lowerTerrain(world, pictures, dragX(n), dragY(n), 10);
        }
    });
}
BENCHMARK(lowerDrag)->Unit(benchmark::kMicrosecond);
BENCHMARK(lowerDragSlow)->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace ombrelia
