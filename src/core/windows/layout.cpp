#include "core/windows/layout.h"

namespace ombrelia {

void designWindow(Window& window, const char* name, const std::string& caption, double width,
                  double height, Picture ground) {
    window.Name = name;
    window.Owner = &window;
    window.Caption = caption;
    window.Width = width;
    window.Height = height;
    window.Face = {ground, 0};
    window.Enabled = true;
    window.Controls.clear();
}

void designPart(Control& part, const char* name, Control& container, const Box& box,
                PictureFace face) {
    part.Name = name;
    part.Parent = &container;
    part.Owner = container.Owner;
    part.Left = box.left;
    part.Top = box.top;
    part.Width = box.width;
    part.Height = box.height;
    part.Visible = true;
    part.Enabled = true;
    part.Face = face;
    part.Caption.clear();
    part.Owner->Controls.push_back(&part);
}

void designImage(Image& image, const char* name, Control& container, double left, double top,
                 Picture picture) {
    designPart(image, name, container, {left, top, pictureWidth(picture), pictureHeight(picture)},
               {picture, 0});
}

void designLabel(Label& label, const char* name, Control& container, const Box& box,
                 const std::string& text, const TextStyle& style) {
    designPart(label, name, container, box);
    label.Caption = text;
    label.ForeColor = style.color;
    label.FontSize = style.size;
    label.Bold = style.bold;
    label.WordWrap = style.wrap;
    label.Align = style.align;
}

void designSurface(PictureBox& surface, const char* name, Control& container, const Box& box,
                   double border) {
    designPart(surface, name, container, box);
    surface.Border = border;
    surface.makeCanvas();
}

void designLine(Line& line, const char* name, Control& container, double x1, double y1, double x2,
                double y2, Color color) {
    designPart(line, name, container, {0, 0, 0, 0});
    line.X1 = x1;
    line.Y1 = y1;
    line.X2 = x2;
    line.Y2 = y2;
    line.BorderWidth = 1;
    line.BorderColor = color;
}

void designTimer(Timer& timer, const char* name, Window& window, int interval) {
    designPart(timer, name, window, {0, 0, 0, 0});
    timer.Interval = interval;
}

double pictureWidth(Picture picture) {
    return pictureInfo(picture).width;
}

double pictureHeight(Picture picture) {
    return pictureInfo(picture).height;
}

}  // namespace ombrelia
