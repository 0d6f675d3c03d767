#include "platform/qt/label_text.h"

#include <QFontMetrics>
#include <QStringList>
#include <algorithm>
#include <cmath>

namespace ombrelia {

namespace {

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

int textFlags(const Label& label) {
    if (label.WordWrap) {
        return static_cast<int>(Qt::AlignTop | alignmentOf(label)) |
               static_cast<int>(Qt::TextWordWrap);
    }
    return static_cast<int>(Qt::AlignVCenter | alignmentOf(label));
}

QSize textSizeDevice(const Label& label, double scale) {
    const QFontMetrics metrics(fontFor(label.FontSize * scale, label.Bold, label.Underline));
    const QRect room(0, 0, static_cast<int>(std::lround(label.Width * scale)), 0);
    return metrics.boundingRect(room, textFlags(label), shownText(label.Caption)).size();
}

}  // namespace ombrelia
