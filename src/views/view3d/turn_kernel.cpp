#include "views/view3d/turn_kernel.h"

#include <algorithm>
#include <cmath>

#include "core/angles.h"
#include "core/objects.h"
#include "platform/wide_vectors.h"
#include "views/view3d/cell_painters.h"
#include "views/view3d/projection.h"

namespace ombrelia::kernel {

namespace {

using Reals = std::array<double, kMost>;
using Singles = std::array<float, kMost>;
using Wholes = std::array<std::int32_t, kMost>;

constexpr int kHalfTurn = kThirdsInTurn / 2;

// Nearer to a jump of the subscript than this, the exact arc tangent decides.
constexpr float kDoubt = 2 * kThirdsError;

// arctan(a) = a * (sum of these times powers of a squared) for a in 0..1, in thirds of a degree
// with the short pi; off by 1.1e-5.
constexpr float kArc[] = {171.88746344306745F,  -57.29321405415412F, 34.32070826549325F,
                          -24.069903137293995F, 16.96334450828931F,  -10.112098235938777F,
                          4.087573503319232F,   -0.7837711707940522F};
constexpr float kRightAngle = 270.00022806F;  // arctan of something endless

OMBRELIA_IN_BOTH float thirdsOf(float along, float up) {
    const float width = std::fabs(along);
    const float height = std::fabs(up);
    const float longer = std::max(std::max(width, height), 1e-30F);
    const float a = std::min(width, height) / longer;
    const float u = a * a;
    float sum = kArc[7];
    for (int n = 6; n >= 0; --n) {
        sum = sum * u + kArc[n];
    }
    const float arc = a * sum;
    const float whole = height > width ? kRightAngle - arc : arc;
    return (along < 0) != (up < 0) ? -whole : whole;
}

OMBRELIA_IN_BOTH std::int32_t floorOf(float value) {
    const auto whole = static_cast<std::int32_t>(value);
    return whole - (static_cast<float>(whole) > value ? 1 : 0);
}

// Subscripts of a turn, and whether each needs the exact way. shift: 0 rounds down, 0.5 to nearest.
OMBRELIA_IN_BOTH void pickSubscripts(int count, const Singles& along, const Singles& up,
                                     float shift, int angle, Wholes& subscripts,
                                     Wholes& isInDoubt) {
    const int turned = kThirdsInDegree * angle;
    for (int i = 0; i < count; ++i) {
        const auto n = static_cast<std::size_t>(i);
        const float thirds = thirdsOf(along[n], up[n]) + shift;
        const std::int32_t whole = floorOf(thirds);
        const float rest = thirds - static_cast<float>(whole);
        const std::int32_t sum = whole + turned + (along[n] >= 0 ? kHalfTurn : 0);
        // A whole turn stays one, anything above begins anew: the exact way tells them apart.
        isInDoubt[n] =
            (rest < kDoubt) | (rest > 1 - kDoubt) | (along[n] == 0) | (sum == kThirdsInTurn);
        subscripts[n] = sum > kThirdsInTurn ? sum : sum + kThirdsInTurn;
    }
}

template <typename Exact>
void settleDoubts(int count, const Wholes& isInDoubt, Wholes& subscripts, Exact exact) {
    for (int i = 0; i < count; ++i) {
        const auto n = static_cast<std::size_t>(i);
        if (isInDoubt[n] != 0) {
            subscripts[n] = exact(n);
        }
    }
}

// Lengths of (x, y) and their parts at the angles of the subscripts.
OMBRELIA_IN_BOTH void turnLengths(int count, const Reals& x, const Reals& y,
                                  const Wholes& subscripts, Reals& cosines, Reals& sines) {
    const double* cosTable = CosTable.data();
    const double* sinTable = SinTable.data();
    for (int i = 0; i < count; ++i) {
        const auto n = static_cast<std::size_t>(i);
        const double length = std::sqrt(x[n] * x[n] + y[n] * y[n]);
        cosines[n] = length * cosTable[subscripts[n]];
        sines[n] = length * sinTable[subscripts[n]];
    }
}

OMBRELIA_IN_BOTH void narrow(int count, const Reals& from, Singles& to) {
    for (int i = 0; i < count; ++i) {
        const auto n = static_cast<std::size_t>(i);
        to[n] = static_cast<float>(from[n]);
    }
}

// Beyond this a pixel is rounded down on its own.
constexpr double kFar = 1 << 30;

OMBRELIA_IN_BOTH std::int32_t floorCut(double value) {
    double cut = value < kFar ? value : kFar;
    cut = cut > -kFar ? cut : -kFar;
    const auto whole = static_cast<std::int32_t>(cut);
    return whole - (static_cast<double>(whole) > cut ? 1 : 0);
}

struct Perspective {
    alignas(64) Reals X, Y, q;
};

// Whether some pixel is far away.
OMBRELIA_IN_BOTH bool divide(int count, const Reals& across, const Reals& depth, const Reals& up,
                             const CameraState& camera, Perspective& view,
                             std::array<PixelPoint, kMost>& places) {
    const double size = camera.mapSize;
    const double half = size / 2;
    std::int32_t isFar = 0;
    for (int i = 0; i < count; ++i) {
        const auto n = static_cast<std::size_t>(i);
        const double q = eye::kFocalLength - (depth[n] + camera.zoom - eye::kDepthShift);
        const double X = size + eye::kFocalLength * (across[n] + camera.panX) / q;
        const double Y = size - eye::kFocalLength * (up[n] - camera.panY) / q;
        view.q[n] = q;
        view.X[n] = X + half + camera.offset - size;
        view.Y[n] = Y - eye::kRise + camera.offset;
    }
    for (int i = 0; i < count; ++i) {
        const auto n = static_cast<std::size_t>(i);
        const std::int32_t x = floorCut(view.X[n]);
        const std::int32_t y = floorCut(view.Y[n]);
        places[n] = {x, y};
        constexpr auto kEnd = static_cast<std::int32_t>(kFar);
        isFar |= (x >= kEnd) | (x <= -kEnd) | (y >= kEnd) | (y <= -kEnd);
    }
    return isFar != 0;
}

bool settleFar(int count, const Perspective& view, std::array<PixelPoint, kMost>& places) {
    for (int i = 0; i < count; ++i) {
        const auto n = static_cast<std::size_t>(i);
        if (view.q[n] == 0) {
            return false;
        }
        places[n] = {wholePixel(view.X[n]), wholePixel(view.Y[n])};
    }
    return true;
}

OMBRELIA_IN_BOTH bool projectAll(const PointInput& points, const CameraState& camera,
                                 std::array<PixelPoint, kMost>& places) {
    const int count = points.count;
    alignas(64) Singles along;
    alignas(64) Singles upwards;
    alignas(64) Wholes subscripts;
    alignas(64) Wholes isInDoubt;
    alignas(64) Reals across;
    alignas(64) Reals ground;
    alignas(64) Reals depth;
    alignas(64) Reals up;
    Perspective view;
    narrow(count, points.dx, along);
    narrow(count, points.dy, upwards);
    pickSubscripts(count, along, upwards, 0.0F, camera.yaw, subscripts, isInDoubt);
    settleDoubts(count, isInDoubt, subscripts,
                 [&](std::size_t n) { return turn::groundSubscript(points.dx[n], points.dy[n]); });
    turnLengths(count, points.dx, points.dy, subscripts, across, ground);
    narrow(count, ground, along);
    narrow(count, points.z, upwards);
    pickSubscripts(count, along, upwards, 0.5F, camera.tilt, subscripts, isInDoubt);
    settleDoubts(count, isInDoubt, subscripts,
                 [&](std::size_t n) { return turn::tiltSubscript(ground[n], points.z[n]); });
    turnLengths(count, ground, points.z, subscripts, depth, up);
    return !divide(count, across, depth, up, camera, view, places) ||
           settleFar(count, view, places);
}

OMBRELIA_WIDE bool projectWide(const PointInput& points, const CameraState& camera,
                               std::array<PixelPoint, kMost>& places) {
    return projectAll(points, camera, places);
}

}  // namespace

float shortThirds(float along, float up) {
    return thirdsOf(along, up);
}

bool projectPoints(const PointInput& points, const CameraState& camera,
                   std::array<PixelPoint, kMost>& places) {
    return hasWideVectors() ? projectWide(points, camera, places)
                            : projectAll(points, camera, places);
}

}  // namespace ombrelia::kernel
