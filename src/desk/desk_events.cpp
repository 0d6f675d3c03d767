#include "desk/desk_events.h"

#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/editor_state.h"
#include "core/maker_page.h"
#include "core/objects.h"
#include "core/progress.h"
#include "core/windows/form1.h"
#include "core/windows/maze_window.h"
#include "core/windows/small_windows.h"
#include "desk/button_events.h"
#include "panels/cursors_sounds.h"
#include "panels/hints.h"
#include "panels/option_frames.h"
#include "panels/sliders.h"
#include "platform/numeric.h"
#include "platform/services.h"
#include "platform/window_life.h"

namespace ombrelia {

namespace {

// Faces of the window's picture: the title bar behind the bright text and behind the dim one.
constexpr int kActiveFace = 0;
constexpr int kInactiveFace = 1;

// Keeps the hint frame against the editor's right edge.
void dockHint() {
    HelpFrm.Top = Form1.Top;
    HelpFrm.Left = Form1.Left + Form1.Width;
}

// The test uses the window's own caption, so it holds while the title has a suffix.
void colorTitle() {
    const bool isActive = services().desktop->activeWindowCaption() == AppName;
    Form1.Label11.ForeColor = isActive ? TitleActiveColor : TitleInactiveColor;
    Form1.Face.face = isActive ? kActiveFace : kInactiveFace;
}

// Frame under the pointer, -1 for the viewport behind the frames.
int frameOf(const EventArgs& args) {
    return args.Source == &Form1.Picture1 ? -1 : args.Index;
}

bool isPointerInEditor() {
    return Form1.PointerX >= 0 && Form1.PointerX < Form1.Width && Form1.PointerY >= 0 &&
           Form1.PointerY < Form1.Height;
}

}  // namespace

void Form1_Timer(EventArgs& /*args*/) {
    dockHint();
    scrollHeldArrow();
    showProgress();
    colorTitle();
    finishStop();
    if (!isPointerInEditor()) {
        ResetCursorHook(kCursorOutside);
    }
}

void Ground_MouseMove(EventArgs& /*args*/) {
    ResetCursorHook(kPlainCursor);
    MouseState = kGestureNone;
    clearHover();
}

void Ground_Click(EventArgs& /*args*/) {
    OptionStates(button::kMenu).State = kUp;
    DrawButton(button::kMenu);
}

void QuietPart_MouseMove(EventArgs& /*args*/) {
    clearHover();
}

void ZoomView_MouseMove(EventArgs& /*args*/) {
    ShowHint(kZoomHint);
    clearHover();
}

void Label32_Click(EventArgs& /*args*/) {
    services().desktop->openWebPage(kMakerPage);
}

void Label32_DragOver(EventArgs& /*args*/) {
    Form1.Label11.Caption = "Let go of me here!";
}

void Label32_DragDrop(EventArgs& /*args*/) {
    if (EggArmed == 1) {
        EggArmed = 0;
        Form1.Label11.Caption = AppName;
        showWindow(frm3DMaze);
    }
}

void Ground_DragDrop(EventArgs& /*args*/) {
    Form1.Label11.Caption = AppName;
}

void VertScroller_MouseDown(EventArgs& args) {
    grabThumb(args.X);
    args.Button = MouseButton::Left;
    VertScroller_MouseMove(args);
}

void VertScroller_MouseMove(EventArgs& args) {
    showSliderHint(args.Index);
    ResetCursorHook(kPlainCursor);
    if (args.Button == MouseButton::Left) {
        dragThumb(args.Index, args.X);
    }
}

void VertFiller_MouseDown(EventArgs& args) {
    if (args.Button == MouseButton::Left) {
        stepSlider(args.Index, args.X);
    }
}

void Slider_AskValue(EventArgs& args) {
    const SliderRecord& record = SliderValues(args.Index);
    args.Value = record.Value;
    args.Minimum = record.Min;
    args.Maximum = record.Max;
}

void Slider_SetValue(EventArgs& args) {
    setSlider(args.Index, roundToInt32(args.Value));
}

void Scroller_MouseDown(EventArgs& args) {
    beginStripThumbDrag(args.Y);
}

void Scroller_MouseMove(EventArgs& args) {
    dragStripThumb(args.Y);
}

void Scroller_MouseUp(EventArgs& /*args*/) {
    endStripThumbDrag();
}

void Filler_MouseDown(EventArgs& args) {
    if (args.Button == MouseButton::Left) {
        pageStrip(args.Y);
    }
}

void Strip_Wheel(EventArgs& args) {
    scrollStrip(args.Steps);
}

void Arrow_MouseDown(EventArgs& args) {
    holdArrow(args.Source == &Form1.ScrollUp(0));
}

void Arrow_MouseUp(EventArgs& args) {
    releaseArrow(args.Source == &Form1.ScrollUp(0));
}

void OptFrame_MouseDown(EventArgs& args) {
    beginFrameDrag(frameOf(args), args.Y);
}

void OptFrame_MouseMove(EventArgs& args) {
    if (frameOf(args) >= 0) {
        ShowHint(kOptionFrameHint);
    }
    wantCursor(kPlainCursor, *args.Source);
    clearHover();
    dragFrames(frameOf(args), args.Y);
}

void OptFrame_MouseUp(EventArgs& /*args*/) {
    endFrameDrag();
}

}  // namespace ombrelia
