// Roads to places that chance alone seldom finds.
#pragma once

namespace ombrelia::monkey {

struct Journey {
    const char* lines[14];  // up to the first nullptr; a line that does not fit is passed over
};

inline constexpr Journey kJourneys[] = {
    {{"click Form1.NTool(4)", "slider 14 1", "click Form1.NTool(20)"}},
    {{"click Form1.NTool(4)", "slider 14 8", "slider 9 20", "click Form1.NTool(20)"}},
    {{"click Form1.NTool(4)", "slider 10 200", "click Form1.NTool(20)"}},
    {{"click Form1.NTool(6)", "click Form1.NTool(28)", "click Form1.NTool(19)"}},
    {{"click Form1.NTool(6)", "click Form1.NTool(29)", "click Form1.NTool(19)"}},
    {{"click Form1.NTool(6)", "click Form1.NTool(38)", "click Form1.NTool(19)"}},
    {{"click Form1.NTool(6)", "click Form1.NTool(74)", "press Form1.MapView right 50 50",
      "move Form1.MapView right 250 200", "release Form1.MapView right 250 200",
      "doubleclick Form1.MapView 20 20"}},
    {{"click Form1.NTool(8)", "slider 7 30", "press Form1.MapView left 100 100",
      "release Form1.MapView left 100 100"}},
    {{"click Form1.NTool(9)", "press Form1.MapView left 10 10", "move Form1.MapView left 90 30",
      "move Form1.MapView left 130 200", "move Form1.MapView left 250 250",
      "release Form1.MapView left 250 250"}},
    {{"click Form1.NTool(67)", "assign OptionStates(67).State 78", "click Form1.NTool(12)"}},
    {{"answer none", "answer message yes", "click Form1.NTool(15)",
      "doubleclick SizeSelect.Label2 9 9", "click SizeSelect.NTool(80)",
      "drag Form1.NTool(153) Form1.Label32", "fire frm3DMaze Timer1", "fire frm3DMaze Timer1",
      "fire frm3DMaze Timer1", "fire frm3DMaze Timer1"}},
    {{"drag Form1.NTool(153) Form1.Label32", "resize frm3DMaze 160 130",
      "menu frm3DMaze.mnuStyleItem(0)", "fire frm3DMaze Timer1", "fire frm3DMaze Timer1",
      "fire frm3DMaze Timer1", "fire frm3DMaze Timer1", "fire frm3DMaze Timer1",
      "menu frm3DMaze.mnuActionItem(1)", "key frm3DMaze 66", "key frm3DMaze 65",
      "key frm3DMaze 40"}},
    {{"click Form1.NTool(23)", "click HelpBox.NTool(96)", "doubleclick HelpBox.Label41 4 4",
      "fire Form2 Timer1", "key Form2 40", "fire Form2 Timer1", "key Form2 37",
      "fire Form2 Timer1"}},
    {{"click Form1.NTool(23)", "click HelpBox.NTool(93)", "press HelpBox.ScrollDown(20) left 3 3",
      "fire HelpBox Timer1", "fire HelpBox Timer1", "release HelpBox.ScrollDown(20) left 3 3"}},
    {{"answer none", "answer message yes", "click Form1.NTool(15)", "answer open back.ppm",
      "click SizeSelect.NTool(84)"}},
    {{"click Form1.NTool(21)", "fire frmSplash Timer1", "click frmSplash"}},
    {{"restart", "fire frmSplash Timer1", "click SizeSelect.LTool(81)"}},
    {{"click Form1.NTool(25)", "state frm3DMaze normal"}},
};

}  // namespace ombrelia::monkey
