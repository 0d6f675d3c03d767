// The skin's pictures, drawn from vectors at the size in device pixels at which they are shown.
#pragma once

#include <QImage>
#include <map>
#include <memory>
#include <utility>

#include "platform/control.h"

class QSvgRenderer;

namespace ombrelia {

class Skin {
  public:
    Skin();
    ~Skin();

    // One face of a picture, width by height device pixels. Kept until it is asked for in another
    // size. Throws MissingPartFailure for a face that the picture does not have.
    const QImage& face(PictureFace face, int widthDevice, int heightDevice);

  private:
    std::map<std::pair<Picture, int>, QImage> faces_;
    std::map<Picture, std::unique_ptr<QSvgRenderer>> vectors_;
};

}  // namespace ombrelia
