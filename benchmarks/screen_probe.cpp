#include "screen_probe.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <thread>

namespace ombrelia {

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kPatienceMilliseconds = 8000;

[[noreturn]] void giveUp(const std::string& sentence) {
    std::fprintf(stderr, "%s\n", sentence.c_str());
    std::exit(1);
}

double millisecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

int ignoreError(Display* /*display*/, XErrorEvent* /*event*/) {
    return 0;  // a window that went away while it was asked about
}

}  // namespace

struct ScreenProbe::Connection {
    Display* display = XOpenDisplay(nullptr);

    bool hasTitle(Window window, const std::string& title) const {
        char* name = nullptr;
        if (XFetchName(display, window, &name) == 0 || name == nullptr) {
            return false;
        }
        const bool isSame = title == name;
        XFree(name);
        return isSame;
    }

    // The area of the first visible window under this one with the title and the ratio of sides.
    bool find(Window under, const std::string& title, double ratio, ScreenArea& area) const {
        XWindowAttributes shape{};
        if (XGetWindowAttributes(display, under, &shape) != 0 && shape.map_state == IsViewable &&
            hasTitle(under, title) &&
            std::fabs(static_cast<double>(shape.width) / shape.height / ratio - 1) < 0.01) {
            Window child = 0;
            area = {0, 0, shape.width, shape.height};
            XTranslateCoordinates(display, under, DefaultRootWindow(display), 0, 0, &area.x,
                                  &area.y, &child);
            return true;
        }
        Window root = 0;
        Window parent = 0;
        Window* children = nullptr;
        unsigned count = 0;
        bool isFound = false;
        if (XQueryTree(display, under, &root, &parent, &children, &count) != 0) {
            for (unsigned n = 0; n < count && !isFound; ++n) {
                isFound = find(children[n], title, ratio, area);
            }
            XFree(children);
        }
        return isFound;
    }
};

ScreenProbe::ScreenProbe() : connection_(std::make_unique<Connection>()) {
    if (connection_->display == nullptr) {
        giveUp("there is no screen to look at");
    }
    XSetErrorHandler(ignoreError);
}

ScreenProbe::~ScreenProbe() {
    XCloseDisplay(connection_->display);
}

ScreenArea ScreenProbe::waitForWindow(const std::string& title, double width, double height) {
    const auto start = Clock::now();
    ScreenArea area{};
    while (
        !connection_->find(DefaultRootWindow(connection_->display), title, width / height, area)) {
        if (millisecondsSince(start) > kPatienceMilliseconds) {
            giveUp("no window of the expected shape came up: " + title);
        }
        rest(20);
    }
    rest(400);
    return area;
}

void ScreenProbe::moveTo(ScreenPlace place) {
    XTestFakeMotionEvent(connection_->display, -1, place.x, place.y, 0);
    XFlush(connection_->display);
}

void ScreenProbe::press() {
    XTestFakeButtonEvent(connection_->display, 1, True, 0);
    XFlush(connection_->display);
}

void ScreenProbe::release() {
    XTestFakeButtonEvent(connection_->display, 1, False, 0);
    XFlush(connection_->display);
}

void ScreenProbe::click(ScreenPlace place) {
    moveTo(place);
    rest(60);
    press();
    rest(60);
    release();
    rest(250);
}

std::vector<char> ScreenProbe::look(const ScreenArea& area) {
    Display* display = connection_->display;
    XImage* image = XGetImage(display, DefaultRootWindow(display), area.x, area.y,
                              static_cast<unsigned>(area.width), static_cast<unsigned>(area.height),
                              AllPlanes, ZPixmap);
    if (image == nullptr) {
        giveUp("the screen cannot be read there");
    }
    std::vector<char> pixels(
        image->data,
        image->data + static_cast<std::ptrdiff_t>(image->bytes_per_line) * image->height);
    XDestroyImage(image);
    return pixels;
}

double ScreenProbe::timeUntil(const std::function<bool()>& holds,
                              const std::function<void()>& act) {
    constexpr std::chrono::microseconds kBetweenLooks(200);
    const auto start = Clock::now();
    act();
    while (!holds()) {
        if (millisecondsSince(start) > kPatienceMilliseconds) {
            giveUp("the screen did not change as expected");
        }
        std::this_thread::sleep_for(kBetweenLooks);
    }
    return millisecondsSince(start);
}

double ScreenProbe::timeToChange(const ScreenArea& area, const std::function<void()>& act) {
    const std::vector<char> before = look(area);
    return timeUntil([&] { return look(area) != before; }, act);
}

double ScreenProbe::timeToLook(const ScreenArea& area, const std::vector<char>& wanted,
                               const std::function<void()>& act) {
    return timeUntil([&] { return look(area) == wanted; }, act);
}

void ScreenProbe::rest(int milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

}  // namespace ombrelia
