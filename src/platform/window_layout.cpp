#include "platform/window_layout.h"

#include <algorithm>
#include <cmath>

#include "platform/dispatch.h"

namespace ombrelia {

PixelRect commonOf(const PixelRect& a, const PixelRect& b) {
    const PixelRect common{std::max(a.left, b.left), std::max(a.top, b.top),
                           std::min(a.right, b.right), std::min(a.bottom, b.bottom)};
    return common.isEmpty() ? PixelRect{} : common;
}

PixelRect around(const PixelRect& a, const PixelRect& b) {
    if (a.isEmpty()) {
        return b;
    }
    if (b.isEmpty()) {
        return a;
    }
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
            std::max(a.bottom, b.bottom)};
}

int devicePixels(double units, double scale) {
    return static_cast<int>(std::lround(units * scale));
}

PixelRect deviceRect(const Control& control, double scale) {
    const Point corner =
        control.Kind == ControlKind::Window ? Point{0, 0} : cornerInWindow(control);
    double border = 0;
    if (control.Kind == ControlKind::PictureBox) {
        border = static_cast<const PictureBox&>(control).Border;
    }
    const double left = corner.x - border;
    double top = corner.y - border;
    if (control.Kind == ControlKind::TextLine) {
        // To be read even in a window that was made too small to be laid out.
        top = std::min(top, control.Owner->Height - control.Height);
    }
    return {devicePixels(left, scale), devicePixels(top, scale),
            devicePixels(left + control.Width, scale), devicePixels(top + control.Height, scale)};
}

PixelRect visibleDeviceRect(const Control& control, double scale) {
    PixelRect place = deviceRect(control, scale);
    if (control.Kind == ControlKind::Line && control.Parent != nullptr) {
        place = deviceRect(*control.Parent, scale);
    }
    for (const Control* part = &control; part != nullptr; part = part->Parent) {
        if (!part->Visible && part->Kind != ControlKind::Window) {
            return {};
        }
        if (part != &control) {
            place = commonOf(place, deviceRect(*part, scale));
        }
    }
    return place;
}

PixelPoint lineEnd(const Line& line, double x, double y, double scale) {
    const Point corner = cornerInWindow(*line.Parent);
    if (line.Parent->Kind == ControlKind::PictureBox) {
        const auto& box = static_cast<const PictureBox&>(*line.Parent);
        if (box.Canvas.width() > 0) {
            x = (x - box.Canvas.ScaleLeft) * box.innerWidth() / box.Canvas.ScaleWidth;
            y = (y - box.Canvas.ScaleTop) * box.innerHeight() / box.Canvas.ScaleHeight;
        }
    }
    const double half = scale / 2;
    return {static_cast<int>(std::floor((corner.x + x) * scale + half)),
            static_cast<int>(std::floor((corner.y + y) * scale + half))};
}

}  // namespace ombrelia
