#include "platform/qt/qt_services.h"

#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QTime>

#include "platform/qt/qt_desktop.h"
#include "platform/qt/window_view.h"

namespace ombrelia {

namespace {

constexpr int kYesNoButtons = 4;
constexpr int kButtonMask = 7;
constexpr int kStopIcon = 16;
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

// Any text as a name that the settings file keeps as it stands: letters, digits and - stay, each
// other byte of its UTF-8 form becomes _XX.
QString encoded(const std::string& text) {
    QString name;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const bool isPlain = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
                             (byte >= '0' && byte <= '9') || byte == '-';
        name += isPlain ? QString(QLatin1Char(c))
                        : QStringLiteral("_%1").arg(byte, 2, 16, QLatin1Char('0'));
    }
    return name;
}

std::string decoded(const QString& name) {
    std::string text;
    for (qsizetype i = 0; i < name.size(); ++i) {
        if (name[i] == QLatin1Char('_')) {
            text += static_cast<char>(name.mid(i + 1, 2).toInt(nullptr, 16));
            i += 2;
        } else {
            text += name[i].toLatin1();
        }
    }
    return text;
}

QString pathOf(const std::string& section, const std::string& key) {
    return encoded(section) + QLatin1Char('/') + encoded(key);
}

// The text of a value; a list, which an unquoted comma makes of a hand-edited line, is joined
// again.
std::string textOf(const QVariant& value) {
    return value.toStringList().join(QStringLiteral(", ")).toStdString();
}

}  // namespace

std::string QtDialogs::askSaveFile(const std::string& title, const std::string& filter) {
    const QString path = QFileDialog::getSaveFileName(
        desktop_.dialogParent(), QString::fromStdString(title), folder_, toolkitFilter(filter));
    if (!path.isEmpty()) {
        folder_ = QFileInfo(path).absolutePath();
    }
    return QFile::encodeName(path).toStdString();
}

int QtDialogs::message(const std::string& text, int style, const std::string& title) {
    QMessageBox box(desktop_.dialogParent());
    box.setWindowTitle(QString::fromStdString(title));
    box.setText(QString::fromStdString(text));
    box.setTextFormat(Qt::PlainText);
    box.setIcon((style & kStopIcon) != 0 ? QMessageBox::Critical : QMessageBox::Information);
    if ((style & kButtonMask) == kYesNoButtons) {
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton((style & kSecondDefault) != 0 ? QMessageBox::No : QMessageBox::Yes);
        box.setEscapeButton(QMessageBox::No);
    }
    switch (box.exec()) {
        case QMessageBox::Yes:
            return kAnswerYes;
        case QMessageBox::No:
            return kAnswerNo;
        default:
            return kAnswerOk;
    }
}

QSettings& QtSettingsStore::file() {
    if (file_ == nullptr) {
        file_ = std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                            QStringLiteral("quillbyte"),
                                            QStringLiteral("ombrelia-terrain-editor"));
        file_->setAtomicSyncRequired(true);
        if (file_->status() == QSettings::FormatError) {
            QFile::copy(file_->fileName(), file_->fileName() + QStringLiteral(".damaged"));
        }
    }
    return *file_;
}

std::string QtSettingsStore::read(const std::string& section, const std::string& key,
                                  const std::string& ifMissing) {
    const QVariant value = file().value(pathOf(section, key));
    return value.isValid() ? textOf(value) : ifMissing;
}

void QtSettingsStore::write(const std::string& section, const std::string& key,
                            const std::string& value) {
    file().setValue(pathOf(section, key), QString::fromStdString(value));
}

std::vector<std::pair<std::string, std::string>> QtSettingsStore::enumerate(
    const std::string& section) {
    QSettings& settings = file();
    settings.beginGroup(encoded(section));
    std::vector<std::pair<std::string, std::string>> entries;
    for (const QString& name : settings.childKeys()) {
        entries.emplace_back(decoded(name), textOf(settings.value(name)));
    }
    settings.endGroup();
    std::sort(entries.begin(), entries.end());
    return entries;
}

double QtClock::secondsSinceMidnight() {
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

void QtFailureReport::failed(const std::string& sentence) {
    repair_();
    dialogs_.message(sentence, kErrorBox, title_);
}

}  // namespace ombrelia
