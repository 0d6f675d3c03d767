// Pictures of what moves the view, of how the map comes to the screen, and of the import's dialog.
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QImage>
#include <QScreen>
#include <QTemporaryDir>
#include <string>

#include "album.h"
#include "core/buttons.h"
#include "core/objects.h"
#include "platform/dispatch.h"
#include "stories.h"
#include "views/map2d/update_map_view.h"

namespace ombrelia {

namespace {

constexpr int kRightButton = 3;  // as the X server counts them

void addMap(const Album& album, const std::string& name) {
    album.stepAside();
    album.add(name, Form1.MapView);
}

// The map from above: zoomed aside; panned with the other button; drawn at its new place; and back.
void takeMapMotions(const Album& album) {
    album.press(button::kZoom2D);
    album.drag({{60, 100}, {150, 100}});
    addMap(album, "above_1_zoomed");
    album.drag({{210, 210}, {150, 170}}, kRightButton);
    addMap(album, "above_2_panned");
    album.drag({{210, 210}});
    addMap(album, "above_3_pressed");
    album.press(button::kZoom2D);
    album.drag({{250, 200}, {100, 200}});
    addMap(album, "above_4_whole");
}

// The perspective at its start and after each of the motions, which end where they began.
void takePerspectiveMotions(const Album& album) {
    album.press(button::k3DMode);
    addMap(album, "aside_1_start");
    album.drag({{120, 100}, {160, 112}});
    addMap(album, "aside_2_turned");
    album.drag({{160, 112}, {120, 100}});
    album.press(button::kPan3D);
    album.drag({{120, 100}, {80, 130}});
    addMap(album, "aside_3_moved");
    album.drag({{80, 130}, {120, 100}});
    album.press(button::kZoom3D);
    album.drag({{100, 100}, {150, 100}});
    addMap(album, "aside_4_near");
    album.drag({{150, 100}, {100, 100}});
    album.press(button::k2DMode);
}

// What each pass of a refresh in steps leaves, if it is the last one.
void takeSteps(const Album& album) {
    constexpr std::int16_t kStepped = 78;  // what a setting made by hand gives the check mark
    struct Pass {
        int button;
        const char* name;
    };
    constexpr Pass kPasses[] = {{button::kStep20, "step_20"},
                                {button::kStep10, "step_10"},
                                {button::kStep5, "step_5"},
                                {button::kStep2, "step_2"},
                                {button::kStep1, "step_1"}};
    for (const Pass& pass : kPasses) {
        album.driver.inProgram([&] {
            OptionStates(button::kStepRefresh).State = kStepped;
            for (const Pass& other : kPasses) {
                OptionStates(other.button).State = other.button == pass.button ? kOn : kUp;
            }
            runHandler([] { RefreshAfterEdit(); });
        });
        addMap(album, pass.name);
    }
}

// A home with pictures of several kinds, which the dialog of the import begins in.
void makePictures(const Album& album, const QString& home) {
    const QString folder = home + QStringLiteral("/Pictures");
    QDir().mkpath(folder);
    const QImage map = album.driver.pictureOf(Form1.MapView);
    for (const char* name : {"coast.jpg", "island.bmp", "mountains.png", "valley.tif"}) {
        map.save(folder + '/' + QString::fromLatin1(name));
    }
    album.driver.inProgram([&] { qputenv("HOME", home.toUtf8()); });
}

QComboBox* listOfKinds() {
    return QApplication::activeModalWidget()->findChild<QComboBox*>(
        QStringLiteral("fileTypeCombo"));
}

// The part of the screen with the dialog, and with the list of kinds if that is open.
void addDialog(const Album& album, const std::string& name, bool isListOpen) {
    album.driver.rest(600);
    QImage picture;
    album.driver.inProgram([&] {
        const QWidget* dialog = listOfKinds()->window();
        QRect place = dialog->frameGeometry();
        if (isListOpen) {
            place |= listOfKinds()->view()->window()->frameGeometry();
        }
        picture = QGuiApplication::primaryScreen()
                      ->grabWindow(0, place.x(), place.y(), place.width(), place.height())
                      .toImage();
    });
    album.save(name, picture);
}

void takeImportDialog(const Album& album) {
    ScreenDriver& driver = album.driver;
    const QTemporaryDir folder;
    makePictures(album, folder.filePath(QStringLiteral("home")));
    pressWide(driver, button::kMenu);
    pressWide(driver, button::kImport);
    driver.waitForDialog("Select Image to Import");
    QPoint list;
    driver.inProgram([&] { list = listOfKinds()->mapToGlobal(listOfKinds()->rect().center()); });
    driver.clickAt(list);
    driver.key("Down");
    addDialog(album, "import_kinds", true);
    driver.key("Return");
    addDialog(album, "import_all", false);
    driver.key("Escape");
}

}  // namespace

void takeMotions(const Album& album) {
    buildLandscape({album.driver, "", ""});
    takeMapMotions(album);
    takePerspectiveMotions(album);
    takeSteps(album);
    takeImportDialog(album);
}

}  // namespace ombrelia
