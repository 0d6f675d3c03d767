// Pictures from files: bitmaps, Targa, PNG and JPEG row by row by our own readers, everything else
// by the toolkit's.
#pragma once

#include <string>

#include "platform/services.h"

namespace ombrelia {

class ByteSource;

// Reads a picture in a process of its own, which has little memory and time, and which can be given
// up at any moment: no file takes the map along.
class QtPictureLoader : public PictureLoader {
  public:
    // program: the path of one that begins with runPictureReader; this one itself.
    // seconds: of a processor that a picture may take.
    explicit QtPictureLoader(std::string program = "/proc/self/exe", int seconds = 30);

    bool loadPicture(const std::string& path, PictureWish& wish, Surface& picture) override;

  private:
    std::string program_;
    int seconds_;
};

// Reads it in this process. Throws PictureFailure.
void readPicture(ByteSource& source, PictureWish& wish, Surface& picture);

}  // namespace ombrelia
