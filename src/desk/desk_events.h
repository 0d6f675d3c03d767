// The editor's timer, its ground, and the handlers of the option strip.
#pragma once

#include "platform/control.h"

namespace ombrelia {

void Form1_Timer(EventArgs& args);
void Ground_MouseMove(EventArgs& args);
void Ground_Click(EventArgs& args);
void QuietPart_MouseMove(EventArgs& args);
void ZoomView_MouseMove(EventArgs& args);
void Label32_Click(EventArgs& args);
void Label32_DragOver(EventArgs& args);
void Label32_DragDrop(EventArgs& args);
void Ground_DragDrop(EventArgs& args);
void VertScroller_MouseDown(EventArgs& args);
void VertScroller_MouseMove(EventArgs& args);
void VertFiller_MouseDown(EventArgs& args);
void Slider_AskValue(EventArgs& args);
void Slider_SetValue(EventArgs& args);
void Scroller_MouseDown(EventArgs& args);
void Scroller_MouseMove(EventArgs& args);
void Scroller_MouseUp(EventArgs& args);
void Filler_MouseDown(EventArgs& args);
void Strip_Wheel(EventArgs& args);
void Arrow_MouseDown(EventArgs& args);
void Arrow_MouseUp(EventArgs& args);
void OptFrame_MouseDown(EventArgs& args);
void OptFrame_MouseMove(EventArgs& args);
void OptFrame_MouseUp(EventArgs& args);

}  // namespace ombrelia
