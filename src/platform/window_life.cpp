#include "platform/window_life.h"

#include "platform/dispatch.h"
#include "platform/pointer.h"
#include "platform/services.h"

namespace ombrelia {

void loadWindow(Window& window) {
    if (window.Loaded) {
        return;
    }
    window.Loaded = true;
    window.Visible = false;
    window.Minimized = false;
    if (window.Design != nullptr) {
        window.Design();
    }
    raise(window, Event::Load);
}

void showWindow(Window& window) {
    loadWindow(window);
    const bool isFirst = !window.Visible;
    window.Visible = true;
    window.Minimized = false;
    services().desktop->shown(window);
    if (isFirst) {
        raise(window, Event::Resize);
    }
}

void hideWindow(Window& window) {
    if (!window.Loaded || !window.Visible) {
        return;
    }
    window.Visible = false;
    forgetPressIn(window);
    services().desktop->hidden(window);
}

void unloadWindow(Window& window) {
    if (!window.Loaded) {
        return;
    }
    raise(window, Event::Unload);
    window.Loaded = false;
    window.Visible = false;
    forgetPressIn(window);
    services().desktop->unloaded(window);
}

void minimizeWindow(Window& window) {
    window.Minimized = true;
    services().desktop->minimize(window);
}

bool isSeen(const Window& window) {
    return window.Loaded && window.Visible && !window.Minimized &&
           (window.DockedTo == nullptr || isSeen(*window.DockedTo));
}

void refreshControl(Control& control) {
    services().desktop->refresh(control);
}

void requestPaint(Window& window) {
    if (isSeen(window)) {
        raise(window, Event::Paint);
    }
}

void endProcess() {
    services().desktop->end();
    throw ProcessEnd{};
}

}  // namespace ombrelia
