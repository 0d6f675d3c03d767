// Reads one pixel of a surface.
#pragma once

#include <cstdint>

#include "platform/surface.h"

namespace ombrelia {

// Its colour by its number from the left top corner, whatever the scale; -1 outside the image.
inline std::int32_t pixelAt(const Surface& surface, int x, int y) {
    if (x < 0 || y < 0 || x >= surface.width() || y >= surface.height()) {
        return -1;
    }
    return static_cast<std::int32_t>(colorOf(surface.row(y)[x]));
}

}  // namespace ombrelia
