// Saving that fails says why, leaves nothing behind, and the next try works.
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include "core/objects.h"
#include "stories.h"

namespace ombrelia {

namespace {

void saveAs(ScreenDriver& driver, const QString& path) {
    pressWide(driver, button::kSave);
    ASSERT_TRUE(driver.nameFile("Save Terrain", path.toStdString()));
}

void limitFileSize(rlim_t bytes) {
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &limit);
}

}  // namespace

TEST(Saving, a_disk_without_room_is_told_and_leaves_nothing_behind) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("full.bmp");
    std::signal(SIGXFSZ, SIG_IGN);
    ScreenDriver::run([&](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeLarge));
        pressWide(driver, button::kMenu);
        driver.inProgram([] { limitFileSize(20000); });
        saveAs(driver, path);
        ASSERT_TRUE(driver.waitForDialog("Ombrelia Terrain Editor"));
        const std::string text = driver.dialogText();
        EXPECT_NE(text.find("full.bmp"), std::string::npos) << text;
        EXPECT_NE(text.find("File too large"), std::string::npos) << text;
        EXPECT_FALSE(QFileInfo::exists(path));
        driver.key("Return");
        ASSERT_TRUE(driver.waitFor([] { return QApplication::activeModalWidget() == nullptr; }));

        driver.inProgram([] {
            limitFileSize(RLIM_INFINITY);
            EXPECT_EQ(HeightMap(3, 3), 40);
            EXPECT_TRUE(Form1.MapView.Enabled);
        });
        saveAs(driver, path);
        EXPECT_TRUE(driver.waitFor([&] { return QFileInfo(path).size() == 67898; }));
    });
}

TEST(Saving, cancel_saves_nothing) {
    const QTemporaryDir folder;
    ScreenDriver::run([&](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeSmall));
        pressWide(driver, button::kMenu);
        pressWide(driver, button::kSave);
        ASSERT_TRUE(driver.waitForDialog("Save Terrain"));
        driver.key("Escape");
        EXPECT_TRUE(driver.waitFor([] { return QApplication::activeModalWidget() == nullptr; }));
        EXPECT_TRUE(QDir(folder.path()).isEmpty());
    });
}

}  // namespace ombrelia
