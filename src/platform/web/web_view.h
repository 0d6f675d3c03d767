// One window on the page: shows its record, compares it with what was last painted, fires its
// timers.
#pragma once

#include <map>
#include <vector>

#include "platform/control.h"
#include "platform/pointer.h"
#include "platform/screen_fit.h"
#include "platform/timer_rest.h"
#include "platform/web/web_brush.h"
#include "platform/window_look.h"

namespace ombrelia {

class WebDesktop;

class WebView {
  public:
    WebView(Window& window, int number, WebDesktop& desktop);
    ~WebView();
    WebView(const WebView&) = delete;
    WebView& operator=(const WebView&) = delete;

    Window& window() { return window_; }
    int number() const { return number_; }
    double scale() const { return scale_; }
    bool isShown() const { return isShown_; }

    // Paints every part that differs from what was last painted, and tells assistive technology of
    // it. True if anything differed.
    bool sync();

    // Takes the scale of the page as it is now and comes inside it; in the middle again if the user
    // has not moved it.
    void fitPage();

    // Comes inside the page, together with what docks to it.
    void keepInside();

    void show();
    void hide();

    // Follows its host.
    void dock();

    // Starts and stops the timers to match the record; a resting one starts again.
    void syncTimers();

    // When the next timer is to fire, on the page's clock; none: infinity.
    double nextTick() const;

    // Fires the timers whose time has come.
    void tickDue(double now);

    // Fires the timers of every frame at once.
    void tickAtOnce();

    // What the pointer does, in device pixels of the window's inside.
    void pointer(const PointerInput& input);

    // The press that is being handled may become a move of the window.
    void armMove() { isMoveArmed_ = true; }

    // The user has given its inside another size, device pixels.
    void takeFrameSize(int width, int height);

    // The user drags its frame; cut so that it can be got hold of again.
    void moveByUser(int left, int top);

    // Of its inside, device pixels of the page.
    int insideTop() const;

    void setScrollBar(ScrollBar& bar, int value, bool isDragged);

  private:
    struct Tick {
        bool isOn = false;
        double due = 0;
        TimerRest rest;
    };

    void takeScale();
    void place();
    void moveTo(const ScreenPlace& wished);
    ScreenBox box() const;
    int dockedWidth() const;
    void tick(Timer& timer);
    void tellPart(int item, Control& part);
    void syncFrame();
    bool moveWindow(const PointerInput& input);
    int outerWidth() const;
    int outerHeight() const;

    Window& window_;
    int number_;
    WebDesktop& desktop_;
    WebBrush brush_;
    WindowLook look_;
    double scale_ = 1;
    int left_ = 0;  // of its frame, device pixels of the page
    int top_ = 0;
    int width_ = 0;  // of its inside
    int height_ = 0;
    bool isShown_ = false;
    bool wasShown_ = false;
    bool isMoved_ = false;  // by the user
    std::string title_;
    std::map<Timer*, Tick> timers_;
    std::map<ScrollBar*, int> settled_;  // the value that Change was last raised for

    bool isMoveArmed_ = false;
    bool isFollowing_ = false;
    double pressX_ = 0;  // of the page
    double pressY_ = 0;
    int pressLeft_ = 0;
    int pressTop_ = 0;
};

}  // namespace ombrelia
