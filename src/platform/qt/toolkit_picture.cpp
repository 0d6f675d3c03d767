#include "platform/qt/toolkit_picture.h"

#include <QIODevice>
#include <QImageReader>
#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <span>
#include <utility>
#include <vector>

#include "platform/byte_source.h"
#include "platform/exif_orientation.h"
#include "platform/failure.h"
#include "platform/messages.h"
#include "platform/picture_kinds_table.h"
#include "platform/picture_sink.h"
#include "platform/qt/gif_end.h"
#include "platform/surface.h"

namespace ombrelia {

namespace {

constexpr int kMostMegabytes = 96;  // the readers hold a picture up to twice

// A file as the toolkit reads it. What the disk refuses is an end to the toolkit.
class SourceDevice : public QIODevice {
  public:
    explicit SourceDevice(ByteSource& source) : source_(source) { open(ReadOnly | Unbuffered); }
    qint64 size() const override { return static_cast<qint64>(source_.size()); }

  protected:
    qint64 readData(char* into, qint64 most) override {
        const qint64 count = std::min(most, size() - pos());
        const auto bytes = std::span(reinterpret_cast<std::uint8_t*>(into),
                                     static_cast<std::size_t>(std::max<qint64>(count, 0)));
        try {
            source_.read(static_cast<std::uint64_t>(pos()), bytes);
        } catch (const PictureFailure& failure) {
            setErrorString(QString::fromUtf8(failure.what()));
            return -1;
        }
        return count;
    }
    qint64 writeData(const char* /*from*/, qint64 /*count*/) override { return -1; }

  private:
    ByteSource& source_;
};

bool isAllowed(const QByteArray& format) {
    return !format.isEmpty() &&
           std::any_of(std::begin(kPictureKinds), std::end(kPictureKinds), [&](const auto& kind) {
               return QByteArray(kind.toolkitNames).split(' ').contains(format);
           });
}

// What the reader decodes into, all black: it keeps an image of the right size and format, so what
// a damaged file leaves out is not what was in memory before. With a reader of its own, since some
// kinds read on where the question for the size has stopped.
QImage imageFor(QIODevice& device, const QByteArray& format, const std::string& path) {
    const qint64 begin = device.pos();
    QImage image;
    QImageReader reader(&device, format);
    reader.setAutoDetectImageFormat(false);
    const QSize size = reader.size();
    const QImage::Format pixels = reader.imageFormat();
    if (size.isValid() && !size.isEmpty()) {
        checkPictureSize(path, size.width(), size.height());
        constexpr qint64 kMostBytes = qint64{kMostMegabytes} << 20;
        const int bytes = pixels == QImage::Format_RGBA64 ? 8 : 4;
        if (qint64{size.width()} * size.height() * bytes > kMostBytes) {
            throw PictureFailure(path, messages::pictureTooLarge(size.width(), size.height()));
        }
        if (pixels != QImage::Format_Invalid) {
            image = QImage(size, pixels);
            image.fill(0);
        }
    }
    device.seek(begin);
    return image;
}

PictureTurn turnOf(QImageIOHandler::Transformations turn) {
    // The toolkit mirrors first and turns by a quarter then.
    PictureTurn result;
    result.exchangesAxes = turn.testFlag(QImageIOHandler::TransformationRotate90);
    result.mirrorsX = turn.testFlag(QImageIOHandler::TransformationMirror);
    result.mirrorsY = turn.testFlag(QImageIOHandler::TransformationFlip);
    if (result.exchangesAxes) {
        std::swap(result.mirrorsX, result.mirrorsY);
        result.mirrorsX = !result.mirrorsX;
    }
    return result;
}

// As the notes of a WebP tell, which the toolkit does not read. Chunks of a name and a length each,
// filled up to an even one.
PictureTurn webpTurn(ByteSource& source) {
    constexpr std::uint64_t kHeadBytes = 8;
    constexpr std::uint64_t kMostNotes = 65536;
    std::array<std::uint8_t, kHeadBytes> head{};
    std::uint64_t at = 12;
    while (at + kHeadBytes <= source.size()) {
        source.read(at, head);
        std::uint64_t length = 0;
        for (std::size_t i = kHeadBytes; i-- > 4;) {
            length = length << 8U | head[i];
        }
        at += kHeadBytes;
        if (std::equal(head.begin(), head.begin() + 4, "EXIF") && length <= kMostNotes &&
            length <= source.size() - at) {
            std::vector<std::uint8_t> notes(length);
            source.read(at, notes);
            return exifTurn(notes);
        }
        at += length + length % 2;
    }
    return {};
}

// An icon has its picture in several sizes.
void goToLargest(QImageReader& reader) {
    int largest = 0;
    int most = 0;
    for (int i = 0; i < reader.imageCount(); ++i) {
        const int pixels =
            reader.jumpToImage(i) ? reader.size().width() * reader.size().height() : 0;
        if (pixels > most) {
            most = pixels;
            largest = i;
        }
    }
    reader.jumpToImage(largest);
}

// Row by row, so that the picture is not held once more.
void putRows(const QImage& image, const std::string& path, PictureSink& sink) {
    const bool isDeepGrey = image.format() == QImage::Format_Grayscale16;
    std::vector<Pixel> pixels(static_cast<std::size_t>(image.width()));
    for (int y = 0; y < image.height(); ++y) {
        if (!sink.keepsRow(y)) {
            continue;
        }
        if (isDeepGrey) {
            const auto* from = reinterpret_cast<const quint16*>(image.constScanLine(y));
            std::transform(from, from + image.width(), pixels.begin(),
                           [](int grey) { return qRgb(grey >> 8, grey >> 8, grey >> 8); });
        } else {
            // Premultiplied components are those over black.
            const QImage row = image.copy(0, y, image.width(), 1)
                                   .convertToFormat(QImage::Format_ARGB32_Premultiplied);
            if (row.isNull()) {
                throw PictureFailure(path, messages::kNoMemory);
            }
            const auto* from = reinterpret_cast<const Pixel*>(row.constScanLine(0));
            std::transform(from, from + image.width(), pixels.begin(),
                           [](Pixel pixel) { return pixel | 0xFF000000U; });
        }
        sink.putRow(y, pixels.data());
    }
}

}  // namespace

void readToolkitPicture(ByteSource& source, PictureWish& wish, Surface& picture) {
    const std::string& path = source.path();
    SourceDevice device(source);
    const QByteArray format = QImageReader::imageFormat(&device);
    if (!isAllowed(format)) {
        throw PictureFailure(path, messages::kUnknownPicture);
    }
    if (format == "gif" && !isGifComplete(device)) {
        throw PictureFailure(path, messages::kCutOff);
    }
    QImageReader::setAllocationLimit(kMostMegabytes);
    QImage image = imageFor(device, format, path);
    QImageReader reader(&device, format);
    reader.setAutoDetectImageFormat(false);
    const bool isIcon = format == "ico" || format == "cur";
    if (isIcon) {
        image = {};
        goToLargest(reader);
    }
    const PictureTurn turn = format == "webp" ? webpTurn(source) : turnOf(reader.transformation());
    if (!reader.read(&image) || image.isNull()) {
        throw PictureFailure(path, reader.errorString().toStdString());
    }
    PictureSink sink(path, image.width(), image.height(), wish, picture, turn);
    putRows(image, path, sink);
    picture.changed();
}

}  // namespace ombrelia
