// The wish of a test that wants every pixel of a picture.
#pragma once

#include "platform/picture_sink.h"

namespace ombrelia {

class WholePicture : public PictureWish {
  public:
    PictureGrid gridFor(int width, int height) override { return {1, 1, width, height}; }
    bool goesOn() override { return true; }
};

}  // namespace ombrelia
