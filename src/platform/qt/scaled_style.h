// The style of the toolkit's own dialogs: everything grows with the letters.
#pragma once

#include <QIcon>
#include <QMap>
#include <QProxyStyle>

namespace ombrelia {

class ScaledStyle : public QProxyStyle {
  public:
    // scale: device pixels to a unit.
    explicit ScaledStyle(double scale);
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    void drawControl(ControlElement control, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                       const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override;

  private:
    double scale_;
    mutable QMap<StandardPixmap, QIcon> icons_;
};

}  // namespace ombrelia
