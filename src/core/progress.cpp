#include "core/progress.h"

#include <cmath>

#include "core/button_table.h"
#include "core/option_strip_table.h"
#include "core/windows/form1.h"
#include "platform/dispatch.h"
#include "platform/numeric.h"

namespace ombrelia {

namespace {

constexpr int kGreenFace = 0;
constexpr int kRedFace = 2;

void enableButton(int button, bool enabled) {
    for (const int index : {button, button + kOverlayOffset}) {
        if (Form1.NTool.has(index)) {
            Form1.NTool(index).Enabled = enabled;
        }
    }
}

void showBar() {
    const double share = static_cast<double>(ProgressDone) / ProgressTotal;
    Form1.PBar.Width = std::floor((Form1.PBarBack.Width - 2) * share);
    ProgressShown = ProgressDone;
    const std::int64_t percent = floorToWhole(share * 100);
    // Required: a blank stands where a sign would (progress_text_has_a_leading_blank).
    std::string& text = Form1.PercDone.Caption;
    text.assign(percent < 0 ? 0 : 1, ' ');
    text += std::to_string(percent);
    text += " Percent Done";
}

}  // namespace

void SetToolsEnabled(bool enabled) {
    Form1.NTool(button::kStop + kOverlayOffset).Face = {Picture::Traffic,
                                                        enabled ? kGreenFace : kRedFace};
    for (const ButtonRow& row : button::kRows) {
        if (row.isLocked) {
            enableButton(row.number, enabled);
        }
    }
    for (const page::Row& row : page::kRows) {
        if (row.isLocked) {
            Form1.OptFrame(page::indexOf(row.number)).Enabled = enabled;
        }
    }
    Form1.MapView.Enabled = enabled;
}

void LongRun::announce(const std::string& text, std::int32_t total) {
    Form1.WorkWhat.Caption = text;
    ProgressState = 1;
    ProgressTotal = total;
}

void requestStop() {
    if (StopFlag != 2) {
        StopFlag = 1;
    }
    Form1.Line1.Visible = false;
}

void LongRun::yield() {
    yieldToEvents();
}

void LongRun::yieldAt(std::int32_t position) {
    moveTo(position);
    yield();
}

bool LongRun::noteStop() {
    if (!isAskedToStop()) {
        return false;
    }
    StopFlag = 2;
    return true;
}

void forgetStop() {
    finishStop();
    StopFlag = 0;
}

void showProgress() {
    if (ProgressDone != ProgressShown) {
        showBar();
    }
    if (ProgressState == 1 && Form1.Picture1.Visible) {
        Form1.Picture1.Visible = false;
        Form1.ProgressFrame.Visible = true;
    }
    if (ProgressState == 2 && !Form1.Picture1.Visible) {
        Form1.Picture1.Visible = true;
        Form1.ProgressFrame.Visible = false;
        SetToolsEnabled(true);
    } else if (ProgressState == 2 && !Form1.MapView.Enabled) {
        // A run too short for a tick never showed its panel; it left its tools to this one.
        SetToolsEnabled(true);
    }
}

void finishStop() {
    if (StopFlag != 2) {
        return;
    }
    SetToolsEnabled(true);
    StopFlag = 0;
    ProgressState = 2;
    Form1.Line1.Visible = false;
}

}  // namespace ombrelia
