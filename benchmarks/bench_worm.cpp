// The worm game next to the toolkit's own filling of boxes. A tick has 150 ms, a picture of a
// cross-fade one display frame.
#include <QImage>
#include <QPainter>
#include <benchmark/benchmark.h>

#include "bench_desk.h"
#include "core/objects.h"
#include "core/windows/form2.h"
#include "games/worm/board.h"
#include "games/worm/worm.h"
#include "games/worm/worm_state.h"
#include "platform/dispatch.h"

namespace ombrelia::worm {

namespace {

constexpr int kLongest = 38;  // cells of the longest worm of a level
constexpr int kSide = 10;     // of the square that it goes around, longer than the worm
constexpr int kPictures = 25;

void openGame() {
    benchDesk(kSmallSize);
    runHandler(openWormGame);
    Form2.Label2.Left = 8 * CellSize;
    Form2.Label2.Top = 8 * CellSize;
}

void wormTick(benchmark::State& state) {
    openGame();
    WormLength = kLongest;
    int steps = 0;
    for (auto _ : state) {
        deliver(Form2.Timer1, Event::Timer);
        if (++steps % kSide == 0) {
            Heading = static_cast<std::int16_t>(Heading % 4 + 1);
        }
    }
    if (Lives != 5) {
        state.SkipWithError("the worm died");
    }
}
BENCHMARK(wormTick)->Unit(benchmark::kMicrosecond);

// What a tick paints: the head and the cell behind the tail.
void qPainterTwoCells(benchmark::State& state) {
    QImage image(520, 530, QImage::Format_RGB32);
    int step = 0;
    for (auto _ : state) {
        QPainter painter(&image);
        step = (step + 1) % kSide;
        painter.fillRect(step * 30, 90, 30, 30, QColor(200, 100, step));
        painter.fillRect(step * 30, 300, 30, 30, QColor(0, 0, 0));
    }
    benchmark::DoNotOptimize(image.constBits());
}
BENCHMARK(qPainterTwoCells)->Unit(benchmark::kMicrosecond);

// All pictures of the change from one level to another, without the waits between them.
void wormCrossFade(benchmark::State& state) {
    openGame();
    int level = 1;
    for (auto _ : state) {
        level = level % 4 + 1;
        BuildLevel(level);
        ShowBoard();
    }
}
BENCHMARK(wormCrossFade)->Unit(benchmark::kMicrosecond);

void qPainterCrossFade(benchmark::State& state) {
    QImage image(520, 530, QImage::Format_RGB32);
    for (auto _ : state) {
        for (int picture = 0; picture < kPictures; ++picture) {
            QPainter painter(&image);
            for (int x = 1; x <= 16; ++x) {
                for (int y = 1; y <= 16; ++y) {
                    painter.fillRect(x * 30, y * 30, 30, 30, QColor(10 * picture, x, y));
                }
            }
        }
        benchmark::DoNotOptimize(image.constBits());
    }
}
BENCHMARK(qPainterCrossFade)->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace ombrelia::worm
