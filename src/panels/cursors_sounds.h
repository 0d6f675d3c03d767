// The sounds of the buttons, and the seam at which tool pointers would be chosen.
#pragma once

#include "platform/control.h"

namespace ombrelia {

inline constexpr int kPressSound = 1;
inline constexpr int kReleaseSound = 2;

// The pointer is over a button: a sound may be near, if sounds are on.
void prepareButtonSound();

// Plays the sound of a press or a release, if sounds are on and its file stands beside the program.
void PlayButtonSound(int which);

// Numbers of pointers.
inline constexpr int kPlainCursor = 5;
inline constexpr int kCursorOutside = -1;

// Where a pointer of its own would be put on a control, and taken off again. Required: both do
// nothing, whatever the cursor options say (the_cursor_options_change_nothing_on_the_screen).
void SetCursorHook(int id, Control& control);
void ResetCursorHook(int id);

// Calls SetCursorHook unless the pointer is the wanted one already.
void wantCursor(int id, Control& control);

// The same for the map: the number of the tool, if one is selected that has a number.
void wantMapCursor();

}  // namespace ombrelia
