#include "views/view3d/run_painter.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "core/objects.h"
#include "core/windows/form1.h"

namespace ombrelia {

bool RunPainter::projectRuns(int outer, bool needsFar) {
    const CameraState camera = cameraNow(centre_);
    const int d = std::abs(walk_.step);
    const int first = walk_.step > 0 ? 0 : walk_.last % d;
    walked_ = (walk_.last - first) / d + 1;
    count_ = (MapSize - first) / d + 1;
    if (count_ < walked_ || count_ > kernel::kMost) {
        return false;  // the map's size was changed on the way
    }
    const RunCourse course{walk_.isByRows, outer, first, d, count_};
    hasFar_ = needsFar && outer + d <= MapSize;
    std::swap(near_, far_);  // a neighbour run is the next one's own, up or down the walk
    if (!near_->project(course, camera)) {
        return false;
    }
    RunCourse beyond = course;
    beyond.common += d;
    return !hasFar_ || far_->project(beyond, camera);
}

template <typename PaintOne>
void RunPainter::walkRun(PaintOne paintOne) {
    if (walk_.step > 0) {
        for (int n = 0; n < walked_; ++n) {
            paintOne(n);
        }
    } else {
        for (int n = walked_ - 1; n >= 0; --n) {
            paintOne(n);
        }
    }
}

bool RunPainter::paint(int outer, Style style) {
    colors_.update();
    if (!colors_.isComplete() || !projectRuns(outer, style != Style::Dots)) {
        return false;
    }
    switch (style) {
        case Style::Lines:
            if (!Form1.MapView.Canvas.hasPixelScale()) {
                return false;
            }
            walkRun([this](int n) { paintLines(n); });
            break;
        case Style::Dots:
            walkRun([this](int n) { paintDot(n); });
            break;
        case Style::Polygons:
            if (hasFar_) {
                walkRun([this](int n) { paintPolygon(n); });
            }
            break;
    }
    return true;
}

void RunPainter::paintLines(int n) {
    Surface& view = Form1.MapView.Canvas;
    const auto lineTo = [&](const PointRun& run, int end) {
        view.linePixels(near_->place(n), run.place(end), colorOf(colors_.pixel(run.height(end))));
    };
    const bool hasNext = n + 1 < count_;
    // The neighbour below comes first.
    if (walk_.isByRows) {
        if (hasFar_) {
            lineTo(*far_, n);
        }
        if (hasNext) {
            lineTo(*near_, n + 1);
        }
    } else {
        if (hasNext) {
            lineTo(*near_, n + 1);
        }
        if (hasFar_) {
            lineTo(*far_, n);
        }
    }
}

void RunPainter::paintDot(int n) {
    const PixelPoint& place = near_->place(n);
    Form1.MapView.Canvas.setPixel(place.x, place.y, colorOf(colors_.pixel(near_->height(n))));
}

void RunPainter::paintPolygon(int n) {
    if (n + 1 >= count_) {
        return;
    }
    const std::array<PixelPoint, 4> corners = {near_->place(n), far_->place(n), far_->place(n + 1),
                                               near_->place(n + 1)};
    const int lowerLeft = walk_.isByRows ? far_->height(n) : near_->height(n + 1);
    Form1.MapView.Canvas.polygon(corners, colorOf(colors_.pixel(lowerLeft)));
}

}  // namespace ombrelia
