#include "platform/qt/qt_services.h"

#include <QColorDialog>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPointer>
#include <QTime>
#include <QWindow>

#include "platform/binary_file.h"
#include "platform/qt/dialog_dress.h"
#include "platform/qt/palette_style.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/window_view.h"

namespace ombrelia {

namespace {

constexpr int kYesNoButtons = 4;
constexpr int kButtonMask = 7;
constexpr int kStopIcon = 16;
constexpr int kIconMask = 0x70;
constexpr int kSecondDefault = 256;

// "Name|pattern|Name|pattern" in the toolkit's form.
QString toolkitFilter(const std::string& filter) {
    const QStringList parts = QString::fromStdString(filter).split('|');
    QStringList entries;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString name = parts[i].section(QStringLiteral(" ("), 0, 0);
        const QString pattern =
            parts[i + 1] == QStringLiteral("*.*") ? QStringLiteral("*") : parts[i + 1];
        entries << name + QStringLiteral(" (") + pattern + QStringLiteral(")");
    }
    return entries.join(QStringLiteral(";;"));
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
    dressApplication(desktop_.scale());
    const QString path = QFileDialog::getSaveFileName(
        desktop_.dialogParent(), QString::fromStdString(title), folder_, toolkitFilter(filter));
    return remembered(path);
}

std::string QtDialogs::askOpenFile(const std::string& title, const std::string& filter) {
    dressApplication(desktop_.scale());
    return remembered(QFileDialog::getOpenFileName(
        desktop_.dialogParent(), QString::fromStdString(title), folder_, toolkitFilter(filter)));
}

// The path as bytes; its folder is where the next dialog opens.
std::string QtDialogs::remembered(const QString& path) {
    if (!path.isEmpty()) {
        folder_ = QFileInfo(path).absolutePath();
    }
    return QFile::encodeName(path).toStdString();
}

Color QtDialogs::askColor(const std::string& title, Color start) {
    dressApplication(desktop_.scale());
    const QColor chosen = QColorDialog::getColor(toolkitColor(start), desktop_.dialogParent(),
                                                 QString::fromStdString(title));
    if (!chosen.isValid()) {
        return start;
    }
    return rgb(static_cast<unsigned>(chosen.red()), static_cast<unsigned>(chosen.green()),
               static_cast<unsigned>(chosen.blue()));
}

std::string QtDialogs::askInput(const std::string& prompt, const std::string& title) {
    dressApplication(desktop_.scale());
    return QInputDialog::getText(desktop_.dialogParent(), QString::fromStdString(title),
                                 QString::fromStdString(prompt))
        .toStdString();
}

int QtDialogs::message(const std::string& text, int style, const std::string& title) {
    dressApplication(desktop_.scale());
    const QPointer<WindowView> game = desktop_.activeGame();
    QMessageBox box(game.isNull() ? desktop_.dialogParent() : nullptr);
    box.setWindowTitle(QString::fromStdString(title));
    box.setTextFormat(Qt::PlainText);
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
