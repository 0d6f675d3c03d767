// Which events the parts of a window can get at all, on any platform.
#pragma once

#include "platform/control.h"

namespace ombrelia {

// Whether a platform ever delivers this event to a part of this kind. Keys come to the part of a
// window that has a handler for them, or to the window itself.
bool canGet(ControlKind kind, Event event);

}  // namespace ombrelia
