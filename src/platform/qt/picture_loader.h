// Pictures from files: bitmaps by our own reader, everything else by the toolkit's.
#pragma once

#include "platform/services.h"

class QIODevice;

namespace ombrelia {

class QtPictureLoader : public PictureLoader {
  public:
    void loadPicture(const std::string& path, Surface& picture) override;
};

// What the toolkit makes of a file's content; path is for messages. Throws PictureFailure.
void readToolkitPicture(QIODevice& device, const std::string& path, Surface& picture);

}  // namespace ombrelia
