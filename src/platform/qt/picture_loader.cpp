#include "platform/qt/picture_loader.h"

#include <QFile>

#include "platform/bmp_header.h"
#include "platform/bmp_reader.h"
#include "platform/byte_source.h"
#include "platform/failure.h"
#include "platform/qt/toolkit_picture.h"

namespace ombrelia {

void QtPictureLoader::loadPicture(const std::string& path, Surface& picture) {
    FileSource source(path);
    if (isBitmap(source)) {
        readBitmap(source, picture);
        return;
    }
    QFile device;
    if (!device.open(source.handle(), QIODevice::ReadOnly)) {
        throw PictureFailure(path, device.errorString().toStdString());
    }
    readToolkitPicture(device, path, picture);
}

}  // namespace ombrelia
