#include "desk/map_operation.h"

#include "core/editor_state.h"
#include "core/objects.h"
#include "core/progress.h"
#include "platform/dispatch.h"

namespace ombrelia {

namespace {

constexpr int kFirstGestureKey = 200;  // of what waits; commands have their numbers below

// The recorded points, which the next gesture overwrites.
struct RecordedPath {
    CheckedArray<std::int16_t, 0, 600> x = StrokeX;
    CheckedArray<std::int16_t, 0, 600> y = StrokeY;
    std::int16_t count = StrokeCount;

    void bringBack() const {
        StrokeX = x;
        StrokeY = y;
        StrokeCount = count;
    }
};

}  // namespace

void operate(const std::function<void()>& operation) {
    if (ImportRunning == 0) {
        operation();
        return;
    }
    // No import can be stopped, and its refresh shall not be.
    const std::int16_t stop = StopFlag;
    putOff(kFirstGestureKey + GesturesPutOff, [operation, path = RecordedPath()] {
        forgetStop();
        path.bringBack();
        operation();
    });
    StopFlag = stop;
    ++GesturesPutOff;
}

}  // namespace ombrelia
