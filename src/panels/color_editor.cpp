#include "panels/color_editor.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "core/color_display.h"
#include "core/color_sets.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/questions.h"
#include "core/windows/form1.h"
#include "panels/cursors_sounds.h"
#include "panels/hints.h"
#include "platform/dispatch.h"
#include "platform/numeric.h"
#include "platform/services.h"
#include "views/map2d/update_map_view.h"

namespace ombrelia {

namespace {

constexpr std::int16_t kMarkerHeld = 1;  // value of SliderDragState
constexpr int kFirstMarker = 1;
constexpr int kLastMarker = 5;
constexpr int kSandMarker = 2;
constexpr double kNeighbourGap = 2;
constexpr double kLowestSandEnd = 32;
constexpr double kSandEndInstead = 34;

constexpr const char* kReservedNames[] = {
    "DEFAULT",  "RAINBOW",   "EARTH",     "GRAYSCALE",      "HEIGHT CHART",
    "REDSCALE", "THE BLUES", "VALENTINE", "CURRENT COLORS",
};

std::string inCapitals(std::string text) {
    for (char& c : text) {
        if (c >= 'a' && c <= 'z') {
            c = static_cast<char>(c - 'a' + 'A');
        }
    }
    return text;
}

bool isReserved(const std::string& name) {
    const std::string capitals = inCapitals(name);
    return std::any_of(std::begin(kReservedNames), std::end(kReservedNames),
                       [&](const char* reserved) { return capitals == reserved; });
}

// The live table is "Current Colors": the list says so without loading anything.
void showCurrentColors() {
    if (Form1.Combo1.ListIndex != 0) {
        SuppressComboClick = 1;
    }
    selectFirstColorSet();
}

// Whether marker i may stand with its left edge here. Required: the first marker keeps no gap
// (the_first_marker_may_touch_the_second).
bool isFree(int i, double left) {
    const PictureBox& gradient = Form1.PrefPicker;
    const double half = Form1.Range(i).Width / 2;
    if (left <= gradient.Left - half || left >= gradient.Width + gradient.Left - half - 1) {
        return false;
    }
    if (i == kFirstMarker) {
        return left < Form1.Range(i + 1).Left;
    }
    const bool isClearOfNext = i == kLastMarker || left < Form1.Range(i + 1).Left - kNeighbourGap;
    return isClearOfNext && left > Form1.Range(i - 1).Left + kNeighbourGap;
}

void writeBoundary(int i) {
    const Image& marker = Form1.Range(i);
    double height = marker.Left - Form1.PrefPicker.Left + marker.Width / 2;
    // Required: the marker may stand lower than its height (the_sand_ends_at_33_at_least).
    if (i == kSandMarker && height <= kLowestSandEnd) {
        height = kSandEndInstead;
    }
    ColorRange(i, 2, 0) = roundToInt16(height - 1);
    ColorRange(i + 1, 1, 0) = roundToInt16(height);
}

}  // namespace

void Range_MouseDown(EventArgs& args) {
    SliderDragState = kMarkerHeld;
    const double x = static_cast<double>(args.X) / kTwipsPerPixel;
    RangeGrabX = roundToInt16(Form1.Range(args.Index).Left + x);
    showCurrentColors();
}

void Range_MouseMove(EventArgs& args) {
    ShowHint(kRangeHint);
    ResetCursorHook(kPlainCursor);
    if (SliderDragState != kMarkerHeld) {
        return;
    }
    Image& marker = Form1.Range(args.Index);
    const double pointer = marker.Left + static_cast<double>(args.X) / kTwipsPerPixel;
    const double left = pointer - RangeGrabX + marker.Left;
    if (isFree(args.Index, left)) {
        marker.Left = left;
        RangeGrabX = roundToInt16(pointer);
        writeBoundary(args.Index);
    }
    PaintPrefPicker();
}

void Range_MouseUp(EventArgs& /*args*/) {
    MarkMapForRepaint();
    SliderDragState = 0;
    PaintPicker();
}

void Rng1_Click(EventArgs& args) {
    PictureBox& box = Form1.Rng1(args.Index);
    box.BackColor = services().dialogs->askColor(messages::kSelectColorTitle, box.BackColor);
    const int row = (args.Index + 2) / 2;
    const int end = args.Index % 2 == 0 ? 1 : 2;
    ColorRange(row, end, 1) = static_cast<std::int16_t>(redOf(box.BackColor));
    ColorRange(row, end, 2) = static_cast<std::int16_t>(greenOf(box.BackColor));
    ColorRange(row, end, 3) = static_cast<std::int16_t>(blueOf(box.BackColor));
    MarkMapForRepaint();
    PaintPrefPicker();
    PaintPicker();
    showCurrentColors();
}

void Combo1_Click(EventArgs& /*args*/) {
    if (SuppressComboClick == 1) {
        SuppressComboClick = 0;
        return;
    }
    LoadColorSet(Form1.Combo1.Caption);
    ShowColorSet();
    PaintPicker();
    PaintPrefPicker();
    MarkMapForRepaint();
}

void Combo1_KeyDown(EventArgs& args) {
    args.KeyCode = 0;
}

void selectFirstColorSet() {
    ListBox& list = Form1.Combo1;
    if (list.ListIndex == 0) {
        return;
    }
    list.ListIndex = 0;
    list.Caption = list.List.front();
    raise(list, Event::Click);
}

void AddColorSet() {
    Dialogs& dialogs = *services().dialogs;
    const std::string name =
        dialogs.askInput(messages::kSaveColorSetPrompt, messages::kSaveColorSetTitle);
    if (name.empty()) {
        return;
    }
    if (isReserved(name)) {
        dialogs.message(messages::kNameInUse, kErrorBox, messages::kNameInUseTitle);
        return;
    }
    SaveColorSet(name);
    ListColorSets();
    showCurrentColors();
}

void DeleteColorSet() {
    const std::string name = Form1.Combo1.Caption;
    if (isReserved(name)) {
        services().dialogs->message(messages::kCannotDelete, kErrorBox,
                                    messages::kCannotDeleteTitle);
        return;
    }
    services().settings->removeSection(kColorSetPrefix + name);
    services().settings->removeKey(kSettingsSection, kColorSetPrefix + name);
    ListColorSets();
    showCurrentColors();
}

}  // namespace ombrelia
