// The check marks and the working colours between runs. ResetPreferences lives with the colour
// sets.
#pragma once

namespace ombrelia {

// Reads the working colours and the states of the option buttons, paints them.
void LoadPreferences();

// Writes the states of the option buttons and the working colours.
void SavePreferences();

}  // namespace ombrelia
