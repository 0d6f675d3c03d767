// Pictures from files: bitmaps by our own reader, everything else by the toolkit's.
#pragma once

#include "platform/services.h"

namespace ombrelia {

class ByteSource;

class QtPictureLoader : public PictureLoader {
  public:
    bool loadPicture(const std::string& path, PictureWish& wish, Surface& picture) override;
};

// Throws PictureFailure.
void readPicture(ByteSource& source, PictureWish& wish, Surface& picture);

}  // namespace ombrelia
