// Where a window stands and how large it is: on its screen, at that screen's scale and density.
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>
#include <cmath>

#include "platform/qt/qt_desktop.h"
#include "platform/qt/window_view.h"

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
    if (scale == scale_ && ratio == ratio_) {
        return;
    }
    scale_ = scale;
    takeSize();
    shown_.clear();
    sync();
    desktop_.rescaleDocked(window_);
}

void WindowView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    connect(windowHandle(), &QWindow::screenChanged, this, &WindowView::fitScreen,
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
    const double docked = desktop_.dockedWidth(window_) * logicalPerUnit;
    const int left = free.left() + static_cast<int>((free.width() - width() - docked) / 2);
    const int top = free.top() + (free.height() - height()) / 2;
    move(std::max(free.left(), left), std::max(free.top(), top));
    window_.Left = pos().x() / logicalPerUnit;
    window_.Top = pos().y() / logicalPerUnit;
}

bool WindowView::followRecord() {
    const double logicalPerUnit = scale_ / devicePixelRatioF();
    const QPoint target(static_cast<int>(std::lround(window_.Left * logicalPerUnit)),
                        static_cast<int>(std::lround(window_.Top * logicalPerUnit)));
    if (target == pos()) {
        return false;
    }
    move(target);
    return true;
}

void WindowView::moveEvent(QMoveEvent* /*event*/) {
    const double logicalPerUnit = scale_ / devicePixelRatioF();
    window_.Left = pos().x() / logicalPerUnit;
    window_.Top = pos().y() / logicalPerUnit;
    desktop_.wakeTimers();
}

}  // namespace ombrelia
