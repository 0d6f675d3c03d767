#include "platform/access.h"

#include <cmath>

#include "platform/dispatch.h"
#include "platform/window_picture.h"

namespace ombrelia {

namespace {

constexpr int kFaceOn = 2;  // of a button: pressed, or on

}  // namespace

AccessKind accessKindOf(const Control& control) {
    if (control.LiesOn != nullptr) {
        return AccessKind::None;  // the face says it
    }
    switch (control.Role) {
        case AccessRole::Button:
            return AccessKind::Button;
        case AccessRole::CheckBox:
            return AccessKind::CheckBox;
        case AccessRole::RadioButton:
            return AccessKind::RadioButton;
        case AccessRole::Slider:
            return AccessKind::Slider;
        case AccessRole::Default:
            break;
    }
    const bool hasName = !control.AccessibleName.empty();
    switch (control.Kind) {
        case ControlKind::Label:
            return control.Caption.empty() ? AccessKind::None : AccessKind::Text;
        case ControlKind::ListBox:
            return AccessKind::List;
        case ControlKind::PictureBox:
            return hasName ? AccessKind::Picture : AccessKind::None;
        case ControlKind::Image:
            return hasName ? AccessKind::Button : AccessKind::None;
        default:
            return AccessKind::None;
    }
}

std::string accessNameOf(const Control& control) {
    std::string caption = shownText(control.Caption);
    const std::string name = shownText(control.AccessibleName);
    if (name.empty()) {
        return caption;
    }
    return control.Kind == ControlKind::Label ? name + ' ' + caption : name;
}

std::string accessValueOf(Control& control) {
    if (control.Kind == ControlKind::ListBox) {
        return shownText(control.Caption);
    }
    return accessKindOf(control) == AccessKind::Slider
               ? std::to_string(std::lround(rangeOf(control).Value))
               : std::string();
}

bool canBePressed(const Control& control) {
    switch (accessKindOf(control)) {
        case AccessKind::Button:
        case AccessKind::CheckBox:
        case AccessKind::RadioButton:
            return true;
        case AccessKind::Text:
            return control.handlerOf(Event::Click) != nullptr;
        default:
            return false;
    }
}

bool isOn(const Control& control) {
    return control.Face.face == kFaceOn;
}

EventArgs rangeOf(Control& slider) {
    EventArgs range;
    raise(slider, Event::AskValue, range);
    return range;
}

void setValueWithoutPointer(Control& slider, double value) {
    if (isEnabled(slider)) {
        EventArgs args;
        args.Value = value;
        deliver(slider, Event::SetValue, args);
    }
}

}  // namespace ombrelia
