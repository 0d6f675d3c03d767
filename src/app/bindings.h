// Which procedure handles which event of which control.
#pragma once

#include <vector>

#include "platform/control.h"

namespace ombrelia {

// Designs every window once and fills the handler slots of all controls.
void bindEvents();

// All windows of the program.
const std::vector<Window*>& allWindows();

}  // namespace ombrelia
