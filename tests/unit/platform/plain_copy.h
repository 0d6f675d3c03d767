// The stretched copy a second time, pixel by pixel, through the public parts of a surface alone.
#pragma once

#include "platform/surface.h"

namespace ombrelia {

void plainCopy(Surface& target, const Surface& source, const Surface::Area& to,
               const Surface::Area& from);

}  // namespace ombrelia
