#include "platform/exposure.h"

#include "platform/dispatch.h"
#include "platform/window_life.h"

namespace ombrelia {

namespace {

// How long after a change of size the requests that come of it go on.
constexpr long long kSettleMilliseconds = 200;

}  // namespace

void deliverExposure(Window& window) {
    if (isSeen(window)) {
        deliver(window, Event::Paint);
    }
}

bool Exposures::isUncovering(int width, int height, long long milliseconds) {
    if (!isKnown_) {
        isKnown_ = true;
        width_ = width;
        height_ = height;
        changed_ = milliseconds - kSettleMilliseconds;
        return true;
    }
    if (width != width_ || height != height_) {
        width_ = width;
        height_ = height;
        changed_ = milliseconds;
        return false;
    }
    return milliseconds - changed_ >= kSettleMilliseconds;
}

}  // namespace ombrelia
