// What assistive technology learns about the windows: every button, slider, list, picture and text
// by name, role and state, and the means to press and to change them.
#pragma once

#include "platform/control.h"

namespace ombrelia {

class WindowView;

// Makes every WindowView known from now on. Called once, after the application is there.
void installAccessibility();

// Tells assistive technology, if any listens, that a control has changed.
void announceChange(WindowView& view, Control& control);

}  // namespace ombrelia
