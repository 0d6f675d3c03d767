// The colour page: markers, colour boxes, the list of sets. Every edit works on the live table,
// which the list then shows as "Current Colors".
#pragma once

#include "platform/control.h"

namespace ombrelia {

// Range(1)..Range(5): the boundary between two rows of the table.
void Range_MouseDown(EventArgs& args);
void Range_MouseMove(EventArgs& args);
void Range_MouseUp(EventArgs& args);

// Rng1(0)..Rng1(11): asks for the colour of one end of one row.
void Rng1_Click(EventArgs& args);

// Loads the set that the list shows, unless the choice was the program's own.
void Combo1_Click(EventArgs& args);

// The list cannot be typed in.
void Combo1_KeyDown(EventArgs& args);

// Makes the list show "Current Colors"; raises its click if it showed something else.
void selectFirstColorSet();

// Commands: keep the table under a name that is asked for; forget the set that the list shows.
void AddColorSet();
void DeleteColorSet();

}  // namespace ombrelia
