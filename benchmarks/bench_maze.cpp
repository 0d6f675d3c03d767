// Candidates of the maze search at 60 x 40 rooms, next to the plain second implementation of the
// tests and to ten textbook diamond-squares of 257; and a full picture of such a maze.
#include <benchmark/benchmark.h>
#include <random>
#include <vector>

#include "bench_desk.h"
#include "core/windows/maze_window.h"
#include "games/maze/maze_events.h"
#include "games/maze/maze_generator.h"
#include "games/maze/maze_picture.h"
#include "games/maze/maze_seed.h"
#include "games/maze/maze_solver.h"
#include "games/maze/maze_view.h"
#include "games/maze/plain_maze.h"
#include "platform/dispatch.h"
#include "platform/window_life.h"

namespace ombrelia::maze {

namespace {

constexpr int kRows = 40;

int columnsOf(bool isHex) {
    return isHex ? 61 : 60;
}

MazeStyle styleOf(bool isHex) {
    return isHex ? MazeStyle::Hexagonal : MazeStyle::Square;
}

HeadlessPlatform& setSize(bool isHex) {
    HeadlessPlatform& platform = benchDesk(65);
    NumColumns = static_cast<std::int16_t>(columnsOf(isHex));
    NumRows = kRows;
    completeMazeSize(styleOf(isHex));
    allocateMaze();
    return platform;
}

constexpr int kCandidates = 128;  // a power of two: the steps of the clock are exact

void searchMazes(benchmark::State& state) {
    const bool isHex = state.range(0) != 0;
    HeadlessPlatform& platform = setSize(isHex);
    platform.SecondsPerReading = kMazeSearchSeconds / kCandidates;
    for (auto _ : state) {
        platform.Seconds = 0;
        CreateMaze(" 43200", styleOf(isHex), kMazeSearchSeconds);
    }
    state.SetItemsProcessed(state.iterations() * kCandidates);
}

void searchMazesPlainly(benchmark::State& state) {
    const bool isHex = state.range(0) != 0;
    const PlainMaze size = plainSizeOf(isHex, columnsOf(isHex), kRows);
    for (auto _ : state) {
        PlainMaze maze = plainCreate(size, " 43200", kCandidates);
        benchmark::DoNotOptimize(maze.adjacency);
    }
    state.SetItemsProcessed(state.iterations() * kCandidates);
}

// The random numbers of such a search alone, a choice of 24 of 29 for each room.
void drawMazes(benchmark::State& state) {
    MazeRandom<29> random({1, 2, 3, 4, 5, 6, 7, 8});
    for (auto _ : state) {
        for (int n = 0; n < kCandidates * kRows * columnsOf(false); ++n) {
            int drawn = random();
            while (drawn >= 24) {
                drawn = random();
            }
            benchmark::DoNotOptimize(drawn);
        }
    }
}

// The textbook's: squares, then diamonds with the mean of what lies inside.
class DiamondSquare {
  public:
    double run() {
        double height = 128;
        for (int half = kLast / 2; half >= 1; half /= 2) {
            for (int y = half; y < kLast; y += 2 * half) {
                for (int x = half; x < kLast; x += 2 * half) {
                    at(x, y) = (at(x - half, y - half) + at(x + half, y - half) +
                                at(x - half, y + half) + at(x + half, y + half)) /
                                   4 +
                               draw(height);
                }
            }
            for (int y = 0; y <= kLast; y += half) {
                for (int x = (y / half) % 2 == 0 ? half : 0; x <= kLast; x += 2 * half) {
                    at(x, y) = meanAround(x, y, half) + draw(height);
                }
            }
            height /= 2;
        }
        return at(kLast / 2, kLast / 2);
    }

  private:
    static constexpr int kLast = 256;

    double& at(int x, int y) { return cells_[static_cast<std::size_t>(y * (kLast + 1) + x)]; }

    double draw(double height) { return height * uniform_(engine_); }

    double meanAround(int x, int y, int half) {
        double sum = 0;
        int count = 0;
        const int steps[][2] = {{-half, 0}, {half, 0}, {0, -half}, {0, half}};
        for (const auto& step : steps) {
            const int nx = x + step[0];
            const int ny = y + step[1];
            if (nx >= 0 && nx <= kLast && ny >= 0 && ny <= kLast) {
                sum += at(nx, ny);
                ++count;
            }
        }
        return sum / count;
    }

    std::mt19937 engine_{1};
    std::uniform_real_distribution<double> uniform_{-1, 1};
    std::vector<double> cells_ = std::vector<double>((kLast + 1) * (kLast + 1));
};

void tenDiamondSquares(benchmark::State& state) {
    DiamondSquare terrain;
    for (auto _ : state) {
        for (int i = 0; i < 10; ++i) {
            benchmark::DoNotOptimize(terrain.run());
        }
    }
}

// Everything between a repaint and the last row, without the waits for the timer.
void paintMaze(benchmark::State& state) {
    const bool isHex = state.range(0) != 0;
    benchDesk(65);
    runHandler([] { loadWindow(frm3DMaze); });
    deliverResize(frm3DMaze, 1457, 1000);
    setMazePainter(nullptr);
    NumColumns = static_cast<std::int16_t>(columnsOf(isHex));
    NumRows = kRows;
    completeMazeSize(styleOf(isHex));
    allocateMaze();
    GenerateMaze(styleOf(isHex), {1, 2, 3, 4, 5, 6, 7, 8});
    TiltDegrees = 45;
    for (auto _ : state) {
        mazePainter().clear();
        ComputeView(styleOf(isHex));
        beginMazePicture(styleOf(isHex));
        while (DrawState < kMazeReady) {
            paintMazeSlice(styleOf(isHex));
        }
    }
}

BENCHMARK(searchMazes)->ArgName("hex")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);
BENCHMARK(searchMazesPlainly)->ArgName("hex")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);
BENCHMARK(drawMazes)->Unit(benchmark::kMicrosecond);
BENCHMARK(tenDiamondSquares)->Unit(benchmark::kMicrosecond);
BENCHMARK(paintMaze)->ArgName("hex")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace ombrelia::maze
