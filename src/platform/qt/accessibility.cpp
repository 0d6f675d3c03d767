#include "platform/qt/accessibility.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <map>
#include <utility>

#include "platform/dispatch.h"
#include "platform/pointer.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/window_view.h"
#include "platform/window_layout.h"

namespace ombrelia {

namespace {

constexpr int kFaceOn = 2;  // of a button: pressed, or on

QAccessible::Role roleOf(const Control& control) {
    if (control.LiesOn != nullptr) {
        return QAccessible::NoRole;  // the face says it
    }
    switch (control.Role) {
        case AccessRole::Button:
            return QAccessible::Button;
        case AccessRole::CheckBox:
            return QAccessible::CheckBox;
        case AccessRole::RadioButton:
            return QAccessible::RadioButton;
        case AccessRole::Slider:
            return QAccessible::Slider;
        case AccessRole::Default:
            break;
    }
    const bool hasName = !control.AccessibleName.empty();
    switch (control.Kind) {
        case ControlKind::Label:
            return control.Caption.empty() ? QAccessible::NoRole : QAccessible::StaticText;
        case ControlKind::ListBox:
            return QAccessible::ComboBox;
        case ControlKind::PictureBox:
            return hasName ? QAccessible::Graphic : QAccessible::NoRole;
        case ControlKind::Image:
            return hasName ? QAccessible::Button : QAccessible::NoRole;
        default:
            return QAccessible::NoRole;
    }
}

// "&&" stands for one "&".
QString plainText(const std::string& caption) {
    return QString::fromStdString(caption).replace(QStringLiteral("&&"), QStringLiteral("&"));
}

bool canBePressed(const Control& control) {
    switch (roleOf(control)) {
        case QAccessible::Button:
        case QAccessible::CheckBox:
        case QAccessible::RadioButton:
            return true;
        case QAccessible::StaticText:
            return control.handlerOf(Event::Click) != nullptr;
        default:
            return false;
    }
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
        const QString caption = plainText(control_.Caption);
        const QString name = plainText(control_.AccessibleName);
        if (kind == QAccessible::Value) {
            return control_.Kind == ControlKind::ListBox ? caption : valueText();
        }
        if (kind != QAccessible::Name) {
            return {};
        }
        if (control_.Kind == ControlKind::Label) {
            return name.isEmpty() ? caption : name + QLatin1Char(' ') + caption;
        }
        return name.isEmpty() ? caption : name;
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
        const bool isOn = control_.Face.face == kFaceOn;
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

    QVariant currentValue() const override { return ask().Value; }
    QVariant minimumValue() const override { return ask().Minimum; }
    QVariant maximumValue() const override { return ask().Maximum; }
    QVariant minimumStepSize() const override { return 1; }
    void setCurrentValue(const QVariant& value) override {
        if (!isValid() || !isEnabled(control_)) {
            return;
        }
        EventArgs args;
        args.Value = value.toDouble();
        view_->desktop().input([this, args] { deliver(control_, Event::SetValue, args); });
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

    EventArgs ask() const {
        EventArgs args;
        raise(control_, Event::AskValue, args);
        return args;
    }

    QString valueText() const {
        return roleOf(control_) == QAccessible::Slider ? QString::number(ask().Value) : QString();
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
