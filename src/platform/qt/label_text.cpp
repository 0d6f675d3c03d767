#include "platform/qt/label_text.h"

#include <QFontMetrics>
#include <QStringList>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

namespace ombrelia {

namespace {

Qt::Alignment alignmentOf(TextAlign align) {
    switch (align) {
        case TextAlign::Center:
            return Qt::AlignHCenter;
        case TextAlign::Right:
            return Qt::AlignRight;
        default:
            return Qt::AlignLeft;
    }
}

QFont fontOf(const TextLook& look, double scale) {
    return fontFor(look.size * scale, look.isBold, look.isUnderlined);
}

// A text on several lines, with more air between them than the letters ask for.
class Paragraphs {
  public:
    Paragraphs(const TextLook& look, int width, double scale)
        : layout_(QString::fromStdString(look.text).replace(QLatin1Char('\n'),
                                                            QChar(QChar::LineSeparator)),
                  fontOf(look, scale)),
          pitch_(std::round(look.size * kLinePitch * scale)) {
        QTextOption option(alignmentOf(look.align));
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

void drawText(QPainter& painter, const TextLook& look, const QRect& place, double scale) {
    if (look.isWrapped) {
        Paragraphs(look, place.width(), scale).draw(painter, place.topLeft());
        return;
    }
    painter.setFont(fontOf(look, scale));
    painter.drawText(place, static_cast<int>(Qt::AlignVCenter | alignmentOf(look.align)),
                     QString::fromStdString(look.text));
}

QSize textSizeDevice(const TextLook& look, int width, double scale) {
    if (look.isWrapped) {
        return Paragraphs(look, width, scale).size();
    }
    const QFontMetrics metrics(fontOf(look, scale));
    return metrics.boundingRect(QRect(0, 0, width, 0), 0, QString::fromStdString(look.text)).size();
}

}  // namespace ombrelia
