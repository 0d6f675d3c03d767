// Run-length coded pixels of a bitmap.
#pragma once

#include "platform/bmp_header.h"

namespace ombrelia {

class Surface;

// Decodes into picture, which has the header's size. A pixel that the runs skip has the colour of
// index 0. Throws PictureFailure when the bytes end before the picture does.
void readRunLengths(ByteSource& source, const BitmapHeader& header, Surface& picture);

}  // namespace ombrelia
