#include "platform/qt/color_dialog.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/color_parts.h"
#include "platform/qt/dialog_dress.h"

namespace ombrelia {

namespace {

constexpr double kNumberUnits = 38;
constexpr double kNameUnits = 72;
constexpr double kPreviewUnits = 40;

// The colour as it was asked for.
class Preview : public QWidget {
  public:
    Preview(const QString& name, double scale) {
        setAccessibleName(name);
        setAutoFillBackground(true);
        setFixedHeight(pixels(kPreviewUnits, scale));
    }
};

}  // namespace

ColorDialog::ColorDialog(QWidget* parent, const QColor& start, double scale)
    : QDialog(parent),
      field_(new ColorField(scale)),
      bar_(new ValueBar(scale)),
      samples_(new ColorSamples(scale)),
      preview_(new Preview(tr("The colour"), scale)),
      name_(new QLineEdit) {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* top = new QHBoxLayout;
    top->addLayout(parts(scale));
    top->addSpacing(pixels(6, scale));
    top->addLayout(numbers(scale));
    auto* all = new QVBoxLayout(this);
    all->addLayout(top);
    all->addSpacing(pixels(4, scale));
    all->addWidget(buttons);
    all->setSizeConstraint(QLayout::SetFixedSize);
    take(start, nullptr);
    name_->setFocus();
}

QLayout* ColorDialog::parts(double scale) {
    for (ColorPart* part : {static_cast<ColorPart*>(field_), static_cast<ColorPart*>(bar_),
                            static_cast<ColorPart*>(samples_)}) {
        part->OnChosen = [this, part](const QColor& color) { take(color, part); };
    }
    auto* upper = new QHBoxLayout;
    upper->setSpacing(pixels(8, scale));
    upper->addWidget(field_);
    upper->addWidget(bar_);
    auto* all = new QVBoxLayout;
    all->setSpacing(pixels(8, scale));
    all->addLayout(upper);
    all->addWidget(samples_);
    return all;
}

QLayout* ColorDialog::numbers(double scale) {
    auto* grid = new QGridLayout;
    grid->addWidget(preview_, 0, 0, 1, 2);
    const QString words[] = {tr("&Red:"), tr("&Green:"), tr("&Blue:")};
    for (int i = 0; i < 3; ++i) {
        auto* line = new QLineEdit;
        line->setValidator(new QIntValidator(0, 255, line));
        line->setFixedWidth(pixels(kNumberUnits, scale));
        auto* label = new QLabel(words[i]);
        label->setBuddy(line);
        grid->addWidget(label, i + 1, 0);
        grid->addWidget(line, i + 1, 1);
        connect(line, &QLineEdit::textEdited, this, [this] { takeComponents(); });
        components_[static_cast<std::size_t>(i)] = line;
    }
    name_->setFixedWidth(pixels(kNameUnits, scale));
    auto* label = new QLabel(tr("&HTML:"));
    label->setBuddy(name_);
    grid->addWidget(label, 4, 0);
    grid->addWidget(name_, 4, 1);
    grid->setRowStretch(5, 1);
    connect(name_, &QLineEdit::textEdited, this, [this](const QString& text) {
        if (const QColor color(text.startsWith('#') ? text : '#' + text); color.isValid()) {
            take(color, name_);
        }
    });
    return grid;
}

void ColorDialog::takeComponents() {
    std::array<int, 3> values{};
    for (std::size_t i = 0; i < values.size(); ++i) {
        values[i] = std::min(components_[i]->text().toInt(), 255);
    }
    take({values[0], values[1], values[2]}, components_[0]);
}

void ColorDialog::take(const QColor& color, const QWidget* source) {
    color_ = color.toRgb();
    QPalette colors = preview_->palette();
    colors.setColor(QPalette::Window, color);
    preview_->setPalette(colors);
    if (source != field_) {
        field_->setColor(color);
    }
    if (source != bar_) {
        bar_->setBase(color);
    }
    if (source != samples_) {
        samples_->setColor(color);
    }
    if (source != components_[0]) {
        const int values[] = {color.red(), color.green(), color.blue()};
        for (std::size_t i = 0; i < components_.size(); ++i) {
            components_[i]->setText(QString::number(values[i]));
        }
    }
    if (source != name_) {
        name_->setText(color.name());
    }
}

}  // namespace ombrelia
