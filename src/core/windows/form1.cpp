#include "core/windows/form1.h"

#include "core/button_numbers.h"
#include "core/button_table.h"
#include "core/buttons.h"
#include "core/windows/form1_layout.h"
#include "core/windows/layout.h"

namespace ombrelia {

Form1Window Form1;

namespace {

constexpr double kFormWidth = 771;
constexpr double kFormHeight = 355;
constexpr double kTextBeside = 21;  // from the left edge of a check box

void designPointers() {
    constexpr int kPointers = pictureInfo(Picture::Cursors).faces;
    for (int i = 0; i < kPointers; ++i) {
        Image& pointer = Form1.Curs.make(i);
        designImage(pointer, "Curs", Form1, 0, 0, Picture::Cursors);
        pointer.Face.face = i;
        pointer.Visible = false;
    }
}

void designForm1() {
    designWindow(Form1, "Form1", "Ombrelia Terrain Editor", kFormWidth, kFormHeight,
                 Picture::Form1Back);
    designDesk(Form1);
    designOptionFrames(Form1);
    designTimer(Form1.Timer1, "Timer1", Form1, 1);
    designPointers();
}

}  // namespace

Form1Window::Form1Window() {
    Design = designForm1;
}

namespace {

AccessRole roleOf(const ButtonStart& start) {
    if (start.latching == 0) {
        return AccessRole::Button;
    }
    return start.exclusive != 0 ? AccessRole::RadioButton : AccessRole::CheckBox;
}

}  // namespace

void designButton(Form1Window& form, const ButtonRow& row, Control& container) {
    const ButtonStart& start = row.start;
    const ButtonPlace& place = row.place;
    const FaceSet& set = *faceSet(start.kind);
    Image& face = form.NTool.make(row.number);
    designImage(face, "NTool", container, place.left, place.top, set.picture);
    face.AccessibleName = row.name;
    face.Role = roleOf(start);
    const double left = place.left + set.overlayLeft;
    const double top = place.top + set.overlayTop;
    if (start.kind == kind::kStand) {
        designLabel(form.LTool.make(row.number), "LTool", container,
                    {left, top, face.Width - 2 * set.overlayLeft, face.Height - 2 * set.overlayTop},
                    row.name, {.align = TextAlign::Center, .bold = true});
        form.LTool(row.number).LiesOn = &face;
    } else if (row.icon != Picture::None) {
        designImage(form.NTool.make(row.number + kOverlayOffset), "NTool", container, left, top,
                    row.icon);
    }
    if (place.textWidth > 0) {
        designLabel(form.LTool.make(row.number), "LTool", container,
                    {place.left + kTextBeside, place.top, place.textWidth, 16}, row.name, {});
        form.LTool(row.number).LiesOn = &face;
    }
}

}  // namespace ombrelia
