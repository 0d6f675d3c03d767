#include "terrain/marker.h"

#include "core/objects.h"
#include "core/windows/form1.h"

namespace ombrelia {

void moveMarker(double x, double y) {
    // Required: both axes use the width (the_marker_uses_the_width_on_both_axes).
    const float s = Form1.MapView.Canvas.ScaleWidth / static_cast<float>(MapSize);
    Form1.Line1.X1 = s * x;
    Form1.Line1.Y1 = s * y;
    Form1.Line1.X2 = 1 + s * x;
    Form1.Line1.Y2 = 1 + s * y;
}

}  // namespace ombrelia
