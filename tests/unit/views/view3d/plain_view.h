// The perspective view once more, written straight down and slowly: every corner is projected
// afresh.
#pragma once

#include "platform/plain_picture.h"

namespace ombrelia {

// A turned point and a pixel place, as the plain projection gives them.
struct PlainTurned {
    double across, depth, up;
};
PlainTurned plainTurn(double x, double y, double z, double centre);

struct PlainPlace {
    double X = 0, Y = 0;
};
void plainProject(const PlainTurned& point, PlainPlace& place);

enum class PlainStyle { Line, Dot, Polygon };

// The whole picture of 257 x 257 pixels with the camera and the map as they stand. The map is
// clamped as the drawing clamps it.
PlainPicture plainDrawing(int step, PlainStyle style, int lineWidth);

}  // namespace ombrelia
