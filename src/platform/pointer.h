// The rules of the pointer, the same behind every screen: which part of a window is meant, who
// keeps the pointer while a button is held, what is a click, a double click, a drag and a drop. A
// back end hands over what its screen saw; nothing here knows a toolkit.
#pragma once

#include "platform/control.h"

namespace ombrelia {

enum class PointerKind {
    Move,
    Press,
    SecondPress,  // of a double click, as the screen counts it
    Release,
    Leave,  // the pointer left the window
    Wheel,
};

// What a screen saw of the pointer.
struct PointerInput {
    PointerKind kind = PointerKind::Move;
    double x = 0;  // device pixels from the left top corner of the window's client area
    double y = 0;
    MouseButton button = MouseButton::None;  // that went down or up
    double notches = 0;                      // that the wheel was turned by, down above 0
};

// Tells a window, shown at scale device pixels a unit, what its screen saw, by these rules:
// - A place is the device pixel that it lies in; the topmost part under that pixel's middle is
// meant.
// - What has no handler of the pointer's events is the window's background (hearerOf). The frame of
// a
//   surface gets nothing, nor does a disabled part or one inside a disabled part.
// - The part that got a press gets the moves and the release, wherever they happen; a press that
//   nobody got has none. One button counts at a time.
// - A release of the left button on the pressed part itself is a click. A face and the text that
//   lies on it are one part here.
// - A second press where the first was is a double click if the part handles that, else a press.
// - A drag gives what lies under the pointer DragOver, and DragDrop at the release (deliverDrag).
// - Images and labels get whole units from their own corner, as on a screen of scale 1; surfaces
// and
//   windows get the place as it is.
// - The wheel goes to the part under the pointer or, if that has no handler of it, to what contains
//   it, at last to its window; not while a button is held, and not over a disabled part. Turns of
//   less than a step add up. What lies under the pointer then is told as by a move.
// Nothing happens to a window that is not to be seen.
void pointerInput(Window& window, double scale, const PointerInput& input);

// The press that is being handled begins a drag of the part, with its picture at the pointer.
void beginDrag(Control& source);

// Tells of a drag over a part, or of its drop there: Event::DragOver or DragDrop. A part that does
// not handle it or is disabled leaves it to the window's background.
void deliverDrag(Control& onto, Event event, Control& dragged);

// Presses a part without the pointer, as assistive technology does: the pointer comes, presses,
// releases and goes. Nothing while a button is held or if the part is disabled.
void pressWithoutPointer(Control& control);

// A key with this virtual code went down in the window that has the keyboard. It goes to the part
// that takes the window's keys, if one can be seen, is enabled and has a KeyDown handler, else to
// the window itself.
void keyInput(Window& window, int keyCode);

// The press that is being held counts no longer: its release is not to come.
void forgetPress();

// The same if it was in this window, which goes away.
void forgetPressIn(const Window& window);

// No button was ever pressed; for tests and for a new process in a scenario.
void resetPointer();

}  // namespace ombrelia
