// The windows on the real screen and the event loop behind them.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QScreen>
#include <functional>
#include <map>

#include "platform/event_rounds.h"
#include "platform/qt/skin.h"
#include "platform/screen_fit.h"
#include "platform/services.h"
#include "platform/yield_clock.h"

namespace ombrelia {

class WindowView;

class QtDesktop : public QObject, public Desktop, public EventRounds {
  public:
    QtDesktop();
    ~QtDesktop() override;

    // What the scale is chosen for.
    void chooseScale(const EditorSize& editor) { editor_ = editor; }

    // Device pixels to a unit, for dialogs.
    double scale() const;

    // The same for one window on its screen: smaller where it would not fit with its frame.
    double scaleOf(const Window& window) const;

    // The screen that a window is on, of a docked one its host's; where it is to open if it is not
    // shown yet.
    const QScreen& screenOf(const Window& window) const;

    // How far from the middle windows open, in units to the right and down.
    void setOffset(double units) { offsetUnits_ = units; }
    double offsetUnits() const { return offsetUnits_; }

    // Where a window is to open in the middle of: a game of the editor, another of its screen.
    QRect placeAround(const Window& window) const;

    // The screens have changed, or a window has come to another.
    void fitSoon();

    // A window has another scale: what docks to it takes the same.
    void rescaleDocked(const Window& host);

    Skin& skin() { return skin_; }

    // Makes each yield handle events and last at least this long; 0: as fast as can be.
    void setYieldTime(int milliseconds) { yieldMilliseconds_ = milliseconds; }

    // Width in units of what docks to the window's right edge.
    double dockedWidth(const Window& window) const;

    void wakeTimers() override;

    // A window was painted.
    void painted(Window& window);

    // Called once, when the first window has been painted.
    std::function<void()> OnFirstPaint;

    // The view of the window that is active, or any that is seen, but never one that stands alone;
    // for dialogs. May be null.
    WindowView* dialogParent() const;

    // The view of the active window if that stands alone; or null.
    WindowView* activeGame() const;

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
    WindowView& viewOf(Window& window);
    bool sync() override;
    void tickAtOnce() override;
    void leave() override;
    void settle() override;
    double scaleOn(const QScreen& screen) const;
    void watchScreen(QScreen* screen);
    // Every window takes the scale of its screen anew and comes inside it.
    void fitScreens();
    void showDocked(Window& host);
    void waitUntil(const std::function<bool()>& isDone, qint64 milliseconds);

    Skin skin_;
    EditorSize editor_{};
    double offsetUnits_ = 0;
    std::map<Window*, WindowView*> views_;
    YieldClock yieldClock_;
    QElapsedTimer sinceSync_;  // of a yield
    QElapsedTimer sinceRefresh_;
    int yieldMilliseconds_ = 0;
};

}  // namespace ombrelia
