// The worm game: a growing worm that is steered around a walled board and eats what appears there.
#pragma once

#include "platform/control.h"

namespace ombrelia::worm {

// Opens the game's window; a game that is open goes on.
void openWormGame();

// The worm at its start, with the first food item of a life. The trail keeps its contents.
void ResetWorm();

// Shows the next food item on an empty cell; after the 17th, begins the next level.
void PlaceItem();

// The worm fades where it lies, without a pause for other events, and begins anew. True when that
// was the last life.
[[nodiscard]] bool LoseLife();

// Handlers of the window, and of what opens it.
void Form2_Load(EventArgs& args);
void Form2_Timer(EventArgs& args);
void Form2_KeyDown(EventArgs& args);
void Label41_DblClick(EventArgs& args);

}  // namespace ombrelia::worm
