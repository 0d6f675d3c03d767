// Form1's layout: title bar, map, top strip, tools.
#include "core/button_numbers.h"
#include "core/windows/form1_layout.h"
#include "core/windows/layout.h"

namespace ombrelia {

namespace {

struct PlacedButton {
    int number;
    double left, top;
    Picture icon;
};

template <std::size_t N>
void placeButtons(Form1Window& form, Control& container, const PlacedButton (&rows)[N]) {
    for (const PlacedButton& row : rows) {
        designButton(form, row.number, container, row.left, row.top, row.icon);
    }
}

void designTitle(Form1Window& form) {
    designLabel(form.Label11, "Label11", form, {26, 0, 600, 22}, "",
                {.size = 12, .color = skin::kTitle, .bold = true});
    designLabel(form.Label32, "Label32", form, {630, 0, 90, 22}, "quillbyte",
                {.size = 11, .color = skin::kTextQuiet, .align = TextAlign::Right});
    designButton(form, button::kMinimize, form, 727, 2);
    designButton(form, button::kClose, form, 748, 2);
}

void designMap(Form1Window& form) {
    designSurface(form.Mapview2, "Mapview2", form, {8, 400, 257, 257});
    designPart(form.MapBack, "MapBack", form, {8, 88, 257, 257});
    form.MapBack.Opaque = true;
    designSurface(form.MapView, "MapView", form.MapBack, {0, 0, 257, 257});
    form.MapView.AccessibleName = "Map";
    designLine(form.Line1, "Line1", form.MapView, 0, 0, 0, 0, skin::kShowOnMap);
    form.Line1.Visible = false;
}

void designTopStrip(Form1Window& form) {
    designSurface(form.ZoomView, "ZoomView", form, {8, 26, 57, 57});
    form.ZoomView.Face = {Picture::ZoomFrame, 0};
    form.ZoomView.Canvas.ShowsGround = true;
    form.ZoomView.Canvas.clear();
    designLabel(form.Label4, "Label4", form, {69, 33, 62, 14}, "Zoom",
                {.size = 10, .color = skin::kTextQuiet});
    designLabel(form.Label22, "Label22", form, {69, 48, 62, 22}, "",
                {.size = 15, .color = skin::kText, .bold = true});

    designPart(form.ViewFrame, "ViewFrame", form, {138, 25, 90, 59});
    const PlacedButton modes[] = {{button::k2DMode, 1, 10, Picture::Mode2d},
                                  {button::k3DMode, 47, 10, Picture::Mode3d}};
    placeButtons(form, form.ViewFrame, modes);

    designPart(form.TwoFrame, "TwoFrame", form, {236, 26, 132, 57});
    designLabel(form.TwoLabel, "TwoLabel", form.TwoFrame, {0, 0, 132, 14}, "2D Motion",
                {.size = 10, .color = skin::kTextQuiet, .align = TextAlign::Center});
    const PlacedButton motion2D[] = {{button::kPan2D, 22, 15, Picture::LensPan},
                                     {button::kZoom2D, 68, 15, Picture::LensZoom}};
    placeButtons(form, form.TwoFrame, motion2D);

    designPart(form.ThreeFrame, "ThreeFrame", form, {236, 26, 132, 57});
    form.ThreeFrame.Visible = false;
    designLabel(form.ThreeLabel, "ThreeLabel", form.ThreeFrame, {0, 0, 132, 14}, "3D Motion",
                {.size = 10, .color = skin::kTextQuiet, .align = TextAlign::Center});
    const PlacedButton motion3D[] = {{button::kRotate3D, 0, 15, Picture::MotionRotate},
                                     {button::kPan3D, 45, 15, Picture::MotionPan},
                                     {button::kZoom3D, 90, 15, Picture::MotionZoom}};
    placeButtons(form, form.ThreeFrame, motion3D);

    designPart(form.MenuFrame, "MenuFrame", form, {378, 25, 233, 59});
    const PlacedButton menu[] = {{button::kMenu, 3, 13, Picture::None},
                                 {button::kOptions, 119, 13, Picture::None}};
    placeButtons(form, form.MenuFrame, menu);

    designPart(form.LightFrame, "LightFrame", form, {670, 25, 94, 59});
    const PlacedButton light[] = {{button::kStop, 3, 10, Picture::Traffic},
                                  {button::kHelp, 49, 10, Picture::ToolHelp}};
    placeButtons(form, form.LightFrame, light);
}

void designTools(Form1Window& form) {
    designSurface(form.Picker, "Picker", form, {275, 86, 28, 260}, 2);
    form.Picker.AccessibleName = "Color picker";
    designLine(form.PickerChoice, "PickerChoice", form, 303, 303, 315, 303, skin::kAccent);
    form.PickerChoice.BorderWidth = 2;

    designPart(form.ToolFrame, "ToolFrame", form, {321, 86, 130, 261});
    const PlacedButton tools[] = {
        {button::kPencil, 1, 2, Picture::ToolPencil},
        {button::kLine, 44, 2, Picture::ToolLine},
        {button::kRaise, 87, 2, Picture::ToolRaise},
        {button::kLower, 1, 44, Picture::ToolLower},
        {button::kColorPicker, 44, 44, Picture::ToolPicker},
        {button::kFractal, 87, 44, Picture::ToolFractal},
        {button::kMountain, 1, 96, Picture::ToolMountain},
        {button::kCanyon, 44, 96, Picture::ToolCanyon},
        {button::kPlain, 87, 96, Picture::ToolPlain},
        {button::kWavy, 1, 148, Picture::ToolWavy},
        {button::kMountainRange, 44, 148, Picture::ToolMountainRange},
        {button::kRiver, 87, 148, Picture::ToolRiver},
        {button::kVolcano, 1, 190, Picture::ToolVolcano},
    };
    placeButtons(form, form.ToolFrame, tools);
    designLabel(form.Label1, "Label1", form.ToolFrame, {50, 190, 78, 12}, "Draw height",
                {.size = 10, .color = skin::kTextQuiet});
    designPart(form.Picture3, "Picture3", form.ToolFrame, {50, 205, 78, 24});
    form.Picture3.Opaque = true;
    form.Picture3.BackColor = skin::kWell;
    designPart(form.PickedColor, "PickedColor", form.Picture3, {2, 2, 74, 20});
    form.PickedColor.Opaque = true;
    designLabel(form.Label19, "Label19", form.ToolFrame, {50, 231, 78, 16}, "",
                {.size = 12, .bold = true});
}

}  // namespace

void designDesk(Form1Window& form) {
    designTitle(form);
    designMap(form);
    designTopStrip(form);
    designTools(form);
}

}  // namespace ombrelia
