#include "views/view3d/point_run.h"

#include "core/editor_state.h"
#include "core/objects.h"

namespace ombrelia {

namespace {

bool isWholeTurn(int angle) {
    return angle >= 0 && angle <= 360;
}

}  // namespace

CameraState cameraNow(double centre) {
    return {ViewYaw, ViewTilt, ViewPanX, ViewPanY, ViewOffset, MapSize, ViewZoom, centre};
}

// Whether some height differs from what was there.
bool PointRun::takeHeights() {
    const int stride = course_.isByRows ? 1 : HeightGrid::kSide;
    const std::int16_t* cell = course_.isByRows ? HeightMap.row(course_.common) + course_.first
                                                : HeightMap.row(course_.first) + course_.common;
    int differences = 0;
    int outside = 0;
    for (int n = 0; n < course_.count; ++n) {
        const std::int16_t height = cell[static_cast<std::ptrdiff_t>(n) * course_.step * stride];
        std::int16_t& kept = heights_[static_cast<std::size_t>(n)];
        differences |= kept ^ height;
        outside |= height & ~0xFF;
        kept = height;
    }
    isInRange_ = outside == 0;
    return differences != 0;
}

bool PointRun::project(const RunCourse& course, const CameraState& camera) {
    const bool isSame = isProjected_ && course == course_ && camera == camera_;
    course_ = course;
    camera_ = camera;
    isProjected_ = true;
    if (!takeHeights() && isSame) {
        return isUsable_;
    }
    isUsable_ = false;
    if (!isInRange_ || !isWholeTurn(camera.yaw) || !isWholeTurn(camera.tilt)) {
        return false;
    }
    kernel::PointInput points;
    points.count = course.count;
    const double common = course.common - camera.centre;
    for (int n = 0; n < course.count; ++n) {
        const auto i = static_cast<std::size_t>(n);
        const double running = (course.first + n * course.step) - camera.centre;
        points.dx[i] = course.isByRows ? running : common;
        points.dy[i] = course.isByRows ? common : running;
        points.z[i] = heights_[i] / 2.0;
    }
    isUsable_ = kernel::projectPoints(points, camera, places_);
    return isUsable_;
}

}  // namespace ombrelia
