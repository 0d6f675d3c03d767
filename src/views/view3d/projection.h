// From a point of the terrain to a place in the perspective view: two turns through the angle
// tables, then a perspective division. Nothing here touches the screen.
#pragma once

namespace ombrelia {

// A turned point: rx across the screen, ry towards the viewer, rz up the screen.
struct RotatedPoint {
    double rx, ry, rz;
};

// Turns a point around the pivot (centre, centre, 0) by ViewYaw, then by ViewTilt. x, y in cells,
// z the height already halved. An angle outside the tables is a SubscriptFailure.
RotatedPoint RotatePoint(double x, double y, double z, double centre);

// The pixel of a turned point, X standing MapSize to the right of the view. Both keep what they had
// where the point lies in the plane of the eye, apart from the final shift.
void ProjectPoint(const RotatedPoint& point, double& X, double& Y);

// The eye of ProjectPoint.
namespace eye {

inline constexpr double kFocalLength = 256;
inline constexpr double kDepthShift = 100;
inline constexpr double kRise = 80;  // pixels that the picture is lifted

}  // namespace eye

// The steps of RotatePoint one by one.
namespace turn {

// Subscript of the angle tables for the turn in the ground plane (dx, dy from the pivot) and for
// the turn in the plane of depth and height. Not checked.
int groundSubscript(double dx, double dy);
int tiltSubscript(double depth, double z);

}  // namespace turn

// Sets ViewOffset from MapSize; another size leaves it as it is.
void setViewOffset();

// The pivot of the map in cells; it never falls on a whole number.
double viewCentre();

}  // namespace ombrelia
