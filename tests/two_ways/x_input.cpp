#include "x_input.h"

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <stdexcept>

namespace ombrelia::two_ways {

struct XInput::Connection {
    Display* display;
};

XInput::XInput() : connection_(new Connection{XOpenDisplay(nullptr)}) {
    if (connection_->display == nullptr) {
        throw std::runtime_error("there is no X server");
    }
}

XInput::~XInput() {
    XCloseDisplay(connection_->display);
    delete connection_;
}

bool XInput::findCorner(const QWidget& window, QPoint& corner) {
    Display* display = connection_->display;
    XWindowAttributes attributes;
    const auto id = static_cast<::Window>(window.internalWinId());
    if (id == 0 || XGetWindowAttributes(display, id, &attributes) == 0 ||
        attributes.map_state != IsViewable) {
        return false;
    }
    ::Window child = 0;
    int x = 0;
    int y = 0;
    XTranslateCoordinates(display, id, DefaultRootWindow(display), 0, 0, &x, &y, &child);
    corner = {x, y};
    return true;
}

void XInput::moveTo(const QPoint& place) {
    XTestFakeMotionEvent(connection_->display, -1, place.x(), place.y(), CurrentTime);
    XSync(connection_->display, False);
}

void XInput::changeButton(int button, bool isDown) {
    XTestFakeButtonEvent(connection_->display, static_cast<unsigned>(button), isDown ? True : False,
                         CurrentTime);
    XSync(connection_->display, False);
}

}  // namespace ombrelia::two_ways
