// Draws a window's record onto the screen at a scale.
#pragma once

#include <QPainter>
#include <QRect>

#include "platform/control.h"
#include "platform/qt/skin.h"

namespace ombrelia {

// What a painting is made with. scale: device pixels to a unit.
struct PaintTools {
    Skin& skin;
    double scale;
};

// Place of a control in device pixels of its window, uncut.
QRect deviceRect(const Control& control, double scale);

// The same, cut to everything that contains it; empty when it is hidden.
QRect visibleDeviceRect(const Control& control, double scale);

// Paints everything of the window that touches the dirty rectangle (device pixels) with a painter
// whose coordinates are device pixels.
void paintWindow(QPainter& painter, Window& window, const QRect& dirtyDevice,
                 const PaintTools& tools);

}  // namespace ombrelia
