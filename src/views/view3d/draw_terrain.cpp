#include "views/view3d/draw_terrain.h"

#include <algorithm>
#include <cstdlib>

#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/progress.h"
#include "core/windows/form1.h"
#include "platform/dispatch.h"
#include "platform/numeric.h"
#include "platform/window_life.h"
#include "views/view3d/cell_painters.h"
#include "views/view3d/projection.h"

namespace ombrelia {

namespace {

constexpr int kDrawWidthSlider = 5;

// How the points are walked so that near ones come later.
struct Walk {
    int step;       // signed
    bool isByRows;  // rows outside, columns inside
    int last;       // of either counter, MapSize - 1
};

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

// One run of the inner loop; the value of its counter afterwards.
int paintRun(const Walk& walk, int outer, int mode, double centre) {
    int inner = walk.step > 0 ? 0 : walk.last;
    for (; inner >= 0 && inner <= walk.last; inner += walk.step) {
        paintPoint(walk.isByRows ? inner : outer, walk.isByRows ? outer : inner, walk.step, mode,
                   centre);
    }
    return inner;
}

// Shows a run of the full drawing; true when it is to stop.
bool showRun(const Walk& walk, int outer, int inner) {
    refreshControl(Form1.MapView);
    const int side = walk.last + 1;
    ProgressDone = walk.step > 0 ? outer * inner : (side - outer) * (side - std::abs(inner));
    yieldToEvents();
    return noteStop();
}

// True when it ran to the end.
bool paintRuns(const Walk& walk, int mode, double centre) {
    for (int outer = walk.step > 0 ? 0 : walk.last; outer >= 0 && outer <= walk.last;
         outer += walk.step) {
        const int inner = paintRun(walk, outer, mode, centre);
        if (mode == kFullDrawing && showRun(walk, outer, inner)) {
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
    if (mode == kFullDrawing) {
        SetToolsEnabled(false);
        const double side = MapSize + step;
        announceWork("Calculating 3D View", roundToInt32(side * side));
    }
    view.DrawWidth = mode == kFullDrawing ? SliderValues(kDrawWidthSlider).Value : 1;
    view.clear();
    if (!paintRuns(chooseWalk(step), mode, viewCentre())) {
        return;
    }
    view.DrawWidth = 1;
    if (mode == kFullDrawing) {
        SetToolsEnabled(true);
        ProgressState = 2;
    }
}

void DrawQuickGrid() {
    constexpr int kCoarseStep = 32;
    constexpr int kFineStep = 16;
    DrawTerrain3D(MapSize >= 130 ? kCoarseStep : kFineStep, kQuickGrid);
}

}  // namespace ombrelia
