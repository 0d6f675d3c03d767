#include "platform/qt/picture_loader.h"

#include "platform/bmp_header.h"
#include "platform/bmp_reader.h"
#include "platform/byte_source.h"
#include "platform/qt/jpeg_reader.h"
#include "platform/qt/png_reader.h"
#include "platform/qt/toolkit_picture.h"

namespace ombrelia {

bool QtPictureLoader::loadPicture(const std::string& path, PictureWish& wish, Surface& picture) {
    FileSource source(path);
    readPicture(source, wish, picture);
    return true;
}

void readPicture(ByteSource& source, PictureWish& wish, Surface& picture) {
    if (isBitmap(source)) {
        readBitmap(source, wish, picture);
    } else if (isPng(source)) {
        readPng(source, wish, picture);
    } else if (isJpeg(source)) {
        readJpeg(source, wish, picture);
    } else {
        readToolkitPicture(source, wish, picture);
    }
}

}  // namespace ombrelia
