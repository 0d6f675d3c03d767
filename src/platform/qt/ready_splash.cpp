#include "platform/qt/ready_splash.h"

// What draw_ready_splash has drawn: the pixels of a QImage of Format_RGB32 for each scale, row by
// row.
asm(".section .rodata\n"
    ".balign 16\n"
    "ombreliaReadySplash:\n"
    ".incbin \"" OMBRELIA_READY_SPLASH
    "\"\n"
    ".previous\n");

extern "C" const uchar ombreliaReadySplash[];

namespace ombrelia {

QImage readySplash(const QSize& size) {
    const uchar* pixels = ombreliaReadySplash;
    for (const double scale : kScales) {
        const QSize ready = readySize(scale);
        if (ready == size) {
            return {pixels, size.width(), size.height(), QImage::Format_RGB32};
        }
        pixels += sizeof(QRgb) * static_cast<std::size_t>(ready.width() * ready.height());
    }
    return {};
}

}  // namespace ombrelia
