#include "core/windows/form1.h"

#include "core/button_numbers.h"
#include "core/button_table.h"
#include "core/windows/form1_layout.h"
#include "core/windows/layout.h"

namespace ombrelia {

Form1Window Form1;

namespace {

constexpr double kFormWidth = 771;
constexpr double kFormHeight = 355;

Picture facePicture(int kindNumber) {
    switch (kindNumber) {
        case kind::kStand:
            return Picture::Stand;
        case kind::kClose:
            return Picture::CloseB;
        case kind::kPicture:
            return Picture::PicButton;
        case kind::kOk:
            return Picture::OkB;
        case kind::kMinimize:
            return Picture::MinB;
        case kind::kSmall:
            return Picture::SmlBut;
        default:
            return Picture::Opt;
    }
}

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

Label& Form1Window::readout(int slider) {
    Label* const labels[] = {&lblThick,     &lblLineThick,   &lblRaiseAmount, &lblRes,
                             &lblWidth,     &lblHeightValue, &lblSizeValue,   &lblPlainSize,
                             &lblRough,     &lblRoughHeight, &lblLowerAmount, &lblRiverWidth,
                             &lblBankWidth, &lblDetail};
    if (slider < 1 || slider > static_cast<int>(std::size(labels))) {
        throw MissingPartFailure("readout of the slider", slider);
    }
    return *labels[slider - 1];
}

namespace {

AccessRole roleOf(const ButtonStart& start) {
    if (start.latching == 0) {
        return AccessRole::Button;
    }
    return start.exclusive != 0 ? AccessRole::RadioButton : AccessRole::CheckBox;
}

}  // namespace

void designButton(Form1Window& form, int number, Control& container, double left, double top,
                  Picture icon) {
    const ButtonStart& start = *buttonStart(number);
    Image& face = form.NTool.make(number);
    designImage(face, "NTool", container, left, top, facePicture(start.kind));
    face.AccessibleName = start.name;
    face.Role = roleOf(start);
    switch (start.kind) {
        case kind::kStand:
            designLabel(form.LTool.make(number), "LTool", container,
                        {left + 9, top + 8, face.Width - 18, face.Height - 16}, start.name,
                        {.align = TextAlign::Center, .bold = true});
            form.LTool(number).LiesOn = &face;
            break;
        case kind::kPicture:
            designImage(form.NTool.make(number + kOverlayOffset), "NTool", container, left + 9,
                        top + 8, icon);
            break;
        case kind::kSmall:
            designImage(form.NTool.make(number + kOverlayOffset), "NTool", container, left, top,
                        icon);
            break;
        default:
            break;
    }
}

}  // namespace ombrelia
