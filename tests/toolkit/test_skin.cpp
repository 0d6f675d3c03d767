// The skin's pictures as they are drawn.
#include <QSvgRenderer>
#include <gtest/gtest.h>

#include "platform/qt/ready_splash.h"
#include "platform/qt/skin.h"
#include "platform/qt/skin_drawing.h"

namespace ombrelia {

TEST(Skin, the_splash_that_was_drawn_beforehand_is_what_its_vectors_give) {
    const QSize size = readySize();
    Skin skin;
    const QImage& ready = skin.face(kReadyFace, size.width(), size.height());
    EXPECT_EQ(ready.constBits(), readySplash().constBits());
    const QImage drawn =
        drawFace(*openVectors(kReadyFace.picture), kReadyFace, size.width(), size.height());
    EXPECT_EQ(ready.convertToFormat(QImage::Format_ARGB32_Premultiplied), drawn);
}

TEST(Skin, another_size_of_the_splash_is_drawn) {
    Skin skin;
    const QImage& small = skin.face(kReadyFace, 460, 280);
    EXPECT_EQ(small, drawFace(*openVectors(kReadyFace.picture), kReadyFace, 460, 280));
    const QSize size = readySize();
    EXPECT_EQ(skin.face(kReadyFace, size.width(), size.height()).size(), size);
    EXPECT_EQ(skin.face(kReadyFace, 460, 280).size(), QSize(460, 280));
}

}  // namespace ombrelia
