#include "platform/qt/frame_parts.h"

#include <QAction>
#include <QMenu>
#include <QWindow>
#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/dispatch.h"
#include "platform/qt/palette_style.h"
#include "platform/qt/qt_desktop.h"

namespace ombrelia {

namespace {

// Narrower than this the menus do not fit.
constexpr double kLeastWidthUnits = 132;

constexpr double kMenuTextUnits = 12;

// %1: size of the text; %2: margin across, %3: margin above and below an entry; logical pixels.
constexpr StyleText kMenuDress =
    "QMenuBar, QMenu { background: @chrome_lo; color: @text; font-size: %1px; }"
    "QMenuBar::item { background: transparent; padding: %3px %2px; border-radius: 3px; }"
    "QMenuBar::item:selected { background: @face_lo; }"
    "QMenu { border: 1px solid @edge; padding: %3px; }"
    "QMenu::item { padding: %3px %2px; }"
    "QMenu::item:selected { background: @face_lo; }"
    "QMenu::item:disabled { color: @edge_hi; }"
    "QMenu::item:checked { color: @amber; }"
    "QMenu::separator { height: 1px; background: @edge; margin: %3px; }";

constexpr StyleText kBarDress =
    "QScrollBar:vertical { background: @well; border: 1px solid @edge; margin: 0; }"
    "QScrollBar::handle:vertical { background: @edge; border: 1px solid @text_dim;"
    " border-radius: 3px; min-height: 24px; }"
    "QScrollBar::handle:vertical:hover { background: @edge_hi; }"
    "QScrollBar::handle:vertical:pressed { background: @amber; }"
    "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0; }"
    "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background: none; }";

int logical(double units, double logicalPerUnit) {
    return static_cast<int>(std::lround(units * logicalPerUnit));
}

}  // namespace

FrameParts::FrameParts(QWidget& host, Window& window, QtDesktop& desktop)
    : host_(host), window_(window), desktop_(desktop) {
    sinceMade_.start();
    makeMenus();
    for (Control* control : window.Controls) {
        if (control->Kind == ControlKind::ScrollBar) {
            makeBar(static_cast<ScrollBar&>(*control));
        }
    }
}

void FrameParts::makeMenus() {
    std::map<Control*, QMenu*> menus;
    for (Control* control : window_.Controls) {
        if (control->Kind != ControlKind::MenuItem) {
            continue;
        }
        auto* item = static_cast<MenuItem*>(control);
        const QString caption = QString::fromStdString(item->Caption);
        if (item->Parent == &window_) {
            if (menuBar_ == nullptr) {
                menuBar_ = new QMenuBar(&host_);
                menuBar_->setNativeMenuBar(false);
            }
            menus[item] = menuBar_->addMenu(caption);
        } else if (caption == QStringLiteral("-")) {
            menus[item->Parent]->addSeparator();
        } else {
            QAction* action = menus[item->Parent]->addAction(caption);
            QObject::connect(action, &QAction::triggered, &host_, [this, item] {
                desktop_.input([item] { deliver(*item, Event::Click); });
            });
            actions_[item] = action;
        }
    }
}

void FrameParts::makeBar(ScrollBar& record) {
    auto* bar = new QScrollBar(Qt::Vertical, &host_);
    bar->setFocusPolicy(Qt::NoFocus);  // keys are the window's
    bar->setStyleSheet(kBarDress.sheet());
    bar->setAccessibleName(QString::fromStdString(record.AccessibleName));
    bar->setRange(record.Min, record.Max);
    bar->setPageStep(record.LargeChange);
    bar->setValue(record.Value);
    bars_[&record] = {bar, record.Value};
    QObject::connect(bar, &QScrollBar::valueChanged, &host_,
                     [this, &record, bar] { moveBar(record, *bar); });
    QObject::connect(bar, &QScrollBar::sliderReleased, &host_,
                     [this, &record, bar] { settleBar(record, *bar); });
}

// A thumb that is being dragged scrolls; any other new value, and the drag's end, is a change.
void FrameParts::moveBar(ScrollBar& record, const QScrollBar& bar) {
    record.Value = bar.value();
    if (bar.isSliderDown()) {
        desktop_.input([&record] { deliver(record, Event::Scroll); });
    } else {
        settleBar(record, bar);
    }
}

void FrameParts::settleBar(ScrollBar& record, const QScrollBar& bar) {
    if (std::exchange(bars_[&record].settled, bar.value()) != bar.value()) {
        desktop_.input([&record] { deliver(record, Event::Change); });
    }
}

int FrameParts::menuHeight() const {
    return menuBar_ == nullptr ? 0 : menuBar_->sizeHint().height();
}

void FrameParts::place(const QSize& size, double logicalPerUnit) {
    if (menuBar_ != nullptr) {
        menuBar_->setStyleSheet(kMenuDress.sheet()
                                    .arg(logical(kMenuTextUnits, logicalPerUnit))
                                    .arg(logical(10, logicalPerUnit))
                                    .arg(logical(3, logicalPerUnit)));
        menuBar_->ensurePolished();
    }
    const QSize whole(size.width(), size.height() + menuHeight());
    if (window_.handlerOf(Event::Resize) == nullptr) {
        host_.setFixedSize(whole);
    } else {
        host_.setMinimumWidth(logical(kLeastWidthUnits, logicalPerUnit));
        host_.resize(whole);
    }
    static_cast<void>(host_.winId());  // makes the system's window
    host_.windowHandle()->installEventFilter(this);
}

void FrameParts::resized(double logicalPerUnit) {
    if (menuBar_ != nullptr) {
        menuBar_->setGeometry(0, 0, host_.width(), menuHeight());
    }
    const auto units = [logicalPerUnit](int pixels) {
        return std::max(0, static_cast<int>(std::floor(pixels / logicalPerUnit)));
    };
    const int width = units(host_.width());
    const int height = units(host_.height() - menuHeight());
    if (window_.Visible && (width != window_.Width || height != window_.Height)) {
        desktop_.run([&] { deliverResize(window_, width, height); });
    }
}

void FrameParts::sync(double logicalPerUnit) {
    for (const auto& [item, action] : actions_) {
        action->setEnabled(item->Enabled);
        action->setCheckable(item->Checked);
        action->setChecked(item->Checked);
    }
    for (auto& [record, bar] : bars_) {
        bar.widget->setGeometry(logical(record->Left, logicalPerUnit),
                                logical(record->Top, logicalPerUnit) + menuHeight(),
                                logical(record->Width, logicalPerUnit),
                                logical(record->Height, logicalPerUnit));
        if (!bar.widget->isSliderDown() && bar.widget->value() != record->Value) {
            bar.settled = record->Value;
            bar.widget->setValue(record->Value);
        }
    }
}

bool FrameParts::eventFilter(QObject* watched, QEvent* event) {
    const QWindow* system = host_.windowHandle();
    if (event->type() == QEvent::Expose && system != nullptr && system->isExposed() &&
        exposures_.isUncovering(host_.width(), host_.height(), sinceMade_.elapsed())) {
        desktop_.run([this] { deliverExposure(window_); });
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace ombrelia
