// One window on the screen: shows its record, compares it with what was last painted, and turns the
// toolkit's events into the logic's.
#pragma once

#include <QBasicTimer>
#include <QPointer>
#include <QWidget>
#include <map>
#include <memory>

#include "platform/control.h"
#include "platform/pointer.h"
#include "platform/qt/frame_parts.h"
#include "platform/qt/skin.h"
#include "platform/timer_rest.h"
#include "platform/window_look.h"

namespace ombrelia {

class QtDesktop;

// A Wayland client neither knows nor chooses where its windows stand.
bool canPlaceWindows();

class WindowView : public QWidget {
  public:
    WindowView(Window& window, QtDesktop& desktop);

    const Window& window() const { return window_; }
    QtDesktop& desktop() { return desktop_; }

    // Device pixels to a unit of this window.
    double scale() const { return scale_; }

    // Asks for a repaint of every part that differs from what was last painted; follows the
    // record's place where the window is docked. True if anything differed.
    bool sync();

    // Sets the size on the screen for a scale and puts the window in the middle, with room for what
    // docks to it.
    void place();

    // Takes the scale and the density of the screen that the window is on now, and comes inside it.
    void fitScreen();

    // Comes inside its screen, together with what docks to it.
    void keepInside();

    // Starts and stops the system timers to match the record; a resting one starts again.
    void syncTimers();

    // Fires the timers of every frame at once; the next tick comes a frame later.
    void tickAtOnce();

    // The press that is being handled may become a move of the window.
    void armMove() { isMoveArmed_ = true; }

    // Shows the control's picture as the pointer.
    void showDragged(Control& source);

    // Opens the list for a choice.
    void openList(ListBox& list);

    // Moves the window to the place in its record; true if it was elsewhere.
    bool followRecord();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    struct SystemTimer {
        QBasicTimer basic;
        TimerRest rest;
    };

    void handOver(PointerKind kind, const QPointF& logical, Qt::MouseButton button = Qt::NoButton,
                  double notches = 0);
    void press(PointerKind kind, QMouseEvent* event);
    void tick(Timer& timer, SystemTimer& system);
    bool moveWindow(QMouseEvent* event);
    QRect logicalRect(const PixelRect& device) const;
    // Tells the record where the window stands.
    void tellPlace();
    void takeSize();
    int menuHeight() const { return frame_ == nullptr ? 0 : frame_->menuHeight(); }

    Window& window_;
    QtDesktop& desktop_;
    double scale_;
    double ratio_ = 0;  // device pixels to a logical one, at which the window has its size
    WindowLook look_;
    std::map<Timer*, SystemTimer> timers_;
    std::unique_ptr<FrameParts> frame_;  // of a window that is sized by hand

    bool isMoveArmed_ = false;
    bool isFollowing_ = false;  // the window follows the pointer by itself
    QPoint pressGlobal_;
    QPoint pressCorner_;
};

}  // namespace ombrelia
