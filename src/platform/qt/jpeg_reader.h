// Reader of JPEG pictures row by row, however large.
#pragma once

namespace ombrelia {

class ByteSource;
class PictureWish;
class Surface;

// Whether the bytes begin as a JPEG does.
bool isJpeg(ByteSource& source);

// Gives picture the pixels that are wished for, upright. Throws PictureFailure, for a progressive
// picture too that had to be held as a whole and is too large for that.
void readJpeg(ByteSource& source, PictureWish& wish, Surface& picture);

}  // namespace ombrelia
