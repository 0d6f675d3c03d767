// What assistive technology is told of the parts of a window, on any platform.
#pragma once

#include <string>

#include "platform/control.h"

namespace ombrelia {

enum class AccessKind { None, Text, List, Picture, Button, CheckBox, RadioButton, Slider };

// What the part is; None: it is not spoken of.
AccessKind accessKindOf(const Control& control);

// Its name.
std::string accessNameOf(const Control& control);

// What a list or slider stands at; empty for anything else.
std::string accessValueOf(Control& control);

// Whether it can be pressed (pressWithoutPointer).
bool canBePressed(const Control& control);

// Whether a button or box is on, or held.
bool isOn(const Control& control);

// Where a slider stands and can stand: Value, Minimum, Maximum.
EventArgs rangeOf(Control& slider);

// Sets a slider; nothing if it is disabled.
void setValueWithoutPointer(Control& slider, double value);

}  // namespace ombrelia
