#include "platform/window_look.h"

#include <utility>

#include "platform/dispatch.h"

namespace ombrelia {

bool WindowLook::Part::operator==(const Part& other) const {
    return place == other.place && corner.x == other.corner.x && corner.y == other.corner.y &&
           face == other.face && caption == other.caption && ends == other.ends &&
           revision == other.revision && style == other.style && isEnabled == other.isEnabled;
}

WindowLook::Part WindowLook::lookOf(const Control& control, double scale) {
    Part look;
    look.place = visibleDeviceRect(control, scale);
    const bool isLine = control.Kind == ControlKind::Line;
    const PixelRect uncut = deviceRect(isLine ? *control.Parent : control, scale);
    look.corner = {uncut.left, uncut.top};
    look.face = control.Face;
    look.caption = control.Caption;
    look.isEnabled = ombrelia::isEnabled(control);
    if (control.Kind == ControlKind::Label) {
        look.style = static_cast<const Label&>(control).ForeColor;
    } else if (control.Kind == ControlKind::PictureBox) {
        const auto& box = static_cast<const PictureBox&>(control);
        look.revision = box.Canvas.revision();
        look.style = box.BackColor;
    } else if (control.Kind == ControlKind::Line) {
        const auto& line = static_cast<const Line&>(control);
        look.ends = {line.X1, line.Y1, line.X2, line.Y2};
        look.style = line.BorderColor + (static_cast<std::uint64_t>(line.BorderWidth) << 32U);
    }
    return look;
}

bool WindowLook::update(const Window& window, double scale,
                        const std::function<void(const PixelRect&, Control*)>& changed) {
    bool isDifferent = std::exchange(ground_, window.Face) != window.Face;
    const bool isNew = parts_.size() != window.Controls.size();
    if (isDifferent || isNew) {
        parts_.resize(window.Controls.size());
        changed(deviceRect(window, scale), nullptr);
    }
    for (std::size_t i = 0; i < parts_.size(); ++i) {
        Part look = lookOf(*window.Controls[i], scale);
        if (look != parts_[i]) {
            const PixelRect place = around(look.place, parts_[i].place);
            parts_[i] = std::move(look);
            changed(place, window.Controls[i]);
            isDifferent = true;
        }
    }
    return isDifferent;
}

}  // namespace ombrelia
