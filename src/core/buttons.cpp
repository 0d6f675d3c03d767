#include "core/buttons.h"

#include <algorithm>
#include <iterator>

#include "core/button_numbers.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "core/windows/help_box.h"
#include "core/windows/small_windows.h"

namespace ombrelia {

namespace {

constexpr FaceSet kFaces[] = {
    {kind::kStand, Picture::Stand, 9, 8},       {kind::kClose, Picture::CloseB, 0, 0},
    {kind::kPicture, Picture::PicButton, 9, 8}, {kind::kOk, Picture::OkB, 0, 0},
    {kind::kMinimize, Picture::MinB, 0, 0},     {kind::kSmall, Picture::SmlBut, 0, 0},
    {kind::kOption, Picture::Opt, 0, 0},
};

// Gives the face its picture; nullptr if the kind has none.
const FaceSet* setFace(Image& face, const ButtonRecord& record) {
    const FaceSet* set = faceSet(record.Kind);
    if (set != nullptr && record.State >= 0 && record.State < pictureInfo(set->picture).faces) {
        face.Face = {set->picture, record.State};
    }
    return set;
}

void placeOverlay(Control& overlay, const Image& face, const FaceSet& set, int state) {
    const double pressed = state == kOn ? 1 : 0;
    overlay.Left = face.Left + set.overlayLeft + pressed;
    overlay.Top = face.Top + set.overlayTop + pressed;
}

// The variant of the windows that know kinds 1 and 2 only.
void drawPlainButton(ControlArray<Image>& faces, ControlArray<Label>& texts, int i) {
    const ButtonRecord& record = OptionStates(i);
    if (record.Kind != kind::kStand && record.Kind != kind::kClose) {
        return;
    }
    Image& face = faces(i);
    const FaceSet* set = setFace(face, record);
    if (record.Kind == kind::kStand) {
        placeOverlay(texts(i), face, *set, record.State);
    }
}

}  // namespace

const FaceSet* faceSet(int kindNumber) {
    const auto* set =
        std::find_if(std::begin(kFaces), std::end(kFaces),
                     [kindNumber](const FaceSet& row) { return row.kind == kindNumber; });
    return set == std::end(kFaces) ? nullptr : set;
}

void DrawButton(int i) {
    const ButtonRecord& record = OptionStates(i);
    if (record.Kind == kind::kNone) {
        return;
    }
    Image& face = Form1.NTool(i);
    const FaceSet* set = setFace(face, record);
    if (set == nullptr) {
        return;
    }
    if (record.Kind == kind::kStand) {
        placeOverlay(Form1.LTool(i), face, *set, record.State);
    } else if (record.Kind == kind::kPicture || record.Kind == kind::kSmall) {
        placeOverlay(Form1.NTool(i + kOverlayOffset), face, *set, record.State);
    }
}

void DrawSizeButton(int i) {
    drawPlainButton(SizeSelect.NTool, SizeSelect.LTool, i);
}

void DrawHelpButton(int i) {
    drawPlainButton(HelpBox.NTool, HelpBox.LTool, i);
}

bool isOn(int i) {
    return OptionStates(i).State == kOn;
}

}  // namespace ombrelia
