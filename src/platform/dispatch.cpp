#include "platform/dispatch.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

#include "platform/services.h"
#include "platform/window_life.h"

namespace ombrelia {

namespace {

// The running handlers and what waits for them. Written here alone.
struct DispatchState {
    int depth = 0;                                // handlers on the stack
    int openYields = 0;                           // yields on the stack
    long yields = 0;                              // yields since the process began
    std::map<int, std::function<void()>> putOff;  // by kind
};
DispatchState state;
void (*stopRequest)() = nullptr;  // bound once

// Keys below 0 are kept for closing a window; callers of putOff use 0 and above.
constexpr int kCloseKey = -1;
constexpr int kCloseAloneKey = -2;  // and below: each such window closes for itself

class CountGuard {
  public:
    explicit CountGuard(int& count) : count_(count) { ++count_; }
    ~CountGuard() { --count_; }
    CountGuard(const CountGuard&) = delete;
    CountGuard& operator=(const CountGuard&) = delete;

  private:
    int& count_;
};

void runGuarded(const std::function<void()>& work) {
    const CountGuard guard(state.depth);
    try {
        work();
    } catch (const Failure& failure) {
        services().failures->failed(failure.what());
    }
}

double scaled(double pixel, float scaleLength, double length, float scaleStart) {
    return length > 0 ? pixel * scaleLength / length + scaleStart : pixel;
}

// The place in the units in which this control's events arrive.
void placeIn(const Control& control, double x, double y, EventArgs& args) {
    if (control.Kind == ControlKind::PictureBox) {
        const auto& box = static_cast<const PictureBox&>(control);
        if (box.Canvas.width() > 0) {
            x = scaled(x, box.Canvas.ScaleWidth, box.innerWidth(), box.Canvas.ScaleLeft);
            y = scaled(y, box.Canvas.ScaleHeight, box.innerHeight(), box.Canvas.ScaleTop);
        }
    } else if (control.Kind != ControlKind::Window) {
        x *= kTwipsPerPixel;
        y *= kTwipsPerPixel;
    }
    args.X = static_cast<float>(x);
    args.Y = static_cast<float>(y);
}

int firstFreeKeyFrom(int key) {
    while (state.putOff.contains(key)) {
        --key;
    }
    return key;
}

bool takesMouse(const Control& control) {
    return control.TakesPointer &&
           (control.Kind == ControlKind::Image || control.Kind == ControlKind::Label ||
            control.Kind == ControlKind::PictureBox || control.Kind == ControlKind::ListBox);
}

}  // namespace

void raise(Control& control, Event event, EventArgs& args) {
    const Handler handler = control.handlerOf(event);
    if (handler == nullptr) {
        return;
    }
    args.Source = &control;
    args.Index = control.Index;
    handler(args);
}

void raise(Control& control, Event event) {
    EventArgs args;
    raise(control, event, args);
}

void runHandler(const std::function<void()>& work) {
    runGuarded(work);
    while (state.depth == 0 && !state.putOff.empty()) {
        auto first = state.putOff.extract(state.putOff.begin());
        runGuarded(first.mapped());
    }
}

void deliver(Control& control, Event event, EventArgs args) {
    if (control.handlerOf(event) == nullptr) {
        return;
    }
    runHandler([&] { raise(control, event, args); });
}

Control& hearerOf(Control& part) {
    constexpr Event kPointerEvents[] = {Event::MouseDown, Event::MouseMove, Event::MouseUp,
                                        Event::Click,     Event::DblClick,  Event::DragOver,
                                        Event::DragDrop};
    const bool hears =
        std::any_of(std::begin(kPointerEvents), std::end(kPointerEvents),
                    [&part](Event event) { return part.handlerOf(event) != nullptr; });
    return hears ? part : *part.Owner;
}

void deliverMouse(Control& control, Event event, MouseButton button, double x, double y) {
    const Point corner = cornerInWindow(control);
    deliverMouse(control, event, button, {x, y}, {corner.x + x, corner.y + y});
}

void deliverMouse(Control& control, Event event, MouseButton button, const Point& inControl,
                  const Point& inWindow) {
    control.Owner->PointerX = inWindow.x;
    control.Owner->PointerY = inWindow.y;
    if (!isEnabled(control)) {
        return;
    }
    Control& hearer = hearerOf(control);
    const Point& place = &hearer == &control ? inControl : inWindow;
    EventArgs args;
    args.Button = button;
    placeIn(hearer, place.x, place.y, args);
    deliver(hearer, event, args);
}

void deliverClose(Window& window) {
    const auto close = [&window] {
        if (window.handlerOf(Event::Close) != nullptr) {
            raise(window, Event::Close);
        } else {
            unloadWindow(window);
        }
    };
    if (state.depth == 0) {
        runHandler(close);
    } else if (window.StandsAlone) {
        state.putOff[firstFreeKeyFrom(kCloseAloneKey)] = close;
    } else {
        putOff(kCloseKey, close);
    }
}

void deliverResize(Window& window, int width, int height) {
    window.Width = width;
    window.Height = height;
    if (window.Ground != nullptr && window.handlerOf(Event::Resize) != nullptr) {
        window.Ground->Width = width;
        window.Ground->Height = height;
        window.Ground->makeCanvas();
    }
    deliver(window, Event::Resize);
}

void deliverMinimized(Window& window, bool isMinimized) {
    window.Minimized = isMinimized;
    deliver(window, Event::Resize);
}

bool isNested() {
    return state.openYields > 0;
}

bool isHandling() {
    return state.depth > 0;
}

void putOff(int key, std::function<void()> action) {
    state.putOff[key] = std::move(action);
    if (stopRequest != nullptr) {
        stopRequest();
    }
}

bool hasPutOff() {
    return !state.putOff.empty();
}

void setStopRequest(void (*request)()) {
    stopRequest = request;
}

void yieldToEvents() {
    ++state.yields;
    const CountGuard guard(state.openYields);
    services().desktop->yield();
}

long yieldCount() {
    return state.yields;
}

void resetDispatch() {
    state = {};
}

bool isEnabled(const Control& control) {
    for (const Control* part = &control; part != nullptr; part = part->Parent) {
        if (!part->Enabled) {
            return false;
        }
    }
    return true;
}

bool isShown(const Control& control) {
    for (const Control* part = &control; part != nullptr; part = part->Parent) {
        if (!part->Visible) {
            return false;
        }
    }
    return true;
}

namespace {
double borderOf(const Control& control) {
    return control.Kind == ControlKind::PictureBox ? static_cast<const PictureBox&>(control).Border
                                                   : 0.0;
}
}  // namespace

Point cornerInWindow(const Control& control) {
    Point corner{0, 0};
    for (const Control* part = &control; part != nullptr && part->Kind != ControlKind::Window;
         part = part->Parent) {
        corner.x += part->Left + borderOf(*part);
        corner.y += part->Top + borderOf(*part);
    }
    return corner;
}

Control& controlAt(Window& window, double x, double y) {
    for (auto it = window.Controls.rbegin(); it != window.Controls.rend(); ++it) {
        Control& control = **it;
        if (!takesMouse(control)) {
            continue;
        }
        // A part is cut off at the edges of all that contain it.
        bool inside = true;
        for (const Control* part = &control;
             inside && part != nullptr && part->Kind != ControlKind::Window; part = part->Parent) {
            const Point corner = cornerInWindow(*part);
            const double border = borderOf(*part);
            inside = part->Visible && x >= corner.x - border && y >= corner.y - border &&
                     x < corner.x - border + part->Width && y < corner.y - border + part->Height;
        }
        if (inside) {
            return control;
        }
    }
    return window;
}

}  // namespace ombrelia
