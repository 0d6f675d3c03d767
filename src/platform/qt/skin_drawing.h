// Drawing the skin's pictures from their vectors.
#pragma once

#include <QImage>
#include <memory>

#include "platform/control.h"

class QSvgRenderer;

namespace ombrelia {

// The vectors of a picture, all its faces in a row.
std::unique_ptr<QSvgRenderer> openVectors(Picture picture);

// One face on a transparent ground, width by height device pixels.
QImage drawFace(QSvgRenderer& vectors, PictureFace face, int widthDevice, int heightDevice);

}  // namespace ombrelia
