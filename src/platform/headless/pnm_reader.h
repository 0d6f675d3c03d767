// Portable grey maps and pixel maps, in figures (P2, P3) or in bytes (P5, P6): the pictures that a
// scenario can write as text and that it dumps.
#pragma once

namespace ombrelia {

class ByteSource;
class PictureWish;
class Surface;

// Whether the bytes begin as one of them.
bool isPortableMap(ByteSource& source);

// Gives picture the pixels of the map that are wished for. Throws PictureFailure, for a highest
// value other than 255 too.
void readPortableMap(ByteSource& source, PictureWish& wish, Surface& picture);

}  // namespace ombrelia
