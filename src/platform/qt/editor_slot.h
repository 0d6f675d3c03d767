// Several editors on one screen: each opens a little beside the ones that are there.
#pragma once

namespace ombrelia {

// How many editors of this user on this screen are open already, as far as a few places tell; the
// place is kept until the process ends.
int takeEditorSlot();

}  // namespace ombrelia
