// Real events of an X server, made by its test extension, and the way back to who gets them.
#pragma once

#include <QWidget>
#include <string>

namespace ombrelia::two_ways {

class XInput {
  public:
    XInput();
    ~XInput();
    XInput(const XInput&) = delete;
    XInput& operator=(const XInput&) = delete;

    // Where the server has the window's corner; false while it is not on the screen.
    bool findCorner(const QWidget& window, QPoint& corner);

    // The pointer, device pixels of the screen; the mouse's buttons 1, 2 (the middle) and 3. The
    // server has heard of it before these return: a window shown afterwards finds the new place.
    void moveTo(const QPoint& place);
    void changeButton(int button, bool isDown);

    // Where the server has the pointer and the window, for what is told of an event that got lost.
    std::string places(const QWidget& window);

  private:
    struct Connection;
    Connection* connection_;
};

}  // namespace ombrelia::two_ways
