// Helpers with which the windows' records are laid out: each puts one part at its place and back to
// its designed state. Handlers stay as they are bound.
#pragma once

#include <string>

#include "platform/control.h"
#include "platform/palette.h"

namespace ombrelia {

// Left, top, width, height in units from the inner corner of the container.
struct Box {
    double left, top, width, height;
};

// How a label is written.
struct TextStyle {
    double size = 11;
    Color color = palette::kText;
    TextAlign align = TextAlign::Left;
    bool bold = false;
    bool wrap = false;
};

// Begins the design of a window: its size, title, ground; forgets the order of its parts.
void designWindow(Window& window, const char* name, const std::string& caption, double width,
                  double height, Picture ground);

// A part without contents of its own: image, picture box, list.
void designPart(Control& part, const char* name, Control& container, const Box& box,
                PictureFace face = {});

void designImage(Image& image, const char* name, Control& container, double left, double top,
                 Picture picture);

void designLabel(Label& label, const char* name, Control& container, const Box& box,
                 const std::string& text, const TextStyle& style = {});

// A surface with an image of its own, empty.
void designSurface(PictureBox& surface, const char* name, Control& container, const Box& box,
                   double border = 0);

void designLine(Line& line, const char* name, Control& container, double x1, double y1, double x2,
                double y2, Color color);

void designTimer(Timer& timer, const char* name, Window& window, int interval);

// Size of a stored picture in units.
double pictureWidth(Picture picture);
double pictureHeight(Picture picture);

}  // namespace ombrelia
