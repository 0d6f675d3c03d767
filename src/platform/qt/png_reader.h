// Reader of PNG pictures row by row, however large.
#pragma once

namespace ombrelia {

class ByteSource;
class PictureWish;
class Surface;

// Whether the bytes begin as a PNG does.
bool isPng(ByteSource& source);

// Gives picture the pixels that are wished for, upright, over black; of 16 bits the toolkit's
// eight. Throws PictureFailure.
void readPng(ByteSource& source, PictureWish& wish, Surface& picture);

}  // namespace ombrelia
