// The words for the buttons of the mouse.
#pragma once

#include <string>

#include "platform/control.h"

namespace ombrelia::scenario {

// left, right, middle or none; throws LineError for any other word.
MouseButton buttonNamed(const std::string& word);

}  // namespace ombrelia::scenario
