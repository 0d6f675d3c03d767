#include <QApplication>
#include <QSettings>
#include <cstdio>

#include "platform/dispatch.h"
#include "platform/generator_random.h"
#include "platform/program.h"
#include "platform/qt/accessibility.h"
#include "platform/qt/canberra_sound.h"
#include "platform/qt/editor_slot.h"
#include "platform/qt/picture_loader.h"
#include "platform/qt/picture_process.h"
#include "platform/qt/plain_texts.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/qt_services.h"
#include "platform/qt/surroundings.h"

namespace ombrelia {

namespace {

constexpr const char* kProgramName = "Ombrelia Terrain Editor";

bool hasDisplay() {
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

void choosePlatform() {
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    // The hint frame is docked by position, which X11 and XWayland offer.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "xcb;wayland");
    }
}

}  // namespace

int runProgram(int argc, char** argv, const ProgramParts& parts) {
    if (const auto status = runPictureReader(argc, argv)) {
        return *status;
    }
    if (!hasDisplay()) {
        std::fputs("Ombrelia Terrain Editor needs a display, and there is none.\n", stderr);
        return 1;
    }
    choosePlatform();
    prepareSurroundings();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("ombrelia-terrain-editor"));
    QApplication::setQuitOnLastWindowClosed(false);

    // The toolkit keeps the state of its dialogs in files of its own; ours is in the settings.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
    PlainTexts plainTexts;
    application.installEventFilter(&plainTexts);
    installAccessibility();
    QtDesktop desktop;
    QtDialogs dialogs(desktop);
    QtSettingsStore settings(dialogs);
    DiskFiles files;
    QtClock clock;
    GeneratorRandom random;
    QtPictureLoader pictures(parts.pictureReader);
    QtFailureReport failures(dialogs, parts.repair, kProgramName);
    CanberraSound sound;
    services() = {&dialogs, &settings, &files,    &clock, &random,
                  &desktop, &failures, &pictures, &sound};
    desktop.OnFirstPaint = parts.onFirstPaint;
    desktop.setYieldTime(parts.yieldMilliseconds);
    constexpr double kBesideUnits = 24;
    desktop.setOffset(kBesideUnits * takeEditorSlot());
    desktop.chooseScale(parts.editor);
    desktop.OnHandled = [&settings] { settings.save(); };
    desktop.run([&parts] { runHandler(parts.start); });
    return QApplication::exec();
}

}  // namespace ombrelia
