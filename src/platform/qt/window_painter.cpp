#include "platform/qt/window_painter.h"

#include <QPolygonF>
#include <algorithm>

#include "platform/dispatch.h"
#include "platform/qt/label_text.h"
#include "platform/qt/palette_style.h"

namespace ombrelia {

QRect toolkitRect(const PixelRect& rect) {
    return {rect.left, rect.top, rect.width(), rect.height()};
}

PixelRect pixelRect(const QRect& rect) {
    return {rect.left(), rect.top(), rect.left() + rect.width(), rect.top() + rect.height()};
}

void ToolkitBrush::begin(const PixelRect& seen, double opacity) {
    painter_.setClipRect(toolkitRect(seen));
    painter_.setOpacity(opacity);
}

void ToolkitBrush::fill(const PixelRect& place, Color color) {
    painter_.fillRect(toolkitRect(place), toolkitColor(color));
}

void ToolkitBrush::drawFace(PictureFace face, const PixelRect& place) {
    painter_.drawImage(QPoint(place.left, place.top),
                       skin_.face(face, place.width(), place.height()));
}

void ToolkitBrush::drawSurface(const Surface& surface, const PixelRect& place) {
    const QImage image(
        reinterpret_cast<const uchar*>(surface.row(0)), surface.width(), surface.height(),
        surface.ShowsGround ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    painter_.drawImage(toolkitRect(place), image);
}

void ToolkitBrush::drawText(const TextLook& look, const PixelRect& place, double scale) {
    painter_.setPen(toolkitColor(look.color));
    ombrelia::drawText(painter_, look, toolkitRect(place), scale);
}

void ToolkitBrush::drawLine(PixelPoint from, PixelPoint to, int width, Color color) {
    QPen pen(toolkitColor(color));
    pen.setWidth(width);
    pen.setCapStyle(Qt::SquareCap);
    painter_.setPen(pen);
    painter_.drawLine(QPoint(from.x, from.y), QPoint(to.x, to.y));
}

void ToolkitBrush::drawTriangle(const Point (&corners)[3], Color color) {
    QPolygonF triangle;
    for (const Point& corner : corners) {
        triangle << QPointF(corner.x, corner.y);
    }
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(toolkitColor(color));
    painter_.drawPolygon(triangle);
    painter_.setRenderHint(QPainter::Antialiasing, false);
}

}  // namespace ombrelia
