// The splash as the commonest screens show it, drawn when the program is built: drawing it from its
// vectors would take most of what the start takes beside the toolkit's own.
#pragma once

#include <QImage>
#include <QSize>

#include "platform/control.h"

namespace ombrelia {

inline constexpr PictureFace kReadyFace{Picture::Splash, 0};
inline constexpr int kReadyScale = 2;  // of a screen of 1920 x 1080

// The size of the ready picture in device pixels.
inline QSize readySize() {
    const PictureInfo& info = pictureInfo(kReadyFace.picture);
    return {info.width * kReadyScale, info.height * kReadyScale};
}

// The picture, in the program's own memory.
QImage readySplash();

}  // namespace ombrelia
