#include "page_events.h"

#include "platform/web/page.h"

namespace ombrelia {

void passEvents() {
    page_wait(0);
}

}  // namespace ombrelia
