// The skin's pictures, drawn from vectors at the size in device pixels at which they are shown.
#pragma once

#include <QImage>
#include <future>
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

    // Begins to draw a face on a thread of its own, for face() to fetch: a window's ground is ready
    // by the time at which the screen asks for it. Nothing for a picture of None or without pixels.
    void prepare(PictureFace face, int widthDevice, int heightDevice);

  private:
    using Key = std::pair<Picture, int>;

    std::map<Key, QImage> faces_;
    std::map<Key, std::future<QImage>> prepared_;
    std::map<Picture, std::unique_ptr<QSvgRenderer>> sources_;
};

}  // namespace ombrelia
