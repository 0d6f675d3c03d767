// The splash as it shows at each scale, drawn when the program is built: drawing it from its
// vectors would take most of what the start takes beside the toolkit's own.
#pragma once

#include <QImage>
#include <QSize>

#include "platform/control.h"
#include "platform/screen_fit.h"

namespace ombrelia {

inline constexpr PictureFace kReadyFace{Picture::Splash, 0};

// The size of the picture at a scale, device pixels.
inline QSize readySize(double scale) {
    const PictureInfo& info = pictureInfo(kReadyFace.picture);
    return {static_cast<int>(info.width * scale), static_cast<int>(info.height * scale)};
}

// The picture of this size, in the program's own memory; null if none is ready.
QImage readySplash(const QSize& size);

}  // namespace ombrelia
