#include "platform/qt/skin.h"

#include <QPainter>
#include <QSvgRenderer>

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
    auto& source = sources_[face.picture];
    if (source == nullptr) {
        source = std::make_unique<QSvgRenderer>(QString(":/skin/%1.svg").arg(info.name));
    }
    image = QImage(widthDevice, heightDevice, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    source->setViewBox(QRectF(face.face * info.width, 0, info.width, info.height));
    source->render(&painter, QRectF(0, 0, widthDevice, heightDevice));
    return image;
}

}  // namespace ombrelia
