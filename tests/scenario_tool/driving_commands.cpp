// Commands that do what a user, the clock or the window system does.
#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>

#include "command.h"
#include "core/button_numbers.h"
#include "core/windows/form1.h"
#include "errors.h"
#include "mouse_buttons.h"
#include "names.h"
#include "platform/dispatch.h"
#include "platform/exposure.h"
#include "platform/pointer.h"
#include "platform/window_life.h"
#include "ticks.h"

namespace ombrelia::scenario {

namespace {

constexpr double kClickPlace = 2;
constexpr long kManyTicks = 1000000;

bool isOnOff(const std::string& word) {
    if (word != "on" && word != "off") {
        throw LineError{"\"" + word + "\" is neither on nor off"};
    }
    return word == "on";
}

// CONTROL BUTTON X Y
template <Event kEvent>
void mouse(Session& /*session*/, const Fields& fields) {
    Control& control = loadedControlNamed(fields[0]);
    deliverMouse(control, kEvent, buttonNamed(fields[1]), realNumber(fields[2]),
                 realNumber(fields[3]));
}

// What an earlier event of the same gesture did may have taken the window away.
void sendLeft(Control& control, Event event, double x, double y) {
    if (control.Owner->Loaded) {
        deliverMouse(control, event, MouseButton::Left, x, y);
    }
}

void clickOn(Control& control) {
    for (const Event event : {Event::MouseDown, Event::MouseUp, Event::Click}) {
        sendLeft(control, event, kClickPlace, kClickPlace);
    }
}

void click(Session& /*session*/, const Fields& fields) {
    clickOn(loadedControlNamed(fields[0]));
}

void doubleClick(Session& /*session*/, const Fields& fields) {
    Control& control = loadedControlNamed(fields[0]);
    const double x = realNumber(fields[1]);
    const double y = realNumber(fields[2]);
    for (const Event event : {Event::MouseDown, Event::MouseUp, Event::DblClick, Event::MouseUp}) {
        sendLeft(control, event, x, y);
    }
}

void drag(Session& /*session*/, const Fields& fields) {
    Control& dragged = loadedControlNamed(fields[0]);
    Control& onto = loadedControlNamed(fields[1]);
    sendLeft(dragged, Event::MouseDown, kClickPlace, kClickPlace);
    for (const Event event : {Event::DragOver, Event::DragDrop}) {
        if (onto.Owner->Loaded) {
            deliverDrag(onto, event, dragged);
        }
    }
}

void key(Session& /*session*/, const Fields& fields) {
    EventArgs args;
    args.KeyCode = static_cast<int>(wholeNumber(fields[1], 0, 255));
    deliver(loadedWindowNamed(fields[0]), Event::KeyDown, args);
}

void fire(Session& /*session*/, const Fields& fields) {
    Control& control = controlNamed(fields[0] + "." + fields[1]);
    if (control.Kind != ControlKind::Timer) {
        throw LineError{fields[1] + " is no timer"};
    }
    fireTimer(static_cast<Timer&>(control));
}

void tick(Session& /*session*/, const Fields& fields) {
    const std::int64_t ticks = fields.empty() ? 1 : wholeNumber(fields[0], 0, kManyTicks);
    for (std::int64_t i = 0; i < ticks; ++i) {
        fireTimer(Form1.Timer1);
    }
}

void switchTicks(Session& session, const Fields& fields) {
    session.ticksInYields = isOnOff(fields[0]);
}

void onYield(Session& session, const Fields& fields) {
    constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
    const auto yields = static_cast<long>(wholeNumber(fields[0], 1, kMost));
    checkCommandWord(fields[1]);
    session.runAtYield(yields, Fields(fields.begin() + 1, fields.end()));
}

void choose(Session& /*session*/, const Fields& fields) {
    Control& control = loadedControlNamed(fields[0]);
    if (control.Kind != ControlKind::ListBox) {
        throw LineError{fields[0] + " is no list box"};
    }
    auto& list = static_cast<ListBox&>(control);
    const auto entries = static_cast<std::int64_t>(list.List.size());
    const std::int64_t entry = wholeNumber(fields[1], 0, entries - 1);
    if (!isEnabled(list)) {
        return;
    }
    list.ListIndex = static_cast<int>(entry);
    list.Caption = list.List[static_cast<std::size_t>(entry)];
    deliver(list, Event::Click);
}

void state(Session& /*session*/, const Fields& fields) {
    Window& window = loadedWindowNamed(fields[0]);
    if (fields[1] != "minimized" && fields[1] != "normal") {
        throw LineError{"a window is minimized or normal"};
    }
    deliverMinimized(window, fields[1] == "minimized");
}

void scroll(Session& /*session*/, const Fields& fields) {
    Control& control = loadedControlNamed(fields[0]);
    if (control.Kind != ControlKind::ScrollBar) {
        throw LineError{fields[0] + " is no scroll bar"};
    }
    auto& bar = static_cast<ScrollBar&>(control);
    const auto value = static_cast<int>(wholeNumber(fields[1], bar.Min, bar.Max));
    if (!isEnabled(bar)) {
        return;
    }
    bar.Value = value;
    deliver(bar, Event::Scroll);
    deliver(bar, Event::Change);
}

void menu(Session& /*session*/, const Fields& fields) {
    Control& control = loadedControlNamed(fields[0]);
    if (control.Kind != ControlKind::MenuItem) {
        throw LineError{fields[0] + " is no menu item"};
    }
    if (isEnabled(control)) {
        deliver(control, Event::Click);
    }
}

void resize(Session& /*session*/, const Fields& fields) {
    constexpr long kMostPixels = 16000;
    Window& window = loadedWindowNamed(fields[0]);
    const auto width = static_cast<int>(wholeNumber(fields[1], 0, kMostPixels));
    const auto height = static_cast<int>(wholeNumber(fields[2], 0, kMostPixels));
    if (width != window.Width || height != window.Height) {
        deliverResize(window, width, height);
    }
}

void expose(Session& /*session*/, const Fields& fields) {
    deliverExposure(loadedWindowNamed(fields[0]));
}

// The editor goes whatever is answered: its Unload, not the wish to close it.
void closeEditor() {
    constexpr int kCloseKey = -1;
    if (isHandling()) {
        putOff(kCloseKey, [] { unloadWindow(Form1); });
    } else {
        runHandler([] { unloadWindow(Form1); });
    }
}

void close(Session& /*session*/, const Fields& fields) {
    Window& window = loadedWindowNamed(fields[0]);
    if (&window == &Form1) {
        closeEditor();
    } else {
        deliverClose(window);
    }
}

void start(Session& session, const Fields& fields) {
    session.startProcess();
    if (fields.empty()) {
        return;
    }
    const std::int64_t size = wholeNumber(fields[0], button::kSizeMiniature, button::kSizeImport);
    clickOn(loadedControlNamed("frmSplash"));
    clickOn(loadedControlNamed("SizeSelect.NTool(" + std::to_string(size) + ")"));
}

void restart(Session& session, const Fields& /*none*/) {
    session.startProcess();
}

constexpr Command kDrivingCommands[] = {
    {"start", 0, 1, Acts::Anywhere, start},
    {"restart", 0, 0, Acts::Anywhere, restart},
    {"press", 4, 4, Acts::OnEditor, mouse<Event::MouseDown>},
    {"move", 4, 4, Acts::OnEditor, mouse<Event::MouseMove>},
    {"release", 4, 4, Acts::OnEditor, mouse<Event::MouseUp>},
    {"click", 1, 1, Acts::OnEditor, click},
    {"doubleclick", 3, 3, Acts::OnEditor, doubleClick},
    {"drag", 2, 2, Acts::OnEditor, drag},
    {"key", 2, 2, Acts::OnEditor, key},
    {"fire", 2, 2, Acts::OnEditor, fire},
    {"tick", 0, 1, Acts::OnEditor, tick},
    {"ticks", 1, 1, Acts::Anywhere, switchTicks},
    {"on-yield", 2, kAnyNumber, Acts::Anywhere, onYield},
    {"choose", 2, 2, Acts::OnEditor, choose},
    {"scroll", 2, 2, Acts::OnEditor, scroll},
    {"menu", 1, 1, Acts::OnEditor, menu},
    {"resize", 3, 3, Acts::OnEditor, resize},
    {"state", 2, 2, Acts::OnEditor, state},
    {"close", 1, 1, Acts::OnEditor, close},
    {"expose", 1, 1, Acts::OnEditor, expose},
};

}  // namespace

void fireTimer(Timer& timer) {
    if (timer.Enabled && timer.Owner->Loaded) {
        deliver(timer, Event::Timer);
    }
}

std::span<const Command> drivingCommands() {
    return kDrivingCommands;
}

}  // namespace ombrelia::scenario
