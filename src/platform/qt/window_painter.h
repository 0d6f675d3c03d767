// Paints windows with the toolkit.
#pragma once

#include <QPainter>
#include <QRect>

#include "platform/qt/skin.h"
#include "platform/window_picture.h"

namespace ombrelia {

QRect toolkitRect(const PixelRect& rect);
PixelRect pixelRect(const QRect& rect);

// Paints with a painter whose coordinates are device pixels.
class ToolkitBrush : public PictureBrush {
  public:
    ToolkitBrush(QPainter& painter, Skin& skin) : painter_(painter), skin_(skin) {}
    void begin(const PixelRect& seen, double opacity) override;
    void fill(const PixelRect& place, Color color) override;
    void drawFace(PictureFace face, const PixelRect& place) override;
    void drawSurface(const Surface& surface, const PixelRect& place) override;
    void drawText(const TextLook& look, const PixelRect& place, double scale) override;
    void drawLine(PixelPoint from, PixelPoint to, int width, Color color) override;
    void drawTriangle(const Point (&corners)[3], Color color) override;

  private:
    QPainter& painter_;
    Skin& skin_;
};

}  // namespace ombrelia
