// How a camera was held, as the pictures' notes of it (EXIF) tell.
#pragma once

#include <cstdint>
#include <span>

#include "platform/picture_sink.h"

namespace ombrelia {

// From the notes' bytes, which begin with the order of bytes ("II" or "MM"). No turn if they are
// damaged or do not tell. Source of the numbers: Exif 2.32, 4.6.4, tag 0112.
PictureTurn exifTurn(std::span<const std::uint8_t> notes);

}  // namespace ombrelia
