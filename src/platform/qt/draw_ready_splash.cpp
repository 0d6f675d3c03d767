// A part of the build: draws the splash at the size at which most screens show it.
//   draw_ready_splash FILE
#include <QFile>
#include <QSvgRenderer>
#include <cstdio>

#include "platform/qt/ready_splash.h"
#include "platform/qt/skin_drawing.h"

int main(int argc, char** argv) {
    using namespace ombrelia;
    if (argc != 2) {
        std::fputs("It is: draw_ready_splash FILE\n", stderr);
        return 2;
    }
    const QSize size = readySize();
    const QImage image =
        drawFace(*openVectors(kReadyFace.picture), kReadyFace, size.width(), size.height());
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) != 255) {
                std::fprintf(stderr, "The splash is not opaque at %d, %d.\n", x, y);
                return 1;
            }
        }
    }
    QFile file(argv[1]);
    const bool isWritten = file.open(QIODevice::WriteOnly) &&
                           file.write(reinterpret_cast<const char*>(image.constBits()),
                                      image.sizeInBytes()) == image.sizeInBytes() &&
                           file.flush();
    if (!isWritten) {
        std::fprintf(stderr, "%s: %s\n", argv[1], qPrintable(file.errorString()));
    }
    return isWritten ? 0 : 1;
}
