#include "platform/window_picture.h"

#include <algorithm>
#include <cmath>

#include "platform/palette.h"

namespace ombrelia {

namespace {

constexpr double kOpacityOfDisabled = 0.4;
constexpr double kMarkHeight = 3;  // units
constexpr double kTextMargin = 6;  // units, of lists and text lines

class Painting {
  public:
    Painting(PictureBrush& brush, double scale) : brush_(brush), scale_(scale) {}

    void drawFace(const Control& control, const PixelRect& place) {
        if (control.Face.picture != Picture::None && !place.isEmpty()) {
            brush_.drawFace(control.Face, place);
        }
    }

    void draw(const Control& control, const PixelRect& place) {
        switch (control.Kind) {
            case ControlKind::Image:
                drawFace(control, place);
                drawMarks(static_cast<const Image&>(control).Scale, place);
                break;
            case ControlKind::Label:
                drawLabel(static_cast<const Label&>(control), place);
                break;
            case ControlKind::PictureBox:
                drawPictureBox(static_cast<const PictureBox&>(control), place);
                break;
            case ControlKind::ListBox:
                drawList(control, place);
                break;
            case ControlKind::TextLine:
                drawTextLine(control, place);
                break;
            case ControlKind::Line:
                drawLine(static_cast<const Line&>(control));
                break;
            default:
                drawFace(control, place);
                break;
        }
    }

  private:
    int device(double units) const { return devicePixels(units, scale_); }

    // At least one pixel.
    int edge() const { return std::max(1, device(1)); }

    void drawMarks(const Marks& marks, const PixelRect& place) {
        for (int i = 0; i < marks.count; ++i) {
            const int left = place.left + device(marks.first + i * marks.pitch) - edge() / 2;
            brush_.fill({left, place.bottom - device(kMarkHeight), left + edge(), place.bottom},
                        palette::kEdge);
        }
    }

    void drawLabel(const Label& label, const PixelRect& place) {
        if (label.Opaque) {
            brush_.fill(place, label.BackColor);
        }
        if (!label.Caption.empty()) {
            brush_.drawText(textOf(label), place, scale_);
        }
    }

    void drawPictureBox(const PictureBox& box, const PixelRect& place) {
        if (box.Opaque) {
            brush_.fill(place, box.BackColor);
        }
        drawFace(box, place);
        if (box.Canvas.width() > 0) {
            const int border = device(box.Border);
            brush_.drawSurface(box.Canvas, {place.left + border, place.top + border,
                                            place.right - border, place.bottom - border});
        }
    }

    void drawLineOfText(const std::string& text, PixelRect place, int rightMargin) {
        place.left += device(kTextMargin);
        place.right -= rightMargin;
        TextLook look;
        look.text = text;
        look.color = palette::kText;
        brush_.drawText(look, place, scale_);
    }

    void drawTextLine(const Control& text, const PixelRect& place) {
        brush_.fill(place, palette::kChromeLo);
        brush_.fill({place.left, place.top, place.right, place.top + device(1)}, palette::kEdge);
        drawLineOfText(text.Caption, place, device(kTextMargin));
    }

    void drawList(const Control& list, const PixelRect& place) {
        brush_.fill(place, palette::kEdge);
        brush_.fill(
            {place.left + edge(), place.top + edge(), place.right - edge(), place.bottom - edge()},
            palette::kWell);
        drawLineOfText(list.Caption, place, 3 * device(kTextMargin));
        const double middle = (place.top + place.bottom) / 2.0;
        const double right = place.right - 1 - 10 * scale_;
        brush_.drawTriangle({{right - 4 * scale_, middle - 2 * scale_},
                             {right + 4 * scale_, middle - 2 * scale_},
                             {right, middle + 3 * scale_}},
                            palette::kTextDim);
    }

    void drawLine(const Line& line) {
        const int width = std::max(1, device(line.BorderWidth));
        brush_.drawLine(lineEnd(line, line.X1, line.Y1, scale_),
                        lineEnd(line, line.X2, line.Y2, scale_), width, line.BorderColor);
    }

    PictureBrush& brush_;
    double scale_;
};

// A surface keeps its full colours: a map is looked at while an operation locks it.
double opacityOf(const Control& control) {
    const bool isFaded = control.Kind != ControlKind::PictureBox &&
                         control.Kind != ControlKind::Line && !isEnabled(control);
    return isFaded ? kOpacityOfDisabled : 1;
}

}  // namespace

std::string shownText(const std::string& caption) {
    std::string text;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        text += caption[i];
        if (caption.compare(i, 2, "&&") == 0) {
            ++i;
        }
    }
    return text;
}

TextLook textOf(const Label& label) {
    return {shownText(label.Caption), label.FontSize, label.ForeColor, label.Align, label.Bold,
            label.Underline,          label.WordWrap};
}

void paintWindow(PictureBrush& brush, const Window& window, const PixelRect& dirty, double scale) {
    Painting painting(brush, scale);
    brush.begin(dirty, 1);
    painting.drawFace(window, deviceRect(window, scale));
    for (const Control* control : window.Controls) {
        const PixelRect seen = commonOf(visibleDeviceRect(*control, scale), dirty);
        if (!seen.isEmpty() && control->Kind != ControlKind::Timer) {
            brush.begin(seen, opacityOf(*control));
            painting.draw(*control, deviceRect(*control, scale));
        }
    }
}

}  // namespace ombrelia
