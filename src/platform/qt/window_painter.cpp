#include "platform/qt/window_painter.h"

#include <QGuiApplication>
#include <cmath>

#include "platform/dispatch.h"
#include "platform/qt/label_text.h"
#include "platform/qt/palette_style.h"

namespace ombrelia {

namespace {

constexpr double kOpacityOfDisabled = 0.4;
constexpr double kMarkHeight = 3;  // units

class Painting {
  public:
    Painting(QPainter& painter, const PaintTools& tools) : painter_(painter), tools_(tools) {}

    void draw(const Control& control, const QRect& place) {
        // A surface keeps its full colours: a map is looked at while an operation locks it.
        const bool isFaded = control.Kind != ControlKind::PictureBox && !isEnabled(control);
        painter_.setOpacity(isFaded ? kOpacityOfDisabled : 1);
        drawInFull(control, place);
        painter_.setOpacity(1);
    }

    void drawLine(const Line& line) {
        const QPointF from = lineEnd(line, line.X1, line.Y1);
        const QPointF to = lineEnd(line, line.X2, line.Y2);
        QPen pen(toolkitColor(line.BorderColor));
        pen.setWidthF(std::max(1.0, std::round(line.BorderWidth * tools_.scale)));
        pen.setCapStyle(Qt::SquareCap);
        painter_.setPen(pen);
        painter_.drawLine(from, to);
    }

    void drawFace(const Control& control, const QRect& place) {
        if (control.Face.picture != Picture::None && !place.isEmpty()) {
            painter_.drawImage(place.topLeft(),
                               tools_.skin.face(control.Face, place.width(), place.height()));
        }
    }

  private:
    void drawInFull(const Control& control, const QRect& place) {
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
                drawList(static_cast<const ListBox&>(control), place);
                break;
            case ControlKind::TextLine:
                drawTextLine(control, place);
                break;
            default:
                drawFace(control, place);
                break;
        }
    }

    void drawMarks(const Marks& marks, const QRect& place) {
        const auto device = [this](double units) {
            return static_cast<int>(std::lround(units * tools_.scale));
        };
        const int width = std::max(1, device(1));
        const int height = device(kMarkHeight);
        for (int i = 0; i < marks.count; ++i) {
            painter_.fillRect(place.left() + device(marks.first + i * marks.pitch) - width / 2,
                              place.bottom() + 1 - height, width, height,
                              toolkitColor(palette::kEdge));
        }
    }

    void drawLabel(const Label& label, const QRect& place) {
        if (label.Opaque) {
            painter_.fillRect(place, toolkitColor(label.BackColor));
        }
        if (label.Caption.empty()) {
            return;
        }
        painter_.setPen(toolkitColor(label.ForeColor));
        drawLabelText(painter_, label, place, tools_.scale);
    }

    void drawPictureBox(const PictureBox& box, const QRect& place) {
        if (box.Opaque) {
            painter_.fillRect(place, toolkitColor(box.BackColor));
        }
        drawFace(box, place);
        const Surface& canvas = box.Canvas;
        if (canvas.width() == 0) {
            return;
        }
        const int border = static_cast<int>(std::lround(box.Border * tools_.scale));
        const QImage image(
            reinterpret_cast<const uchar*>(canvas.row(0)), canvas.width(), canvas.height(),
            canvas.ShowsGround ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
        painter_.drawImage(place.adjusted(border, border, -border, -border), image);
    }

    void drawTextLine(const Control& text, const QRect& place) {
        const double unit = tools_.scale;
        painter_.fillRect(place, toolkitColor(palette::kChromeLo));
        painter_.fillRect(place.x(), place.y(), place.width(), static_cast<int>(std::lround(unit)),
                          toolkitColor(palette::kEdge));
        painter_.setFont(fontFor(11 * unit, false, false));
        painter_.setPen(toolkitColor(palette::kText));
        const int margin = static_cast<int>(std::lround(6 * unit));
        painter_.drawText(place.adjusted(margin, 0, -margin, 0), Qt::AlignVCenter | Qt::AlignLeft,
                          QString::fromStdString(text.Caption));
    }

    void drawList(const ListBox& list, const QRect& place) {
        const double unit = tools_.scale;
        painter_.setPen(QPen(toolkitColor(palette::kEdge), std::max(1.0, std::round(unit))));
        painter_.setBrush(toolkitColor(palette::kWell));
        painter_.drawRect(place.adjusted(0, 0, -1, -1));
        painter_.setFont(fontFor(11 * unit, false, false));
        painter_.setPen(toolkitColor(palette::kText));
        const int margin = static_cast<int>(std::lround(6 * unit));
        painter_.drawText(place.adjusted(margin, 0, -3 * margin, 0),
                          Qt::AlignVCenter | Qt::AlignLeft, QString::fromStdString(list.Caption));
        drawListArrow(place);
    }

    void drawListArrow(const QRect& place) {
        const double unit = tools_.scale;
        const QPointF middle(place.right() - 10 * unit, place.center().y() + 0.5);
        const QPolygonF arrow({middle + QPointF(-4 * unit, -2 * unit),
                               middle + QPointF(4 * unit, -2 * unit),
                               middle + QPointF(0, 3 * unit)});
        painter_.setRenderHint(QPainter::Antialiasing);
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(toolkitColor(palette::kTextDim));
        painter_.drawPolygon(arrow);
        painter_.setRenderHint(QPainter::Antialiasing, false);
    }

    // A line stands in the scale of the surface that contains it, otherwise in units.
    QPointF lineEnd(const Line& line, double x, double y) const {
        const Point corner = cornerInWindow(*line.Parent);
        if (line.Parent->Kind == ControlKind::PictureBox) {
            const auto& box = static_cast<const PictureBox&>(*line.Parent);
            if (box.Canvas.width() > 0) {
                x = (x - box.Canvas.ScaleLeft) * box.innerWidth() / box.Canvas.ScaleWidth;
                y = (y - box.Canvas.ScaleTop) * box.innerHeight() / box.Canvas.ScaleHeight;
            }
        }
        const double half = tools_.scale / 2;
        return {std::floor((corner.x + x) * tools_.scale + half),
                std::floor((corner.y + y) * tools_.scale + half)};
    }

    QPainter& painter_;
    const PaintTools& tools_;
};

}  // namespace

QRect deviceRect(const Control& control, double scale) {
    const Point corner =
        control.Kind == ControlKind::Window ? Point{0, 0} : cornerInWindow(control);
    double border = 0;
    if (control.Kind == ControlKind::PictureBox) {
        border = static_cast<const PictureBox&>(control).Border;
    }
    const double left = corner.x - border;
    double top = corner.y - border;
    if (control.Kind == ControlKind::TextLine) {
        // To be read even in a window that was made too small to be laid out.
        top = std::min(top, control.Owner->Height - control.Height);
    }
    const auto device = [scale](double units) {
        return static_cast<int>(std::lround(units * scale));
    };
    return {QPoint(device(left), device(top)),
            QPoint(device(left + control.Width) - 1, device(top + control.Height) - 1)};
}

QRect visibleDeviceRect(const Control& control, double scale) {
    QRect place = deviceRect(control, scale);
    if (control.Kind == ControlKind::Line && control.Parent != nullptr) {
        place = deviceRect(*control.Parent, scale);
    }
    for (const Control* part = &control; part != nullptr; part = part->Parent) {
        if (!part->Visible && part->Kind != ControlKind::Window) {
            return {};
        }
        if (part != &control) {
            place &= deviceRect(*part, scale);
        }
    }
    return place;
}

void paintWindow(QPainter& painter, Window& window, const QRect& dirtyDevice,
                 const PaintTools& tools) {
    Painting painting(painter, tools);
    painter.setClipRect(dirtyDevice);
    painting.drawFace(window, deviceRect(window, tools.scale));
    for (const Control* control : window.Controls) {
        const QRect seen = visibleDeviceRect(*control, tools.scale) & dirtyDevice;
        if (seen.isEmpty() || control->Kind == ControlKind::Timer) {
            continue;
        }
        painter.setClipRect(seen);
        if (control->Kind == ControlKind::Line) {
            painting.drawLine(static_cast<const Line&>(*control));
        } else {
            painting.draw(*control, deviceRect(*control, tools.scale));
        }
    }
}

}  // namespace ombrelia
