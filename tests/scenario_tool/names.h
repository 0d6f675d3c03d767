// Names with subscripts, as they stand in a line: Form1.NTool(20).Left, ColorRange(1,2,3).
#pragma once

#include <string>
#include <vector>

#include "platform/control.h"

namespace ombrelia::scenario {

// One part between two points.
struct NamePart {
    std::string word;
    std::vector<int> subscripts;
};

using Name = std::vector<NamePart>;

// Cuts a name into its parts; throws LineError if it is no name.
Name parseName(const std::string& text);

// The window of this name, or nullptr.
Window* findWindow(const std::string& word);

// The control that the parts behind a window's name begin with (one part), or nullptr.
Control* findControl(Window& window, const NamePart& part);

// The control that a line names: WINDOW.NAME, WINDOW.NAME(INDEX) or a window alone. Throws
// LineError if there is none.
Control& controlNamed(const std::string& text);

// The same for whoever sends it an event: its window must be loaded.
Control& loadedControlNamed(const std::string& text);

Window& windowNamed(const std::string& text);
Window& loadedWindowNamed(const std::string& text);

}  // namespace ombrelia::scenario
