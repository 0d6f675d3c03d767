// Paints windows on the page.
#pragma once

#include <vector>

#include "platform/window_picture.h"

namespace ombrelia {

class WebBrush : public PictureBrush {
  public:
    explicit WebBrush(int window) : window_(window) {}
    void begin(const PixelRect& seen, double opacity) override;
    void fill(const PixelRect& place, Color color) override;
    void drawFace(PictureFace face, const PixelRect& place) override;
    void drawSurface(const Surface& surface, const PixelRect& place) override;
    void drawText(const TextLook& look, const PixelRect& place, double scale) override;
    void drawLine(PixelPoint from, PixelPoint to, int width, Color color) override;
    void drawTriangle(const Point (&corners)[3], Color color) override;

  private:
    int window_;
    std::vector<unsigned> pixels_;
};

}  // namespace ombrelia
