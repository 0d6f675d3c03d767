// The toolkit's keys as virtual key codes.
#pragma once

class QKeyEvent;

namespace ombrelia {

// 0 for a key that has no code of its own.
int virtualKeyOf(const QKeyEvent& event);

}  // namespace ombrelia
