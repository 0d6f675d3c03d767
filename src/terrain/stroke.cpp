#include "terrain/stroke.h"

#include <algorithm>
#include <memory>

#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/progress.h"
#include "core/windows/form1.h"
#include "platform/numeric.h"
#include "platform/window_life.h"
#include "terrain/disc_brush.h"
#include "terrain/marker.h"
#include "terrain/stroke_path.h"
#include "views/map2d/update_map_view.h"

namespace ombrelia {

namespace {

constexpr int kPencilThickness = 1;
constexpr int kLineThickness = 2;

// The pen at one place after the other.
class Pen {
  public:
    explicit Pen(const std::int16_t& thickness) : thickness_(thickness) {}

    void touch(double x, double y) {
        if (thickness_ == 1) {
            touchPoint(x, y);
            return;
        }
        if (brush_ == nullptr || brush_->rings() != thickness_) {
            brush_ = std::make_unique<DiscBrush>(thickness_, 1);
        }
        brush_->stamp(x, y, [height = DrawHeight](std::int16_t* cells, int count) {
            std::fill_n(cells, count, height);
        });
    }

  private:
    static void touchPoint(double x, double y) {
        if (x >= 0 && x <= MapSize && y >= 0 && y <= MapSize) {
            HeightMap(static_cast<int>(roundToEven(x)), static_cast<int>(roundToEven(y))) =
                DrawHeight;
        }
    }

    const std::int16_t& thickness_;
    std::unique_ptr<DiscBrush> brush_;
};

// False if it was stopped.
bool drawSegment(const PathSegment& segment, bool isLine, Pen& pen) {
    for (int t = 0; t <= segment.steps; ++t) {
        const double x = segment.xAt(t);
        const double y = segment.yAt(t);
        pen.touch(x, y);
        moveMarker(x, y);
        if (isLine) {
            LongRun::moveTo(t);
            refreshControl(Form1.MapView);
            LongRun::yield();
        }
        if (LongRun::noteStop()) {
            return false;
        }
    }
    return true;
}

// False if it was stopped.
bool drawSegments(int last, bool isLine) {
    Pen pen(SliderValues(isLine ? kLineThickness : kPencilThickness).Value);
    for (int i = 1; i <= last; ++i) {
        const PathSegment segment = pathSegment(i);
        if (segment.isPoint()) {
            continue;
        }
        if (isLine) {
            LongRun::setTotal(segment.steps);
        }
        if (!drawSegment(segment, isLine, pen)) {
            return false;
        }
        if (!isLine) {
            LongRun::moveTo(i);
        }
        LongRun::yield();
    }
    return true;
}

}  // namespace

void DrawStroke(std::int16_t mode) {
    forgetStop();
    if (StrokeCount < 3) {
        return;
    }
    const LongRun run;
    Form1.Line1.Visible = true;
    const bool isLine = mode == kLineStroke;
    const int last = isLine ? StrokeCount - 1 : StrokeCount - 2;
    LongRun::announce(isLine ? "Drawing Line" : "Drawing Pencil", isLine ? ProgressTotal : last);
    if (!drawSegments(last, isLine)) {
        return;
    }
    Form1.Line1.Visible = false;
    run.giveToolsBack();
    LongRun::tellEnd();
    if (isOn(button::kAutoRefresh)) {
        RefreshAfterEdit();
    }
}

}  // namespace ombrelia
