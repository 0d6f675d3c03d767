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

constexpr TextStyle kCaption = {.size = 10, .color = skin::kTextQuiet, .align = TextAlign::Center};
constexpr double kCaptionHeight = 14;

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

    designPart(form.ViewFrame, "ViewFrame", form, {138, 26, 90, 57});
    const PlacedButton modes[] = {{button::k2DMode, 2, 15, Picture::Mode2d},
                                  {button::k3DMode, 47, 15, Picture::Mode3d}};
    placeButtons(form, form.ViewFrame, modes);

    designPart(form.TwoFrame, "TwoFrame", form, {236, 26, 132, 57});
    designLabel(form.TwoLabel, "TwoLabel", form.TwoFrame, {0, 0, 132, kCaptionHeight}, "2D Motion",
                kCaption);
    const PlacedButton motion2D[] = {{button::kPan2D, 22, 15, Picture::LensPan},
                                     {button::kZoom2D, 68, 15, Picture::LensZoom}};
    placeButtons(form, form.TwoFrame, motion2D);

    designPart(form.ThreeFrame, "ThreeFrame", form, {236, 26, 132, 57});
    form.ThreeFrame.Visible = false;
    designLabel(form.ThreeLabel, "ThreeLabel", form.ThreeFrame, {0, 0, 132, kCaptionHeight},
                "3D Motion", kCaption);
    const PlacedButton motion3D[] = {{button::kRotate3D, 0, 15, Picture::MotionRotate},
                                     {button::kPan3D, 45, 15, Picture::MotionPan},
                                     {button::kZoom3D, 90, 15, Picture::MotionZoom}};
    placeButtons(form, form.ThreeFrame, motion3D);

    designPart(form.MenuFrame, "MenuFrame", form, {376, 26, 286, 57});
    const PlacedButton menu[] = {{button::kMenu, 25, 18, Picture::None},
                                 {button::kOptions, 151, 18, Picture::None}};
    placeButtons(form, form.MenuFrame, menu);

    designPart(form.LightFrame, "LightFrame", form, {670, 26, 94, 57});
    const PlacedButton light[] = {{button::kStop, 2, 15, Picture::Traffic},
                                  {button::kHelp, 49, 15, Picture::ToolHelp}};
    placeButtons(form, form.LightFrame, light);
}

void designTools(Form1Window& form) {
    designSurface(form.Picker, "Picker", form, {275, 86, 28, 260}, 2);
    form.Picker.AccessibleName = "Color picker";
    designLine(form.PickerChoice, "PickerChoice", form, 303, 303, 315, 303, skin::kAccent);
    form.PickerChoice.BorderWidth = 2;

    designPart(form.ToolFrame, "ToolFrame", form, {321, 86, 130, 261});
    const PlacedButton tools[] = {
        {button::kPencil, 1, 15, Picture::ToolPencil},
        {button::kLine, 44, 15, Picture::ToolLine},
        {button::kRaise, 87, 15, Picture::ToolRaise},
        {button::kLower, 1, 57, Picture::ToolLower},
        {button::kColorPicker, 44, 57, Picture::ToolPicker},
        {button::kFractal, 87, 57, Picture::ToolFractal},
        {button::kMountain, 1, 114, Picture::ToolMountain},
        {button::kCanyon, 44, 114, Picture::ToolCanyon},
        {button::kPlain, 87, 114, Picture::ToolPlain},
        {button::kWavy, 1, 156, Picture::ToolWavy},
        {button::kMountainRange, 44, 156, Picture::ToolMountainRange},
        {button::kRiver, 87, 156, Picture::ToolRiver},
        {button::kVolcano, 1, 198, Picture::ToolVolcano},
    };
    placeButtons(form, form.ToolFrame, tools);
    designLabel(form.Label1, "Label1", form.ToolFrame, {50, 198, 78, 13}, "Draw height",
                {.size = 10, .color = skin::kTextQuiet});
    designPart(form.Picture3, "Picture3", form.ToolFrame, {50, 212, 78, 24});
    form.Picture3.Opaque = true;
    form.Picture3.BackColor = skin::kWell;
    designPart(form.PickedColor, "PickedColor", form.Picture3, {2, 2, 74, 20});
    form.PickedColor.Opaque = true;
    designLabel(form.Label19, "Label19", form.ToolFrame, {50, 238, 78, 16}, "",
                {.size = 12, .bold = true});
}

// What stands over the groups, or over a part of one.
void designCaptions(Form1Window& form) {
    struct Caption {
        PictureBox& group;
        double left, top, width;
        const char* text;
    };
    const Caption captions[] = {
        {form.ViewFrame, 0, 0, 90, "View"},   {form.MenuFrame, 0, 0, 286, "Program"},
        {form.LightFrame, 2, 0, 42, "Stop"},  {form.LightFrame, 49, 0, 42, "Help"},
        {form.ToolFrame, 0, 1, 130, "Tools"}, {form.ToolFrame, 0, 100, 130, "Objects"},
    };
    int i = 0;
    for (const Caption& row : captions) {
        designLabel(form.GroupText.make(i++), "GroupText", row.group,
                    {row.left, row.top, row.width, kCaptionHeight}, row.text, kCaption);
    }
}

}  // namespace

void designDesk(Form1Window& form) {
    designTitle(form);
    designMap(form);
    designTopStrip(form);
    designTools(form);
    designCaptions(form);
}

}  // namespace ombrelia
