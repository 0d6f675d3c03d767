#include "panels/help_box.h"

#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/editor_state.h"
#include "core/maker_page.h"
#include "core/objects.h"
#include "core/option_strip_table.h"
#include "core/windows/form1.h"
#include "core/windows/help_box.h"
#include "core/windows/help_texts_table.h"
#include "panels/cursors_sounds.h"
#include "panels/help_scroller.h"
#include "platform/key_codes.h"
#include "platform/services.h"
#include "platform/window_life.h"

namespace ombrelia {

namespace {

constexpr std::int16_t kYes = -1;
constexpr int kHelpGroup = 1;
constexpr double kRoomAroundToolText = 80;
constexpr int kLastMarkingPage = 7;
constexpr int kPagesOfAParent = 100;  // page 201 belongs to page 2

void paintState(int i, int state) {
    OptionStates(i).State = static_cast<std::int16_t>(state);
    DrawHelpButton(i);
}

void setUpButtons() {
    for (int i = button::kHelpContents; i <= button::kHelpClose; ++i) {
        ButtonRecord& record = OptionStates(i);
        const bool isTopic = i <= button::kHelpAbout;
        record.Kind = i == button::kHelpClose ? kind::kClose : kind::kStand;
        record.Group = i == button::kHelpClose ? std::int16_t{0} : std::int16_t{kHelpGroup};
        record.Latching = isTopic ? kYes : std::int16_t{0};
        record.Exclusive = record.Latching;
        paintState(i, kUp);
    }
    for (int group = 0; group <= 10; ++group) {
        HelpGroupCurrent(group) = 0;
    }
    HelpHoverTool = button::kHelpContents;
}

// The tools' pictures are those of the editor's own buttons.
void buildToolPages() {
    for (int i = 0; i < kToolPageCount; ++i) {
        const int page = kFirstToolPage + i;
        const PictureFace icon = Form1.NTool(i + kOverlayOffset).Face;
        HelpBox.ToolPic(i).Face = icon;
        HelpBox.IconPic(page).Face = icon;
        HelpBox.IconName(page).Caption = kToolPages[i].title;
        fitHelpText(HelpBox.IconText(page), TopicText(page));
        HelpBox.Topic(page).Height = HelpBox.IconText(page).Height + kRoomAroundToolText;
    }
}

void buildAbout() {
    std::string text;
    for (const char* line : kAboutLines) {
        text += line;
        text += '\n';
    }
    fitHelpText(HelpBox.Label40, text);
    HelpBox.Topic(kAboutPage).Height = HelpBox.Label40.Top + HelpBox.Label40.Height;
}

// Required: the numbers 0..6 are the editor's tools, not this window's buttons
// (a_page_marks_a_tool_of_the_editor).
void markButtonOfPage(int n) {
    const int k = n - 1;
    OptionStates(k).State = kOn;
    std::int16_t& current = HelpGroupCurrent(OptionStates(k).Group);
    if (current != k) {
        paintState(current, kUp);
    }
    current = static_cast<std::int16_t>(k);
    DrawHelpButton(k);
}

void goBack() {
    if (CurrentTopic < kPagesOfAParent && CurrentTopic != kContentsPage) {
        GotoTopic(kContentsPage);
    } else if (CurrentTopic > kPagesOfAParent) {
        GotoTopic(CurrentTopic / kPagesOfAParent);
    }
}

void clearHelpHover() {
    if (OptionStates(HelpHoverTool).State == kHover) {
        paintState(HelpHoverTool, kUp);
    }
}

void pressTopicButton(int i, ButtonRecord& record) {
    record.SavedState = record.State;
    if (record.State != kOn) {
        record.State = kOn;
    }
    std::int16_t& current = HelpGroupCurrent(record.Group);
    if (current != i) {
        paintState(current, kUp);
    }
    current = static_cast<std::int16_t>(i);
    DrawHelpButton(i);
}

}  // namespace

void GotoTopic(int n) {
    if (n <= 0) {
        return;
    }
    HelpBox.Topic(CurrentTopic).Visible = false;
    CurrentTopic = static_cast<std::int16_t>(n);
    PictureBox& page = HelpBox.Topic(n);
    page.Left = 0;
    page.Top = 0;
    fitScrollerToPage();
    page.Visible = true;
    if (n <= kLastMarkingPage) {
        markButtonOfPage(n);
    }
}

std::string TopicText(int key) {
    for (const HelpPage& row : kToolPages) {
        if (row.number == key) {
            return row.text;
        }
    }
    return {};
}

void HelpBox_Load(EventArgs& /*args*/) {
    setUpButtons();
    buildToolPages();
    buildAbout();
    HelpMouseState = kGestureNone;
    HelpSliderDragState = 0;
    CurrentTopic = kContentsPage;
    fitScrollerToPage();
}

void HelpBox_Timer(EventArgs& /*args*/) {
    scrollHeldPageArrow();
}

void HelpBox_GroundMove(EventArgs& /*args*/) {
    clearHelpHover();
}

void HelpBox_ButtonDown(EventArgs& args) {
    if (args.Button != MouseButton::Left) {
        return;
    }
    ButtonRecord& record = OptionStates(args.Index);
    if (record.State != kOn) {
        PlayButtonSound(kPressSound);
    }
    if (record.Latching == kYes) {
        pressTopicButton(args.Index, record);
    } else {
        paintState(args.Index, kOn);
    }
}

void HelpBox_ButtonMove(EventArgs& args) {
    const int i = args.Index;
    const ButtonRecord& record = OptionStates(i);
    if (HelpHoverTool != i) {
        clearHelpHover();
    }
    HelpHoverTool = static_cast<std::int16_t>(i);
    const bool isHeld = args.Button == MouseButton::Left;
    if (isHeld && record.State != kOn && record.Latching == 0) {
        paintState(i, kOn);
    }
    if (isHeld && record.State == kOn) {
        return;
    }
    if (record.Latching == 0 ? record.State != kHover : record.State == kUp) {
        paintState(i, kHover);
    }
}

void HelpBox_ButtonUp(EventArgs& args) {
    if (args.Button == MouseButton::Left && OptionStates(args.Index).Latching == 0) {
        paintState(args.Index, kHover);
        PlayButtonSound(kReleaseSound);
    }
}

void HelpBox_ButtonClick(EventArgs& args) {
    if (args.Index == button::kHelpBack) {
        goBack();
    } else if (args.Index == button::kHelpClose) {
        unloadWindow(HelpBox);
    } else {
        GotoTopic(args.Index - button::kHelpContents + 1);
    }
}

void HelpBox_LinkClick(EventArgs& args) {
    GotoTopic(kHelpLinks[args.Index].target);
}

void HelpBox_ContentsClick(EventArgs& args) {
    GotoTopic(args.Index + 2);
}

void HelpBox_ToolClick(EventArgs& args) {
    GotoTopic(kFirstToolPage + args.Index);
}

void HelpBox_WebClick(EventArgs& /*args*/) {
    services().desktop->openWebPage(kMakerPage);
}

void HelpBox_TitleDown(EventArgs& args) {
    if (args.Button == MouseButton::Left) {
        services().desktop->beginWindowMove(HelpBox);
    }
}

void HelpBox_ScrollerDown(EventArgs& args) {
    beginPageThumbDrag(args.Y);
}

void HelpBox_ScrollerMove(EventArgs& args) {
    dragPageThumb(args.Y);
}

void HelpBox_ScrollerUp(EventArgs& /*args*/) {
    endPageThumbDrag();
}

void HelpBox_ArrowDown(EventArgs& args) {
    holdPageArrow(args.Source == &HelpBox.ScrollUp(slider::kHelpPage));
}

void HelpBox_ArrowUp(EventArgs& args) {
    releasePageArrow(args.Source == &HelpBox.ScrollUp(slider::kHelpPage));
}

void HelpBox_FillerDown(EventArgs& args) {
    if (args.Button == MouseButton::Left) {
        turnHelpPage(args.Y);
    }
}

void HelpBox_Wheel(EventArgs& args) {
    scrollHelpPage(args.Steps);
}

void HelpBox_KeyDown(EventArgs& args) {
    if (args.KeyCode == key::kEscape) {
        unloadWindow(HelpBox);
    }
}

}  // namespace ombrelia
