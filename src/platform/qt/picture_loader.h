// Pictures from files: bitmaps by our own reader, everything else by the toolkit's.
#pragma once

#include "platform/services.h"

namespace ombrelia {

class QtPictureLoader : public PictureLoader {
  public:
    void loadPicture(const std::string& path, Surface& picture) override;
};

}  // namespace ombrelia
