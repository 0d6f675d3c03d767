// The windows on the page, and the loop that hands its events over.
#pragma once

#include <array>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/event_rounds.h"
#include "platform/screen_fit.h"
#include "platform/services.h"
#include "platform/web/page.h"
#include "platform/web/web_view.h"
#include "platform/yield_clock.h"

namespace ombrelia {

// What a dialog of the page was answered.
struct PageAnswer {
    bool isAccepted = false;
    double number = 0;
    std::string text;
};

class WebDesktop : public Desktop, public EventRounds {
  public:
    explicit WebDesktop(const EditorSize& editor);

    // Hands events over until the process is to end.
    void runLoop();

    // Lets the page live until it has an event, a timer is due or so many milliseconds are over,
    // and handles what has come.
    void pump(double milliseconds = std::numeric_limits<double>::infinity());

    void wakeTimers() override;

    // Waits for a dialog's answer; while it is open no window is active.
    PageAnswer waitForAnswer(int dialog);

    // The picture that is being decoded: its size once that is known, 0 by 0 if it cannot be read.
    std::optional<std::array<int, 2>> Decoded;

    // Device pixels to a unit for a window.
    double scaleOf(const Window& window) const;

    // The view of a window that is loaded and was shown; or null.
    WebView* find(const Window& window) const;

    // Width in units of what docks to the window's right edge.
    double dockedWidth(const Window& window) const;

    // The editor's view; or null.
    WebView* editorView() const;

    // What docks to it follows.
    void dockTo(const Window& host);

    void activate(WebView& view);

    void shown(Window& window) override;
    void hidden(Window& window) override;
    void unloaded(Window& window) override;
    void minimize(Window& window) override;
    void refresh(Control& control) override;
    void sleep(int milliseconds) override;
    void yield() override;
    void beginWindowMove(Window& window) override;
    void beginDrag(Control& source) override;
    void endDrag() override;
    void openList(ListBox& list) override;
    std::string activeWindowCaption() override;
    void openWebPage(const std::string& address) override;
    void end() override;

  private:
    using Numbers = std::array<double, 6>;

    WebView& viewOf(Window& window);
    WebView* byNumber(double number) const;
    bool sync() override;
    void tickAtOnce() override;
    void leave() override {}
    void settle() override {}
    void fireTimers();
    void handle(PageEventKind kind, const Numbers& numbers);
    void handleOf(WebView& view, PageEventKind kind, const Numbers& numbers);
    void waitUntil(const std::function<bool()>& isDone, double milliseconds);
    void fitPage();

    EditorSize editor_;
    std::map<Window*, std::unique_ptr<WebView>> views_;
    std::vector<std::unique_ptr<WebView>> leaving_;  // of unloaded windows, until nothing runs
    int nextNumber_ = 1;
    Window* active_ = nullptr;
    bool hasReleased_ = false;
    YieldClock yieldClock_;
    double lastRefresh_ = -1000;
    int openDialogs_ = 0;
    std::map<int, PageAnswer> answers_;
};

}  // namespace ombrelia
