#include "platform/qt/accessibility.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <map>
#include <utility>

#include "platform/access.h"
#include "platform/dispatch.h"
#include "platform/pointer.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/window_view.h"
#include "platform/window_layout.h"

namespace ombrelia {

namespace {

QAccessible::Role roleOf(const Control& control) {
    switch (accessKindOf(control)) {
        case AccessKind::Text:
            return QAccessible::StaticText;
        case AccessKind::List:
            return QAccessible::ComboBox;
        case AccessKind::Picture:
            return QAccessible::Graphic;
        case AccessKind::Button:
            return QAccessible::Button;
        case AccessKind::CheckBox:
            return QAccessible::CheckBox;
        case AccessKind::RadioButton:
            return QAccessible::RadioButton;
        case AccessKind::Slider:
            return QAccessible::Slider;
        case AccessKind::None:
            break;
    }
    return QAccessible::NoRole;
}

class ControlAccess : public QAccessibleInterface,
                      public QAccessibleActionInterface,
                      public QAccessibleValueInterface {
  public:
    ControlAccess(WindowView& view, Control& control)
        : view_(&view), control_(control), told_(state()) {}

    bool isValid() const override { return !view_.isNull() && view_->window().Loaded; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return isValid() ? view_->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(view_);
    }
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }

    QAccessible::Role role() const override { return roleOf(control_); }

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Value) {
            return QString::fromStdString(accessValueOf(control_));
        }
        return kind == QAccessible::Name ? QString::fromStdString(accessNameOf(control_))
                                         : QString();
    }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}

    QRect rect() const override {
        if (!isValid()) {
            return {};
        }
        const PixelRect device = visibleDeviceRect(control_, view_->scale());
        const double ratio = view_->devicePixelRatioF();
        const QRectF logical(device.left / ratio, device.top / ratio, device.width() / ratio,
                             device.height() / ratio);
        return logical.toAlignedRect().translated(view_->mapToGlobal(QPoint(0, 0)));
    }

    QAccessible::State state() const override {
        QAccessible::State state;
        const bool isOn = ombrelia::isOn(control_);
        const QAccessible::Role role = roleOf(control_);
        state.disabled = !isEnabled(control_);
        state.invisible = !isShown(control_) || !view_->isVisible();
        state.offscreen = !state.invisible && rect().isEmpty();
        state.checkable = role == QAccessible::CheckBox || role == QAccessible::RadioButton;
        state.checked = state.checkable && isOn;
        state.pressed = role == QAccessible::Button && isOn;
        state.readOnly = role == QAccessible::StaticText || role == QAccessible::Graphic;
        return state;
    }

    // Tells of every state that differs from what was told last: in an event of its own, since an
    // event of several is passed on as one of its first.
    void tellStates() {
        const QAccessible::State now = state();
        const QAccessible::State before = std::exchange(told_, now);
        tellState(now.checked != before.checked, [](QAccessible::State& s) { s.checked = true; });
        tellState(now.pressed != before.pressed, [](QAccessible::State& s) { s.pressed = true; });
        tellState(now.disabled != before.disabled,
                  [](QAccessible::State& s) { s.disabled = true; });
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ActionInterface && canBePressed(control_)) {
            return static_cast<QAccessibleActionInterface*>(this);
        }
        if (type == QAccessible::ValueInterface && roleOf(control_) == QAccessible::Slider) {
            return static_cast<QAccessibleValueInterface*>(this);
        }
        return nullptr;
    }

    QStringList actionNames() const override { return {pressAction()}; }
    QStringList keyBindingsForAction(const QString& /*action*/) const override { return {}; }
    void doAction(const QString& action) override {
        if (action != pressAction() || !isValid()) {
            return;
        }
        // Who asked is answered first, and not when the dialog that the press opens is over.
        const auto press = [&view = *view_, &control = control_] {
            view.desktop().input([&control] { pressWithoutPointer(control); });
        };
        QMetaObject::invokeMethod(view_, press, Qt::QueuedConnection);
    }

    QVariant currentValue() const override { return rangeOf(control_).Value; }
    QVariant minimumValue() const override { return rangeOf(control_).Minimum; }
    QVariant maximumValue() const override { return rangeOf(control_).Maximum; }
    QVariant minimumStepSize() const override { return 1; }
    void setCurrentValue(const QVariant& value) override {
        if (isValid()) {
            view_->desktop().input([&control = control_, wished = value.toDouble()] {
                setValueWithoutPointer(control, wished);
            });
        }
    }

  private:
    template <typename Mark>
    void tellState(bool isChanged, Mark mark) {
        if (isChanged) {
            QAccessible::State changed;
            mark(changed);
            QAccessibleStateChangeEvent event(this, changed);
            QAccessible::updateAccessibility(&event);
        }
    }

    QPointer<WindowView> view_;
    Control& control_;
    QAccessible::State told_;
};

class WindowAccess : public QAccessibleWidget {
  public:
    explicit WindowAccess(WindowView& view)
        : QAccessibleWidget(&view, QAccessible::Window), view_(view) {}
    ~WindowAccess() override {
        for (const auto& [control, id] : ids_) {
            QAccessible::deleteAccessibleInterface(id);
        }
    }

    int childCount() const override { return static_cast<int>(known().size()); }

    QAccessibleInterface* child(int index) const override {
        const std::vector<Control*> controls = known();
        if (index < 0 || static_cast<std::size_t>(index) >= controls.size()) {
            return nullptr;
        }
        return of(*controls[static_cast<std::size_t>(index)]);
    }

    int indexOfChild(const QAccessibleInterface* wanted) const override {
        const std::vector<Control*> controls = known();
        for (std::size_t i = 0; i < controls.size(); ++i) {
            if (of(*controls[i]) == wanted) {
                return static_cast<int>(i);
            }
        }
        return -1;
    }

    QAccessibleInterface* childAt(int x, int y) const override {
        const std::vector<Control*> controls = known();
        for (auto control = controls.rbegin(); control != controls.rend(); ++control) {
            if (isShown(**control) && of(**control)->rect().contains(x, y)) {
                return of(**control);
            }
        }
        return nullptr;
    }

    ControlAccess* of(Control& control) const {
        const auto found = ids_.find(&control);
        if (found != ids_.end()) {
            return static_cast<ControlAccess*>(QAccessible::accessibleInterface(found->second));
        }
        auto* made = new ControlAccess(view_, control);
        ids_[&control] = QAccessible::registerAccessibleInterface(made);
        return made;
    }

  private:
    std::vector<Control*> known() const {
        std::vector<Control*> controls;
        for (Control* control : view_.window().Controls) {
            if (roleOf(*control) != QAccessible::NoRole) {
                controls.push_back(control);
            }
        }
        return controls;
    }

    WindowView& view_;
    mutable std::map<Control*, QAccessible::Id> ids_;
};

QAccessibleInterface* makeAccess(const QString& /*className*/, QObject* object) {
    auto* view = dynamic_cast<WindowView*>(object);
    return view == nullptr ? nullptr : new WindowAccess(*view);
}

}  // namespace

void installAccessibility() {
    QAccessible::installFactory(makeAccess);
}

void announceChange(WindowView& view, Control& control) {
    if (!QAccessible::isActive() || roleOf(control) == QAccessible::NoRole) {
        return;
    }
    auto* window = dynamic_cast<WindowAccess*>(QAccessible::queryAccessibleInterface(&view));
    if (window == nullptr) {
        return;
    }
    ControlAccess* access = window->of(control);
    if (roleOf(control) == QAccessible::StaticText) {
        QAccessibleEvent event(access, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&event);
    } else if (roleOf(control) == QAccessible::Slider) {
        QAccessibleValueChangeEvent event(access, access->text(QAccessible::Value));
        QAccessible::updateAccessibility(&event);
    }
    access->tellStates();
}

}  // namespace ombrelia
