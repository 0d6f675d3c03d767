#include "views/view3d/draw_terrain.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <optional>

#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/option_strip_table.h"
#include "core/progress.h"
#include "core/windows/form1.h"
#include "platform/numeric.h"
#include "platform/window_life.h"
#include "views/view3d/cell_painters.h"
#include "views/view3d/projection.h"
#include "views/view3d/run_painter.h"

namespace ombrelia {

namespace {

struct Quadrant {
    std::int16_t lastYaw;  // degrees
    std::int16_t number;
    int sign;
    bool isByRows;
};
constexpr Quadrant kQuadrants[] = {{44, 1, -1, true},
                                   {134, 2, -1, false},
                                   {224, 3, 1, true},
                                   {314, 4, 1, false},
                                   {360, 5, -1, true}};

// Required: 90 and 271 turn the walk round, 91 and 270 do not
// (the_tilt_turns_the_walk_at_uneven_bounds).
bool isSeenFromBehind() {
    return ViewTilt < 91 || ViewTilt >= 271;
}

Walk chooseWalk(int step) {
    const Quadrant* quadrant = kQuadrants;
    while (ViewYaw > quadrant->lastYaw && quadrant != std::end(kQuadrants) - 1) {
        ++quadrant;
    }
    ViewQuadrant = quadrant->number;
    const int sign = isSeenFromBehind() ? -quadrant->sign : quadrant->sign;
    return {sign * step, quadrant->isByRows, MapSize - 1};
}

void paintPoint(int x, int y, int step, int mode, double centre) {
    if (mode == kQuickGrid || isOn(button::kStyleLine)) {
        DrawLineCell(x, y, step, centre);
    }
    if (mode == kFullDrawing && isOn(button::kStyleDot)) {
        DrawDotCell(x, y, step, centre);
    }
    if (mode == kFullDrawing && isOn(button::kStylePolygon)) {
        DrawPolygonCell(x, y, step, centre);
    }
}

// The one style that is on, if it is one.
std::optional<RunPainter::Style> onlyStyle(int mode) {
    if (mode == kQuickGrid) {
        return RunPainter::Style::Lines;
    }
    struct StyleButton {
        int button;
        RunPainter::Style style;
    };
    constexpr StyleButton kStyles[] = {{button::kStyleLine, RunPainter::Style::Lines},
                                       {button::kStyleDot, RunPainter::Style::Dots},
                                       {button::kStylePolygon, RunPainter::Style::Polygons}};
    std::optional<RunPainter::Style> found;
    for (const StyleButton& row : kStyles) {
        if (!isOn(row.button)) {
            continue;
        }
        if (found) {
            return {};
        }
        found = row.style;
    }
    return found;
}

// One run of the inner loop, point by point.
void paintPoints(const Walk& walk, int outer, int mode, double centre) {
    for (int inner = walk.step > 0 ? 0 : walk.last; inner >= 0 && inner <= walk.last;
         inner += walk.step) {
        paintPoint(walk.isByRows ? inner : outer, walk.isByRows ? outer : inner, walk.step, mode,
                   centre);
    }
}

// Value of the inner counter behind its loop.
int counterAfter(const Walk& walk) {
    const int rounds = walk.last / std::abs(walk.step) + 1;
    return (walk.step > 0 ? 0 : walk.last) + rounds * walk.step;
}

// Shows a run of the full drawing; true when it is to stop.
bool showRun(const Walk& walk, int outer) {
    refreshControl(Form1.MapView);
    const int inner = counterAfter(walk);
    const int side = walk.last + 1;
    LongRun::yieldAt(walk.step > 0 ? outer * inner : (side - outer) * (side - std::abs(inner)));
    return LongRun::noteStop();
}

// True when it ran to the end.
bool paintRuns(const Walk& walk, int mode, double centre) {
    RunPainter painter(walk, centre);
    for (int outer = walk.step > 0 ? 0 : walk.last; outer >= 0 && outer <= walk.last;
         outer += walk.step) {
        const std::optional<RunPainter::Style> style = onlyStyle(mode);
        if (!style || !painter.paint(outer, *style)) {
            paintPoints(walk, outer, mode, centre);
        }
        if (mode == kFullDrawing && showRun(walk, outer)) {
            return false;
        }
    }
    return true;
}

}  // namespace

void DrawTerrain3D(int step, int mode) {
    step = std::max(step, 1);
    Surface& view = Form1.MapView.Canvas;
    setViewOffset();
    std::optional<LongRun> run;
    if (mode == kFullDrawing) {
        run.emplace();
        const double side = MapSize + step;
        LongRun::announce("Calculating 3D View", roundToInt32(side * side));
    }
    view.DrawWidth = mode == kFullDrawing ? SliderValues(slider::kDrawWidth).Value : 1;
    view.clear();
    if (!paintRuns(chooseWalk(step), mode, viewCentre())) {
        return;
    }
    view.DrawWidth = 1;
    if (run) {
        run->giveToolsBack();
        LongRun::tellEnd();
    }
}

void DrawQuickGrid() {
    constexpr int kCoarseStep = 32;
    constexpr int kFineStep = 16;
    DrawTerrain3D(MapSize >= 130 ? kCoarseStep : kFineStep, kQuickGrid);
}

}  // namespace ombrelia
