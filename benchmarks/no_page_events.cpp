#include "page_events.h"

namespace ombrelia {

void passEvents() {}

}  // namespace ombrelia
