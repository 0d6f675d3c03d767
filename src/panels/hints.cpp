#include "panels/hints.h"

#include <algorithm>
#include <iterator>

#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "core/windows/small_windows.h"
#include "panels/cursors_sounds.h"
#include "panels/hints_table.h"
#include "platform/window_life.h"

namespace ombrelia {

namespace {

constexpr int kNoCondition = -1;

template <std::size_t N>
void showRow(const NumberedHint (&rows)[N], int number) {
    const auto* row = std::find_if(std::begin(rows), std::end(rows), [number](const auto& hint) {
        return hint.number == number || hint.sameFor == number;
    });
    if (row != std::end(rows)) {
        ShowHint(row->text);
    }
}

}  // namespace

void ShowHint(const std::string& text) {
    HelpFrm.HelpLbl.Caption = text;
}

void showButtonHint(int button) {
    showRow(kButtonHints, button);
}

void showSliderHint(int slider) {
    showRow(kSliderHints, slider);
}

void aboutMap() {
    std::string text = "This is the map view. ";
    for (const MapHint& row : kMapHints) {
        if (isOn(row.button) && (row.andButton == kNoCondition || isOn(row.andButton))) {
            text += row.text;
        }
    }
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
