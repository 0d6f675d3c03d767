// The points of one row or column of the map, projected once for all cells that meet in them.
#pragma once

#include <array>
#include <cstdint>

#include "platform/surface.h"
#include "views/view3d/turn_kernel.h"

namespace ombrelia {

CameraState cameraNow(double centre);

// Which points: their common subscript, the first of the running one, its step and their number.
struct RunCourse {
    bool isByRows;  // the common subscript is the row
    int common, first, step, count;

    bool operator==(const RunCourse&) const = default;
};

class PointRun {
  public:
    // Projects the points with their heights as they stand, unless that was done already with the
    // same heights and camera. False if one of them needs the long way: a height that a colour
    // look-up would clamp, a point in the plane of the eye, an angle outside 0..360.
    [[nodiscard]] bool project(const RunCourse& course, const CameraState& camera);

    const PixelPoint& place(int n) const { return places_[static_cast<std::size_t>(n)]; }
    int height(int n) const { return heights_[static_cast<std::size_t>(n)]; }

  private:
    [[nodiscard]] bool takeHeights();

    RunCourse course_{};
    CameraState camera_{};
    bool isProjected_ = false;
    bool isInRange_ = false;  // all heights 0..255
    bool isUsable_ = false;
    std::array<std::int16_t, kernel::kMost> heights_{};
    std::array<PixelPoint, kernel::kMost> places_;
};

}  // namespace ombrelia
