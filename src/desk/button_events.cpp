#include "desk/button_events.h"

#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "desk/run_command.h"
#include "panels/cursors_sounds.h"
#include "panels/hints.h"
#include "platform/dispatch.h"
#include "platform/pointer.h"

namespace ombrelia {

namespace {

constexpr std::int16_t kYes = -1;

// Number of the button that an event of NTool or LTool belongs to.
int buttonOf(const EventArgs& args) {
    return args.Index >= kOverlayOffset ? args.Index - kOverlayOffset : args.Index;
}

bool isOverlay(const EventArgs& args) {
    return args.Index >= kOverlayOffset || args.Source->Kind == ControlKind::Label;
}

void paintState(int i, int state) {
    OptionStates(i).State = static_cast<std::int16_t>(state);
    DrawButton(i);
}

void pressLatching(int i, ButtonRecord& record) {
    record.SavedState = record.State;
    if (record.State == kUp || record.State == kHover) {
        record.State = kOn;
    }
    if (record.Exclusive == kYes) {
        const int before = GroupCurrent(record.Group);
        if (before != i) {
            paintState(before, kUp);
        }
        GroupCurrent(record.Group) = static_cast<std::int16_t>(i);
    }
    DrawButton(i);
}

// Whether a release at the event's place counts as on the face of button i.
bool isOnFace(int i, const EventArgs& args) {
    double x = args.X;
    double y = args.Y;
    // Required: the overlay's position in units is added to a place in twips
    // (every_pixel_of_a_push_button_fires_it).
    if (OverlayHit == 1) {
        const Control& overlay = OptionStates(i).Kind == kind::kStand
                                     ? static_cast<Control&>(Form1.LTool(i))
                                     : static_cast<Control&>(Form1.NTool(i + kOverlayOffset));
        x += overlay.Left;
        y += overlay.Top;
    }
    x /= kTwipsPerPixel;
    y /= kTwipsPerPixel;
    const double width = Form1.NTool(i).Width;
    return x >= 0 && x <= width && y >= 0 && y <= width;
}

}  // namespace

bool CanUseTool(int /*i*/) {
    return true;
}

void clearHover() {
    if (OptionStates(HoverTool).State == kHover) {
        paintState(HoverTool, kUp);
    }
}

void NTool_MouseDown(EventArgs& args) {
    if (args.Index == button::kVolcano + kOverlayOffset && EggArmed == 1) {
        beginDrag(*args.Source);
    }
    if (args.Button != MouseButton::Left) {
        return;
    }
    const int i = buttonOf(args);
    ButtonRecord& record = OptionStates(i);
    if (record.State != kOn) {
        PlayButtonSound(kPressSound);
    }
    if (record.Latching == kYes) {
        pressLatching(i, record);
    } else if (CanUseTool(i)) {
        paintState(i, kOn);
    }
}

void NTool_MouseMove(EventArgs& args) {
    const int i = buttonOf(args);
    const ButtonRecord& record = OptionStates(i);
    showButtonHint(i);
    prepareButtonSound();
    wantCursor(kPlainCursor, *args.Source);
    if (HoverTool != i) {
        clearHover();
    }
    HoverTool = static_cast<std::int16_t>(i);
    const bool isHeld = args.Button == MouseButton::Left;
    if (isHeld && record.State != kOn && CanUseTool(i) && record.Latching == 0) {
        paintState(i, kOn);
    }
    if (isHeld && record.State == kOn) {
        return;
    }
    if (record.Latching == 0 ? record.State != kHover : record.State == kUp) {
        paintState(i, kHover);
    }
}

void NTool_MouseUp(EventArgs& args) {
    if (args.Button != MouseButton::Left) {
        return;
    }
    int i = buttonOf(args);
    ButtonRecord& record = OptionStates(i);
    if (isOverlay(args)) {
        OverlayHit = 1;
    }
    if (i == button::kVolcano) {
        Form1.Label11.Caption = AppName;
    }
    if (record.Latching == 0) {
        paintState(i, kHover);
        PlayButtonSound(kReleaseSound);
    } else if (record.Exclusive == 0 && record.SavedState == kOn) {
        // The state comes first: the box of the sounds themselves is heard going off.
        record.State = kHover;
        PlayButtonSound(kReleaseSound);
        DrawButton(i);
    }
    const bool isFired = record.Latching == kYes || isOnFace(i, args);
    // Cleared before the command, which may yield to other buttons or end in a failure.
    OverlayHit = 0;
    if (isFired) {
        RunCommand(i);
    }
}

}  // namespace ombrelia
