// Which procedure handles which event of which control.
#pragma once

#include <vector>

#include "platform/control.h"

namespace ombrelia {

// What a row of the table binds; nothing before the windows were designed.
struct BoundRow {
    Event event;
    std::vector<Control*> controls;
};
std::vector<BoundRow> boundRows();

// Designs every window once and fills the handler slots of all controls.
void bindEvents();

// All windows of the program.
const std::vector<Window*>& allWindows();

}  // namespace ombrelia
