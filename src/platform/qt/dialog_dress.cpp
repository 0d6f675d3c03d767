#include "platform/qt/dialog_dress.h"

#include <QApplication>
#include <QFont>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPalette>
#include <QWindow>
#include <algorithm>
#include <cmath>

#include "platform/qt/palette_style.h"
#include "platform/qt/scaled_style.h"
#include "platform/qt/skin.h"

namespace ombrelia {

namespace {

constexpr double kLetterUnits = 9;
constexpr double kIconUnits = 24;
constexpr int kStopFace = 2;  // of the light

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

// %1 letters, %2 margin, %3 button width, %4 button height, %5 edge; all in pixels.
constexpr StyleText kDialogStyle = R"(
QDialog { background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 @panel, stop:1 @chrome_lo);
          border: %5px solid @edge; }
QLabel { color: @text; background: transparent; font-size: %1px; }
QLabel#title { font-weight: bold; }
QPushButton { color: @text; font-size: %1px; font-weight: bold; min-width: %3px; min-height: %4px;
              border: %5px solid @ink; border-radius: %2px;
              background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 @face_hi, stop:1 @face_lo); }
QPushButton:disabled { color: @edge_hi; }
QPushButton:hover, QPushButton:focus { border-color: @over_line; }
QPushButton:hover { background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 @over_hi, stop:1 @over_lo); }
QPushButton:pressed { background: @well; border-color: @amber; }
QComboBox, QLineEdit { min-height: %4px; font-size: %1px; }
QAbstractItemView::item { padding: %5px 0px; })";

// %1 margin, %2 text width.
constexpr StyleText kMessageStyle = R"(
QLabel#qt_msgbox_label { font-weight: bold; padding-top: %1px; }
QLabel#qt_msgbox_informativelabel { padding-bottom: %1px; min-width: %2px; })";

QString dialogStyle(double scale) {
    return kDialogStyle.sheet()
        .arg(pixels(11, scale))
        .arg(pixels(4, scale))
        .arg(pixels(64, scale))
        .arg(pixels(22, scale))
        .arg(std::max(1, pixels(1, scale)));
}

// The bold line at the top of a dialog, as wide as that.
class DialogTitle : public QLabel {
  public:
    DialogTitle(QDialog& dialog, double scale)
        : QLabel(dialog.windowTitle(), &dialog), height_(pixels(kTitleUnits, scale)) {
        setObjectName(QStringLiteral("title"));
        setTextFormat(Qt::PlainText);
        const QMargins margins = dialog.layout()->contentsMargins();
        dialog.layout()->setContentsMargins(margins + QMargins(0, height_, 0, 0));
        left_ = margins.left();
        top_ = margins.top() / 2;
        dialog.installEventFilter(this);
        place();
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Resize) {
            place();
        }
        return QLabel::eventFilter(watched, event);
    }
    void mousePressEvent(QMouseEvent* event) override {
        grabbed_ = event->globalPosition().toPoint() - window()->pos();
        if (event->button() == Qt::LeftButton) {
            isMoving_ = !window()->windowHandle()->startSystemMove();
        }
    }
    // Where the window system moves no windows.
    void mouseMoveEvent(QMouseEvent* event) override {
        if (isMoving_) {
            window()->move(event->globalPosition().toPoint() - grabbed_);
        }
    }
    void mouseReleaseEvent(QMouseEvent* /*event*/) override { isMoving_ = false; }

  private:
    static constexpr double kTitleUnits = 20;

    void place() { setGeometry(left_, top_, window()->width() - 2 * left_, height_); }

    int height_;
    int left_ = 0;
    int top_ = 0;
    bool isMoving_ = false;
    QPoint grabbed_;
};

}  // namespace

int pixels(double units, double scale) {
    return static_cast<int>(std::lround(units * scale));
}

void dressApplication(double scale) {
    const int letters = pixels(kLetterUnits, scale);
    if (QApplication::font().pixelSize() == letters) {
        return;
    }
    QApplication::setStyle(new ScaledStyle(scale));
    QApplication::setPalette(nightPalette());
    QFont font = QApplication::font();
    font.setPixelSize(letters);
    QApplication::setFont(font);
}

void dressDialog(QDialog& dialog, double scale) {
    dialog.setWindowFlag(Qt::FramelessWindowHint);
    dialog.setStyleSheet(dialogStyle(scale));
    static_cast<void>(dialog.sizeHint());  // makes the layout of those that wait with it
    new DialogTitle(dialog, scale);
}

void dressMessageBox(QMessageBox& box, Skin& skin, double scale, bool hasStopIcon) {
    box.setWindowFlag(Qt::FramelessWindowHint);
    box.setStyleSheet(dialogStyle(scale) +
                      kMessageStyle.sheet().arg(pixels(4, scale)).arg(pixels(190, scale)));
    if (hasStopIcon) {
        const int side = pixels(kIconUnits, scale);
        box.setIconPixmap(QPixmap::fromImage(skin.face({Picture::Traffic, kStopFace}, side, side)));
    }
}

}  // namespace ombrelia
