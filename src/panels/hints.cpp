#include "panels/hints.h"

#include "core/button_table.h"
#include "core/buttons.h"
#include "core/objects.h"
#include "core/option_strip_table.h"
#include "core/windows/form1.h"
#include "core/windows/small_windows.h"
#include "panels/cursors_sounds.h"
#include "platform/window_life.h"

namespace ombrelia {

namespace {

// What the buttons that are on do on the map, by their numbers; a motion belongs to the
// perspective.
void addMapHints(std::string& text, bool ofMotion) {
    for (int i = 0; i <= button::kLastOfEditor; ++i) {
        const ButtonRow* row = button::row(i);
        if (row == nullptr || (row->start.group == group::kMotion3D) != ofMotion || !isOn(i)) {
            continue;
        }
        if (i == button::k3DMode) {
            addMapHints(text, true);
        } else if (row->mapHint != nullptr) {
            text += row->mapHint;
        }
    }
}

}  // namespace

void ShowHint(const std::string& text) {
    HelpFrm.HelpLbl.Caption = text;
}

void showButtonHint(int number) {
    if (const ButtonRow* row = button::row(number)) {
        ShowHint(row->hint);
    }
}

void showSliderHint(int number) {
    if (number >= slider::kFirst && number <= slider::kLast) {
        ShowHint(slider::row(number).hint);
    }
}

void aboutMap() {
    std::string text = "This is the map view. ";
    addMapHints(text, false);
    ShowHint(text);
    wantMapCursor();
}

void PickedColor_MouseMove(EventArgs& /*args*/) {
    ShowHint(kPickedColorHint);
}

void Rng1_MouseMove(EventArgs& args) {
    ShowHint(kColorBoxHint);
    wantCursor(kPlainCursor, *args.Source);
}

void Title_MouseMove(EventArgs& /*args*/) {
    ShowHint(kTitleHint);
}

void HelpLbl_MouseMove(EventArgs& /*args*/) {
    ShowHint(kHintFrameHint);
}

void PlainPart_MouseMove(EventArgs& /*args*/) {
    ResetCursorHook(kPlainCursor);
}

void Arrow_MouseMove(EventArgs& args) {
    wantCursor(kPlainCursor, *args.Source);
}

void HelpLbl_DblClick(EventArgs& /*args*/) {
    hideWindow(HelpFrm);
    OptionStates(button::kShowHelpBox).State = kUp;
    Form1.NTool(button::kShowHelpBox).Face = {Picture::Opt, kUp};
}

}  // namespace ombrelia
