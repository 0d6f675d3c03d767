#include "user_pointer.h"

#include <algorithm>
#include <cmath>

#include "app/bindings.h"
#include "errors.h"
#include "platform/window_life.h"

namespace ombrelia::scenario {

UserPointer::Spot UserPointer::spotIn(Window& window, double x, double y) const {
    return {&window, std::floor(x * scale_), std::floor(y * scale_)};
}

void UserPointer::send(Window& window, PointerKind kind, const Spot& spot, MouseButton button) {
    onPointer(window, scale_, {kind, spot.x, spot.y, button});
}

bool UserPointer::isOverWindow() const {
    return spot_ && isSeen(*spot_->window);
}

void UserPointer::moveTo(Window& window, double x, double y) {
    if (!isSeen(window)) {
        throw LineError{window.Name + " cannot be seen"};
    }
    Window& hearing = pressedIn_ == nullptr ? window : *pressedIn_;
    const Spot spot = spotIn(hearing, x + window.Left - hearing.Left, y + window.Top - hearing.Top);
    if (keepsToWindow && (&hearing != &window || (pressedIn_ == nullptr && !isInside(spot)))) {
        throw LineError{"this place is not in " + hearing.Name};
    }
    spot_ = spot;
    if (firstPress_ != spot_) {
        firstPress_.reset();
    }
    if (over_ != nullptr && over_ != &hearing) {
        Window& left = *over_;
        over_ = nullptr;
        send(left, PointerKind::Leave, {&left, -1, -1}, MouseButton::None);
    }
    over_ = &hearing;
    send(hearing, PointerKind::Move, *spot_, MouseButton::None);
}

void UserPointer::moveAway() {
    firstPress_.reset();
    if (pressedIn_ != nullptr) {
        spot_ = Spot{pressedIn_, -1, -1};
        send(*pressedIn_, PointerKind::Move, *spot_, MouseButton::None);
        return;
    }
    spot_.reset();
    if (over_ != nullptr) {
        Window& left = *over_;
        over_ = nullptr;
        send(left, PointerKind::Leave, {&left, -1, -1}, MouseButton::None);
    }
}

void UserPointer::press(MouseButton button) {
    if (!isOverWindow()) {
        throw LineError{"the pointer is over no window"};
    }
    if (!held_.insert(button).second) {
        throw LineError{"this button is down already"};
    }
    Window& window = *spot_->window;
    if (pressedIn_ == nullptr) {
        pressedIn_ = &window;
        if (window.DockedTo == nullptr) {
            shown(window);
        }
    }
    const bool isSecond = firstPress_ == spot_ && firstButton_ == button;
    firstPress_ = isSecond ? std::nullopt : spot_;
    firstButton_ = button;
    send(window, isSecond ? PointerKind::SecondPress : PointerKind::Press, *spot_, button);
}

void UserPointer::release(MouseButton button) {
    if (held_.erase(button) == 0) {
        throw LineError{"this button is not down"};
    }
    if (!spot_ || pressedIn_ == nullptr) {
        return;  // of a process that has ended
    }
    Window& window = *pressedIn_;
    const Spot spot = *spot_;
    if (held_.empty()) {
        pressedIn_ = nullptr;
    }
    send(window, PointerKind::Release, spot, button);
    if (held_.empty()) {
        leaveIfOutside();
    }
}

// A pointer that a held button kept is free now: it is over the window docked there, or away.
void UserPointer::leaveIfOutside() {
    if (!spot_ || over_ == nullptr || isInside(*spot_)) {
        return;
    }
    const Window& left = *spot_->window;
    const double x = spot_->x / scale_ + left.Left;
    const double y = spot_->y / scale_ + left.Top;
    for (Window* window : allWindows()) {
        const bool isBeside = window->DockedTo == &left || left.DockedTo == window;
        if (isBeside && isSeen(*window) &&
            isInside(spotIn(*window, x - window->Left, y - window->Top))) {
            moveTo(*window, x - window->Left, y - window->Top);
            return;
        }
    }
    moveAway();
}

bool UserPointer::isInside(const Spot& spot) const {
    return spot.x >= 0 && spot.y >= 0 && spot.x < spot.window->Width * scale_ &&
           spot.y < spot.window->Height * scale_;
}

void UserPointer::key(int code) {
    const auto has = std::find_if(keyboard_.rbegin(), keyboard_.rend(),
                                  [](const Window* window) { return isSeen(*window); });
    if (has == keyboard_.rend()) {
        throw LineError{"no window has the keyboard"};
    }
    onKey(**has, code);
}

void UserPointer::shown(Window& window) {
    if (window.DockedTo != nullptr) {
        return;
    }
    std::erase(keyboard_, &window);
    keyboard_.push_back(&window);
}

void UserPointer::reset() {
    spot_.reset();
    over_ = nullptr;
    pressedIn_ = nullptr;
    held_.clear();
    firstPress_.reset();
    keyboard_.clear();
}

}  // namespace ombrelia::scenario
