#include "platform/control_events.h"

#include <algorithm>
#include <span>

namespace ombrelia {

namespace {

constexpr Event kMouse[] = {Event::MouseDown, Event::MouseMove, Event::MouseUp,  Event::Click,
                            Event::DblClick,  Event::DragOver,  Event::DragDrop, Event::Wheel};
constexpr Event kValue[] = {Event::AskValue, Event::SetValue};
constexpr Event kWindowLife[] = {Event::Load, Event::Unload, Event::Close, Event::Resize,
                                 Event::Paint};

bool isOneOf(std::span<const Event> events, Event event) {
    return std::find(events.begin(), events.end(), event) != events.end();
}

}  // namespace

bool canGet(ControlKind kind, Event event) {
    switch (kind) {
        case ControlKind::Window:
            return isOneOf(kMouse, event) || isOneOf(kWindowLife, event) || event == Event::KeyDown;
        case ControlKind::Image:
            return isOneOf(kMouse, event) || isOneOf(kValue, event);
        case ControlKind::Label:
            return isOneOf(kMouse, event);
        case ControlKind::PictureBox:
            return isOneOf(kMouse, event) || event == Event::KeyDown;
        case ControlKind::ListBox:  // a press opens it, and a choice is its click
            return event == Event::MouseMove || event == Event::Click || event == Event::DragOver ||
                   event == Event::DragDrop || event == Event::Wheel || event == Event::KeyDown;
        case ControlKind::Timer:
            return event == Event::Timer;
        case ControlKind::ScrollBar:
            return event == Event::Change || event == Event::Scroll;
        case ControlKind::MenuItem:
            return event == Event::Click;
        case ControlKind::TextLine:
        case ControlKind::Line:
            break;
    }
    return false;
}

}  // namespace ombrelia
