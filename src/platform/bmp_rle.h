// Run-length coded pixels of a bitmap.
#pragma once

#include "platform/bmp_header.h"

namespace ombrelia {

class PictureSink;

// Decodes into picture, which was made for the header's size. A pixel that the runs skip has the
// colour of index 0. Throws PictureFailure when the bytes end before the picture does.
void readRunLengths(ByteSource& source, const BitmapHeader& header, PictureSink& picture);

}  // namespace ombrelia
