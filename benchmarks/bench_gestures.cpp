#include "bench_gestures.h"

#include "bench_desk.h"
#include "core/button_numbers.h"
#include "core/editor_state.h"
#include "core/windows/form1.h"
#include "platform/dispatch.h"
#include "terrain/stroke_path.h"

namespace ombrelia {

namespace {

struct Setting {
    int slider;
    std::int16_t value;
};
constexpr Setting kDearest[] = {{1, 20}, {2, 20}, {3, 10},  {11, 10}, {6, 255},
                                {7, 30}, {8, 30}, {12, 15}, {13, 25}};

std::int16_t groundAt(int x, int y) {
    return static_cast<std::int16_t>((x * x / 40 + y * y / 50 + (x * y) / 30 + 7 * (x % 5)) % 256);
}

int pathX(int n) {
    const int last = MapSize;
    const int phase = (n * 13) % (2 * last);
    return phase <= last ? phase : 2 * last - phase;
}

int pathY(int n) {
    return n * MapSize / kLongestPath;
}

void turnOn(int first, int last, int on) {
    for (int i = first; i <= last; ++i) {
        OptionStates(i).State = i == on ? kOn : kUp;
    }
}

// Places of the recorded path from its first to its last segment, every step-th.
double placesOfPath(int segments, int step) {
    double places = 0;
    for (int i = 1; i <= segments; ++i) {
        const int visited = pathSegment(i).steps / step + 1;
        places += visited;
    }
    return places;
}

constexpr int kWholeTurn = 360;

}  // namespace

void openToolDesk(int mapSize) {
    benchDesk(mapSize);
    OptionStates(button::kAutoRefresh).State = kUp;
    DrawHeight = 90;
    for (const Setting& row : kDearest) {
        SliderValues(row.slider).Value = row.value;
    }
    turnOn(button::kMountainVertical, button::kMountainSmooth, button::kMountainSmooth);
    turnOn(button::kCanyonVertical, button::kCanyonSmooth, button::kCanyonSmooth);
    OptionStates(button::kRiverInMiddle).State = kOn;
}

slow::World slowToolWorld(int mapSize) {
    openToolDesk(mapSize);
    slow::World world;
    world.mapSize = mapSize;
    world.drawHeight = 90;
    world.pencilThickness = world.lineThickness = 20;
    world.onYield = [](slow::World&) { yieldToEvents(); };
    return world;
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

void recordPath(int points) {
    for (int n = 1; n <= points; ++n) {
        StrokeX(n) = static_cast<std::int16_t>(pathX(n));
        StrokeY(n) = static_cast<std::int16_t>(pathY(n));
    }
    StrokeCount = static_cast<std::int16_t>(points + 1);
}

void recordPath(slow::World& world, int points) {
    for (int n = 1; n <= points; ++n) {
        world.strokeX[static_cast<std::size_t>(n)] = pathX(n);
        world.strokeY[static_cast<std::size_t>(n)] = pathY(n);
    }
    world.strokeCount = points + 1;
}

void recordDiagonal(int last) {
    for (int n = 1; n <= 5; ++n) {
        StrokeX(n) = StrokeY(n) = 0;
    }
    StrokeX(6) = StrokeY(6) = static_cast<std::int16_t>(last);
    StrokeCount = 6;
}

void recordDiagonal(slow::World& world, int last) {
    world.strokeX = {};
    world.strokeY = {};
    world.strokeX[6] = world.strokeY[6] = last;
    world.strokeCount = 6;
}

float dragX(int move) {
    return 20 + static_cast<float>(move) * 0.43F;
}

float dragY(int move) {
    return 40 + static_cast<float>(move % 97) * 1.7F;
}

double pencilSamples(int thickness) {
    return placesOfPath(StrokeCount - 2, 1) * thickness * kWholeTurn;
}

double lineSamples(int thickness) {
    return placesOfPath(StrokeCount - 1, 1) * thickness * kWholeTurn;
}

double canyonSamples(int bank, int edge, int river) {
    double wall = 0;
    for (int r = bank; edge != 0 && r <= bank + edge; ++r) {
        const double half = r > 30 ? 2 : 1;
        wall += r > 20 ? half * kWholeTurn : kWholeTurn / 2.0;
    }
    const int segments = StrokeCount - 2;
    return placesOfPath(segments, 2) * (bank * kWholeTurn / 3.0 + wall) +
           placesOfPath(segments, 1) * river * kWholeTurn / 4.0;
}

double mountainSamples(int topSize, int side) {
    double samples = topSize * (kWholeTurn + 1.0);
    for (int r = topSize; side != 0 && r <= topSize + side; ++r) {
        samples += r > 40 ? (r > 60 ? 3601 : 1801) : 721;
    }
    return samples;
}

}  // namespace ombrelia
