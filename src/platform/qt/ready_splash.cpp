#include "platform/qt/ready_splash.h"

// What draw_ready_splash has drawn: the pixels of a QImage of Format_RGB32, row by row.
asm(".section .rodata\n"
    ".balign 16\n"
    "ombreliaReadySplash:\n"
    ".incbin \"" OMBRELIA_READY_SPLASH
    "\"\n"
    ".previous\n");

extern "C" const uchar ombreliaReadySplash[];

namespace ombrelia {

QImage readySplash() {
    const QSize size = readySize();
    return {ombreliaReadySplash, size.width(), size.height(), QImage::Format_RGB32};
}

}  // namespace ombrelia
