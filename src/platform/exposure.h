// When a window has to draw its picture anew because the screen asks for it.
#pragma once

#include "platform/control.h"

namespace ombrelia {

// The screen asks for the window's picture: raises Paint, unless the window is not to be seen.
void deliverExposure(Window& window);

// Tells a window that was uncovered from one that only has another size: growing is not exposing,
// and a shrunk window has nothing new to show. One for each window.
class Exposures {
  public:
    // The screen asks for a picture of this size in pixels, at this time in milliseconds. True if
    // that is an exposure; the requests that come of another size, some at once and some a little
    // later, are none. The first request of all is one.
    bool isUncovering(int width, int height, long long milliseconds);

  private:
    bool isKnown_ = false;
    int width_ = 0;
    int height_ = 0;
    long long changed_ = 0;
};

}  // namespace ombrelia
