// The help window: which page shows, its buttons, its scroller.
#pragma once

#include <string>

#include "platform/control.h"

namespace ombrelia {

// Shows page n; nothing for n of 0 or less. A page 1..7 marks a button of the shared table.
void GotoTopic(int n);

// The long text of a tool's page, key 400..410; empty for any other.
std::string TopicText(int key);

void HelpBox_Load(EventArgs& args);
void HelpBox_Timer(EventArgs& args);
void HelpBox_GroundMove(EventArgs& args);
void HelpBox_ButtonDown(EventArgs& args);
void HelpBox_ButtonMove(EventArgs& args);
void HelpBox_ButtonUp(EventArgs& args);
void HelpBox_ButtonClick(EventArgs& args);
void HelpBox_LinkClick(EventArgs& args);
void HelpBox_ContentsClick(EventArgs& args);
void HelpBox_ToolClick(EventArgs& args);
void HelpBox_WebClick(EventArgs& args);
void HelpBox_TitleDown(EventArgs& args);
void HelpBox_ScrollerDown(EventArgs& args);
void HelpBox_ScrollerMove(EventArgs& args);
void HelpBox_ScrollerUp(EventArgs& args);
void HelpBox_ArrowDown(EventArgs& args);
void HelpBox_ArrowUp(EventArgs& args);
void HelpBox_FillerDown(EventArgs& args);
void HelpBox_Wheel(EventArgs& args);
void HelpBox_KeyDown(EventArgs& args);

}  // namespace ombrelia
