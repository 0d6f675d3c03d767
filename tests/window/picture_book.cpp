// Makes the documents' pictures of every window from the running program:
//   picture_book FOLDER SUFFIX
#include <QImage>
#include <cstdio>
#include <string>

#include "core/objects.h"
#include "core/progress.h"
#include "core/windows/help_box.h"
#include "panels/help_box.h"
#include "panels/option_frames.h"
#include "panels/sliders.h"
#include "platform/window_life.h"
#include "stories.h"

namespace ombrelia {

namespace {

constexpr int kColorFrame = 14;

struct Album {
    ScreenDriver& driver;
    std::string folder;
    std::string suffix;

    void add(const char* name, Window& window) const {
        const std::string path = folder + "/" + name + "_" + suffix + ".png";
        driver.pictureOf(window).save(QString::fromStdString(path));
        std::printf("%s\n", path.c_str());
    }
};

void setSlider(int slider, std::int16_t value) {
    SliderValues(slider).Value = value;
    PlaceSlider(slider);
    showReadout(slider);
}

void showWaitWindow(const Album& album) {
    album.driver.inProgram([] { showWindow(Form3); });
    album.driver.waitForWindow(Form3);
    album.add("wait", Form3);
    album.driver.inProgram([] { unloadWindow(Form3); });
}

// The map turned a little, drawn in full in each style.
void showPerspective(const Album& album) {
    ScreenDriver& driver = album.driver;
    driver.click(Form1.NTool(button::k3DMode + kOverlayOffset));
    driver.moveTo(Form1.MapView, 80, 150);
    driver.press();
    driver.moveTo(Form1.MapView, 110, 165);
    album.add("grid", Form1);
    driver.release();
    const auto draw = [&](const char* name) {
        driver.inProgram([] { ProgressState = 0; });
        pressWide(driver, button::kDraw3D);
        driver.waitFor([] { return ProgressState == 2; });
        driver.moveTo(Form1, 5, 350);
        driver.rest();
        album.add(name, Form1);
    };
    driver.inProgram([] { setSlider(4, 1); });
    draw("polygons");
    driver.inProgram([] { setSlider(4, 3); });
    driver.click(Form1.NTool(button::kStyleLine + kOverlayOffset));
    draw("lines");
    driver.click(Form1.NTool(button::k2DMode + kOverlayOffset));
    driver.rest();
}

void showColorPage(const Album& album) {
    ScreenDriver& driver = album.driver;
    driver.inProgram([] { ScrollToFrame(kColorFrame); });
    driver.moveTo(Form1.Range(3), 5, 4);
    album.add("colors", Form1);
    album.add("hint", HelpFrm);
}

void showHelp(const Album& album) {
    ScreenDriver& driver = album.driver;
    driver.click(Form1.NTool(button::kHelp + kOverlayOffset));
    driver.waitForWindow(HelpBox);
    const auto addPage = [&](const char* name, int page) {
        driver.inProgram([page] { GotoTopic(page); });
        driver.moveTo(HelpBox, 100 + page % 50, 12);
        album.add(name, HelpBox);
    };
    addPage("help_contents", kContentsPage);
    addPage("help_step", 200);
    addPage("help_icons", kIconsPage);
    addPage("help_mountain", 408);
    addPage("help_about", kAboutPage);
    driver.click(HelpBox.NTool(button::kHelpClose));
    driver.rest();
}

void tellStory(const Album& album) {
    ScreenDriver& driver = album.driver;
    driver.waitForWindow(frmSplash);
    album.add("splash", frmSplash);
    driver.click(frmSplash, 60, 60);
    driver.waitForWindow(SizeSelect);
    driver.moveTo(SizeSelect.NTool(button::kSizeLarge), 4, 4);
    album.add("size", SizeSelect);
    showWaitWindow(album);
    driver.click(SizeSelect.LTool(button::kSizeLarge));
    driver.waitForWindow(Form1);
    driver.click(Form1.NTool(button::kFractal + kOverlayOffset));
    driver.moveTo(Form1, 5, 350);
    album.add("fractal", Form1);
    driver.inProgram([] {
        setSlider(9, 3);
        setSlider(10, 31);
        setSlider(14, 5);
    });
    pressWide(driver, button::kGenerate);
    driver.waitFor([] { return Form1.ProgressFrame.Visible; });
    driver.rest(300);
    album.add("progress", Form1);
    driver.waitFor([] { return Form1.Picture1.Visible; });
    driver.moveTo(Form1.MapView, 100, 120);
    album.add("landscape", Form1);
    showPerspective(album);
    pressWide(driver, button::kMenu);
    album.add("menu", Form1);
    showColorPage(album);
    showHelp(album);
}

}  // namespace

}  // namespace ombrelia

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "picture_book FOLDER SUFFIX\n");
        return 2;
    }
    constexpr int kSlowYield = 1;
    ombrelia::ScreenDriver::run(
        [&](ombrelia::ScreenDriver& driver) {
            ombrelia::tellStory({driver, argv[1], argv[2]});
        },
        kSlowYield);
    return 0;
}
