// Reader of bitmaps (*.bmp): the one format that always works, in all its variants and with exact
// colours, whatever the toolkit makes of it.
//
// 1, 2, 4, 8, 16, 24 and 32 bits a pixel, run lengths of 4 and 8 bits, bit fields of any width,
// rows from below or above, headers of 12, 16, 40, 52, 56, 64, 108 and 124 bytes, palettes that are
// too short.
#pragma once

namespace ombrelia {

class ByteSource;
class PictureWish;
class Surface;

// Gives picture the pixels of the bitmap that are wished for. Parts that are transparent by a mask
// of alpha come over black, unless all of them are. Throws PictureFailure, before memory is taken
// if the bytes are too few.
void readBitmap(ByteSource& source, PictureWish& wish, Surface& picture);

}  // namespace ombrelia
