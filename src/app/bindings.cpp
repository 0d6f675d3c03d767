#include "app/bindings.h"

#include <concepts>
#include <functional>
#include <utility>

#include "core/progress.h"
#include "core/windows/form1.h"
#include "core/windows/form2.h"
#include "core/windows/help_box.h"
#include "core/windows/maze_window.h"
#include "core/windows/small_windows.h"
#include "desk/button_events.h"
#include "desk/desk_events.h"
#include "desk/map_gestures.h"
#include "desk/startup.h"
#include "games/maze/maze_events.h"
#include "games/worm/worm.h"
#include "panels/color_editor.h"
#include "panels/help_box.h"
#include "panels/hints.h"
#include "platform/dispatch.h"

namespace ombrelia {

namespace {

using Visit = std::function<void(Control&)>;

// A row: one control, or all controls of an array, by the member of their window's record.
struct Binding {
    template <std::derived_from<Control> T>
    Binding(T* control, Event itsEvent, Handler itsHandler)
        : part(control),
          visitAll([](void* one, const Visit& visit) { visit(*static_cast<T*>(one)); }),
          event(itsEvent),
          handler(itsHandler) {}

    template <typename T>
    Binding(ControlArray<T>* controls, Event itsEvent, Handler itsHandler)
        : part(controls),
          visitAll([](void* all, const Visit& visit) {
              static_cast<ControlArray<T>*>(all)->forEach(visit);
          }),
          event(itsEvent),
          handler(itsHandler) {}

    void* part;
    void (*visitAll)(void* part, const Visit& visit);
    Event event;
    Handler handler;
};

const Binding kBindings[] = {
    {&frmSplash, Event::Load, frmSplash_Load},
    {&frmSplash, Event::Click, frmSplash_Click},
    {&frmSplash, Event::Close, frmSplash_Click},
    {&frmSplash, Event::KeyDown, frmSplash_KeyDown},
    {&frmSplash.Timer1, Event::Timer, frmSplash_Timer},

    {&SizeSelect, Event::Load, SizeSelect_Load},
    {&SizeSelect, Event::Close, SizeSelect_Close},
    {&SizeSelect, Event::MouseMove, SizeSelect_TitleMove},
    {&SizeSelect.Label11, Event::MouseDown, Title_MouseDown},
    {&SizeSelect.Label11, Event::MouseMove, SizeSelect_TitleMove},
    {&SizeSelect.NTool, Event::MouseDown, SizeSelect_ButtonDown},
    {&SizeSelect.NTool, Event::MouseMove, SizeSelect_ButtonMove},
    {&SizeSelect.NTool, Event::MouseUp, SizeSelect_ButtonUp},
    {&SizeSelect.NTool, Event::Click, SizeSelect_Choose},
    {&SizeSelect.LTool, Event::MouseDown, SizeSelect_ButtonDown},
    {&SizeSelect.LTool, Event::MouseMove, SizeSelect_ButtonMove},
    {&SizeSelect.LTool, Event::MouseUp, SizeSelect_ButtonUp},
    {&SizeSelect.LTool, Event::Click, SizeSelect_Choose},
    {&SizeSelect.Picture1, Event::MouseMove, SizeSelect_GroundMove},
    {&SizeSelect.Label2, Event::MouseMove, SizeSelect_JokeMove},
    {&SizeSelect.Label2, Event::DblClick, SizeSelect_JokeDblClick},

    {&Form1, Event::Load, Form1_Load},
    {&Form1, Event::Unload, Form1_Unload},
    {&Form1, Event::Close, Form1_Close},
    {&Form1, Event::MouseMove, Ground_MouseMove},
    {&Form1, Event::Click, Ground_Click},
    {&Form1.Timer1, Event::Timer, Form1_Timer},
    {&Form1.Label11, Event::MouseDown, Title_MouseDown},
    {&Form1.Label11, Event::MouseMove, Title_MouseMove},
    {&Form1.Label32, Event::Click, Label32_Click},
    {&Form1.Label32, Event::DragOver, Label32_DragOver},
    {&Form1.Label32, Event::DragDrop, Label32_DragDrop},
    {&Form1, Event::DragDrop, Ground_DragDrop},
    {&Form1.NTool, Event::MouseDown, NTool_MouseDown},
    {&Form1.NTool, Event::MouseMove, NTool_MouseMove},
    {&Form1.NTool, Event::MouseUp, NTool_MouseUp},
    {&Form1.LTool, Event::MouseDown, NTool_MouseDown},
    {&Form1.LTool, Event::MouseMove, NTool_MouseMove},
    {&Form1.LTool, Event::MouseUp, NTool_MouseUp},
    {&Form1.Label1, Event::MouseMove, QuietPart_MouseMove},
    {&Form1.Label4, Event::MouseMove, QuietPart_MouseMove},
    {&Form1.ZoomView, Event::MouseMove, ZoomView_MouseMove},
    {&Form1.MapView, Event::MouseDown, MapView_MouseDown},
    {&Form1.MapView, Event::MouseMove, MapView_MouseMove},
    {&Form1.MapView, Event::MouseUp, MapView_MouseUp},
    {&Form1.MapView, Event::DblClick, MapView_DblClick},
    {&Form1.Picker, Event::MouseDown, Picker_MouseDown},
    {&Form1.Picker, Event::MouseMove, Picker_MouseMove},
    {&Form1.Picker, Event::MouseUp, Picker_MouseUp},
    {&Form1.PickedColor, Event::MouseMove, PickedColor_MouseMove},
    {&Form1.Picture3, Event::MouseMove, PickedColor_MouseMove},
    {&Form1.VertScroller, Event::MouseDown, VertScroller_MouseDown},
    {&Form1.VertScroller, Event::MouseMove, VertScroller_MouseMove},
    {&Form1.VertFiller, Event::MouseDown, VertFiller_MouseDown},
    {&Form1.VertFiller, Event::MouseMove, Ground_MouseMove},
    {&Form1.VertFiller, Event::Click, Ground_Click},
    {&Form1.VertScroller, Event::AskValue, Slider_AskValue},
    {&Form1.VertScroller, Event::SetValue, Slider_SetValue},
    {&Form1.Scroller, Event::AskValue, Slider_AskValue},
    {&Form1.Scroller, Event::SetValue, Slider_SetValue},
    {&Form1.Scroller, Event::MouseDown, Scroller_MouseDown},
    {&Form1.Scroller, Event::MouseMove, Scroller_MouseMove},
    {&Form1.Scroller, Event::MouseUp, Scroller_MouseUp},
    {&Form1.ScrollUp, Event::MouseDown, Arrow_MouseDown},
    {&Form1.ScrollUp, Event::MouseUp, Arrow_MouseUp},
    {&Form1.ScrollDown, Event::MouseDown, Arrow_MouseDown},
    {&Form1.ScrollDown, Event::MouseUp, Arrow_MouseUp},
    {&Form1.ScrollUp, Event::MouseMove, Arrow_MouseMove},
    {&Form1.ScrollDown, Event::MouseMove, Arrow_MouseMove},
    {&Form1.Filler, Event::MouseMove, PlainPart_MouseMove},
    {&Form1.Filler, Event::MouseDown, Filler_MouseDown},
    {&Form1.Picture1, Event::Wheel, Strip_Wheel},
    {&Form1.Scroller, Event::Wheel, Strip_Wheel},
    {&Form1.Filler, Event::Wheel, Strip_Wheel},
    {&Form1.ScrollUp, Event::Wheel, Strip_Wheel},
    {&Form1.ScrollDown, Event::Wheel, Strip_Wheel},
    {&Form1.OptFrame, Event::MouseDown, OptFrame_MouseDown},
    {&Form1.OptFrame, Event::MouseMove, OptFrame_MouseMove},
    {&Form1.OptFrame, Event::MouseUp, OptFrame_MouseUp},
    {&Form1.Picture1, Event::MouseDown, OptFrame_MouseDown},
    {&Form1.Picture1, Event::MouseMove, OptFrame_MouseMove},
    {&Form1.Picture1, Event::MouseUp, OptFrame_MouseUp},
    {&Form1.Range, Event::MouseDown, Range_MouseDown},
    {&Form1.Range, Event::MouseMove, Range_MouseMove},
    {&Form1.Range, Event::MouseUp, Range_MouseUp},
    {&Form1.Rng1, Event::MouseMove, Rng1_MouseMove},
    {&Form1.Rng1, Event::Click, Rng1_Click},
    {&Form1.Combo1, Event::Click, Combo1_Click},
    {&Form1.Combo1, Event::KeyDown, Combo1_KeyDown},
    {&Form1.Combo1, Event::MouseMove, PlainPart_MouseMove},

    {&HelpFrm.HelpLbl, Event::MouseMove, HelpLbl_MouseMove},
    {&HelpFrm.HelpLbl, Event::DblClick, HelpLbl_DblClick},

    {&HelpBox, Event::Load, HelpBox_Load},
    {&HelpBox, Event::MouseMove, HelpBox_GroundMove},
    {&HelpBox, Event::KeyDown, HelpBox_KeyDown},
    {&HelpBox, Event::Wheel, HelpBox_Wheel},
    {&HelpBox.Topic, Event::MouseMove, HelpBox_GroundMove},
    {&HelpBox.Picture1, Event::MouseMove, HelpBox_GroundMove},
    {&HelpBox.Timer1, Event::Timer, HelpBox_Timer},
    {&HelpBox.Label14, Event::MouseDown, HelpBox_TitleDown},
    {&HelpBox.Label14, Event::MouseMove, HelpBox_GroundMove},
    {&HelpBox.Label13, Event::Click, HelpBox_WebClick},
    {&HelpBox.NTool, Event::MouseDown, HelpBox_ButtonDown},
    {&HelpBox.NTool, Event::MouseMove, HelpBox_ButtonMove},
    {&HelpBox.NTool, Event::MouseUp, HelpBox_ButtonUp},
    {&HelpBox.NTool, Event::Click, HelpBox_ButtonClick},
    {&HelpBox.LTool, Event::MouseDown, HelpBox_ButtonDown},
    {&HelpBox.LTool, Event::MouseMove, HelpBox_ButtonMove},
    {&HelpBox.LTool, Event::MouseUp, HelpBox_ButtonUp},
    {&HelpBox.LTool, Event::Click, HelpBox_ButtonClick},
    {&HelpBox.LinkLbl, Event::Click, HelpBox_LinkClick},
    {&HelpBox.ContLbl, Event::Click, HelpBox_ContentsClick},
    {&HelpBox.Label41, Event::DblClick, worm::Label41_DblClick},
    {&HelpBox.ToolName, Event::Click, HelpBox_ToolClick},
    {&HelpBox.ToolPic, Event::Click, HelpBox_ToolClick},
    {&HelpBox.Scroller, Event::MouseDown, HelpBox_ScrollerDown},
    {&HelpBox.Scroller, Event::MouseMove, HelpBox_ScrollerMove},
    {&HelpBox.Scroller, Event::MouseUp, HelpBox_ScrollerUp},
    {&HelpBox.Filler, Event::MouseDown, HelpBox_FillerDown},
    {&HelpBox.Filler, Event::MouseMove, HelpBox_GroundMove},
    {&HelpBox.ScrollUp, Event::MouseDown, HelpBox_ArrowDown},
    {&HelpBox.ScrollUp, Event::MouseUp, HelpBox_ArrowUp},
    {&HelpBox.ScrollDown, Event::MouseDown, HelpBox_ArrowDown},
    {&HelpBox.ScrollDown, Event::MouseUp, HelpBox_ArrowUp},

    {&frm3DMaze, Event::Load, maze::frm3DMaze_Load},
    {&frm3DMaze, Event::Unload, maze::frm3DMaze_Unload},
    {&frm3DMaze, Event::Resize, maze::frm3DMaze_Resize},
    {&frm3DMaze, Event::Paint, maze::frm3DMaze_Paint},
    {&frm3DMaze, Event::KeyDown, maze::frm3DMaze_KeyDown},
    {&frm3DMaze.Timer1, Event::Timer, maze::frm3DMaze_Timer},
    {&frm3DMaze.VScroll1, Event::Change, maze::VScroll1_Change},
    {&frm3DMaze.VScroll1, Event::Scroll, maze::VScroll1_Scroll},
    {&frm3DMaze.mnuActionItem, Event::Click, maze::mnuActionItem_Click},
    {&frm3DMaze.mnuStyleItem, Event::Click, maze::mnuStyleItem_Click},
    {&frm3DMaze.mnuHelpItem, Event::Click, maze::mnuHelpItem_Click},

    {&Form2, Event::Load, worm::Form2_Load},
    {&Form2, Event::KeyDown, worm::Form2_KeyDown},
    {&Form2.Label2, Event::KeyDown, worm::Form2_KeyDown},
    {&Form2.Timer1, Event::Timer, worm::Form2_Timer},
};

}  // namespace

const std::vector<Window*>& allWindows() {
    static const std::vector<Window*> windows = {&frmSplash, &SizeSelect, &Form3,     &Form1,
                                                 &HelpFrm,   &HelpBox,    &frm3DMaze, &Form2};
    return windows;
}

void bindEvents() {
    for (Window* window : allWindows()) {
        window->Design();
    }
    HelpFrm.DockedTo = &Form1;
    for (const Binding& row : kBindings) {
        row.visitAll(row.part, [&row](Control& control) {
            control.On[static_cast<std::size_t>(row.event)] = row.handler;
        });
    }
    setStopRequest(requestStop);
}

}  // namespace ombrelia
