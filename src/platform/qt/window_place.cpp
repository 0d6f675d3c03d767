// Where a window stands and how large it is: on its screen, at that screen's scale and density.
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>
#include <cmath>

#include "platform/qt/qt_desktop.h"
#include "platform/qt/window_view.h"
#include "platform/screen_fit.h"

namespace ombrelia {

bool canPlaceWindows() {
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

void WindowView::takeSize() {
    ratio_ = desktop_.screenOf(window_).devicePixelRatio();
    const double logicalPerUnit = scale_ / ratio_;
    const QSize size(static_cast<int>(std::ceil(window_.Width * logicalPerUnit)),
                     static_cast<int>(std::ceil(window_.Height * logicalPerUnit)));
    if (frame_ != nullptr) {
        frame_->place(size, logicalPerUnit);
    } else {
        setFixedSize(size);
    }
}

void WindowView::fitScreen() {
    const double scale = desktop_.scaleOf(window_);
    const double ratio = desktop_.screenOf(window_).devicePixelRatio();
    if (scale != scale_ || ratio != ratio_) {
        scale_ = scale;
        takeSize();
        tellPlace();
        look_.forget();
        sync();
        desktop_.rescaleDocked(window_);
    }
    keepInside();
}

// What docks to it counts where there is room for both.
void WindowView::keepInside() {
    if (window_.DockedTo != nullptr || !canPlaceWindows()) {
        return;
    }
    const QRect free = desktop_.screenOf(window_).availableGeometry();
    const QSize own = frameGeometry().size();
    const auto docked =
        static_cast<int>(std::ceil(desktop_.dockedWidth(window_) * scale_ / ratio_));
    const int width = own.width() + (own.width() + docked <= free.width() ? docked : 0);
    const QPoint inside(
        static_cast<int>(keptInside(pos().x(), width, free.left(), free.width())),
        static_cast<int>(keptInside(pos().y(), own.height(), free.top(), free.height())));
    if (inside != pos()) {
        move(inside);
    }
}

void WindowView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    connect(windowHandle(), &QWindow::screenChanged, &desktop_, &QtDesktop::fitSoon,
            Qt::UniqueConnection);
}

void WindowView::place() {
    takeSize();
    if (window_.DockedTo != nullptr) {
        followRecord();
        return;
    }
    if (!canPlaceWindows()) {
        window_.Left = 0;
        window_.Top = 0;
        return;
    }
    const double logicalPerUnit = scale_ / ratio_;
    const QRect free = desktop_.screenOf(window_).availableGeometry();
    const QRect around = desktop_.placeAround(window_);
    const double docked = desktop_.dockedWidth(window_) * logicalPerUnit;
    const double offset = desktop_.offsetUnits() * logicalPerUnit;
    const double left = around.left() + (around.width() - width() - docked) / 2 + offset;
    const bool hasRoom = width() + docked <= free.width();
    const double middle = around.top() + (around.height() - height()) / 2.0 + offset;
    const double top = hasRoom ? middle : free.top();
    move(static_cast<int>(keptInside(left, width(), free.left(), free.width())),
         static_cast<int>(keptInside(top, height(), free.top(), free.height())));
    window_.Left = pos().x() / logicalPerUnit;
    window_.Top = pos().y() / logicalPerUnit;
}

bool WindowView::followRecord() {
    const double logicalPerUnit = scale_ / devicePixelRatioF();
    const QRect free = desktop_.screenOf(window_).availableGeometry();
    const double wished = std::round(window_.Left * logicalPerUnit);
    // Never off the screen. Where there is no room beside its host it lies at the bottom, over as
    // little of it as can be.
    const double left = keptInside(wished, width(), free.left(), free.width());
    const double lowest = std::max(free.top(), free.top() + free.height() - height());
    const double top = left == wished ? std::round(window_.Top * logicalPerUnit) : lowest;
    const QPoint target(static_cast<int>(left), static_cast<int>(top));
    if (target == pos()) {
        return false;
    }
    move(target);
    return true;
}

void WindowView::moveEvent(QMoveEvent* /*event*/) {
    tellPlace();
}

void WindowView::tellPlace() {
    const double logicalPerUnit = scale_ / devicePixelRatioF();
    window_.Left = pos().x() / logicalPerUnit;
    window_.Top = pos().y() / logicalPerUnit;
    desktop_.wakeTimers();
}

}  // namespace ombrelia
