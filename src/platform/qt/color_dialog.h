// The dialog that asks for a colour, at the editor's scale.
#pragma once

#include <QColor>
#include <QDialog>
#include <array>

class QLayout;

class QLineEdit;

namespace ombrelia {

class ColorField;
class ColorSamples;
class ValueBar;

// Hue and saturation in a field, lightness in a bar, samples to begin from, and the numbers.
class ColorDialog : public QDialog {
  public:
    // scale: device pixels to a unit.
    ColorDialog(QWidget* parent, const QColor& start, double scale);

    QColor color() const { return color_; }

  private:
    // Takes a colour from one of the parts and shows it in all others.
    void take(const QColor& color, const QWidget* source);
    void takeComponents();
    QLayout* parts(double scale);
    QLayout* numbers(double scale);

    QColor color_;
    ColorField* field_;
    ValueBar* bar_;
    ColorSamples* samples_;
    QWidget* preview_;
    std::array<QLineEdit*, 3> components_{};
    QLineEdit* name_;
};

}  // namespace ombrelia
