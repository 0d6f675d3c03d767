#include "platform/qt/label_text.h"

#include <QFontMetrics>
#include <QStringList>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

namespace ombrelia {

namespace {

// Distance of the lines of a wrapped text, in letter sizes.
constexpr double kLinePitch = 1.32;

Qt::Alignment alignmentOf(const Label& label) {
    switch (label.Align) {
        case TextAlign::Center:
            return Qt::AlignHCenter;
        case TextAlign::Right:
            return Qt::AlignRight;
        default:
            return Qt::AlignLeft;
    }
}

QFont fontOf(const Label& label, double scale) {
    return fontFor(label.FontSize * scale, label.Bold, label.Underline);
}

// A text on several lines, with more air between them than the letters ask for.
class Paragraphs {
  public:
    Paragraphs(const Label& label, int width, double scale)
        : layout_(shownText(label.Caption).replace(QLatin1Char('\n'), QChar(QChar::LineSeparator)),
                  fontOf(label, scale)),
          pitch_(std::round(label.FontSize * kLinePitch * scale)) {
        QTextOption option(alignmentOf(label));
        option.setWrapMode(QTextOption::WordWrap);
        layout_.setTextOption(option);
        layout_.beginLayout();
        for (QTextLine line = layout_.createLine(); line.isValid(); line = layout_.createLine()) {
            line.setLineWidth(width);
            line.setPosition({0, (layout_.lineCount() - 1) * pitch_});
        }
        layout_.endLayout();
    }

    void draw(QPainter& painter, const QPoint& corner) const { layout_.draw(&painter, corner); }

    QSize size() const {
        double width = 0;
        double height = 0;
        for (int i = 0; i < layout_.lineCount(); ++i) {
            width = std::max(width, layout_.lineAt(i).naturalTextWidth());
            height = i * pitch_ + layout_.lineAt(i).height();
        }
        return {static_cast<int>(std::ceil(width)), static_cast<int>(std::ceil(height))};
    }

  private:
    QTextLayout layout_;
    double pitch_;
};

}  // namespace

QFont fontFor(double sizeDevice, bool isBold, bool isUnderlined) {
    QFont font;
    font.setFamilies(
        {QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans"), QStringLiteral("Sans Serif")});
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(sizeDevice))));
    font.setBold(isBold);
    font.setUnderline(isUnderlined);
    return font;
}

QString shownText(const std::string& caption) {
    return QString::fromStdString(caption).replace(QStringLiteral("&&"), QStringLiteral("&"));
}

void drawLabelText(QPainter& painter, const Label& label, const QRect& place, double scale) {
    if (label.WordWrap) {
        Paragraphs(label, place.width(), scale).draw(painter, place.topLeft());
        return;
    }
    painter.setFont(fontOf(label, scale));
    painter.drawText(place, static_cast<int>(Qt::AlignVCenter | alignmentOf(label)),
                     shownText(label.Caption));
}

QSize textSizeDevice(const Label& label, double scale) {
    const int width = static_cast<int>(std::lround(label.Width * scale));
    if (label.WordWrap) {
        return Paragraphs(label, width, scale).size();
    }
    const QFontMetrics metrics(fontOf(label, scale));
    return metrics.boundingRect(QRect(0, 0, width, 0), 0, shownText(label.Caption)).size();
}

}  // namespace ombrelia
