// A small file that takes its reader most of a minute.
#pragma once

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <string>

namespace ombrelia {

// A progressive JPEG whose last scan comes four thousand times.
inline std::string slowPicture() {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setProgressiveScanWrite(true);
    QImage black(4000, 3000, QImage::Format_Grayscale8);
    black.fill(0);
    if (!writer.write(black)) {
        return {};
    }
    const std::string jpeg = buffer.data().toStdString();
    const std::size_t end = jpeg.size() - 2;  // of the mark of the end
    const std::size_t scan = jpeg.rfind("\xFF\xDA");
    std::string file = jpeg.substr(0, end);
    for (int i = 0; i < 4000; ++i) {
        file.append(jpeg, scan, end - scan);
    }
    return file.append(jpeg, end);
}

}  // namespace ombrelia
