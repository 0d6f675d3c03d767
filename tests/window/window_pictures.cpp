// Pictures of every window and of every option frame.
#include <string>

#include "album.h"
#include "core/objects.h"
#include "core/option_strip_table.h"
#include "core/windows/form2.h"
#include "core/windows/help_box.h"
#include "core/windows/maze_window.h"
#include "games/maze/maze_state.h"
#include "games/worm/worm_state.h"
#include "panels/help_box.h"
#include "panels/option_frames.h"
#include "platform/window_life.h"
#include "stories.h"

namespace ombrelia {

namespace {

void takeStart(const Album& album) {
    ScreenDriver& driver = album.driver;
    driver.waitForWindow(frmSplash);
    album.add("splash", frmSplash);
    driver.click(frmSplash, 60, 60);
    driver.waitForWindow(SizeSelect);
    driver.moveTo(SizeSelect.NTool(button::kSizeLarge), 4, 4);
    album.add("size", SizeSelect);
    driver.inProgram([] {
        showWindow(Form3);
        showLoaded(0.5);
    });
    driver.waitForWindow(Form3);
    album.add("wait", Form3);
    driver.inProgram([] { unloadWindow(Form3); });
    driver.moveTo(SizeSelect.Label2);  // arms the hidden drag
    driver.doubleClick(SizeSelect.Label2);
}

void takeEditor(const Album& album) {
    ScreenDriver& driver = album.driver;
    album.press(button::kFractal);
    album.setSlider(9, 1);
    album.setSlider(10, 38);
    album.setSlider(14, 3);
    pressWide(driver, button::kGenerate);
    driver.waitFor([] { return Form1.ProgressFrame.Visible; });
    driver.rest(200);
    album.add("progress", Form1);
    driver.waitFor([] { return Form1.Picture1.Visible; });
    driver.moveTo(Form1.MapView, 100, 120);
    album.add("editor", Form1);
    album.add("hint", HelpFrm);
    album.press(button::k3DMode);
    album.setSlider(4, 2);
    album.pressAndWait(button::kDraw3D);
    album.add("perspective", Form1);
    album.press(button::k2DMode);
}

void takeFrames(const Album& album) {
    for (int frame = 0; frame < kOptionFrames; ++frame) {
        album.driver.inProgram([frame] { ScrollToFrame(frame); });
        album.stepAside();
        album.add("frame_" + std::to_string(frame), Form1.OptFrame(frame));
    }
}

void takeHelp(const Album& album) {
    ScreenDriver& driver = album.driver;
    album.press(button::kHelp);
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
}

// From the About page; the worm shows its first moves.
void takeWorm(const Album& album) {
    ScreenDriver& driver = album.driver;
    driver.doubleClick(HelpBox.Label41);
    driver.waitForWindow(Form2);
    driver.waitFor([] { return worm::HeadX >= 8; });
    driver.key("Down");
    driver.waitFor([] { return worm::HeadY >= 6; });
    album.add("worm", Form2);
    driver.key("alt+F4");
    driver.waitFor([] { return !Form2.Loaded; });
    driver.click(HelpBox.NTool(button::kHelpClose));
    driver.waitFor([] { return !HelpBox.Loaded; });
}

void takeMaze(const Album& album) {
    ScreenDriver& driver = album.driver;
    driver.moveTo(Form1.NTool(button::kVolcano + kOverlayOffset));
    driver.press();
    driver.rest();
    driver.moveTo(Form1.Label32);
    driver.rest();
    driver.release();
    driver.waitForWindow(frm3DMaze);
    driver.rest(600);
    driver.waitFor(
        [] { return maze::DrawState == maze::kMazeReady && maze::TimerRunning == maze::kMazeNo; });
    album.add("maze", frm3DMaze);
}

}  // namespace

void takeWindows(const Album& album) {
    takeStart(album);
    album.openLargeMap();
    takeEditor(album);
    takeHelp(album);
    takeWorm(album);
    takeFrames(album);
    takeMaze(album);
}

}  // namespace ombrelia
