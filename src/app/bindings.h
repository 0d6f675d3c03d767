// Which procedure handles which event of which control.
#pragma once

#include <vector>

#include "core/value_row.h"
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

// All values of the process by name.
const std::vector<ValueRow>& allValues();

// Every value, window and handler as in a new process. The settings store is not touched.
void resetProcess();

}  // namespace ombrelia
