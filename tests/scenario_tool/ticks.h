// Ticks of timers.
#pragma once

#include "platform/control.h"

namespace ombrelia::scenario {

// One tick, if the timer is enabled and its window loaded.
void fireTimer(Timer& timer);

}  // namespace ombrelia::scenario
