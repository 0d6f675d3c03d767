// The dispatcher: what each command does.
#pragma once

#include "core/button_numbers.h"

namespace ombrelia {

// Executes command i, or i - 100 from 100 on; i may be changed. A command that would pull the floor
// from under a running operation asks that to stop and is executed when it has returned.
void RunCommand(int& i);

// The command "Import" and the choice of that name at the start: a picture becomes the map, and the
// menu's page is shown. Nothing on Cancel or for a name without a file. Throws PictureFailure.
void ImportCommand();

}  // namespace ombrelia
