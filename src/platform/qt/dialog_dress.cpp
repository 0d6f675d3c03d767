#include "platform/qt/dialog_dress.h"

#include <QApplication>
#include <QFont>
#include <QMessageBox>
#include <QPalette>
#include <QStyleFactory>
#include <cmath>

#include "platform/qt/palette_style.h"
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
    const QColor text = toolkitColor(palette::kText);
    const QColor ground = toolkitColor(palette::kChrome);
    const QColor well = toolkitColor(palette::kWell);
    QPalette colors(ground);
    colors.setColor(QPalette::Window, ground);
    colors.setColor(QPalette::WindowText, text);
    colors.setColor(QPalette::Base, well);
    colors.setColor(QPalette::AlternateBase, toolkitColor(palette::kChromeLo));
    colors.setColor(QPalette::Text, text);
    colors.setColor(QPalette::PlaceholderText, toolkitColor(palette::kTextDim));
    colors.setColor(QPalette::Button, toolkitColor(palette::kFaceLo));
    colors.setColor(QPalette::ButtonText, text);
    colors.setColor(QPalette::ToolTipBase, ground);
    colors.setColor(QPalette::ToolTipText, text);
    colors.setColor(QPalette::Highlight, toolkitColor(palette::kAmber));
    colors.setColor(QPalette::HighlightedText, toolkitColor(palette::kInk));
    colors.setColor(QPalette::Link, toolkitColor(palette::kWater));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        colors.setColor(QPalette::Disabled, role, toolkitColor(palette::kEdgeHi));
    }
    return colors;
}

// %1 letters, %2 margin, %3 button width, %4 button height, %5 edge, %6 text width; all in pixels.
constexpr StyleText kMessageBoxStyle = R"(
QMessageBox { background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 @panel, stop:1 @chrome_lo);
              border: %5px solid @edge; }
QLabel { color: @text; background: transparent; font-size: %1px; }
QLabel#qt_msgbox_label { font-weight: bold; padding-top: %2px; }
QLabel#qt_msgbox_informativelabel { padding-bottom: %2px; min-width: %6px; }
* { dialogbuttonbox-buttons-have-icons: 0; }
QPushButton { color: @text; font-size: %1px; font-weight: bold; min-width: %3px; min-height: %4px;
              border: %5px solid @ink; border-radius: %2px;
              background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 @face_hi, stop:1 @face_lo); }
QPushButton:hover, QPushButton:focus { border-color: @over_line; }
QPushButton:hover { background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 @over_hi, stop:1 @over_lo); }
QPushButton:pressed { background: @well; border-color: @amber; })";

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
    box.setStyleSheet(kMessageBoxStyle.sheet()
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
