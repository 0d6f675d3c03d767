#include "platform/qt/color_parts.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "platform/qt/palette_style.h"

namespace ombrelia {

namespace {

constexpr int kHues = 12;
constexpr int kStrengths = 4;
constexpr int kSampleRows = kStrengths + 1;  // the last has greys
constexpr int kMost = 255;

struct Strength {
    int saturation, value;
};
constexpr Strength kStrengthRows[] = {{255, 255}, {255, 170}, {128, 255}, {128, 140}};

int toMost(double share) {
    return std::clamp(static_cast<int>(std::lround(share * kMost)), 0, kMost);
}

int hueOf(const QColor& color) {
    return std::max(0, color.hsvHue());
}

}  // namespace

ColorPart::ColorPart(double width, double height, double scale, const QString& name)
    : scale_(scale) {
    setFixedSize(static_cast<int>(std::lround(width * scale)),
                 static_cast<int>(std::lround(height * scale)));
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(name);
}

void ColorPart::setColor(const QColor& color) {
    color_ = color;
    update();
}

QImage ColorPart::makeImage() const {
    QImage image(size(), QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            row[x] = colorAt((x + 0.5) / image.width(), (y + 0.5) / image.height()).rgb();
        }
    }
    return image;
}

void ColorPart::resizeEvent(QResizeEvent* /*event*/) {
    forgetImage();
}

void ColorPart::paintEvent(QPaintEvent* /*event*/) {
    if (image_.isNull()) {
        image_ = makeImage();
    }
    QPainter painter(this);
    painter.drawImage(0, 0, image_);
    const QPointF place = placeOf(color_);
    if (place.x() >= 0) {
        painter.setRenderHint(QPainter::Antialiasing);
        paintMark(painter, {place.x() * width(), place.y() * height()});
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(toolkitColor(hasFocus() ? palette::kAmber : palette::kEdge), scale_));
    const double half = scale_ / 2;
    painter.drawRect(QRectF(rect()).adjusted(half, half, -half, -half));
}

// A ring that is seen on light and on dark ground.
void ColorPart::paintMark(QPainter& painter, const QPointF& place) const {
    const double radius = 4 * scale_;
    painter.setPen(QPen(toolkitColor(palette::kInk), 3 * scale_));
    painter.drawEllipse(place, radius, radius);
    painter.setPen(QPen(toolkitColor(palette::kText), 1.5 * scale_));
    painter.drawEllipse(place, radius, radius);
}

void ColorPart::choose(const QPointF& place) {
    const QColor color = chosenAt(std::clamp(place.x(), 0.0, 1.0), std::clamp(place.y(), 0.0, 1.0));
    setColor(color);
    OnChosen(color);
}

void ColorPart::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        choose({event->position().x() / width(), event->position().y() / height()});
    }
}

void ColorPart::mouseMoveEvent(QMouseEvent* event) {
    if ((event->buttons() & Qt::LeftButton) != 0) {
        choose({event->position().x() / width(), event->position().y() / height()});
    }
}

void ColorPart::keyPressEvent(QKeyEvent* event) {
    QPointF place = placeOf(color_);
    place.setX(std::max(0.0, place.x()));
    switch (event->key()) {
        case Qt::Key_Left:
            choose(place - QPointF(step().x(), 0));
            break;
        case Qt::Key_Right:
            choose(place + QPointF(step().x(), 0));
            break;
        case Qt::Key_Up:
            choose(place - QPointF(0, step().y()));
            break;
        case Qt::Key_Down:
            choose(place + QPointF(0, step().y()));
            break;
        default:
            QWidget::keyPressEvent(event);
    }
}

ColorField::ColorField(double scale) : ColorPart(180, 128, scale, tr("Hue and saturation")) {}

QColor ColorField::colorAt(double across, double down) const {
    constexpr int kMostHue = 359;
    const int hue = static_cast<int>(std::lround(across * kMostHue));
    return QColor::fromHsv(hue, toMost(1 - down), kMost);
}

// As light as the colour that is there, unless that is black.
QColor ColorField::chosenAt(double across, double down) const {
    const QColor full = colorAt(across, down);
    const int value = color().value();
    return QColor::fromHsv(full.hsvHue(), full.hsvSaturation(), value == 0 ? kMost : value);
}

QPointF ColorField::placeOf(const QColor& color) const {
    return {hueOf(color) / 359.0, 1 - color.hsvSaturation() / 255.0};
}

QPointF ColorField::step() const {
    return {1 / 359.0, 1 / 255.0};
}

ValueBar::ValueBar(double scale) : ColorPart(16, 128, scale, tr("Lightness")) {}

void ValueBar::setBase(const QColor& color) {
    base_ = color;
    forgetImage();
    setColor(color);
}

QColor ValueBar::colorAt(double /*across*/, double down) const {
    return QColor::fromHsv(hueOf(base_), base_.hsvSaturation(), toMost(1 - down));
}

QPointF ValueBar::placeOf(const QColor& color) const {
    return {0.5, 1 - color.value() / 255.0};
}

QPointF ValueBar::step() const {
    return {0, 1 / 255.0};
}

ColorSamples::ColorSamples(double scale) : ColorPart(204, 80, scale, tr("Samples")) {}

QColor ColorSamples::colorAt(double across, double down) const {
    const int column = std::min(static_cast<int>(across * kHues), kHues - 1);
    const int row = std::min(static_cast<int>(down * kSampleRows), kSampleRows - 1);
    if (row == kStrengths) {
        const int grey = toMost(column / (kHues - 1.0));
        return {grey, grey, grey};
    }
    const Strength& strength = kStrengthRows[row];
    return QColor::fromHsv(column * 360 / kHues, strength.saturation, strength.value);
}

// The middle of the sample that has the colour; before the left edge if none has it.
QPointF ColorSamples::placeOf(const QColor& color) const {
    for (int row = 0; row < kSampleRows; ++row) {
        for (int column = 0; column < kHues; ++column) {
            const QPointF middle((column + 0.5) / kHues, (row + 0.5) / kSampleRows);
            if (colorAt(middle.x(), middle.y()).rgb() == color.rgb()) {
                return middle;
            }
        }
    }
    return {-1, 0};
}

QPointF ColorSamples::step() const {
    return {1.0 / kHues, 1.0 / kSampleRows};
}

void ColorSamples::paintMark(QPainter& painter, const QPointF& place) const {
    const QSizeF size(width() / static_cast<double>(kHues),
                      height() / static_cast<double>(kSampleRows));
    const QRectF sample(place - QPointF(size.width() / 2, size.height() / 2), size);
    painter.setPen(QPen(toolkitColor(palette::kInk), 3 * scale()));
    painter.drawRect(sample);
    painter.setPen(QPen(toolkitColor(palette::kText), 1.5 * scale()));
    painter.drawRect(sample);
}

}  // namespace ombrelia
