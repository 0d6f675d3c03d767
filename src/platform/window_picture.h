// How a window's record becomes its picture: what is painted, where, in which order. A back end
// gives what it paints with.
#pragma once

#include <string>

#include "platform/control.h"
#include "platform/dispatch.h"
#include "platform/window_layout.h"

namespace ombrelia {

// A text and how it is set.
struct TextLook {
    std::string text;
    double size = 11;  // height of the letters' box in units
    Color color = 0;
    TextAlign align = TextAlign::Left;
    bool isBold = false;
    bool isUnderlined = false;
    bool isWrapped = false;  // on several lines from the top; else on one, in the middle
};

// Distance of the lines of a wrapped text, in letter sizes.
inline constexpr double kLinePitch = 1.32;

// A text as it shows: "&&" stands for one "&".
std::string shownText(const std::string& caption);

// How a label's text is set.
TextLook textOf(const Label& label);

// What a window's picture is painted with. Places are device pixels of the window.
class PictureBrush {
  public:
    virtual ~PictureBrush() = default;
    // What follows is seen in this place alone, and so strongly, 0..1.
    virtual void begin(const PixelRect& seen, double opacity) = 0;
    virtual void fill(const PixelRect& place, Color color) = 0;
    virtual void drawFace(PictureFace face, const PixelRect& place) = 0;
    // The surface's image, enlarged by nearest pixel.
    virtual void drawSurface(const Surface& surface, const PixelRect& place) = 0;
    // scale: device pixels to a unit.
    virtual void drawText(const TextLook& look, const PixelRect& place, double scale) = 0;
    virtual void drawLine(PixelPoint from, PixelPoint to, int width, Color color) = 0;
    // Smooth edges.
    virtual void drawTriangle(const Point (&corners)[3], Color color) = 0;
};

// Paints everything of the window that touches the dirty rectangle; scale: device pixels to a unit.
void paintWindow(PictureBrush& brush, const Window& window, const PixelRect& dirty, double scale);

}  // namespace ombrelia
