// Painting of one run of the walk, a row or column of points: the pixels that the cell painters
// would draw one after another, each point projected once.
#pragma once

#include "core/color_ramp.h"
#include "views/view3d/point_run.h"

namespace ombrelia {

// How the points are walked so that near ones come later.
struct Walk {
    int step;       // signed
    bool isByRows;  // rows outside, columns inside
    int last;       // of either counter, MapSize - 1
};

class RunPainter {
  public:
    RunPainter(const Walk& walk, double centre) : walk_(walk), centre_(centre) {}

    enum class Style { Lines, Dots, Polygons };

    // False, with nothing painted, if the run needs the cell painters.
    [[nodiscard]] bool paint(int outer, Style style);

  private:
    [[nodiscard]] bool projectRuns(int outer, bool needsFar);
    void paintLines(int n);
    void paintDot(int n);
    void paintPolygon(int n);

    // Calls paintOne for the points of the run in the order of the walk.
    template <typename PaintOne>
    void walkRun(PaintOne paintOne);

    Walk walk_;
    double centre_;
    ColorLookup colors_;
    PointRun runs_[2];
    PointRun* near_ = &runs_[0];  // the points of the run
    PointRun* far_ = &runs_[1];   // their neighbours, if there are any
    bool hasFar_ = false;
    int count_ = 0;   // points projected
    int walked_ = 0;  // of these, points of the walk
};

}  // namespace ombrelia
