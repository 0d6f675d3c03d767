// Press, move and release of the editor's buttons.
#pragma once

#include "platform/control.h"

namespace ombrelia {

void NTool_MouseDown(EventArgs& args);
void NTool_MouseMove(EventArgs& args);
void NTool_MouseUp(EventArgs& args);

// Whether button i may be used; always.
bool CanUseTool(int i);

// Takes the pointer's mark from the button that last had it.
void clearHover();

}  // namespace ombrelia
