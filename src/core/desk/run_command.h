// The dispatcher: what each command does.
#pragma once

#include "core/button_numbers.h"

namespace ombrelia {

// Executes command i, or i - 100 from 100 on; i may be changed. A command that would pull the floor
// from under a running operation asks that to stop and is executed when it has returned.
void RunCommand(int& i);

}  // namespace ombrelia
