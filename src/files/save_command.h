// The save: asks for a name and writes the map.
#pragma once

namespace ombrelia {

// The command "Save"; nothing on Cancel. Throws FileFailure.
void SaveCommand();

}  // namespace ombrelia
