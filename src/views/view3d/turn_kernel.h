// The arithmetic of many projections at once, in loops of which a compiler makes several rounds at
// a time. The digits are those of RotatePoint and ProjectPoint; table subscripts come from a short
// arc tangent wherever that decides them for certain, and from the exact one elsewhere.
#pragma once

#include <array>
#include <cstdint>

#include "platform/surface.h"

namespace ombrelia {

// Everything that a projection depends on beside the point.
struct CameraState {
    std::int16_t yaw, tilt, panX, panY, offset, mapSize;
    double zoom;
    double centre;

    bool operator==(const CameraState&) const = default;
};

namespace kernel {

// Most points of a run: 258, made even for whole vectors.
inline constexpr int kMost = 264;

// What goes in: distances from the pivot in cells and halved heights.
struct PointInput {
    int count;
    alignas(64) std::array<double, kMost> dx, dy, z;
};

// Thirds of a degree of the arc tangent of up / along, before the half turn and the camera's angle;
// off by less than kThirdsError. Both 0 gives 0.
inline constexpr float kThirdsError = 1.0e-4F;
float shortThirds(float along, float up);

// The pixels of the points, rounded down. Angles lie in 0..360. False if a point lies in the plane
// of the eye; the pixels are then worth nothing.
[[nodiscard]] bool projectPoints(const PointInput& points, const CameraState& camera,
                                 std::array<PixelPoint, kMost>& places);

}  // namespace kernel

}  // namespace ombrelia
