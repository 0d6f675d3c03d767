#include "platform/qt/skin.h"

#include <QPainter>
#include <QSvgRenderer>

namespace ombrelia {

namespace {

const PictureInfo& checkedInfo(PictureFace face) {
    const PictureInfo& info = pictureInfo(face.picture);
    if (face.face < 0 || face.face >= info.faces) {
        throw MissingPartFailure(info.name, face.face);
    }
    return info;
}

std::unique_ptr<QSvgRenderer> openSource(const PictureInfo& info) {
    return std::make_unique<QSvgRenderer>(QString(":/skin/%1.svg").arg(info.name));
}

QImage draw(QSvgRenderer& source, PictureFace face, int width, int height) {
    const PictureInfo& info = pictureInfo(face.picture);
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    source.setViewBox(QRectF(face.face * info.width, 0, info.width, info.height));
    source.render(&painter, QRectF(0, 0, width, height));
    return image;
}

bool hasSize(const QImage& image, int width, int height) {
    return image.width() == width && image.height() == height;
}

}  // namespace

Skin::Skin() = default;
Skin::~Skin() = default;

const QImage& Skin::face(PictureFace face, int widthDevice, int heightDevice) {
    const PictureInfo& info = checkedInfo(face);
    const Key key{face.picture, face.face};
    QImage& image = faces_[key];
    if (hasSize(image, widthDevice, heightDevice)) {
        return image;
    }
    if (const auto found = prepared_.find(key); found != prepared_.end()) {
        image = found->second.get();
        prepared_.erase(found);
        if (hasSize(image, widthDevice, heightDevice)) {
            return image;
        }
    }
    auto& source = sources_[face.picture];
    if (source == nullptr) {
        source = openSource(info);
    }
    image = draw(*source, face, widthDevice, heightDevice);
    return image;
}

void Skin::prepare(PictureFace face, int widthDevice, int heightDevice) {
    if (face.picture == Picture::None || widthDevice <= 0 || heightDevice <= 0) {
        return;
    }
    const PictureInfo& info = checkedInfo(face);
    const Key key{face.picture, face.face};
    if (prepared_.count(key) > 0 || hasSize(faces_[key], widthDevice, heightDevice)) {
        return;
    }
    prepared_[key] = std::async(std::launch::async, [=, &info] {
        return draw(*openSource(info), face, widthDevice, heightDevice);
    });
}

}  // namespace ombrelia
