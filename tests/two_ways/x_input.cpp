#include "x_input.h"

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <sstream>
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

std::string XInput::places(const QWidget& window) {
    Display* display = connection_->display;
    ::Window root = 0;
    ::Window under = 0;
    int x = 0;
    int y = 0;
    int own = 0;
    unsigned held = 0;
    XQueryPointer(display, DefaultRootWindow(display), &root, &under, &x, &y, &own, &own, &held);
    QPoint corner(-1, -1);
    findCorner(window, corner);
    std::ostringstream text;
    text << "pointer at " << x << ' ' << y << " over window " << under << ", buttons " << held
         << "; window " << window.internalWinId() << " at " << corner.x() << ' ' << corner.y();
    return text.str();
}

}  // namespace ombrelia::two_ways
