// A part of the build: draws the splash at each scale.
//   draw_ready_splash FILE
#include <QFile>
#include <QSvgRenderer>
#include <cstdio>

#include "platform/qt/ready_splash.h"
#include "platform/qt/skin_drawing.h"

namespace {

bool isOpaque(const QImage& image) {
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) != 255) {
                std::fprintf(stderr, "The splash is not opaque at %d, %d.\n", x, y);
                return false;
            }
        }
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    using namespace ombrelia;
    if (argc != 2) {
        std::fputs("It is: draw_ready_splash FILE\n", stderr);
        return 2;
    }
    QFile file(argv[1]);
    const auto vectors = openVectors(kReadyFace.picture);
    bool isWritten = file.open(QIODevice::WriteOnly);
    for (const double scale : kScales) {
        const QSize size = readySize(scale);
        const QImage image = drawFace(*vectors, kReadyFace, size.width(), size.height());
        if (!isOpaque(image)) {
            return 1;
        }
        isWritten = isWritten && file.write(reinterpret_cast<const char*>(image.constBits()),
                                            image.sizeInBytes()) == image.sizeInBytes();
    }
    if (!isWritten || !file.flush()) {
        std::fprintf(stderr, "%s: %s\n", argv[1], qPrintable(file.errorString()));
        return 1;
    }
    return 0;
}
