#include "platform/qt/skin_drawing.h"

#include <QPainter>
#include <QSvgRenderer>

namespace ombrelia {

std::unique_ptr<QSvgRenderer> openVectors(Picture picture) {
    return std::make_unique<QSvgRenderer>(QString(":/skin/%1.svg").arg(pictureInfo(picture).name));
}

QImage drawFace(QSvgRenderer& vectors, PictureFace face, int widthDevice, int heightDevice) {
    const PictureInfo& info = pictureInfo(face.picture);
    QImage image(widthDevice, heightDevice, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    vectors.setViewBox(QRectF(face.face * info.width, 0, info.width, info.height));
    vectors.render(&painter, QRectF(0, 0, widthDevice, heightDevice));
    return image;
}

}  // namespace ombrelia
