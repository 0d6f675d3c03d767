// The two halves of Form1's layout.
#pragma once

#include "core/windows/form1.h"

namespace ombrelia {

// Everything but the option strip's contents.
void designDesk(Form1Window& form);

// The option frames, what stands in them, and the progress panel.
void designOptionFrames(Form1Window& form);

// A button: its face by the kind in the button table, its icon or its text.
void designButton(Form1Window& form, int number, Control& container, double left, double top,
                  Picture icon = Picture::None);

}  // namespace ombrelia
