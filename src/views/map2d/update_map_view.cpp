#include "views/map2d/update_map_view.h"

#include <algorithm>
#include <cstddef>

#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/color_ramp.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/progress.h"
#include "core/windows/form1.h"
#include "platform/numeric.h"
#include "platform/window_life.h"
#include "views/map2d/cell_row.h"
#include "views/map2d/map_transform.h"
#include "views/view_mode.h"

namespace ombrelia {

namespace {

// State that makes RefreshAfterEdit go in steps; only a stored setting made by hand gives it.
constexpr int kSteppedState = 78;

struct StepOption {
    int button;
    int step;
};
constexpr StepOption kStepOptions[] = {{button::kStep20, 20},
                                       {button::kStep10, 10},
                                       {button::kStep5, 5},
                                       {button::kStep2, 2},
                                       {button::kStep1, 1}};

// Paints cells in the order of the map. A height without a colour takes the colour of the cell
// painted before it, black at first.
class CellPainter {
  public:
    void paintDirtyCells(int y) {
        colors_.update();
        Surface& buffer = Form1.Mapview2.Canvas;
        const auto cells = static_cast<std::size_t>(MapSize) + 1;
        const bool hasPixels = y < buffer.height();
        const CellRow row{HeightMap.row(y), ShadowMap.row(y), hasPixels ? buffer.row(y) : nullptr,
                          hasPixels ? std::min(cells, static_cast<std::size_t>(buffer.width())) : 0,
                          cells};
        if (!isDirty(row)) {
            return;
        }
        if (colors_.isComplete() && isInRange(row)) {
            takeLastColor(row);
            paintCells(row, colors_.data());
        } else {
            paintOneByOne(row);
        }
        buffer.changed();
    }

    void paintBoxes(int y, int step) {
        colors_.update();
        for (int x = 0; x <= MapSize; x += step) {
            takeColor(HeightMap(x, y));
            Form1.MapView.Canvas.box(x, y, x + step, y + step, colorOf(last_));
        }
    }

  private:
    void takeLastColor(const CellRow& row) {
        std::size_t last = row.cells - 1;
        while (row.shadows[last] == row.heights[last]) {
            --last;
        }
        last_ = colors_.pixel(row.heights[last]);
    }

    void paintOneByOne(const CellRow& row) {
        for (std::size_t x = 0; x < row.cells; ++x) {
            if (row.shadows[x] == row.heights[x]) {
                continue;
            }
            takeColor(row.heights[x]);
            if (x < row.columns) {
                row.pixels[x] = last_;
            }
            row.shadows[x] = row.heights[x];
        }
    }

    // Clamps the cell, as each look-up does.
    void takeColor(std::int16_t& height) {
        if (height > 255) {
            height = 255;
        } else if (height < 0) {
            height = 0;
        }
        if (colors_.hasColor(height)) {
            last_ = colors_.pixel(height);
        }
    }

    ColorLookup colors_;
    Pixel last_ = pixelOf(rgb(0, 0, 0));
};

// Value of a counter after its loop 0..last in steps.
int afterLoop(int last, int step) {
    return (last / step + 1) * step;
}

// True when it ran to the end.
bool paintRows(int step) {
    CellPainter painter;
    for (int y = 0; y <= MapSize; y += step) {
        if (step == 1) {
            painter.paintDirtyCells(y);
        } else {
            painter.paintBoxes(y, step);
        }
        LongRun::yieldAt(y * afterLoop(MapSize, step));
        if (LongRun::noteStop()) {
            return false;
        }
    }
    return true;
}

}  // namespace

void UpdateMapView(int step) {
    const LongRun run;
    SwitchViewMode(kMode2D);
    const double side = MapSize + 1.0;
    LongRun::announce("Updating View", roundToInt32(side * side));
    if (!paintRows(step)) {
        return;
    }
    LongRun::tellEnd();
    if (step == 1) {
        ApplyMapTransform();
    }
    refreshControl(Form1.MapView);
    run.giveToolsBack();
}

void RefreshAfterEdit() {
    // Required: 78, not 2; a check box never has it, so one full pass is what runs in practice
    // (the_step_option_changes_nothing).
    if (OptionStates(button::kStepRefresh).State != kSteppedState) {
        StepRefreshActive = 0;
        UpdateMapView(1);
        return;
    }
    StepRefreshActive = 1;
    for (const StepOption& option : kStepOptions) {
        if (isOn(option.button)) {
            UpdateMapView(option.step);
        }
    }
    StepRefreshActive = 0;
}

void MarkMapForRepaint() {
    for (int y = 0; y <= MapSize; ++y) {
        std::int16_t* row = ShadowMap.row(y);
        std::fill(row, row + MapSize + 1, kDirtyShadow);
    }
}

}  // namespace ombrelia
