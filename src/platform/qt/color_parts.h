// What a colour is chosen with: a field, a bar, samples.
#pragma once

#include <QColor>
#include <QImage>
#include <QWidget>
#include <functional>

namespace ombrelia {

// A part that gives a colour by a press or a drag, or by the arrow keys.
class ColorPart : public QWidget {
  public:
    // width, height in units; scale: device pixels to a unit.
    ColorPart(double width, double height, double scale, const QString& name);

    QColor color() const { return color_; }
    void setColor(const QColor& color);

    // Called when the user has chosen another colour here.
    std::function<void(const QColor&)> OnChosen;

  protected:
    // The colour that shows at a place, both 0..1; the one that is chosen there; where a colour is.
    virtual QColor colorAt(double across, double down) const = 0;
    virtual QColor chosenAt(double across, double down) const { return colorAt(across, down); }
    virtual QPointF placeOf(const QColor& color) const = 0;
    // How far an arrow key goes, of the whole.
    virtual QPointF step() const = 0;

    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    // The colours as they show; made anew when they change.
    void forgetImage() { image_ = {}; }
    virtual void paintMark(QPainter& painter, const QPointF& place) const;
    double scale() const { return scale_; }

  private:
    void choose(const QPointF& place);
    QImage makeImage() const;

    double scale_;
    QColor color_;
    QImage image_;
};

// Hue across, saturation upwards.
class ColorField : public ColorPart {
  public:
    explicit ColorField(double scale);

  protected:
    QColor colorAt(double across, double down) const override;
    QColor chosenAt(double across, double down) const override;
    QPointF placeOf(const QColor& color) const override;
    QPointF step() const override;
};

// Value upwards, of one hue and saturation.
class ValueBar : public ColorPart {
  public:
    explicit ValueBar(double scale);
    // Hue and saturation of what is shown.
    void setBase(const QColor& color);

  protected:
    QColor colorAt(double across, double down) const override;
    QPointF placeOf(const QColor& color) const override;
    QPointF step() const override;

  private:
    QColor base_;
};

// Samples of every hue in four strengths, and greys.
class ColorSamples : public ColorPart {
  public:
    explicit ColorSamples(double scale);

  protected:
    QColor colorAt(double across, double down) const override;
    QPointF placeOf(const QColor& color) const override;
    QPointF step() const override;
    void paintMark(QPainter& painter, const QPointF& place) const override;
};

}  // namespace ombrelia
