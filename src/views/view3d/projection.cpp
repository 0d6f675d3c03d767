#include "views/view3d/projection.h"

#include <algorithm>
#include <cmath>

#include "core/angles.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "platform/numeric.h"

namespace ombrelia {

namespace turn {

namespace {

constexpr double kDegrees = 180 / kShortPi;  // Required (rotation_uses_the_short_pi)
constexpr double kNudge = 0.0002;            // added to a divisor of 0

// The angle of (along, up) in degrees, turned by angle; at most 360, never raised.
double turnedAngle(double along, double up, int angle) {
    const double t = along != 0 ? up / along : up / (along + kNudge);
    double a = std::atan(t) * kDegrees;
    // Required: half a turn for along >= 0, not below 0 (at_the_start_the_ground_is_not_turned).
    if (along >= 0) {
        a += 180;
    }
    a += angle;
    while (a > 360) {
        a -= 360;
    }
    return a;
}

}  // namespace

// Required: the first turn rounds down, the second to nearest
// (the_two_turns_pick_their_table_entries_differently).
int groundSubscript(double dx, double dy) {
    return static_cast<int>(floorToWhole(kThirdsInDegree * turnedAngle(dx, dy, ViewYaw))) +
           kZeroAngle;
}

int tiltSubscript(double depth, double z) {
    return static_cast<int>(roundToEven(kThirdsInDegree * turnedAngle(depth, z, ViewTilt))) +
           kZeroAngle;
}

}  // namespace turn

RotatedPoint RotatePoint(double x, double y, double z, double centre) {
    const double dx = x - centre;
    const double dy = y - centre;
    const double r = std::sqrt(dx * dx + dy * dy);
    const int ground = turn::groundSubscript(dx, dy);
    const double rx = r * CosTable(ground);
    const double depth = r * SinTable(ground);
    const double s = std::sqrt(depth * depth + z * z);
    const int tilt = turn::tiltSubscript(depth, z);
    return {rx, s * CosTable(tilt), s * SinTable(tilt)};
}

namespace {

constexpr double kPivotShift = 0.2;

}  // namespace

void ProjectPoint(const RotatedPoint& point, double& X, double& Y) {
    const double a = point.rx + ViewPanX;
    const double b = point.rz - ViewPanY;
    const double depth = point.ry + ViewZoom - eye::kDepthShift;
    const double q = eye::kFocalLength - depth;
    if (q != 0) {
        X = MapSize + eye::kFocalLength * a / q;
        Y = MapSize - eye::kFocalLength * b / q;
    }
    Y = Y - eye::kRise + ViewOffset;
    X = X + MapSize / 2.0 + ViewOffset;
}

void setViewOffset() {
    struct SizeOffset {
        std::int16_t size, offset;
    };
    constexpr SizeOffset kOffsets[] = {
        {kLargeSize, 0}, {kMediumSize, 32}, {kSmallSize, 64}, {kMiniatureSize, 96}};
    for (const SizeOffset& row : kOffsets) {
        if (MapSize == row.size) {
            ViewOffset = row.offset;
        }
    }
}

double viewCentre() {
    return MapSize / 2.0 + kPivotShift;
}

}  // namespace ombrelia
