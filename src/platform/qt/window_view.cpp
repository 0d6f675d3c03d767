#include "platform/qt/window_view.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QStyleHints>
#include <QWheelEvent>
#include <QWindow>
#include <cmath>
#include <utility>

#include "platform/dispatch.h"
#include "platform/qt/accessibility.h"
#include "platform/qt/key_mapping.h"
#include "platform/qt/list_menu.h"
#include "platform/qt/palette_style.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/window_painter.h"

namespace ombrelia {

namespace {

MouseButton buttonOf(Qt::MouseButton button) {
    switch (button) {
        case Qt::LeftButton:
            return MouseButton::Left;
        case Qt::RightButton:
            return MouseButton::Right;
        case Qt::MiddleButton:
            return MouseButton::Middle;
        default:
            return MouseButton::None;
    }
}

Qt::WindowFlags flagsOf(const Window& window) {
    if (window.DockedTo != nullptr && !canPlaceWindows()) {
        // The one kind of window that a Wayland compositor keeps at a place beside another.
        return Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus;
    }
    if (window.DockedTo != nullptr) {
        return Qt::Tool | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus;
    }
    if (window.HasFrame) {
        return Qt::Window;
    }
    return Qt::Window | Qt::FramelessWindowHint;
}

}  // namespace

WindowView::WindowView(Window& window, QtDesktop& desktop)
    : QWidget(nullptr, flagsOf(window)),
      window_(window),
      desktop_(desktop),
      scale_(desktop.scaleOf(window)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_NoSystemBackground);
    if (window.DockedTo != nullptr) {
        setAttribute(Qt::WA_ShowWithoutActivating);
    }
    setMouseTracking(true);
    setWindowTitle(QString::fromStdString(window.Caption));
    if (window.Ground != nullptr) {
        frame_ = std::make_unique<FrameParts>(*this, window, desktop);
    }
}

QRect WindowView::logicalRect(const PixelRect& device) const {
    const double ratio = devicePixelRatioF();
    return QRectF(device.left / ratio, device.top / ratio + menuHeight(), device.width() / ratio,
                  device.height() / ratio)
        .toAlignedRect();
}

bool WindowView::sync() {
    if (const QString title = QString::fromStdString(window_.Caption); title != windowTitle()) {
        setWindowTitle(title);
    }
    bool isDifferent = window_.DockedTo != nullptr && followRecord();
    isDifferent = look_.update(window_, scale_, [this](const PixelRect& place, Control* part) {
        if (part == nullptr) {
            update();
            return;
        }
        update(logicalRect(place));
        announceChange(*this, *part);
    }) || isDifferent;
    if (frame_ != nullptr) {
        frame_->sync(scale_ / devicePixelRatioF());
    }
    return isDifferent;
}

void WindowView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const double ratio = devicePixelRatioF();
    if (frame_ != nullptr) {
        painter.fillRect(event->rect(),
                         toolkitColor(palette::kChromeLo));  // units that are not whole
    }
    painter.translate(0, menuHeight());
    painter.scale(1 / ratio, 1 / ratio);
    ToolkitBrush brush(painter, desktop_.skin());
    for (const QRect& part : event->region()) {
        const QRect device = QRectF(part.x() * ratio, (part.y() - menuHeight()) * ratio,
                                    part.width() * ratio, part.height() * ratio)
                                 .toAlignedRect();
        paintWindow(brush, window_, pixelRect(device), scale_);
    }
    desktop_.painted(window_);
}

// Where the pointer is, in device pixels from the corner below the menus.
void WindowView::handOver(PointerKind kind, const QPointF& logical, Qt::MouseButton button,
                          double notches) {
    const QPointF device = (logical - QPointF(0, menuHeight())) * devicePixelRatioF();
    const PointerInput input{kind, device.x(), device.y(), buttonOf(button), notches};
    desktop_.input(
        [&window = window_, scale = scale_, input] { pointerInput(window, scale, input); });
}

void WindowView::press(PointerKind kind, QMouseEvent* event) {
    if (event->buttons() == event->button()) {  // no other one is held
        pressGlobal_ = event->globalPosition().toPoint();
        pressCorner_ = pos();
        isMoveArmed_ = false;
        isFollowing_ = false;
    }
    handOver(kind, event->position(), event->button());
}

void WindowView::openList(ListBox& list) {
    const QRect field = logicalRect(deviceRect(list, scale_));
    const QRect free = desktop_.screenOf(window_).availableGeometry();
    openListMenu(*this, list, field, free, scale_, [this, &list](int entry) {
        if (!window_.Loaded || entry >= static_cast<int>(list.List.size()) ||
            !ombrelia::isEnabled(list)) {
            return;
        }
        list.ListIndex = entry;
        list.Caption = list.List[static_cast<std::size_t>(entry)];
        desktop_.run([&list] { deliver(list, Event::Click); });
    });
}

void WindowView::showDragged(Control& source) {
    const PixelRect place = deviceRect(source, scale_);
    QPixmap icon =
        QPixmap::fromImage(desktop_.skin().face(source.Face, place.width(), place.height()));
    icon.setDevicePixelRatio(devicePixelRatioF());
    setCursor(QCursor(icon));
}

void WindowView::mousePressEvent(QMouseEvent* event) {
    press(PointerKind::Press, event);
}

void WindowView::mouseDoubleClickEvent(QMouseEvent* event) {
    press(PointerKind::SecondPress, event);
}

bool WindowView::moveWindow(QMouseEvent* event) {
    const QPoint moved = event->globalPosition().toPoint() - pressGlobal_;
    if (isFollowing_) {
        move(pressCorner_ + moved);
        return true;
    }
    if (!isMoveArmed_) {
        return false;
    }
    if (moved.manhattanLength() < QGuiApplication::styleHints()->startDragDistance()) {
        return true;
    }
    isMoveArmed_ = false;
    if (windowHandle()->startSystemMove()) {
        forgetPress();
    } else {
        isFollowing_ = true;
        move(pressCorner_ + moved);
    }
    return true;
}

void WindowView::mouseMoveEvent(QMouseEvent* event) {
    if (!moveWindow(event)) {
        handOver(PointerKind::Move, event->position());
    }
}

void WindowView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->buttons() == Qt::NoButton) {
        isMoveArmed_ = false;
        isFollowing_ = false;
    }
    handOver(PointerKind::Release, event->position(), event->button());
}

void WindowView::wheelEvent(QWheelEvent* event) {
    constexpr double kAngleOfNotch = QWheelEvent::DefaultDeltasPerStep;
    const int angle = event->angleDelta().y();  // of a wheel turned away from the user, above 0
    handOver(PointerKind::Wheel, event->position(), Qt::NoButton, -angle / kAngleOfNotch);
}

// The toolkit keeps back a move to the place where the pointer came in.
void WindowView::enterEvent(QEnterEvent* event) {
    handOver(PointerKind::Move, event->position());
}

void WindowView::leaveEvent(QEvent* /*event*/) {
    handOver(PointerKind::Leave, {});
}

void WindowView::closeEvent(QCloseEvent* event) {
    event->ignore();
    desktop_.run([this] { deliverClose(window_); });
}

void WindowView::keyPressEvent(QKeyEvent* event) {
    desktop_.input([&window = window_, code = virtualKeyOf(*event)] { keyInput(window, code); });
}

void WindowView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (frame_ != nullptr) {
        frame_->resized(scale_ / devicePixelRatioF());
    }
}

void WindowView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && frame_ != nullptr && window_.Visible &&
        window_.Minimized != isMinimized()) {
        desktop_.run([this] { deliverMinimized(window_, isMinimized()); });
        return;
    }
    desktop_.wakeTimers();
}

}  // namespace ombrelia
