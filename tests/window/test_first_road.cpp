// The main job by mouse: pick a size, generate a landscape, look at it, save it.
#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "core/objects.h"
#include "stories.h"

namespace ombrelia {

namespace {

int countWrongPixels(const QImage& saved) {
    int wrong = 0;
    for (int y = 0; y < saved.height(); ++y) {
        for (int x = 0; x < saved.width(); ++x) {
            wrong += qGray(saved.pixel(x, y)) == HeightMap(x, y) ? 0 : 1;
        }
    }
    return wrong;
}

// Pixels of the screen that differ from the surface enlarged by whole pixels.
int countWrongScreenPixels(const QImage& screen, const Surface& surface, int scale) {
    int wrong = 0;
    for (int y = 0; y < surface.height() * scale; ++y) {
        for (int x = 0; x < surface.width() * scale; ++x) {
            const Pixel drawn = surface.row(y / scale)[x / scale];
            wrong += (screen.pixel(x, y) & 0xFFFFFFU) == (drawn & 0xFFFFFFU) ? 0 : 1;
        }
    }
    return wrong;
}

}  // namespace

TEST(FirstRoad, a_landscape_is_generated_seen_and_saved_by_mouse) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("terrain.bmp");
    ScreenDriver::run([&](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeLarge));
        driver.click(Form1.NTool(button::kFractal + kOverlayOffset));
        EXPECT_EQ(SliderValues(0).Value, 4 * 128);
        pressWide(driver, button::kGenerate);
        ASSERT_TRUE(driver.waitFor([] { return HeightMap(100, 100) != BaseHeight; }));
        driver.moveTo(Form1, 5, 350);

        const QImage screen = driver.pictureOf(Form1.MapView);
        driver.inProgram([&] {
            EXPECT_EQ(countWrongScreenPixels(screen, Form1.MapView.Canvas, 2), 0);
            EXPECT_GT(Form1.MapView.Canvas.revision(), 0U);
        });

        pressWide(driver, button::kMenu);
        pressWide(driver, button::kSave);
        ASSERT_TRUE(driver.nameFile("Save Terrain", path.toStdString()));
        ASSERT_TRUE(driver.waitFor([&] { return QFileInfo(path).size() == 67898; }));
        driver.inProgram([&] {
            const QImage saved(path);
            ASSERT_EQ(saved.size(), QSize(257, 257));
            EXPECT_EQ(countWrongPixels(saved), 0);
        });
    });
}

}  // namespace ombrelia
