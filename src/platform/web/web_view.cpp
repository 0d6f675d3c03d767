#include "platform/web/web_view.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "platform/access.h"
#include "platform/dispatch.h"
#include "platform/exposure.h"
#include "platform/screen_fit.h"
#include "platform/web/page.h"
#include "platform/web/web_desktop.h"

namespace ombrelia {

namespace {

// A press becomes a move of the window from so many device pixels on.
constexpr double kDragDistance = 10;

// Of a window with a frame, units.
constexpr double kTitleHeight = 24;
constexpr double kMenuHeight = 22;

// So much of a window stays on the page wherever it is dragged, units.
constexpr double kLeastSeen = 40;

constexpr int kOn = 1;
constexpr int kDisabled = 2;
constexpr int kHidden = 4;
constexpr int kPressable = 8;

bool hasMenus(const Window& window) {
    return std::any_of(window.Controls.begin(), window.Controls.end(), [](const Control* control) {
        return control->Kind == ControlKind::MenuItem;
    });
}

ScreenBox pageBox() {
    return {0, 0, double(page_width()), double(page_height())};
}

// As page.h has it.
int frameOf(const Window& window) {
    if (!window.HasFrame) {
        return 0;
    }
    return window.handlerOf(Event::Resize) == nullptr ? 1 : 2;
}

// Units of the frame above the inside.
double frameTop(const Window& window) {
    return window.HasFrame ? kTitleHeight + (hasMenus(window) ? kMenuHeight : 0) : 0;
}

}  // namespace

WebView::WebView(Window& window, int number, WebDesktop& desktop)
    : window_(window), number_(number), desktop_(desktop), brush_(number) {
    title_ = window.Caption;
    page_open_window(number, frameOf(window), title_.c_str());
    takeScale();
    if (window.DockedTo == nullptr) {
        place();
    }
}

WebView::~WebView() {
    page_close_window(number_);
}

int WebView::outerWidth() const {
    return width_;
}

int WebView::outerHeight() const {
    return height_ + devicePixels(frameTop(window_), scale_);
}

void WebView::takeScale() {
    scale_ = desktop_.scaleOf(window_);
    width_ = static_cast<int>(std::ceil(window_.Width * scale_));
    height_ = static_cast<int>(std::ceil(window_.Height * scale_));
    look_.forget();
}

ScreenBox WebView::box() const {
    return {double(left_), double(top_), double(outerWidth()), double(outerHeight())};
}

void WebView::place() {
    const WebView* editor = window_.StandsAlone ? desktop_.editorView() : nullptr;
    moveTo(openingPlace(outerWidth(), outerHeight(), dockedWidth(),
                        editor == nullptr ? pageBox() : editor->box(), pageBox(), 0));
}

void WebView::moveTo(const ScreenPlace& wished) {
    left_ = static_cast<int>(wished.left);
    top_ = static_cast<int>(wished.top);
    window_.Left = left_ / scale_;
    window_.Top = top_ / scale_;
    page_place_window(number_, left_, top_, width_, height_, scale_);
    desktop_.dockTo(window_);
}

void WebView::fitPage() {
    const double before = scale_;
    if (scale_ != desktop_.scaleOf(window_)) {
        takeScale();
    }
    if (window_.DockedTo != nullptr) {
        dock();
        return;
    }
    if (isMoved_) {
        moveTo({left_ / before * scale_, top_ / before * scale_});
        keepInside();
    } else {
        place();
    }
}

void WebView::keepInside() {
    const ScreenPlace inside = placeInside(box(), dockedWidth(), pageBox());
    if (inside.left != left_ || inside.top != top_) {
        moveTo(inside);
    }
}

int WebView::dockedWidth() const {
    return devicePixels(desktop_.dockedWidth(window_), scale_);
}

void WebView::dock() {
    const WebView* host = desktop_.find(*window_.DockedTo);
    if (host != nullptr) {
        const double left = host->left_ + host->width_;
        moveTo(dockedPlace({left, double(host->top_), double(width_), double(height_)}, pageBox()));
    }
}

void WebView::show() {
    if (!std::exchange(isShown_, true)) {
        sync();
        syncTimers();
        page_show_window(number_, 1);
    }
    if (!std::exchange(wasShown_, true) && window_.Ground != nullptr) {
        desktop_.input([&window = window_] { deliverExposure(window); });
    }
}

void WebView::hide() {
    if (std::exchange(isShown_, false)) {
        page_show_window(number_, 0);
    }
}

bool WebView::sync() {
    if (!window_.Loaded) {
        return false;
    }
    if (title_ != window_.Caption) {
        title_ = window_.Caption;
        page_set_title(number_, title_.c_str());
    }
    PixelRect dirty;
    std::vector<Control*> changed;
    const bool isDifferent =
        look_.update(window_, scale_, [&](const PixelRect& place, Control* part) {
            if (part == nullptr) {
                dirty = around(dirty, place);
            } else {
                dirty = around(dirty, place);
                changed.push_back(part);
            }
        });
    if (!isDifferent && dirty.isEmpty()) {
        return false;
    }
    paintWindow(brush_, window_, commonOf(dirty, {0, 0, width_, height_}), scale_);
    for (int item = 0; item < static_cast<int>(window_.Controls.size()); ++item) {
        Control& part = *window_.Controls[static_cast<std::size_t>(item)];
        if (std::find(changed.begin(), changed.end(), &part) != changed.end()) {
            tellPart(item, part);
        }
    }
    if (window_.HasFrame) {
        syncFrame();
    }
    return isDifferent;
}

void WebView::tellPart(int item, Control& part) {
    const AccessKind kind = accessKindOf(part);
    if (kind == AccessKind::None) {
        return;
    }
    const int flags = (isOn(part) ? kOn : 0) | (isEnabled(part) ? 0 : kDisabled) |
                      (ombrelia::isShown(part) ? 0 : kHidden) |
                      (canBePressed(part) ? kPressable : 0);
    const PixelRect place = visibleDeviceRect(part, scale_);
    const EventArgs range = kind == AccessKind::Slider ? rangeOf(part) : EventArgs();
    page_tell_part(number_, item, static_cast<int>(kind), accessNameOf(part).c_str(),
                   accessValueOf(part).c_str(), flags, place.left, place.top, place.width(),
                   place.height(), range.Minimum, range.Maximum);
}

void WebView::syncFrame() {
    std::map<const Control*, int> menus;
    for (int item = 0; item < static_cast<int>(window_.Controls.size()); ++item) {
        Control* control = window_.Controls[static_cast<std::size_t>(item)];
        if (control->Kind == ControlKind::MenuItem) {
            const auto& entry = static_cast<const MenuItem&>(*control);
            const auto menu = menus.find(entry.Parent);
            menus[control] = item;
            page_set_menu_item(number_, item, menu == menus.end() ? -1 : menu->second,
                               entry.Caption.c_str(), entry.Enabled ? 1 : 0, entry.Checked ? 1 : 0);
        } else if (control->Kind == ControlKind::ScrollBar) {
            auto& bar = static_cast<ScrollBar&>(*control);
            const PixelRect place = deviceRect(bar, scale_);
            settled_.try_emplace(&bar, bar.Value);
            page_set_scroll_bar(number_, item, place.left, place.top, place.width(), place.height(),
                                bar.Min, bar.Max, bar.LargeChange, bar.Value,
                                bar.AccessibleName.c_str());
        }
    }
}

void WebView::syncTimers() {
    for (Control* control : window_.Controls) {
        if (control->Kind != ControlKind::Timer) {
            continue;
        }
        auto* timer = static_cast<Timer*>(control);
        Tick& tick = timers_[timer];
        tick.rest.wake();
        const bool isOn = isWanted(*timer);
        if (isOn && !tick.isOn) {
            tick.due = page_milliseconds() + periodOf(*timer);
        }
        tick.isOn = isOn;
    }
}

double WebView::nextTick() const {
    double next = std::numeric_limits<double>::infinity();
    for (const auto& [timer, tick] : timers_) {
        if (tick.isOn) {
            next = std::min(next, tick.due);
        }
    }
    return next;
}

void WebView::tickDue(double now) {
    std::vector<Timer*> due;
    for (const auto& [timer, tick] : timers_) {
        if (tick.isOn && tick.due <= now) {
            due.push_back(timer);
        }
    }
    for (Timer* timer : due) {
        if (window_.Loaded) {
            tick(*timer);
        }
    }
}

void WebView::tick(Timer& timer) {
    Tick& state = timers_[&timer];
    state.due = page_milliseconds() + periodOf(timer);
    const bool isChanged = desktop_.runTick([&timer] { deliver(timer, Event::Timer); });
    if (!isOfEveryFrame(timer)) {
        syncTimers();  // the tick may have switched its own timer off or on again
    } else if (state.rest.mayRestAfter(isChanged, isHandling())) {
        state.isOn = false;
    }
}

void WebView::tickAtOnce() {
    for (Control* control : window_.Controls) {
        if (control->Kind != ControlKind::Timer || !window_.Loaded) {
            continue;
        }
        auto& timer = static_cast<Timer&>(*control);
        if (isWanted(timer) && isOfEveryFrame(timer)) {
            timers_[&timer].isOn = true;
            tick(timer);
        }
    }
}

void WebView::pointer(const PointerInput& given) {
    if (given.kind == PointerKind::Press || given.kind == PointerKind::SecondPress) {
        desktop_.activate(*this);
        pressX_ = given.x + left_;
        pressY_ = given.y + top_;
        pressLeft_ = left_;
        pressTop_ = top_;
        isMoveArmed_ = false;
        isFollowing_ = false;
    } else if (given.kind == PointerKind::Release) {
        isMoveArmed_ = false;
        isFollowing_ = false;
    } else if (given.kind == PointerKind::Move && moveWindow(given)) {
        return;
    }
    desktop_.input(
        [&window = window_, scale = scale_, given] { pointerInput(window, scale, given); });
}

bool WebView::moveWindow(const PointerInput& input) {
    const double movedX = input.x + left_ - pressX_;
    const double movedY = input.y + top_ - pressY_;
    isFollowing_ =
        isFollowing_ || (isMoveArmed_ && std::abs(movedX) + std::abs(movedY) >= kDragDistance);
    if (isFollowing_) {
        moveByUser(static_cast<int>(pressLeft_ + movedX), static_cast<int>(pressTop_ + movedY));
    }
    return isMoveArmed_;
}

void WebView::moveByUser(int left, int top) {
    const int seen = devicePixels(kLeastSeen, scale_);
    isMoved_ = true;
    moveTo({double(std::clamp(left, seen - outerWidth(), std::max(0, page_width() - seen))),
            double(std::clamp(top, 0, std::max(0, page_height() - seen)))});
}

int WebView::insideTop() const {
    return top_ + outerHeight() - height_;
}

void WebView::takeFrameSize(int width, int height) {
    if (window_.handlerOf(Event::Resize) == nullptr) {
        return;
    }
    width_ = std::max(width, 1);
    height_ = std::max(height, 1);
    look_.forget();
    page_place_window(number_, left_, top_, width_, height_, scale_);
    desktop_.run([this] {
        deliverResize(window_, static_cast<int>(width_ / scale_),
                      static_cast<int>(height_ / scale_));
    });
}

// A thumb that is being dragged scrolls; any other new value, and the drag's end, is a change.
void WebView::setScrollBar(ScrollBar& bar, int value, bool isDragged) {
    bar.Value = std::clamp(value, std::min(bar.Min, bar.Max), std::max(bar.Min, bar.Max));
    if (isDragged) {
        desktop_.input([&bar] { deliver(bar, Event::Scroll); });
    } else if (std::exchange(settled_[&bar], bar.Value) != bar.Value) {
        desktop_.input([&bar] { deliver(bar, Event::Change); });
    }
}

}  // namespace ombrelia
