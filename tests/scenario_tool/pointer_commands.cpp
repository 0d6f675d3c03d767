// Commands that move the pointer as a screen sees it.
#include "command.h"
#include "errors.h"
#include "mouse_buttons.h"
#include "names.h"

namespace ombrelia::scenario {

namespace {

void scale(Session& session, const Fields& fields) {
    const double scale = realNumber(fields[0]);
    if (!(scale > 0)) {
        throw LineError{"a scale is above 0"};
    }
    session.pointer.setScale(scale);
}

// away, or WINDOW X Y
void point(Session& session, const Fields& fields) {
    if (fields.size() == 1 && fields[0] == "away") {
        session.pointer.moveAway();
        return;
    }
    if (fields.size() != 3) {
        throw LineError{"point takes WINDOW X Y, or away"};
    }
    session.pointer.moveTo(loadedWindowNamed(fields[0]), realNumber(fields[1]),
                           realNumber(fields[2]));
}

MouseButton pressable(const std::string& word) {
    const MouseButton button = buttonNamed(word);
    if (button == MouseButton::None) {
        throw LineError{"none is no button that can go down or up"};
    }
    return button;
}

void down(Session& session, const Fields& fields) {
    session.pointer.press(pressable(fields[0]));
}

void up(Session& session, const Fields& fields) {
    session.pointer.release(pressable(fields[0]));
}

void keyDown(Session& session, const Fields& fields) {
    session.pointer.key(static_cast<int>(wholeNumber(fields[0], 0, 255)));
}

constexpr Command kPointerCommands[] = {
    {"scale", 1, 1, Acts::Anywhere, scale},      {"point", 1, 3, Acts::OnEditor, point},
    {"down", 1, 1, Acts::OnEditor, down},        {"up", 1, 1, Acts::OnEditor, up},
    {"key-down", 1, 1, Acts::OnEditor, keyDown},
};

}  // namespace

std::span<const Command> pointerCommands() {
    return kPointerCommands;
}

}  // namespace ombrelia::scenario
