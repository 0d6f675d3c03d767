// The pointer and the keyboard as the user of a screen has them: one place, buttons that go down
// and up, the window that has the keyboard. What a screen would see of it goes to a sink.
#pragma once

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/control.h"
#include "platform/pointer.h"

namespace ombrelia::scenario {

class UserPointer {
  public:
    // What sees the events: the rules themselves unless something else is put here.
    std::function<void(Window&, double scale, const PointerInput&)> onPointer = pointerInput;
    std::function<void(Window&, int code)> onKey = keyInput;

    // Refuses a place that on a screen would be another window's: beyond the window, or in another
    // one than the one that keeps the pointer.
    bool keepsToWindow = false;

    // Device pixels to a unit, from here on; above 0.
    void setScale(double scale) { scale_ = scale; }

    // The pointer comes to a place in a window, units from its corner. Throws LineError if the
    // window cannot be seen.
    void moveTo(Window& window, double x, double y);
    void moveAway();

    // A button at the pointer's place. Throws LineError over no window and for a button that is
    // down or up already.
    void press(MouseButton button);
    void release(MouseButton button);

    // A key to the window that has the keyboard; throws LineError if there is none.
    void key(int code);

    // A window came up or went: the keyboard follows.
    void shown(Window& window);

    // The window that keeps the pointer while a button is held; null: none.
    Window* pressedIn() const { return pressedIn_; }

    // A new process: the pointer is away, nothing is held.
    void reset();

  private:
    // A place in device pixels of its window.
    struct Spot {
        Window* window;
        double x, y;
        bool operator==(const Spot&) const = default;
    };

    void send(Window& window, PointerKind kind, const Spot& spot, MouseButton button);
    void leaveIfOutside();
    bool isInside(const Spot& spot) const;
    Spot spotIn(Window& window, double x, double y) const;
    bool isOverWindow() const;

    double scale_ = 1;
    std::optional<Spot> spot_;     // of the pointer; none: away
    Window* over_ = nullptr;       // the window that thinks the pointer is over it
    Window* pressedIn_ = nullptr;  // the window that has the pointer while a button is held
    std::set<MouseButton> held_;
    // Until the pointer moves.
    std::optional<Spot> firstPress_;  // where a second press makes a double click
    MouseButton firstButton_ = MouseButton::None;
    std::vector<Window*> keyboard_;  // windows that had the keyboard, the last one behind
};

}  // namespace ombrelia::scenario
