// The full drawing and the quick grid of a rough large map, next to the plain drawing of the tests
// and to four projections a cell with QPainter and with Cairo, both without smoothing.
#include <QImage>
#include <QPainter>
#include <array>
#include <benchmark/benchmark.h>
#include <cairo.h>

#include "bench_desk.h"
#include "core/button_numbers.h"
#include "core/color_ramp.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "terrain/fractal/fractal_terrain.h"
#include "views/view3d/cell_painters.h"
#include "views/view3d/draw_terrain.h"
#include "views/view3d/plain_view.h"
#include "views/view3d/projection.h"
#include "views/view_mode.h"

namespace ombrelia {

namespace {

constexpr int kSide = 257;

// Some library calls leave the upper halves of the vector registers in use, which makes plain
// arithmetic slow on some processors.
void clearVectorRegisters() {
#if defined(__x86_64__)
    if (__builtin_cpu_supports("avx")) {
        asm volatile("vzeroupper");
    }
#endif
}

// The roughest map that the generator makes, or each point at random.
void openRoughView(bool isNoise) {
    benchDesk(kLargeSize);
    SliderValues(14).Value = 8;
    GenerateCommand();
    std::uint32_t x = 1;
    for (int y = 0; isNoise && y <= 257; ++y) {
        for (int i = 0; i <= 257; ++i) {
            x = x * 1664525U + 1013904223U;
            HeightMap(i, y) = static_cast<std::int16_t>(x >> 24U);
        }
    }
    SwitchViewMode(kMode3D);
    SliderValues(4).Value = 1;
    SliderValues(5).Value = 1;
    clearVectorRegisters();
}

constexpr int kStyleButtons[] = {button::kStyleLine, button::kStyleDot, button::kStylePolygon};

void drawFull(benchmark::State& state) {
    openRoughView(state.range(1) != 0);
    for (const int number : kStyleButtons) {
        OptionStates(number).State = kUp;
    }
    OptionStates(kStyleButtons[state.range(0)]).State = kOn;
    for (auto _ : state) {
        DrawTerrain3D(1, kFullDrawing);
    }
}

void drawQuickGrid(benchmark::State& state) {
    openRoughView(false);
    for (auto _ : state) {
        DrawQuickGrid();
    }
}

void drawPlainly(benchmark::State& state) {
    openRoughView(state.range(1) != 0);
    for (auto _ : state) {
        const PlainPicture picture = plainDrawing(1, static_cast<PlainStyle>(state.range(0)), 1);
        benchmark::DoNotOptimize(picture.pixels().data());
    }
}

using Corners = std::array<PixelPoint, 4>;

PixelPoint cornerAt(int x, int y) {
    double X = 0;
    double Y = 0;
    ProjectPoint(RotatePoint(x, y, HeightMap(x, y) / 2.0, viewCentre()), X, Y);
    return {wholePixel(X - MapSize), wholePixel(Y)};
}

// Four projections for each cell, in the order of the first quadrant.
template <typename Paint>
void forEachCell(Paint paint) {
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            const Corners corners = {cornerAt(x, y), cornerAt(x, y + 1), cornerAt(x + 1, y + 1),
                                     cornerAt(x + 1, y)};
            paint(corners, HeightToColor(HeightMap(x, y + 1)), HeightToColor(HeightMap(x + 1, y)));
        }
    }
}

void projectFourTimesACell(benchmark::State& state) {
    openRoughView(false);
    for (auto _ : state) {
        forEachCell([](const Corners& corners, Color below, Color right) {
            benchmark::DoNotOptimize(corners);
            benchmark::DoNotOptimize(below + right);
        });
    }
}

QColor colorOfQt(Color color) {
    return QColor::fromRgb(pixelOf(color));
}

void drawWithQPainter(benchmark::State& state) {
    openRoughView(state.range(1) != 0);
    QImage image(kSide, kSide, QImage::Format_RGB32);
    for (auto _ : state) {
        image.fill(Qt::black);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing, false);
        forEachCell([&](const Corners& corners, Color below, Color right) {
            const auto point = [&](std::size_t n) { return QPoint(corners[n].x, corners[n].y); };
            if (state.range(0) == 2) {
                painter.setPen(Qt::NoPen);
                painter.setBrush(colorOfQt(below));
                const QPoint points[] = {point(0), point(1), point(2), point(3)};
                painter.drawPolygon(points, 4);
            } else {
                painter.setPen(colorOfQt(below));
                painter.drawLine(point(0), point(1));
                painter.setPen(colorOfQt(right));
                painter.drawLine(point(0), point(3));
            }
        });
        painter.end();
        clearVectorRegisters();
        benchmark::DoNotOptimize(image.constBits());
    }
}

void drawWithCairo(benchmark::State& state) {
    openRoughView(state.range(1) != 0);
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, kSide, kSide);
    cairo_t* cairo = cairo_create(surface);
    cairo_set_antialias(cairo, CAIRO_ANTIALIAS_NONE);
    cairo_set_line_width(cairo, 1);
    const auto pick = [cairo](Color color) {
        cairo_set_source_rgb(cairo, redOf(color) / 255.0, greenOf(color) / 255.0,
                             blueOf(color) / 255.0);
    };
    const auto line = [&](PixelPoint from, PixelPoint to, Color color) {
        pick(color);
        cairo_move_to(cairo, from.x + 0.5, from.y + 0.5);
        cairo_line_to(cairo, to.x + 0.5, to.y + 0.5);
        cairo_stroke(cairo);
    };
    for (auto _ : state) {
        cairo_set_source_rgb(cairo, 0, 0, 0);
        cairo_paint(cairo);
        forEachCell([&](const Corners& corners, Color below, Color right) {
            if (state.range(0) == 2) {
                pick(below);
                cairo_move_to(cairo, corners[0].x, corners[0].y);
                for (std::size_t n = 1; n < 4; ++n) {
                    cairo_line_to(cairo, corners[n].x, corners[n].y);
                }
                cairo_close_path(cairo);
                cairo_fill(cairo);
            } else {
                line(corners[0], corners[1], below);
                line(corners[0], corners[3], right);
            }
        });
        clearVectorRegisters();
        benchmark::DoNotOptimize(cairo_image_surface_get_data(surface));
    }
    cairo_destroy(cairo);
    cairo_surface_destroy(surface);
}

// First: 0 lines, 1 dots, 2 polygons. Second: 0 the roughest generated map, 1 points at random.
BENCHMARK(drawFull)->ArgsProduct({{0, 1, 2}, {0, 1}})->Unit(benchmark::kMicrosecond);
BENCHMARK(drawPlainly)->ArgsProduct({{0, 1, 2}, {0}})->Unit(benchmark::kMicrosecond);
BENCHMARK(drawWithQPainter)->ArgsProduct({{0, 2}, {0, 1}})->Unit(benchmark::kMicrosecond);
BENCHMARK(drawWithCairo)->ArgsProduct({{0, 2}, {0, 1}})->Unit(benchmark::kMicrosecond);
BENCHMARK(projectFourTimesACell)->Unit(benchmark::kMicrosecond);
BENCHMARK(drawQuickGrid)->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace ombrelia
