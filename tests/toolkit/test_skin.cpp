// The skin's pictures as they are drawn.
#include <QSvgRenderer>
#include <gtest/gtest.h>

#include "platform/qt/ready_splash.h"
#include "platform/qt/skin.h"
#include "platform/qt/skin_drawing.h"

namespace ombrelia {

TEST(Skin, the_splash_that_was_drawn_beforehand_is_what_its_vectors_give) {
    const auto vectors = openVectors(kReadyFace.picture);
    Skin skin;
    for (const double scale : kScales) {
        const QSize size = readySize(scale);
        const QImage& ready = skin.face(kReadyFace, size.width(), size.height());
        EXPECT_EQ(ready.constBits(), readySplash(size).constBits()) << scale;
        EXPECT_EQ(ready.convertToFormat(QImage::Format_ARGB32_Premultiplied),
                  drawFace(*vectors, kReadyFace, size.width(), size.height()))
            << scale;
    }
}

TEST(Skin, another_size_of_the_splash_is_drawn) {
    Skin skin;
    const QImage& small = skin.face(kReadyFace, 461, 281);
    EXPECT_EQ(small, drawFace(*openVectors(kReadyFace.picture), kReadyFace, 461, 281));
    const QSize size = readySize(2);
    EXPECT_EQ(skin.face(kReadyFace, size.width(), size.height()).size(), size);
    EXPECT_EQ(skin.face(kReadyFace, 461, 281).size(), QSize(461, 281));
}

}  // namespace ombrelia
