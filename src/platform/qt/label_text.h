// How the text of a label is set: its letters, its lines.
#pragma once

#include <QFont>
#include <QPainter>
#include <QRect>
#include <QSize>
#include <QString>

#include "platform/control.h"

namespace ombrelia {

// The letters of texts; size in device pixels.
QFont fontFor(double sizeDevice, bool isBold, bool isUnderlined);

// A text as it shows: "&&" stands for one "&".
QString shownText(const std::string& caption);

// Draws a label's text into its place on the screen with the painter's pen; scale is device pixels
// to a unit.
void drawLabelText(QPainter& painter, const Label& label, const QRect& place, double scale);

// Room that the label's text takes within the label's width, device pixels.
QSize textSizeDevice(const Label& label, double scale);

}  // namespace ombrelia
