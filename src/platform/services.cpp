#include "platform/services.h"

namespace ombrelia {

namespace {
Services inForce;
}

Services& services() {
    return inForce;
}

}  // namespace ombrelia
