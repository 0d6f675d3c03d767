#include "platform/qt/dialog_dress.h"

#include <QApplication>
#include <QFont>
#include <QMessageBox>
#include <QPalette>
#include <QStyleFactory>
#include <cmath>

#include "platform/qt/skin.h"

namespace ombrelia {

namespace {

constexpr double kLetterUnits = 9;
constexpr double kIconUnits = 24;
constexpr int kStopFace = 2;  // of the light

int pixels(double units, double scale) {
    return static_cast<int>(std::lround(units * scale));
}

QPalette nightPalette() {
    const QColor text("#eef3fa");
    const QColor ground("#243044");
    const QColor well("#141c29");
    QPalette palette(ground);
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, well);
    palette.setColor(QPalette::AlternateBase, QColor("#1c2635"));
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::PlaceholderText, QColor("#b3c2d6"));
    palette.setColor(QPalette::Button, QColor("#364863"));
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::ToolTipBase, ground);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Highlight, QColor("#f2a83a"));
    palette.setColor(QPalette::HighlightedText, QColor("#0b111a"));
    palette.setColor(QPalette::Link, QColor("#58aee0"));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor("#7890b4"));
    }
    return palette;
}

// %1 letters, %2 margin, %3 button width, %4 button height, %5 edge, %6 text width; all in pixels.
constexpr const char* kMessageBoxStyle = R"(
QMessageBox { background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #2b3a51, stop:1 #1c2635);
              border: %5px solid #4c6285; }
QLabel { color: #eef3fa; background: transparent; font-size: %1px; }
QLabel#qt_msgbox_label { font-weight: bold; padding-top: %2px; }
QLabel#qt_msgbox_informativelabel { padding-bottom: %2px; min-width: %6px; }
* { dialogbuttonbox-buttons-have-icons: 0; }
QPushButton { color: #eef3fa; font-size: %1px; font-weight: bold; min-width: %3px; min-height: %4px;
              border: %5px solid #0b111a; border-radius: %2px;
              background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #445775, stop:1 #364863); }
QPushButton:hover, QPushButton:focus { border-color: #b4c9e6; }
QPushButton:hover { background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #566d90, stop:1 #4b6182); }
QPushButton:pressed { background: #141c29; border-color: #f2a83a; })";

}  // namespace

void dressApplication(double scale) {
    const int letters = pixels(kLetterUnits, scale);
    if (QApplication::font().pixelSize() == letters) {
        return;
    }
    if (QStyle* style = QStyleFactory::create(QStringLiteral("Fusion"))) {
        QApplication::setStyle(style);
    }
    QApplication::setPalette(nightPalette());
    QFont font = QApplication::font();
    font.setPixelSize(letters);
    QApplication::setFont(font);
}

void dressMessageBox(QMessageBox& box, Skin& skin, double scale, bool hasStopIcon) {
    box.setWindowFlag(Qt::FramelessWindowHint);
    box.setStyleSheet(QString(kMessageBoxStyle)
                          .arg(pixels(11, scale))
                          .arg(pixels(4, scale))
                          .arg(pixels(64, scale))
                          .arg(pixels(22, scale))
                          .arg(std::max(1, pixels(1, scale)))
                          .arg(pixels(190, scale)));
    if (hasStopIcon) {
        const int side = pixels(kIconUnits, scale);
        box.setIconPixmap(QPixmap::fromImage(skin.face({Picture::Traffic, kStopFace}, side, side)));
    }
}

}  // namespace ombrelia
