// The dearest case of each terrain tool next to the same work done slowly and plainly: every sample
// in its order, nothing kept, nothing skipped. Both over the same ground, laid anew each time.
#include <benchmark/benchmark.h>

#include "bench_desk.h"
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

constexpr int kPoints = 599;
constexpr int kLast = kLargeSize;
constexpr int kMoves = 500;

// Hills and valleys without a random source, 0..255.
std::int16_t groundAt(int x, int y) {
    return static_cast<std::int16_t>((x * x / 40 + y * y / 50 + (x * y) / 30 + 7 * (x % 5)) % 256);
}

void layGround() {
    for (int y = 0; y <= HeightGrid::kLast; ++y) {
        for (int x = 0; x <= HeightGrid::kLast; ++x) {
            HeightMap(x, y) = groundAt(x, y);
        }
    }
}

void layGround(slow::World& world) {
    for (int y = 0; y <= HeightGrid::kLast; ++y) {
        for (int x = 0; x <= HeightGrid::kLast; ++x) {
            world.height(x, y) = groundAt(x, y);
        }
    }
}

// A point of a path that goes over the whole map to and fro, from edge to edge.
int pathX(int n) {
    const int phase = (n * 13) % (2 * kLast);
    return phase <= kLast ? phase : 2 * kLast - phase;
}
int pathY(int n) {
    return n * kLast / kPoints;
}

void recordPath() {
    for (int n = 1; n <= kPoints; ++n) {
        StrokeX(n) = static_cast<std::int16_t>(pathX(n));
        StrokeY(n) = static_cast<std::int16_t>(pathY(n));
    }
    StrokeCount = kPoints + 1;
}

void recordPath(slow::World& world) {
    for (int n = 1; n <= kPoints; ++n) {
        world.strokeX[static_cast<std::size_t>(n)] = pathX(n);
        world.strokeY[static_cast<std::size_t>(n)] = pathY(n);
    }
    world.strokeCount = kPoints + 1;
}

void recordDiagonal() {
    for (int n = 1; n <= 5; ++n) {
        StrokeX(n) = StrokeY(n) = 0;
    }
    StrokeX(6) = StrokeY(6) = kLast;
    StrokeCount = 6;
}

void recordDiagonal(slow::World& world) {
    world.strokeX = {};
    world.strokeY = {};
    world.strokeX[6] = world.strokeY[6] = kLast;
    world.strokeCount = 6;
}

void turnOn(int first, int last, int on) {
    for (int i = first; i <= last; ++i) {
        OptionStates(i).State = i == on ? kOn : kUp;
    }
}

void openDesk() {
    benchDesk(kLargeSize);
    OptionStates(button::kAutoRefresh).State = kUp;
    DrawHeight = 90;
    SliderValues(1).Value = SliderValues(2).Value = 20;
    SliderValues(3).Value = SliderValues(11).Value = 10;
    SliderValues(6).Value = 255;
    SliderValues(7).Value = 30;
    SliderValues(8).Value = 30;
    SliderValues(12).Value = 15;
    SliderValues(13).Value = 25;
    turnOn(button::kMountainVertical, button::kMountainSmooth, button::kMountainSmooth);
    turnOn(button::kCanyonVertical, button::kCanyonSmooth, button::kCanyonSmooth);
    OptionStates(button::kRiverInMiddle).State = kOn;
}

slow::World slowWorld() {
    openDesk();
    slow::World world;
    world.mapSize = kLargeSize;
    world.drawHeight = 90;
    world.pencilThickness = world.lineThickness = 20;
    // Its yields cost what the product's cost.
    world.onYield = [](slow::World&) { yieldToEvents(); };
    return world;
}

template <typename Work>
void measure(benchmark::State& state, Work work) {
    openDesk();
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
    slow::World world = slowWorld();
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
        recordPath();
        DrawStroke(kPencilStroke);
    });
}
void pencilSlow(benchmark::State& state) {
    measureSlow(state, [](slow::World& world) {
        recordPath(world);
        slow::drawStroke(world, kPencilStroke);
    });
}
BENCHMARK(pencil)->Unit(benchmark::kMicrosecond);
BENCHMARK(pencilSlow)->Unit(benchmark::kMicrosecond);

void line(benchmark::State& state) {
    measure(state, [] {
        recordDiagonal();
        DrawStroke(kLineStroke);
    });
}
void lineSlow(benchmark::State& state) {
    measureSlow(state, [](slow::World& world) {
        recordDiagonal(world);
        slow::drawStroke(world, kLineStroke);
    });
}
BENCHMARK(line)->Unit(benchmark::kMicrosecond);
BENCHMARK(lineSlow)->Unit(benchmark::kMicrosecond);

void mountain(benchmark::State& state) {
    measure(state, [] { BuildMountain(128, 128); });
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
        recordPath();
        CarveCanyon();
    });
}
void canyonSlow(benchmark::State& state) {
    measureSlow(state, [](slow::World& world) {
        recordPath(world);
        slow::carveCanyon(world, {25, 15, button::kCanyonSmooth, true});
    });
}
BENCHMARK(canyon)->Unit(benchmark::kMicrosecond);
BENCHMARK(canyonSlow)->Unit(benchmark::kMicrosecond);

void plainObject(benchmark::State& state) {
    measure(state, [] { BuildPlain(128, 128); });
}
void plainObjectSlow(benchmark::State& state) {
    measureSlow(state, [](slow::World& world) { slow::buildPlain(world, 128, 128, 30); });
}
BENCHMARK(plainObject)->Unit(benchmark::kMicrosecond);
BENCHMARK(plainObjectSlow)->Unit(benchmark::kMicrosecond);

// A drag of 500 moves.
float dragX(int n) {
    return 20 + static_cast<float>(n) * 0.43F;
}
float dragY(int n) {
    return 40 + static_cast<float>(n % 97) * 1.7F;
}

void raiseDrag(benchmark::State& state) {
    measure(state, [] {
        for (int n = 0; n < kMoves; ++n) {
            RaiseTerrain(dragX(n), dragY(n));
        }
    });
}
void raiseDragSlow(benchmark::State& state) {
    openDesk();
    slow::Pictures pictures{Form1.MapView.Canvas, Form1.Mapview2.Canvas};
    measureSlow(state, [&](slow::World& world) {
        for (int n = 0; n < kMoves; ++n) {
            slow::raiseTerrain(world, pictures, dragX(n), dragY(n), 10);
        }
    });
}
BENCHMARK(raiseDrag)->Unit(benchmark::kMicrosecond);
BENCHMARK(raiseDragSlow)->Unit(benchmark::kMicrosecond);

void lowerDrag(benchmark::State& state) {
    measure(state, [] {
        for (int n = 0; n < kMoves; ++n) {
            LowerTerrain(dragX(n), dragY(n));
        }
    });
}
void lowerDragSlow(benchmark::State& state) {
    openDesk();
    slow::Pictures pictures{Form1.MapView.Canvas, Form1.Mapview2.Canvas};
    measureSlow(state, [&](slow::World& world) {
        for (int n = 0; n < kMoves; ++n) {
            slow::lowerTerrain(world, pictures, dragX(n), dragY(n), 10);
        }
    });
}
BENCHMARK(lowerDrag)->Unit(benchmark::kMicrosecond);
BENCHMARK(lowerDragSlow)->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace ombrelia
