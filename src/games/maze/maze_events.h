// The maze window's handlers.
#pragma once

#include <string>

#include "platform/control.h"

namespace ombrelia::maze {

void frm3DMaze_Load(EventArgs& args);
void frm3DMaze_Unload(EventArgs& args);
void frm3DMaze_Resize(EventArgs& args);
void frm3DMaze_Paint(EventArgs& args);
void frm3DMaze_KeyDown(EventArgs& args);
void frm3DMaze_Timer(EventArgs& args);
void VScroll1_Change(EventArgs& args);
void VScroll1_Scroll(EventArgs& args);
void mnuActionItem_Click(EventArgs& args);
void mnuStyleItem_Click(EventArgs& args);
void mnuHelpItem_Click(EventArgs& args);

// A time of day as text: seven significant digits, a blank in front unless it is negative.
std::string clockText(float seconds);

}  // namespace ombrelia::maze
