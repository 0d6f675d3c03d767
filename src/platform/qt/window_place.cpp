// Where a window stands and how large it is: on its screen, at that screen's scale and density.
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>
#include <cmath>

#include "platform/qt/qt_desktop.h"
#include "platform/qt/window_view.h"
#include "platform/screen_fit.h"

namespace ombrelia {

namespace {

ScreenBox boxOf(const QRect& rect) {
    return {double(rect.left()), double(rect.top()), double(rect.width()), double(rect.height())};
}

QPoint pointOf(const ScreenPlace& place) {
    return {static_cast<int>(place.left), static_cast<int>(place.top)};
}

}  // namespace

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

void WindowView::keepInside() {
    if (window_.DockedTo != nullptr || !canPlaceWindows()) {
        return;
    }
    const QRect own(pos(), frameGeometry().size());
    const double docked = std::ceil(desktop_.dockedWidth(window_) * scale_ / ratio_);
    const QPoint inside = pointOf(
        placeInside(boxOf(own), docked, boxOf(desktop_.screenOf(window_).availableGeometry())));
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
    const double docked = desktop_.dockedWidth(window_) * logicalPerUnit;
    const double offset = desktop_.offsetUnits() * logicalPerUnit;
    move(pointOf(openingPlace(width(), height(), docked, boxOf(desktop_.placeAround(window_)),
                              boxOf(desktop_.screenOf(window_).availableGeometry()), offset)));
    window_.Left = pos().x() / logicalPerUnit;
    window_.Top = pos().y() / logicalPerUnit;
}

bool WindowView::followRecord() {
    const double logicalPerUnit = scale_ / devicePixelRatioF();
    const ScreenBox beside{std::round(window_.Left * logicalPerUnit),
                           std::round(window_.Top * logicalPerUnit), double(width()),
                           double(height())};
    const QPoint target =
        pointOf(dockedPlace(beside, boxOf(desktop_.screenOf(window_).availableGeometry())));
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
