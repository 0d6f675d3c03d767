#include "files/import_test.h"

#include <algorithm>

#include "core/editor_state.h"
#include "core/progress.h"
#include "core/windows/form1.h"
#include "desk/run_command.h"
#include "platform/dispatch.h"
#include "platform/picture_sink.h"

namespace ombrelia {

namespace {

void expectSamePixels(const Surface& now, const Surface& before) {
    ASSERT_EQ(now.width(), before.width());
    ASSERT_EQ(now.height(), before.height());
    for (int y = 0; y < now.height(); ++y) {
        ASSERT_TRUE(std::equal(now.row(y), now.row(y) + now.width(), before.row(y))) << y;
    }
    EXPECT_EQ(now.ScaleWidth, before.ScaleWidth);
    EXPECT_EQ(now.ScaleHeight, before.ScaleHeight);
}

}  // namespace

Surface pictureOf(int width, int height, const Painter& painter) {
    Surface picture;
    picture.setSize(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            picture.setPixel(x, y, painter(x, y));
        }
    }
    return picture;
}

bool PictureInMemory::loadPicture(const std::string& path, PictureWish& wish, Surface& picture) {
    PictureSink sink(path, Picture.width(), Picture.height(), wish, picture);
    for (int y = 0; y < Picture.height(); ++y) {
        sink.putRow(y, Picture.row(y));
    }
    return true;
}

Desk::Desk()
    : heights_(HeightMap),
      shadows_(ShadowMap),
      mapSize_(MapSize),
      title_(Form1.Label11.Caption),
      view_(Form1.MapView.Canvas),
      buffer_(Form1.Mapview2.Canvas) {}

void Desk::expectSame() const {
    EXPECT_TRUE(HeightMap == heights_);
    EXPECT_TRUE(ShadowMap == shadows_);
    EXPECT_EQ(MapSize, mapSize_);
    EXPECT_EQ(Form1.Label11.Caption, title_);
    expectSamePixels(Form1.MapView.Canvas, view_);
    expectSamePixels(Form1.Mapview2.Canvas, buffer_);
    EXPECT_EQ(Form1.Mapview2.Width, 257);
    EXPECT_EQ(Form1.Mapview2.Height, 257);
    EXPECT_TRUE(Form1.MapView.Enabled);
    EXPECT_NE(ProgressState, 1);
}

void ImportTest::import(const std::string& path) {
    platform.OpenAnswers.push_back(path);
    runHandler(ImportCommand);
}

void ImportTest::importPixels(int width, int height, const Painter& painter) {
    PictureInMemory memory;
    memory.Picture = pictureOf(width, height, painter);
    const std::string name = folder / "in memory";
    platform.Files[name] = true;
    services().pictures = &memory;
    import(name);
    services().pictures = &platform;
}

void ImportTest::run(int command) {
    runHandler([command] {
        int i = command;
        RunCommand(i);
    });
}

bool ImportTest::isImporting() {
    return Form1.WorkWhat.Caption == "Loading Image";
}

void ImportTest::fillMap(std::int16_t height) {
    for (int y = 0; y <= 257; ++y) {
        for (int x = 0; x <= 257; ++x) {
            HeightMap(x, y) = height;
            ShadowMap(x, y) = height;
        }
    }
}

}  // namespace ombrelia
