#include "platform/qt/skin.h"

#include <QSvgRenderer>

#include "platform/qt/ready_splash.h"
#include "platform/qt/skin_drawing.h"

namespace ombrelia {

Skin::Skin() = default;
Skin::~Skin() = default;

const QImage& Skin::face(PictureFace face, int widthDevice, int heightDevice) {
    const PictureInfo& info = pictureInfo(face.picture);
    if (face.face < 0 || face.face >= info.faces) {
        throw MissingPartFailure(info.name, face.face);
    }
    QImage& image = faces_[{face.picture, face.face}];
    if (image.width() == widthDevice && image.height() == heightDevice) {
        return image;
    }
    if (face == kReadyFace) {
        image = readySplash({widthDevice, heightDevice});
        if (!image.isNull()) {
            return image;
        }
    }
    auto& vectors = vectors_[face.picture];
    if (vectors == nullptr) {
        vectors = openVectors(face.picture);
    }
    image = drawFace(*vectors, face, widthDevice, heightDevice);
    return image;
}

}  // namespace ombrelia
