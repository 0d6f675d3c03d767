// Finds a way for the worm: looks at the board alone.
#pragma once

namespace ombrelia::worm {

// Key of the turn that leads the head to the food by the shortest way over empty cells, or, if
// there is none, to the neighbour from which most cells can be reached.
int keyToFood();

}  // namespace ombrelia::worm
