#include "views/map2d/magnifier.h"

#include "core/color_ramp.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "platform/numeric.h"

namespace ombrelia {

namespace {

bool isInMap(float x, float y) {
    const auto side = static_cast<float>(MapSize);
    return x >= 0 && x <= side && y >= 0 && y <= side;
}

std::int16_t& cellAt(float x, float y) {
    return HeightMap(static_cast<int>(roundToEven(x)), static_cast<int>(roundToEven(y)));
}

}  // namespace

void showUnderPointer(float x, float y) {
    if (isInMap(x, y)) {
        Form1.Label22.Caption = metresText(cellAt(x, y));
    }
    double r = 0;
    double g = 0;
    double b = 0;
    for (int a = 0; a <= 28; a += 7) {
        for (int c = 0; c <= 28; c += 7) {
            const float px = x + static_cast<float>(a) / 8;
            const float py = y + static_cast<float>(c) / 8;
            if (isInMap(px, py)) {
                HeightToRGB(cellAt(px, py), r, g, b);
            }
            Form1.ZoomView.Canvas.box(a + 11, c + 10, a + 18, c + 17, packRounded(r, g, b));
        }
    }
}

}  // namespace ombrelia
