#include "platform/pointer.h"

#include <algorithm>
#include <cmath>

#include "platform/dispatch.h"
#include "platform/services.h"
#include "platform/window_life.h"

namespace ombrelia {

namespace {

// The press that is held, and the one before it. Written here alone.
struct PointerState {
    MouseButton button = MouseButton::None;  // that is held; None: none is
    Window* window = nullptr;                // in which it went down
    Control* target = nullptr;               // that got the press; may be nobody
    Control* dragged = nullptr;              // that is being dragged
    bool isSecondPress = false;              // of a double click that the target handled
    Control* lastPressed = nullptr;          // target of the last press, held or over
    const Control* wheeled = nullptr;        // that heard of the wheel last
    double wheelRest = 0;                    // steps, between -1 and 1, that it was not told of
};
PointerState state;

// A place in a window, in units.
struct Place {
    Point corner;  // left top corner of the device pixel
    Point middle;  // of the device pixel
};

// Places that a screen computed from logical pixels miss a whole number by less than this.
constexpr double kRoundingError = 1.0 / 256;

Place placeOf(const PointerInput& input, double scale) {
    const double x = std::floor(input.x + kRoundingError);
    const double y = std::floor(input.y + kRoundingError);
    return {{x / scale, y / scale}, {(x + 0.5) / scale, (y + 0.5) / scale}};
}

bool isInside(const Window& window, const Point& at) {
    return at.x >= 0 && at.y >= 0 && at.x < window.Width && at.y < window.Height;
}

bool isOnFrame(const Control& control, const Point& at) {
    if (control.Kind != ControlKind::PictureBox) {
        return false;
    }
    const auto& box = static_cast<const PictureBox&>(control);
    const Point corner = cornerInWindow(control);
    return at.x < corner.x || at.y < corner.y || at.x >= corner.x + box.innerWidth() ||
           at.y >= corner.y + box.innerHeight();
}

// Who is meant at a place, or nobody.
Control* targetAt(Window& window, const Point& at) {
    Control& top = controlAt(window, at.x, at.y);
    Control& target = top.Kind == ControlKind::ListBox ? top : hearerOf(top);
    const bool isDeaf = !isEnabled(top) || isOnFrame(target, at);
    return isDeaf ? nullptr : &target;
}

const Control* buttonOf(const Control* part) {
    return part != nullptr && part->LiesOn != nullptr ? part->LiesOn : part;
}

void deliverAt(Control& target, Event event, MouseButton button, const Place& place) {
    Point corner{0, 0};
    if (target.Kind != ControlKind::Window) {
        corner = cornerInWindow(target);
    }
    Point local{place.corner.x - corner.x, place.corner.y - corner.y};
    if (target.Kind == ControlKind::Image || target.Kind == ControlKind::Label) {
        local = {std::floor(place.middle.x) - std::round(corner.x),
                 std::floor(place.middle.y) - std::round(corner.y)};
    }
    deliverMouse(target, event, button, local, place.corner);
}

void notePlace(Window& window, const Place& place) {
    window.PointerX = place.corner.x;
    window.PointerY = place.corner.y;
}

void dragTo(Window& window, Event event, const Place& place, Control& dragged) {
    notePlace(window, place);
    deliverDrag(controlAt(window, place.middle.x, place.middle.y), event, dragged);
}

void press(Window& window, const PointerInput& input, const Place& place) {
    // A second press of the held button: its release was lost.
    if (state.button != MouseButton::None && state.button != input.button) {
        return;
    }
    forgetPress();
    Control* target = targetAt(window, place.middle);
    const bool isSecond = input.kind == PointerKind::SecondPress && target == state.lastPressed &&
                          target != nullptr && target->handlerOf(Event::DblClick) != nullptr;
    state.lastPressed = target;
    if (target != nullptr && target->Kind == ControlKind::ListBox) {
        if (input.button == MouseButton::Left) {
            services().desktop->openList(static_cast<ListBox&>(*target));
        }
        return;
    }
    state.button = input.button;
    state.window = &window;
    state.target = target;
    state.isSecondPress = isSecond;
    if (target == nullptr) {
        notePlace(window, place);
        return;
    }
    deliverAt(*target, isSecond ? Event::DblClick : Event::MouseDown, input.button, place);
}

void move(Window& window, const Place& place) {
    if (state.button == MouseButton::None) {
        if (Control* target = targetAt(window, place.middle)) {
            deliverAt(*target, Event::MouseMove, MouseButton::None, place);
        } else {
            notePlace(window, place);
        }
    } else if (state.dragged != nullptr) {
        dragTo(window, Event::DragOver, place, *state.dragged);
    } else if (state.target != nullptr) {
        deliverAt(*state.target, Event::MouseMove, state.button, place);
    } else {
        notePlace(window, place);
    }
}

void release(Window& window, const PointerInput& input, const Place& place) {
    if (state.button != input.button || state.window != &window) {
        return;
    }
    const PointerState held = state;
    forgetPress();
    if (held.dragged != nullptr) {
        dragTo(window, Event::DragDrop, place, *held.dragged);
        return;
    }
    if (held.target == nullptr) {
        notePlace(window, place);
        return;
    }
    deliverAt(*held.target, Event::MouseUp, input.button, place);
    if (!window.Loaded || input.button != MouseButton::Left || held.isSecondPress ||
        !isInside(window, place.middle)) {
        return;
    }
    if (buttonOf(targetAt(window, place.middle)) == buttonOf(held.target)) {
        deliverAt(*held.target, Event::Click, input.button, place);
    }
}

Control* wheelHearerOf(Control& part) {
    Control* hearer = &part;
    while (hearer != nullptr && hearer->handlerOf(Event::Wheel) == nullptr) {
        hearer = hearer->Parent;
    }
    return hearer;
}

// Whole steps of a turn over a part, with what the turns before left over.
int wheelSteps(const Control& hearer, double notches) {
    const double turn = notches * kWheelSteps;
    if (state.wheeled != &hearer || state.wheelRest * turn < 0) {
        state.wheelRest = 0;
    }
    state.wheeled = &hearer;
    state.wheelRest += turn;
    const double steps = std::trunc(state.wheelRest);
    state.wheelRest -= steps;
    return static_cast<int>(steps);
}

void turnWheel(Window& window, const PointerInput& input, const Place& place) {
    Control& top = controlAt(window, place.middle.x, place.middle.y);
    Control* const hearer = wheelHearerOf(top);
    if (state.button != MouseButton::None || hearer == nullptr || !isEnabled(top)) {
        return;
    }
    EventArgs args;
    args.Steps = wheelSteps(*hearer, input.notches);
    if (args.Steps == 0) {
        return;
    }
    deliver(*hearer, Event::Wheel, args);
    if (window.Loaded) {
        move(window, place);
    }
}

void leave(Window& window) {
    if (state.button == MouseButton::None) {
        deliverAt(window, Event::MouseMove, MouseButton::None, {{-1, -1}, {-1, -1}});
    }
}

}  // namespace

void pointerInput(Window& window, double scale, const PointerInput& input) {
    if (!isSeen(window)) {
        return;
    }
    const Place place = placeOf(input, scale);
    switch (input.kind) {
        case PointerKind::Move:
            move(window, place);
            break;
        case PointerKind::Press:
        case PointerKind::SecondPress:
            press(window, input, place);
            break;
        case PointerKind::Release:
            release(window, input, place);
            break;
        case PointerKind::Leave:
            leave(window);
            break;
        case PointerKind::Wheel:
            turnWheel(window, input, place);
            break;
    }
}

void beginDrag(Control& source) {
    if (state.target == &source) {
        state.dragged = &source;
    }
    services().desktop->beginDrag(source);
}

void deliverDrag(Control& onto, Event event, Control& dragged) {
    const bool isHeard = onto.handlerOf(event) != nullptr && isEnabled(onto);
    EventArgs args;
    args.Dragged = &dragged;
    deliver(isHeard ? onto : *onto.Owner, event, args);
}

void pressWithoutPointer(Control& control) {
    if (state.button != MouseButton::None || !isEnabled(control)) {
        return;
    }
    Window& window = *control.Owner;
    const Point before{window.PointerX, window.PointerY};
    const Point corner = cornerInWindow(control);
    const Point middle{corner.x + control.Width / 2, corner.y + control.Height / 2};
    constexpr struct {
        Event event;
        MouseButton button;
    } kSteps[] = {{Event::MouseMove, MouseButton::None},
                  {Event::MouseDown, MouseButton::Left},
                  {Event::MouseUp, MouseButton::Left},
                  {Event::Click, MouseButton::Left}};
    for (const auto& step : kSteps) {
        if (window.Loaded) {
            deliverAt(control, step.event, step.button, {middle, middle});
        }
    }
    if (window.Loaded) {
        deliverAt(window, Event::MouseMove, MouseButton::None, {before, before});
    }
}

void keyInput(Window& window, int keyCode) {
    if (!window.Loaded) {
        return;
    }
    const auto taker =
        std::find_if(window.Controls.begin(), window.Controls.end(), [](const Control* part) {
            return part->handlerOf(Event::KeyDown) != nullptr && isEnabled(*part) && isShown(*part);
        });
    EventArgs args;
    args.KeyCode = keyCode;
    deliver(taker == window.Controls.end() ? window : **taker, Event::KeyDown, args);
}

void forgetPress() {
    if (state.dragged != nullptr) {
        services().desktop->endDrag();
    }
    Control* const lastPressed = state.lastPressed;
    state = {};
    state.lastPressed = lastPressed;
}

void resetPointer() {
    state = {};
}

void forgetPressIn(const Window& window) {
    if (state.window == &window) {
        forgetPress();
    }
}

}  // namespace ombrelia
