// Loading, showing, hiding and unloading of windows; the same on every platform.
#pragma once

#include "platform/control.h"

namespace ombrelia {

// Brings the window to its designed state and raises Load; nothing if it is loaded already.
void loadWindow(Window& window);

// Loads the window if need be and shows it. One that is shown for the first time gets Resize.
void showWindow(Window& window);

// Takes the window off the screen; it stays loaded.
void hideWindow(Window& window);

// Raises Unload and takes the window away; nothing if it is not loaded.
void unloadWindow(Window& window);

void minimizeWindow(Window& window);

// Whether the window is on the screen: shown, not minimized, and its host too if it docks to one.
bool isSeen(const Window& window);

// Has what was drawn or changed so far on the control's window shown; the platform may gather such
// wishes.
void refreshControl(Control& control);

// Raises the window's Paint, unless it is not to be seen.
void requestPaint(Window& window);

// Ends the process: nothing behind this call runs.
[[noreturn]] void endProcess();

}  // namespace ombrelia
