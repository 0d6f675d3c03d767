#include "platform/qt/qt_services.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QStandardPaths>
#include <QTime>
#include <QWindow>

#include "platform/binary_file.h"
#include "platform/picture_kinds_table.h"
#include "platform/qt/color_dialog.h"
#include "platform/qt/dialog_dress.h"
#include "platform/qt/file_dialog.h"
#include "platform/qt/palette_style.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/window_view.h"

namespace ombrelia {

struct FilePurpose {
    const char* folderKey;
    const char* sizeKey;
    QStandardPaths::StandardLocation place;  // at first
    bool isSave;
};

namespace {

constexpr FilePurpose kSaving{"SaveFolder", "SaveSize", QStandardPaths::DocumentsLocation, true};
constexpr FilePurpose kOpening{"OpenFolder", "OpenSize", QStandardPaths::PicturesLocation, false};

constexpr int kYesNoButtons = 4;
constexpr int kButtonMask = 7;
constexpr int kStopIcon = 16;
constexpr int kIconMask = 0x70;
constexpr int kSecondDefault = 256;

constexpr const char* kDialogs = "Dialogs";  // section of the settings

// "Name|pattern|Name|pattern" in the toolkit's form.
QStringList toolkitFilters(const std::string& filter) {
    const QStringList parts = QString::fromStdString(filter).split('|');
    QStringList entries;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString name = parts[i].section(QStringLiteral(" ("), 0, 0);
        const QString pattern =
            parts[i + 1] == QStringLiteral("*.*") ? QStringLiteral("*") : parts[i + 1];
        entries << name + QStringLiteral(" (") + pattern + QStringLiteral(")");
    }
    return entries;
}

// Every kind that can become a map.
QString allPictures() {
    QStringList patterns;
    for (const PictureKind& kind : kPictureKinds) {
        for (const QString& suffix : QString::fromLatin1(kind.suffixes).split(' ')) {
            patterns << QStringLiteral("*.") + suffix;
        }
    }
    return QStringLiteral("All Pictures (") + patterns.join(' ') + QStringLiteral(")");
}

// The folder of the last time if it is still there, else the user's own for this.
QString startFolder(const std::string& last, const FilePurpose& purpose) {
    QString folder = QFile::decodeName(last.c_str());
    if (!folder.isEmpty() && QFileInfo(folder).isDir()) {
        return folder;
    }
    const QString own = QStandardPaths::writableLocation(purpose.place);
    return QFileInfo(own).isDir() ? own : QDir::homePath();
}

// "WIDTH HEIGHT" in units; empty for anything else.
QSize sizeOf(const std::string& text) {
    const QStringList parts = QString::fromStdString(text).split(' ');
    constexpr int kMost = 4000;
    const QSize size(parts.value(0).toInt(), parts.value(1).toInt());
    return size.width() > 0 && size.width() <= kMost && size.height() > 0 && size.height() <= kMost
               ? size
               : QSize();
}

// Puts a box over a game's window and before it, without being its child: the game can end under
// its box, and would take it along.
void placeOver(QMessageBox& box, WindowView& game) {
    static_cast<void>(box.winId());  // makes the system's window
    box.windowHandle()->setTransientParent(game.windowHandle());
    box.adjustSize();
    const QRect place = game.frameGeometry();
    box.move(place.center() - QPoint(box.width() / 2, box.height() / 2));
}

}  // namespace

std::string QtDialogs::askSaveFile(const std::string& title, const std::string& filter) {
    return askFile(title, toolkitFilters(filter), kSaving);
}

std::string QtDialogs::askOpenFile(const std::string& title, const std::string& filter) {
    QStringList filters = toolkitFilters(filter);
    filters.insert(1, allPictures());
    return askFile(title, filters, kOpening);
}

// The path as bytes, empty when cancelled. Where it lies and how large the dialog was is kept.
std::string QtDialogs::askFile(const std::string& title, const QStringList& filters,
                               const FilePurpose& purpose) {
    dressApplication(desktop_.scale());
    SettingsStore& store = *services().settings;
    FileQuestion question;
    question.title = QString::fromStdString(title);
    question.filters = filters;
    question.folder = startFolder(store.read(kDialogs, purpose.folderKey, ""), purpose);
    question.size = sizeOf(store.read(kDialogs, purpose.sizeKey, ""));
    question.isSave = purpose.isSave;
    question.scale = desktop_.scale();
    question.tell = [this, &title](const std::string& text, int style) {
        return message(text, style, title);
    };
    FileDialog dialog(desktop_.dialogParent(), question);
    const std::optional<QString> path = dialog.ask();
    const QSize units = dialog.size() / desktop_.scale();
    store.write(kDialogs, purpose.sizeKey,
                std::to_string(units.width()) + " " + std::to_string(units.height()));
    if (!path) {
        return {};
    }
    store.write(kDialogs, purpose.folderKey,
                QFile::encodeName(QFileInfo(*path).absolutePath()).toStdString());
    return QFile::encodeName(*path).toStdString();
}

Color QtDialogs::askColor(const std::string& title, Color start) {
    dressApplication(desktop_.scale());
    ColorDialog dialog(desktop_.dialogParent(), toolkitColor(start), desktop_.scale());
    dialog.setWindowTitle(QString::fromStdString(title));
    dressDialog(dialog, desktop_.scale());
    if (dialog.exec() != QDialog::Accepted) {
        return start;
    }
    const QColor chosen = dialog.color();
    return rgb(static_cast<unsigned>(chosen.red()), static_cast<unsigned>(chosen.green()),
               static_cast<unsigned>(chosen.blue()));
}

std::string QtDialogs::askInput(const std::string& prompt, const std::string& title) {
    dressApplication(desktop_.scale());
    QInputDialog dialog(desktop_.dialogParent());
    dialog.setWindowTitle(QString::fromStdString(title));
    dialog.setLabelText(QString::fromStdString(prompt));
    dressDialog(dialog, desktop_.scale());
    return dialog.exec() == QDialog::Accepted ? dialog.textValue().toStdString() : std::string();
}

int QtDialogs::message(const std::string& text, int style, const std::string& title) {
    dressApplication(desktop_.scale());
    const QPointer<WindowView> game = desktop_.activeGame();
    QMessageBox box(game.isNull() ? desktop_.dialogParent() : nullptr);
    box.setWindowTitle(QString::fromStdString(title));
    box.setInformativeText(QStringLiteral(" "));  // makes its label
    for (QLabel* label : box.findChildren<QLabel*>()) {
        label->setTextFormat(Qt::PlainText);
    }
    box.setText(QString::fromStdString(title));
    box.setInformativeText(QString::fromStdString(text));
    const bool isQuestion = (style & kButtonMask) == kYesNoButtons;
    dressMessageBox(box, desktop_.skin(), desktop_.scale(), (style & kIconMask) == kStopIcon);
    if (isQuestion) {
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton((style & kSecondDefault) != 0 ? QMessageBox::No : QMessageBox::Yes);
        box.setEscapeButton(QMessageBox::No);
    }
    if (!game.isNull()) {
        placeOver(box, *game);
    }
    const int answer = box.exec();
    if (!game.isNull()) {
        game->activateWindow();
    }
    switch (answer) {
        case QMessageBox::Yes:
            return kAnswerYes;
        case QMessageBox::No:
            return kAnswerNo;
        default:
            return kAnswerOk;
    }
}

void QtSettingsStore::save() {
    const std::string failure = commit();
    if (!failure.empty() && !hasTold_) {
        hasTold_ = true;
        dialogs_.message(failure, kErrorBox, "Ombrelia Terrain Editor");
    }
}

bool DiskFiles::fileExists(const std::string& path) {
    return isOrdinaryFile(path);
}

bool DiskFiles::isNameTaken(const std::string& path) {
    return ombrelia::isNameTaken(path);
}

double QtClock::secondsSinceMidnight() {
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

void QtFailureReport::failed(const std::string& sentence) {
    repair_();
    dialogs_.message(sentence, kErrorBox, title_);
}

}  // namespace ombrelia
