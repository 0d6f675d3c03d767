// Reader of Targa pictures (*.tga), which height maps often are: palettes, true colours and greys,
// plain and run-length coded, of 8, 15, 16, 24 and 32 bits, from any corner.
#pragma once

namespace ombrelia {

class ByteSource;
class PictureWish;
class Surface;

// Whether the bytes begin as a Targa picture does. There is no mark of the kind; what the header
// says must fit together.
bool isTarga(ByteSource& source);

// Gives picture the pixels that are wished for, over black. Throws PictureFailure. Source of the
// format: Truevision TGA File Format Specification 2.0.
void readTarga(ByteSource& source, PictureWish& wish, Surface& picture);

}  // namespace ombrelia
