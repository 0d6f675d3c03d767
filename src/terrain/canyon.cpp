#include "terrain/canyon.h"

#include <algorithm>
#include <optional>

#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/option_strip_table.h"
#include "core/progress.h"
#include "core/windows/form1.h"
#include "terrain/canyon_wall.h"
#include "terrain/disc_brush.h"
#include "terrain/marker.h"
#include "terrain/stroke_path.h"
#include "views/map2d/update_map_view.h"

namespace ombrelia {

namespace {

constexpr std::int16_t kRiverBedHeight = 20;
constexpr int kFloorDegrees = 3;  // between two samples
constexpr int kRiverDegrees = 4;
constexpr int kCarvingStep = 2;  // along the path

struct Steepness {
    int button;
    int edge;  // width of the wall, points
};
constexpr Steepness kSteepnesses[] = {
    {button::kCanyonVerySteep, 5}, {button::kCanyonSlightlySteep, 15}, {button::kCanyonSmooth, 30}};

int chosenEdge() {
    for (const Steepness& row : kSteepnesses) {
        if (isOn(row.button)) {
            return row.edge;
        }
    }
    return 0;
}

// Sets the present position after a segment. False if the work was stopped.
bool endSegment(int done) {
    if (LongRun::noteStop()) {
        return false;
    }
    LongRun::yieldAt(done);
    return true;
}

void cutFloor(DiscBrush& floor, double x, double y) {
    floor.stamp(x, y, [](std::int16_t* cells, int count) {
        for (int n = 0; n < count; ++n) {
            cells[n] = std::min(cells[n], SeaLevel);
        }
    });
}

// False if it was stopped.
bool carve(int bank, int edge) {
    DiscBrush floor(bank, kFloorDegrees);
    std::optional<CanyonWall> wall;
    if (edge != 0) {
        wall.emplace(bank, edge);
    }
    for (int i = 1; i <= StrokeCount - 2; ++i) {
        const PathSegment segment = pathSegment(i);
        for (int t = 0; t <= segment.steps; t += kCarvingStep) {
            const double x = segment.xAt(t);
            const double y = segment.yAt(t);
            cutFloor(floor, x, y);
            if (wall) {
                wall->carveAt(x, y);
            }
            moveMarker(x, y);
            if (ProgressState == 1) {
                LongRun::yield();
            }
        }
        if (!endSegment(i)) {
            return false;
        }
    }
    return true;
}

// False if it was stopped.
bool layRiver(int width) {
    DiscBrush bed(width, kRiverDegrees);
    for (int i = 1; i <= StrokeCount - 2; ++i) {
        const PathSegment segment = pathSegment(i);
        for (int t = 0; t <= segment.steps; ++t) {
            const double x = segment.xAt(t);
            const double y = segment.yAt(t);
            bed.stamp(x, y, [](std::int16_t* cells, int count) {
                std::fill_n(cells, count, kRiverBedHeight);
            });
            moveMarker(x, y);
        }
        if (!endSegment(i + StrokeCount - 2)) {
            return false;
        }
    }
    return true;
}

void finish(const LongRun& run) {
    LongRun::tellEnd();
    Form1.PercDone.Caption = "100 Percent Done";
    Form1.Line1.Visible = false;
    run.giveToolsBack();
    if (isOn(button::kAutoRefresh)) {
        RefreshAfterEdit();
    }
}

}  // namespace

void CarveCanyon() {
    forgetStop();
    Form1.Line1.Visible = true;
    // Required: the marker stays in sight when there is nothing to carve
    // (a_path_of_two_points_changes_nothing_and_leaves_the_marker).
    if (StrokeCount < 3) {
        return;
    }
    const int bank = SliderValues(slider::kBankWidth).Value;
    const int river = SliderValues(slider::kRiverWidth).Value;
    const int edge = chosenEdge();
    const bool hasRiver = isOn(button::kRiverInMiddle);
    const LongRun run;
    LongRun::announce("Calculating Your Canyon", hasRiver ? StrokeCount * 2 - 4 : StrokeCount - 2);
    if (!carve(bank, edge) || (hasRiver && !layRiver(river))) {
        return;
    }
    finish(run);
}

}  // namespace ombrelia
