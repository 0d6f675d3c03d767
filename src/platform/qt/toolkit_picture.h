// Pictures of the kinds that the toolkit reads, each as a whole.
#pragma once

namespace ombrelia {

class ByteSource;
class PictureWish;
class Surface;

// Gives picture the pixels that are wished for, upright, over black. Throws PictureFailure, for a
// picture too that takes more than 96 MiB.
void readToolkitPicture(ByteSource& source, PictureWish& wish, Surface& picture);

}  // namespace ombrelia
