// How the cost of each operation grows over the sizes of the map and over its own parameter. The
// counter "work" is what the operation visits by its rules: cells, samples, pixels, rooms.
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "bench_desk.h"
#include "bench_gestures.h"
#include "core/button_numbers.h"
#include "core/editor_state.h"
#include "core/windows/form1.h"
#include "desk/run_command.h"
#include "files/bitmap_export.h"
#include "games/maze/maze_generator.h"
#include "games/maze/maze_solver.h"
#include "platform/dispatch.h"
#include "terrain/canyon.h"
#include "terrain/fractal/fractal_terrain.h"
#include "terrain/mountain.h"
#include "terrain/plain.h"
#include "terrain/raise_lower.h"
#include "terrain/stroke.h"
#include "views/map2d/update_map_view.h"
#include "views/view3d/draw_terrain.h"
#include "views/view3d/projection.h"
#include "views/view_mode.h"

namespace ombrelia {

namespace {

double squareOf(double side) {
    return side * side;
}

int argumentOf(const benchmark::State& state) {
    return static_cast<int>(state.range(0));
}

// Times work, which is prepared for anew each time.
template <typename Prepare, typename Work>
void measure(benchmark::State& state, double visits, Prepare prepare, Work work) {
    for (auto _ : state) {
        state.PauseTiming();
        prepare();
        state.ResumeTiming();
        work();
        benchmark::DoNotOptimize(HeightMap.data());
    }
    state.counters["work"] = visits;
}

void layGroundAnew() {
    layGround();
}

// Over the sizes of the map.

void generateAll(benchmark::State& state) {
    benchDesk(argumentOf(state));
    SliderValues(14).Value = 8;
    measure(
        state, squareOf(256) + squareOf(argumentOf(state)), [] {},
        [] {
            double h = 0.1;
            GenerateFractalTerrain(h, SliderValues(10).Value);
        });
}

void refreshAll(benchmark::State& state) {
    benchDesk(argumentOf(state));
    layGround();
    measure(state, squareOf(argumentOf(state) + 1), MarkMapForRepaint, [] { UpdateMapView(1); });
}

void refreshClean(benchmark::State& state) {
    benchDesk(argumentOf(state));
    layGround();
    UpdateMapView(1);
    measure(
        state, squareOf(argumentOf(state) + 1), [] {}, [] { UpdateMapView(1); });
}

void redrawColors(benchmark::State& state) {
    benchDesk(argumentOf(state));
    layGround();
    measure(
        state, squareOf(argumentOf(state) + 1), [] {},
        [] {
            Form1.Combo1.Caption = Form1.Combo1.Caption == "Earth" ? "Rainbow" : "Earth";
            deliver(Form1.Combo1, Event::Click);
            int command = button::kUpdate2D;
            RunCommand(command);
        });
}

void writeMap(benchmark::State& state) {
    benchDesk(argumentOf(state));
    const std::string path = (std::filesystem::temp_directory_path() / "bench_growth.bmp").string();
    measure(
        state, squareOf(argumentOf(state)), [&] { std::remove(path.c_str()); },
        [&] {
            std::int16_t result = 0;
            WriteTerrainBitmap(path, MapSize, result);
        });
    std::remove(path.c_str());
}

// Cells that a drawing projects and pixels that it paints, about.
double cellsAndPixels(int style, int resolution) {
    const auto placeOf = [](int x, int y) {
        double X = 0;
        double Y = 0;
        ProjectPoint(RotatePoint(x, y, HeightMap(x, y) / 2.0, viewCentre()), X, Y);
        return std::pair(X - MapSize, Y);
    };
    double visited = 0;
    for (int y = 0; y < MapSize; y += resolution) {
        for (int x = 0; x < MapSize; x += resolution) {
            const auto [x0, y0] = placeOf(x, y);
            const auto [x1, y1] = placeOf(x, std::min<int>(y + resolution, MapSize));
            const auto [x2, y2] = placeOf(std::min<int>(x + resolution, MapSize), y);
            const double area = std::fabs((x1 - x0) * (y2 - y0) - (x2 - x0) * (y1 - y0));
            const double lengths = std::max(std::fabs(x1 - x0), std::fabs(y1 - y0)) +
                                   std::max(std::fabs(x2 - x0), std::fabs(y2 - y0));
            visited += 1 + (style == button::kStylePolygon ? area : 0) +
                       (style == button::kStyleLine ? lengths : 0);
        }
    }
    return visited;
}

void drawView(benchmark::State& state, int style, int mapSize, int resolution) {
    benchDesk(mapSize);
    layGround();
    SwitchViewMode(kMode3D);
    for (const int number : {button::kStyleLine, button::kStyleDot, button::kStylePolygon}) {
        OptionStates(number).State = number == style ? kOn : kUp;
    }
    measure(
        state, cellsAndPixels(style, resolution), [] {},
        [&] { DrawTerrain3D(resolution, kFullDrawing); });
}

void lines(benchmark::State& state) {
    drawView(state, button::kStyleLine, argumentOf(state), 1);
}
void dots(benchmark::State& state) {
    drawView(state, button::kStyleDot, argumentOf(state), 1);
}
void polygons(benchmark::State& state) {
    drawView(state, button::kStylePolygon, argumentOf(state), 1);
}

void quickGrid(benchmark::State& state) {
    benchDesk(argumentOf(state));
    layGround();
    SwitchViewMode(kMode3D);
    measure(
        state, squareOf(argumentOf(state)), [] {}, DrawQuickGrid);
}

// Over a parameter of their own, on the largest map.

void detail(benchmark::State& state) {
    benchDesk(kLargeSize);
    const int cells = argumentOf(state);
    int power = 0;
    while (cells >> (power + 1) != 0) {
        ++power;
    }
    SliderValues(14).Value = static_cast<std::int16_t>(power);
    measure(
        state, squareOf(cells), [] {},
        [] {
            double h = 0.1;
            GenerateFractalTerrain(h, SliderValues(10).Value);
        });
}

void pencilPoints(benchmark::State& state) {
    openToolDesk(kLargeSize);
    recordPath(argumentOf(state));
    measure(state, pencilSamples(20), layGroundAnew, [] { DrawStroke(kPencilStroke); });
}

void pencilThickness(benchmark::State& state) {
    openToolDesk(kLargeSize);
    SliderValues(1).Value = static_cast<std::int16_t>(argumentOf(state));
    recordPath(kLongestPath);
    measure(state, pencilSamples(argumentOf(state)), layGroundAnew,
            [] { DrawStroke(kPencilStroke); });
}

void lineLength(benchmark::State& state) {
    openToolDesk(kLargeSize);
    recordDiagonal(argumentOf(state));
    measure(state, lineSamples(20), layGroundAnew, [] { DrawStroke(kLineStroke); });
}

void canyonPoints(benchmark::State& state) {
    openToolDesk(kLargeSize);
    recordPath(argumentOf(state));
    measure(state, canyonSamples(25, 30, 15), layGroundAnew, CarveCanyon);
}

void canyonBank(benchmark::State& state) {
    openToolDesk(kLargeSize);
    SliderValues(13).Value = static_cast<std::int16_t>(argumentOf(state));
    recordPath(75);
    measure(state, canyonSamples(argumentOf(state), 30, 15), layGroundAnew, CarveCanyon);
}

void mountainHeight(benchmark::State& state) {
    openToolDesk(kLargeSize);
    SliderValues(6).Value = static_cast<std::int16_t>(argumentOf(state));
    measure(state, mountainSamples(30, argumentOf(state) / 3), layGroundAnew,
            [] { BuildMountain(128, 128); });
}

void plainSize(benchmark::State& state) {
    openToolDesk(kLargeSize);
    SliderValues(8).Value = static_cast<std::int16_t>(argumentOf(state));
    measure(state, argumentOf(state) * 360.0, layGroundAnew, [] { BuildPlain(128, 128); });
}

// Flat ground and no two moves in one place, so that each finds the same.
void raiseMoves(benchmark::State& state) {
    openToolDesk(kLargeSize);
    const auto placeOf = [](int n) { return static_cast<float>(16 + 30 * n); };
    measure(
        state, argumentOf(state) * 15 * 72.0, [] { HeightMap.fill(40); },
        [&] {
            for (int n = 0; n < argumentOf(state); ++n) {
                RaiseTerrain(placeOf(n % 8), placeOf(n / 8));
            }
        });
}

// The parameter is cells a row, MapSize / Resolution.
void polygonCells(benchmark::State& state) {
    drawView(state, button::kStylePolygon, kLargeSize, kLargeSize / argumentOf(state));
    state.counters["work"] = squareOf(argumentOf(state));  // the picture is the same
}

void mazeSide(benchmark::State& state) {
    using namespace ombrelia::maze;
    benchDesk(kMiniatureSize);
    NumColumns = NumRows = static_cast<std::int16_t>(argumentOf(state));
    completeMazeSize(MazeStyle::Square);
    allocateMaze();
    measure(
        state, squareOf(argumentOf(state)), [] {},
        [] {
            GenerateMaze(MazeStyle::Square, {1, 2, 3, 4, 5, 6, 7, 8});
            std::int16_t rooms = 0;
            std::int16_t adjacency = 0;
            SolveMaze(MazeStyle::Square, rooms, adjacency);
        });
}

using Procedure = void (*)(benchmark::State&);

struct Growth {
    const char* name;
    Procedure procedure;
    std::vector<std::int64_t> arguments;
};

const std::vector<std::int64_t> kMapSizes = {65, 129, 193, 257};

const Growth kGrowths[] = {
    {"generate, Detail 8/size", generateAll, kMapSizes},
    {"refresh of all cells/size", refreshAll, kMapSizes},
    {"refresh, nothing changed/size", refreshClean, kMapSizes},
    {"change of colours/size", redrawColors, kMapSizes},
    {"export/size", writeMap, kMapSizes},
    {"3-D lines/size", lines, kMapSizes},
    {"3-D dots/size", dots, kMapSizes},
    {"3-D polygons/size", polygons, kMapSizes},
    {"quick grid/size", quickGrid, kMapSizes},
    {"generate/lattice side", detail, {2, 4, 8, 16, 32, 64, 128, 256}},
    {"3-D polygons/cells a row", polygonCells, {25, 51, 128, 257}},
    {"pencil/points", pencilPoints, {75, 150, 299, kLongestPath}},
    {"pencil/thickness", pencilThickness, {2, 5, 10, 20}},
    {"line/length", lineLength, {32, 64, 128, 257}},
    {"canyon/points", canyonPoints, {19, 38, 75, 150}},
    {"canyon/bank", canyonBank, {3, 6, 12, 25}},
    {"mountain/height", mountainHeight, {64, 128, 255}},
    {"plain/radius", plainSize, {5, 10, 20, 30}},
    {"raise/moves", raiseMoves, {8, 16, 32, 64}},
    {"maze/rooms a side", mazeSide, {10, 20, 40, 80}},
};

const bool kAreRegistered = [] {
    for (const Growth& row : kGrowths) {
        auto* registered = benchmark::RegisterBenchmark((std::string("growth/") + row.name).c_str(),
                                                        row.procedure);
        registered->Unit(benchmark::kMicrosecond);
        for (const std::int64_t argument : row.arguments) {
            registered->Arg(argument);
        }
    }
    return true;
}();

}  // namespace

}  // namespace ombrelia
