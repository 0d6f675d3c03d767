// How the text of a label is set: its letters, its lines.
#pragma once

#include <QFont>
#include <QSize>
#include <QString>

#include "platform/control.h"

namespace ombrelia {

// The letters of texts; size in device pixels.
QFont fontFor(double sizeDevice, bool isBold, bool isUnderlined);

// A text as it shows: "&&" stands for one "&".
QString shownText(const std::string& caption);

// How the label's lines are put into its place, for QPainter::drawText.
int textFlags(const Label& label);

// Room that the label's text takes within the label's width, device pixels.
QSize textSizeDevice(const Label& label, double scale);

}  // namespace ombrelia
