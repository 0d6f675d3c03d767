// Events on their way to the handlers: where a point lies, in which units it arrives, what happens
// when a handler fails, and the gate that keeps the floor under a running operation.
#pragma once

#include <functional>

#include "platform/control.h"

namespace ombrelia {

// Twips to a pixel, on either axis.
inline constexpr int kTwipsPerPixel = 15;

struct Point {
    double x, y;
};

// Calls the control's handler of this event, if it has one, from inside another handler: a failure
// passes through to the caller.
void raise(Control& control, Event event);
void raise(Control& control, Event event, EventArgs& args);

// The road of every event from outside: runs work as one handler. A failure ends it and is
// reported; what was put off meanwhile runs when the outermost handler has returned.
void runHandler(const std::function<void()>& work);

// Raises an event from outside, through runHandler.
void deliver(Control& control, Event event, EventArgs args = {});

// Who hears what the pointer does on a part: the part itself, or its window where it has no handler
// of any event of the pointer, since it is the window's background then.
Control& hearerOf(Control& part);

// A mouse event at (x, y) in pixels from the inner left top corner of the control. A disabled
// control, or one inside a disabled one, gets nothing.
void deliverMouse(Control& control, Event event, MouseButton button, double x, double y);

// The same for a back end that knows the pointer's place in the window, client pixels, better than
// the part is told.
void deliverMouse(Control& control, Event event, MouseButton button, const Point& inControl,
                  const Point& inWindow);

// The user closes the window: its Close handler runs, or it is unloaded; now or when the running
// handler has returned. The latter asks the running operation to stop, unless the window stands
// alone.
void deliverClose(Window& window);

// The window got another size, in whole client pixels, or was minimized or brought back. Its ground
// gets an empty picture of that size if the window has a Resize handler, which draws anew; any
// other keeps its picture.
void deliverResize(Window& window, int width, int height);
void deliverMinimized(Window& window, bool isMinimized);

// Whether the running handler was called inside a yield of another one.
bool isNested();

// Whether any handler is running.
bool isHandling();

// Puts an action off until the outermost handler has returned. A second action of the same kind
// (told by its key) replaces the first.
void putOff(int key, std::function<void()> action);

// Whether something waits for the outermost handler to return.
bool hasPutOff();

// What asks the running operation to stop when something is put off.
void setStopRequest(void (*request)());

// Lets waiting events run. Every yield of every operation goes through here.
void yieldToEvents();

// Yields so far in this process.
long yieldCount();

// Forgets counts, nesting and what was put off; for tests and for a new process in a scenario.
void resetDispatch();

// The control, and all that contains it, is enabled.
bool isEnabled(const Control& control);

// The control, and all that contains it, is visible.
bool isShown(const Control& control);

// Inner left top corner of the control, in client pixels of its window.
Point cornerInWindow(const Control& control);

// The topmost control that takes mouse events at a place in the window, or the window itself.
Control& controlAt(Window& window, double x, double y);

}  // namespace ombrelia
