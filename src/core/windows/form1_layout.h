// The two halves of Form1's layout.
#pragma once

#include "core/windows/form1.h"

namespace ombrelia {

struct ButtonRow;

// Everything but the option strip's contents.
void designDesk(Form1Window& form);

// The option frames, what stands in them, and the progress panel.
void designOptionFrames(Form1Window& form);

// A button: its face by its kind, its icon or its text.
void designButton(Form1Window& form, const ButtonRow& row, Control& container);

}  // namespace ombrelia
