// How a text is set: its letters, its lines.
#pragma once

#include <QFont>
#include <QPainter>
#include <QRect>
#include <QSize>
#include <QString>

#include "platform/window_picture.h"

namespace ombrelia {

// The letters of texts; size in device pixels.
QFont fontFor(double sizeDevice, bool isBold, bool isUnderlined);

// Draws a text into its place on the screen with the painter's pen; scale is device pixels to a
// unit.
void drawText(QPainter& painter, const TextLook& look, const QRect& place, double scale);

// Room that a text takes within a width, device pixels.
QSize textSizeDevice(const TextLook& look, int width, double scale);

}  // namespace ombrelia
