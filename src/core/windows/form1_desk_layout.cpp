// Form1's layout: title bar, map, top strip, tools.
#include "core/button_table.h"
#include "core/editor_state.h"
#include "core/windows/form1_layout.h"
#include "core/windows/layout.h"

namespace ombrelia {

namespace {

void placeButtons(Form1Window& form, PictureBox Form1Window::*frame) {
    for (const ButtonRow& row : button::kRows) {
        if (row.place.frame == frame) {
            designButton(form, row, form.*frame);
        }
    }
}

constexpr TextStyle kCaption = {.size = 10, .color = palette::kTextDim, .align = TextAlign::Center};
constexpr double kCaptionHeight = 14;

void designTitle(Form1Window& form) {
    designLabel(form.Label11, "Label11", form, {26, 0, 600, 22}, "",
                {.size = 12, .color = palette::kText, .bold = true});
    designLabel(form.Label32, "Label32", form, {630, 0, 90, 22}, "quillbyte",
                {.size = 11, .color = palette::kTextDim, .align = TextAlign::Right});
    for (const ButtonRow& row : button::kRows) {
        if (row.place.frame == nullptr && row.place.page == page::kNone) {
            designButton(form, row, form);
        }
    }
}

void designMap(Form1Window& form) {
    designSurface(form.Mapview2, "Mapview2", form, {8, 400, 257, 257});
    designPart(form.MapBack, "MapBack", form, {8, 88, 257, 257});
    form.MapBack.Opaque = true;
    designSurface(form.MapView, "MapView", form.MapBack, {0, 0, 257, 257});
    form.MapView.AccessibleName = "Map";
    designLine(form.Line1, "Line1", form.MapView, 0, 0, 0, 0, kMarkerColor);
    form.Line1.Visible = false;
}

void designTopStrip(Form1Window& form) {
    designSurface(form.ZoomView, "ZoomView", form, {8, 26, 57, 57});
    form.ZoomView.Face = {Picture::ZoomFrame, 0};
    form.ZoomView.Canvas.ShowsGround = true;
    form.ZoomView.Canvas.clear();
    designLabel(form.Label4, "Label4", form, {69, 33, 62, 14}, "Zoom",
                {.size = 10, .color = palette::kTextDim});
    designLabel(form.Label22, "Label22", form, {69, 48, 62, 22}, "",
                {.size = 15, .color = palette::kText, .bold = true});

    designPart(form.ViewFrame, "ViewFrame", form, {138, 26, 90, 57});
    placeButtons(form, &Form1Window::ViewFrame);

    designPart(form.TwoFrame, "TwoFrame", form, {236, 26, 132, 57});
    designLabel(form.TwoLabel, "TwoLabel", form.TwoFrame, {0, 0, 132, kCaptionHeight}, "2D Motion",
                kCaption);
    placeButtons(form, &Form1Window::TwoFrame);

    designPart(form.ThreeFrame, "ThreeFrame", form, {236, 26, 132, 57});
    form.ThreeFrame.Visible = false;
    designLabel(form.ThreeLabel, "ThreeLabel", form.ThreeFrame, {0, 0, 132, kCaptionHeight},
                "3D Motion", kCaption);
    placeButtons(form, &Form1Window::ThreeFrame);

    designPart(form.MenuFrame, "MenuFrame", form, {376, 26, 286, 57});
    placeButtons(form, &Form1Window::MenuFrame);

    designPart(form.LightFrame, "LightFrame", form, {670, 26, 94, 57});
    placeButtons(form, &Form1Window::LightFrame);
}

void designTools(Form1Window& form) {
    designSurface(form.Picker, "Picker", form, {275, 86, 28, 260}, 2);
    form.Picker.AccessibleName = "Color picker";
    designLine(form.PickerChoice, "PickerChoice", form, 303, 303, 315, 303, palette::kAmber);
    form.PickerChoice.BorderWidth = 2;

    designPart(form.ToolFrame, "ToolFrame", form, {321, 86, 130, 261});
    placeButtons(form, &Form1Window::ToolFrame);
    designLabel(form.Label1, "Label1", form.ToolFrame, {50, 198, 78, 13}, "Draw height",
                {.size = 10, .color = palette::kTextDim});
    designPart(form.Picture3, "Picture3", form.ToolFrame, {50, 212, 78, 24});
    form.Picture3.Opaque = true;
    form.Picture3.BackColor = palette::kWell;
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
