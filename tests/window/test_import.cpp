// A picture becomes terrain, from the size window and from the menu; a damaged one is refused.
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "core/objects.h"
#include "core/progress.h"
#include "slow_picture.h"
#include "stories.h"

namespace ombrelia {

namespace {

constexpr int kSide = 129;
constexpr int kBlock = 43;

// Nine grey blocks, bright enough apart that no way of packing mixes them up.
int greyAt(int x, int y) {
    return 20 + 26 * (x / kBlock + 3 * (y / kBlock));
}

QString pictureIn(const QTemporaryDir& folder, const char* name) {
    QImage picture(kSide, kSide, QImage::Format_RGB32);
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            const int grey = greyAt(x, y);
            picture.setPixel(x, y, qRgb(grey, grey, grey));
        }
    }
    QString path = folder.filePath(QString::fromLatin1(name));
    EXPECT_TRUE(picture.save(path, nullptr, 95)) << name;
    return path;
}

void answerImport(ScreenDriver& driver, const QString& path) {
    ASSERT_TRUE(driver.nameFile("Select Image to Import", path.toStdString()));
}

void expectBlocks(ScreenDriver& driver, int tolerance) {
    ASSERT_TRUE(
        driver.waitFor([] { return Form1.Visible && ProgressState == 2 && MapSize == kSide; }));
    driver.inProgram([tolerance] {
        EXPECT_EQ(Form1.Label11.Caption, "Ombrelia Terrain Editor - Small Map");
        for (int y = kBlock / 2; y < kSide; y += kBlock) {
            for (int x = kBlock / 2; x < kSide; x += kBlock) {
                EXPECT_NEAR(HeightMap(x, y), greyAt(x, y), tolerance) << x << ' ' << y;
            }
        }
        EXPECT_EQ(HeightMap(kSide, 5), 0) << "one beyond the picture";
    });
}

void importFromMenu(const char* name, int tolerance) {
    const QTemporaryDir folder;
    const QString path = pictureIn(folder, name);
    ScreenDriver::run([&](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeMiniature));
        pressWide(driver, button::kMenu);
        pressWide(driver, button::kImport);
        answerImport(driver, path);
        expectBlocks(driver, tolerance);
    });
}

}  // namespace

TEST(Import, a_png_from_the_menu) {
    importFromMenu("picture.png", 0);
}

TEST(Import, a_jpeg_from_the_menu) {
    importFromMenu("picture.jpg", 2);
}

TEST(Import, a_bitmap_from_the_size_window) {
    const QTemporaryDir folder;
    const QString path = pictureIn(folder, "picture.bmp");
    ScreenDriver::run([&](ScreenDriver& driver) {
        ASSERT_TRUE(openSizeSelect(driver));
        driver.click(SizeSelect.LTool(button::kSizeImport));
        answerImport(driver, path);
        expectBlocks(driver, 0);
    });
}

TEST(Import, a_cancelled_choice_at_the_start_opens_a_large_map) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openSizeSelect(driver));
        driver.click(SizeSelect.LTool(button::kSizeImport));
        ASSERT_TRUE(driver.waitForDialog("Select Image to Import"));
        driver.key("Escape");
        ASSERT_TRUE(driver.waitForWindow(Form1));
        driver.inProgram([] {
            EXPECT_EQ(MapSize, 257);
            EXPECT_EQ(HeightMap(5, 5), 40);
        });
    });
}

TEST(Import, a_damaged_picture_is_told_and_the_editor_goes_on) {
    const QTemporaryDir folder;
    const QString path = pictureIn(folder, "picture.png");
    QFile file(path);
    ASSERT_TRUE(file.resize(file.size() / 2));
    ScreenDriver::run([&](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeMiniature));
        driver.inProgram([] { HeightMap(7, 7) = 99; });
        pressWide(driver, button::kMenu);
        pressWide(driver, button::kImport);
        answerImport(driver, path);
        ASSERT_TRUE(driver.waitForDialog("Ombrelia Terrain Editor"));
        const std::string text = driver.dialogText();
        EXPECT_NE(text.find("picture.png"), std::string::npos) << text;
        driver.key("Return");
        ASSERT_TRUE(driver.waitFor([] { return QApplication::activeModalWidget() == nullptr; }));
        driver.inProgram([] {
            EXPECT_EQ(MapSize, 65);
            EXPECT_EQ(HeightMap(7, 7), 99);
            EXPECT_TRUE(Form1.MapView.Enabled);
        });
        driver.click(Form1.NTool(button::kPencil + kOverlayOffset));
        EXPECT_TRUE(driver.waitFor([] { return OptionStates(button::kPencil).State == kOn; }));
    });
}

TEST(Import, the_red_light_gives_up_a_picture_that_takes_long) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("slow.jpg"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray::fromStdString(slowPicture()));
    file.close();
    ScreenDriver::run([&](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeMiniature));
        driver.inProgram([] { HeightMap(7, 7) = 99; });
        pressWide(driver, button::kMenu);
        pressWide(driver, button::kImport);
        answerImport(driver, path);
        ASSERT_TRUE(driver.waitFor([] { return Form1.ProgressFrame.Visible; }));
        driver.inProgram([] {
            EXPECT_EQ(Form1.WorkWhat.Caption, "Loading Image");
            EXPECT_FALSE(Form1.MapView.Enabled);
        });
        driver.click(Form1.NTool(button::kStop + kOverlayOffset));
        ASSERT_TRUE(driver.waitFor([] { return Form1.MapView.Enabled && ProgressState == 2; }));
        driver.inProgram([] {
            EXPECT_EQ(MapSize, 65);
            EXPECT_EQ(HeightMap(7, 7), 99);
            EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        });
    });
}

}  // namespace ombrelia
