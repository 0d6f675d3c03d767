#include "register/reset_process.h"

#include "app/bindings.h"
#include "games/maze/maze_state.h"
#include "platform/dispatch.h"
#include "platform/pointer.h"
#include "register/value_row.h"

namespace ombrelia {

void resetProcess() {
    for (const ValueRow& row : allValues()) {
        row.reset();
    }
    maze::releaseMaze();
    for (Window* window : allWindows()) {
        window->Loaded = false;
        window->Visible = false;
        window->Minimized = false;
        window->PointerX = -1;
        window->PointerY = -1;
    }
    resetDispatch();
    resetPointer();
    bindEvents();
}

}  // namespace ombrelia
