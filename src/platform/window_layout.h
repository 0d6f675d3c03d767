// Where the parts of a window lie on a screen of a scale, in device pixels of the window.
#pragma once

#include "platform/control.h"

namespace ombrelia {

// The pixels from (left, top) up to, but not with, (right, bottom). Empty unless both are larger.
struct PixelRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int width() const { return right - left; }
    int height() const { return bottom - top; }
    bool isEmpty() const { return right <= left || bottom <= top; }
    bool operator==(const PixelRect&) const = default;
};

// What both cover; empty if nothing.
PixelRect commonOf(const PixelRect& a, const PixelRect& b);

// The least rectangle around both; an empty one counts for nothing.
PixelRect around(const PixelRect& a, const PixelRect& b);

// A length in units as whole device pixels.
int devicePixels(double units, double scale);

// Place of a part, or of the whole window, uncut.
PixelRect deviceRect(const Control& control, double scale);

// The same, cut to everything that contains it; empty when it is hidden. Of a line it is the place
// of what contains it.
PixelRect visibleDeviceRect(const Control& control, double scale);

// The pixel of a line's end, whose numbers are in the scale of the surface that contains the line,
// or else in units.
PixelPoint lineEnd(const Line& line, double x, double y, double scale);

}  // namespace ombrelia
