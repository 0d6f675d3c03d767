#include "platform/qt/window_view.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QStyleHints>
#include <QWindow>
#include <cmath>
#include <utility>

#include "platform/dispatch.h"
#include "platform/qt/accessibility.h"
#include "platform/qt/key_mapping.h"
#include "platform/qt/list_menu.h"
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

WindowView::Shown WindowView::lookOf(const Control& control) const {
    Shown look;
    look.rect = visibleDeviceRect(control, scale_);
    const bool isLine = control.Kind == ControlKind::Line;
    look.corner = deviceRect(isLine ? *control.Parent : control, scale_).topLeft();
    look.face = control.Face;
    look.caption = control.Caption;
    if (control.Kind == ControlKind::Label) {
        look.style = static_cast<const Label&>(control).ForeColor;
    } else if (control.Kind == ControlKind::PictureBox) {
        const auto& box = static_cast<const PictureBox&>(control);
        look.revision = box.Canvas.revision();
        look.style = box.BackColor;
    } else if (control.Kind == ControlKind::Line) {
        const auto& line = static_cast<const Line&>(control);
        look.numbers = {line.X1, line.Y1, line.X2, line.Y2};
        look.style = line.BorderColor + (static_cast<std::uint64_t>(line.BorderWidth) << 32U);
    }
    return look;
}

QRect WindowView::logicalRect(const QRect& device) const {
    const double ratio = devicePixelRatioF();
    return QRectF(device.x() / ratio, device.y() / ratio + menuHeight(), device.width() / ratio,
                  device.height() / ratio)
        .toAlignedRect();
}

bool WindowView::sync() {
    if (const QString title = QString::fromStdString(window_.Caption); title != windowTitle()) {
        setWindowTitle(title);
    }
    bool isDifferent = window_.DockedTo != nullptr && followRecord();
    if (std::exchange(shownFace_, window_.Face) != window_.Face) {
        update();
        isDifferent = true;
    }
    if (shown_.size() != window_.Controls.size()) {
        shown_.assign(window_.Controls.size(), {});
        update();
    }
    for (std::size_t i = 0; i < shown_.size(); ++i) {
        Shown look = lookOf(*window_.Controls[i]);
        if (look != shown_[i]) {
            update(logicalRect(look.rect | shown_[i].rect));
            shown_[i] = std::move(look);
            announceChange(*this, *window_.Controls[i]);
            isDifferent = true;
        }
    }
    if (frame_ != nullptr) {
        frame_->sync(scale_ / devicePixelRatioF());
    }
    return isDifferent;
}

void WindowView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const double ratio = devicePixelRatioF();
    if (frame_ != nullptr) {
        painter.fillRect(event->rect(), QColor(0x1c, 0x26, 0x35));  // units that are not whole
    }
    painter.translate(0, menuHeight());
    painter.scale(1 / ratio, 1 / ratio);
    const PaintTools tools{desktop_.skin(), scale_};
    for (const QRect& part : event->region()) {
        const QRect device = QRectF(part.x() * ratio, (part.y() - menuHeight()) * ratio,
                                    part.width() * ratio, part.height() * ratio)
                                 .toAlignedRect();
        paintWindow(painter, window_, device, tools);
    }
    desktop_.painted(window_);
}

QPointF WindowView::unitsOf(const QPointF& logical) const {
    return (logical - QPointF(0, menuHeight())) * (devicePixelRatioF() / scale_);
}

// The unit in which the middle of the device pixel lies.
QPointF WindowView::wholeUnits(const QPointF& units) const {
    const double middle = 0.5 / scale_;
    return {std::floor(units.x() + middle), std::floor(units.y() + middle)};
}

void WindowView::deliverTo(Control& control, Event event, MouseButton button,
                           const QPointF& units) {
    const Point corner =
        control.Kind == ControlKind::Window ? Point{0, 0} : cornerInWindow(control);
    const bool isWhole =
        control.Kind == ControlKind::Image && static_cast<Image&>(control).InWholeUnits;
    const QPointF place = isWhole ? wholeUnits(units) : units;
    desktop_.run(
        [&] { deliverMouse(control, event, button, place.x() - corner.x, place.y() - corner.y); });
}

void WindowView::press(QMouseEvent* event) {
    const QPointF units = unitsOf(event->position());
    pressGlobal_ = event->globalPosition().toPoint();
    pressCorner_ = pos();
    isMoveArmed_ = false;
    isFollowing_ = false;
    Control& under = controlAt(window_, units.x(), units.y());
    if (under.Kind == ControlKind::ListBox) {
        if (event->button() == Qt::LeftButton && ombrelia::isEnabled(under)) {
            openList(static_cast<ListBox&>(under));
        }
        return;
    }
    captured_ = &under;
    heldButton_ = buttonOf(event->button());
    deliverTo(*captured_, Event::MouseDown, heldButton_, units);
}

void WindowView::openList(ListBox& list) {
    const QRect place = deviceRect(list, scale_);
    const QPoint corner = mapToGlobal(logicalRect(place).bottomLeft() + QPoint(0, 1));
    openListMenu(*this, list, corner, place.width(), scale_, [this, &list](int entry) {
        if (!window_.Loaded || entry >= static_cast<int>(list.List.size()) ||
            !ombrelia::isEnabled(list)) {
            return;
        }
        list.ListIndex = entry;
        list.Caption = list.List[static_cast<std::size_t>(entry)];
        desktop_.run([&list] { deliver(list, Event::Click); });
    });
}

void WindowView::beginDrag(Control& source) {
    dragged_ = &source;
    const QRect place = deviceRect(source, scale_);
    QPixmap icon =
        QPixmap::fromImage(desktop_.skin().face(source.Face, place.width(), place.height()));
    icon.setDevicePixelRatio(devicePixelRatioF());
    setCursor(QCursor(icon));
}

void WindowView::deliverDrag(Event event, const QPointF& units) {
    Control& under = controlAt(window_, units.x(), units.y());
    EventArgs args;
    args.Dragged = dragged_;
    desktop_.run([&] { deliver(under, event, args); });
}

void WindowView::mousePressEvent(QMouseEvent* event) {
    if (captured_ != nullptr) {
        return;  // one button at a time
    }
    isSecondPress_ = false;
    press(event);
}

void WindowView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (captured_ != nullptr) {
        return;
    }
    const QPointF units = unitsOf(event->position());
    Control& control = controlAt(window_, units.x(), units.y());
    if (control.handlerOf(Event::DblClick) == nullptr) {
        // Nothing waits for a double click here: the second press is a press like the first.
        isSecondPress_ = false;
        press(event);
        return;
    }
    isSecondPress_ = true;
    captured_ = &control;
    heldButton_ = buttonOf(event->button());
    deliverTo(control, Event::DblClick, heldButton_, units);
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
        captured_ = nullptr;
    } else {
        isFollowing_ = true;
        move(pressCorner_ + moved);
    }
    return true;
}

void WindowView::mouseMoveEvent(QMouseEvent* event) {
    if (moveWindow(event)) {
        return;
    }
    const QPointF units = unitsOf(event->position());
    if (dragged_ != nullptr) {
        deliverDrag(Event::DragOver, units);
    } else if (captured_ != nullptr) {
        deliverTo(*captured_, Event::MouseMove, heldButton_, units);
    } else {
        deliverTo(controlAt(window_, units.x(), units.y()), Event::MouseMove, MouseButton::None,
                  units);
    }
}

void WindowView::mouseReleaseEvent(QMouseEvent* event) {
    isMoveArmed_ = false;
    isFollowing_ = false;
    if (captured_ == nullptr || buttonOf(event->button()) != heldButton_) {
        return;
    }
    const QPointF units = unitsOf(event->position());
    Control& control = *captured_;
    const MouseButton button = heldButton_;
    captured_ = nullptr;
    heldButton_ = MouseButton::None;
    if (dragged_ != nullptr) {
        unsetCursor();
        deliverDrag(Event::DragDrop, units);
        dragged_ = nullptr;
        return;
    }
    const QPointer<WindowView> self(this);
    deliverTo(control, Event::MouseUp, button, units);
    if (self.isNull() || !window_.Loaded) {
        return;
    }
    const bool isInside = &controlAt(window_, units.x(), units.y()) == &control;
    if (button == MouseButton::Left && isInside && !isSecondPress_) {
        deliverTo(control, Event::Click, button, units);
    }
}

void WindowView::pressControl(Control& control) {
    const Point corner = cornerInWindow(control);
    const QPointF middle(corner.x + control.Width / 2, corner.y + control.Height / 2);
    const QPointer<WindowView> self(this);
    for (const Event event : {Event::MouseDown, Event::MouseUp, Event::Click}) {
        if (!self.isNull() && window_.Loaded) {
            deliverTo(control, event, MouseButton::Left, middle);
        }
    }
}

void WindowView::leaveEvent(QEvent* /*event*/) {
    if (captured_ == nullptr && window_.Loaded) {
        deliverTo(window_, Event::MouseMove, MouseButton::None, QPointF(-1, -1));
    }
}

void WindowView::closeEvent(QCloseEvent* event) {
    event->ignore();
    desktop_.run([this] { deliverClose(window_); });
}

void WindowView::keyPressEvent(QKeyEvent* event) {
    if (window_.handlerOf(Event::KeyDown) == nullptr) {
        QWidget::keyPressEvent(event);
        return;
    }
    EventArgs args;
    args.KeyCode = virtualKeyOf(*event);
    desktop_.run([&] { deliver(window_, Event::KeyDown, args); });
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
