#include "platform/qt/jpeg_end.h"

#include <QByteArray>
#include <QIODevice>

namespace ombrelia {

namespace {

constexpr qint64 kChunkBytes = 65536;
constexpr char kMark = '\xFF';
constexpr char kStartOfPixels = '\xDA';
constexpr char kEndOfPicture = '\xD9';

// Goes behind the segments up to the first pixels; these may hold a whole smaller picture. False if
// there are none.
bool skipToPixels(QIODevice& device) {
    char mark[2];
    char length[2];
    if (!device.seek(2)) {
        return false;
    }
    while (device.read(mark, 2) == 2 && mark[0] == kMark) {
        if (mark[1] == kMark) {  // filled up in front of a mark
            device.seek(device.pos() - 1);
            continue;
        }
        if (mark[1] == kStartOfPixels) {
            return true;
        }
        if (device.read(length, 2) != 2) {
            return false;
        }
        const int bytes = static_cast<uchar>(length[0]) * 256 + static_cast<uchar>(length[1]);
        if (bytes < 2 || !device.seek(device.pos() + bytes - 2)) {
            return false;
        }
    }
    return false;
}

bool findEnd(QIODevice& device) {
    const char end[] = {kMark, kEndOfPicture};
    QByteArray text;
    while (true) {
        const QByteArray chunk = device.read(kChunkBytes);
        if (chunk.isEmpty()) {
            return false;
        }
        text = text.right(1) + chunk;
        if (text.contains(QByteArrayView(end, 2))) {
            return true;
        }
    }
}

}  // namespace

bool hasJpegEnd(QIODevice& device) {
    const qint64 place = device.pos();
    const bool isComplete = skipToPixels(device) && findEnd(device);
    device.seek(place);
    return isComplete;
}

}  // namespace ombrelia
