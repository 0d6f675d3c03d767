#include "platform/qt/toolkit_picture.h"

#include <QImageReader>
#include <algorithm>
#include <iterator>

#include "platform/byte_source.h"
#include "platform/failure.h"
#include "platform/messages.h"
#include "platform/picture_kinds_table.h"
#include "platform/qt/picture_end.h"
#include "platform/surface.h"

namespace ombrelia {

namespace {

constexpr int kStripRows = 64;  // rows that are converted at once
constexpr int kMostMegabytes = 1024;

bool isAllowed(const QByteArray& format) {
    return !format.isEmpty() &&
           std::any_of(std::begin(kPictureKinds), std::end(kPictureKinds), [&](const auto& kind) {
               return QByteArray(kind.toolkitNames).split(' ').contains(format);
           });
}

// The toolkit's name of the kind, by content. It takes a TGA of true colours for cursors, but where
// those are counted the TGA has a 0.
QByteArray formatOf(QIODevice& device) {
    constexpr qint64 kCountBytes = 2;
    const QByteArray format = QImageReader::imageFormat(&device);
    const bool isIcon = format == "ico" || format == "cur";
    const QByteArray begin = device.peek(4 + kCountBytes);
    return isIcon && begin.endsWith(QByteArray(kCountBytes, '\0')) ? QByteArray("tga") : format;
}

bool isHeldBySurface(QImage::Format format) {
    return format == QImage::Format_RGB32 || format == QImage::Format_ARGB32 ||
           format == QImage::Format_ARGB32_Premultiplied;
}

// What the reader decodes into, all black: it keeps an image of the right size and format, so what
// a damaged file leaves out is not what was in memory before. The surface's own memory where the
// format fits it.
QImage preparedImage(QImage::Format format, Surface& picture) {
    if (isHeldBySurface(format)) {
        return {reinterpret_cast<uchar*>(picture.row(0)), picture.width(), picture.height(),
                static_cast<qsizetype>(picture.width()) * static_cast<qsizetype>(sizeof(Pixel)),
                format};
    }
    if (format == QImage::Format_Invalid) {
        return {};
    }
    QImage image(picture.width(), picture.height(), format);
    image.fill(0);
    return image;
}

// Sizes picture by what the file says of itself, and gives the image to decode it into. With a
// reader of its own, since some kinds read on where the question for the size has stopped.
QImage imageFor(QIODevice& device, const QByteArray& format, const std::string& path,
                Surface& picture) {
    const qint64 begin = device.pos();
    QImage image;
    QImageReader reader(&device, format);
    reader.setAutoDetectImageFormat(false);
    const QSize size = reader.size();
    if (size.isValid() && !size.isEmpty()) {
        sizePicture(path, size.width(), size.height(), picture);
        image = preparedImage(reader.imageFormat(), picture);
    }
    device.seek(begin);
    return image;
}

void copyGrey16(const QImage& image, Surface& picture) {
    for (int y = 0; y < picture.height(); ++y) {
        const auto* from = reinterpret_cast<const quint16*>(image.constScanLine(y));
        std::transform(from, from + picture.width(), picture.row(y), [](quint16 grey) {
            const auto top = static_cast<unsigned>(grey) >> 8U;
            return pixelOf(rgb(top, top, top));
        });
    }
}

// Strip by strip, so that the picture is not held three times.
void copyConverted(const QImage& image, Surface& picture) {
    for (int y = 0; y < picture.height(); y += kStripRows) {
        const int rows = std::min(kStripRows, picture.height() - y);
        // Premultiplied components are those over black.
        const QImage strip = image.copy(0, y, picture.width(), rows)
                                 .convertToFormat(QImage::Format_ARGB32_Premultiplied);
        for (int i = 0; i < rows; ++i) {
            const auto* from = reinterpret_cast<const Pixel*>(strip.constScanLine(i));
            std::transform(from, from + picture.width(), picture.row(y + i),
                           [](Pixel pixel) { return pixel | 0xFF000000U; });
        }
    }
}

void takeImage(const QImage& image, const std::string& path, Surface& picture) {
    if (image.width() != picture.width() || image.height() != picture.height()) {
        sizePicture(path, image.width(), image.height(), picture);
    }
    const bool isInPlace = image.constBits() == reinterpret_cast<const uchar*>(picture.row(0));
    if (isInPlace && image.format() == QImage::Format_RGB32) {
        return;
    }
    if (image.format() == QImage::Format_Grayscale16) {
        copyGrey16(image, picture);
    } else {
        copyConverted(image, picture);
    }
}

}  // namespace

void readToolkitPicture(QIODevice& device, const std::string& path, Surface& picture) {
    const QByteArray format = formatOf(device);
    if (!isAllowed(format)) {
        throw PictureFailure(path, messages::kUnknownPicture);
    }
    if (!isPictureComplete(device, format)) {
        throw PictureFailure(path, messages::kCutOff);
    }
    QImageReader::setAllocationLimit(kMostMegabytes);
    QImage image = imageFor(device, format, path, picture);
    QImageReader reader(&device, format);
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    if (!reader.read(&image) || image.isNull()) {
        throw PictureFailure(path, reader.errorString().toStdString());
    }
    takeImage(image, path, picture);
    picture.changed();
}

}  // namespace ombrelia
