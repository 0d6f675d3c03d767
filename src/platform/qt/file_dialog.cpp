#include "platform/qt/file_dialog.h"

#include <QAbstractItemView>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QList>
#include <QStandardPaths>
#include <QTreeView>
#include <QUrl>
#include <algorithm>
#include <utility>

#include "platform/messages.h"
#include "platform/qt/dialog_dress.h"
#include "platform/services.h"

namespace ombrelia {

namespace {

constexpr QSizeF kLeastUnits(420, 280);
constexpr QSizeF kUsualUnits(500, 320);
constexpr double kPlacesUnits = 104;  // the list of places at the left
constexpr int kTypeColumn = 2;        // says what the name says already

}  // namespace

FileDialog::FileDialog(QWidget* parent, FileQuestion question)
    : QFileDialog(parent, question.title, question.folder), question_(std::move(question)) {
    setAcceptMode(question_.isSave ? AcceptSave : AcceptOpen);
    setFileMode(question_.isSave ? AnyFile : ExistingFile);
    setOption(DontConfirmOverwrite);
    setNameFilters(question_.filters);
    setViewMode(Detail);
    line_ = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (line_ != nullptr) {
        layOut();
        name_ = line_->text();
        connect(line_, &QLineEdit::textChanged, this, &FileDialog::keepName);
    }
}

// The toolkit selects in the list what was typed, also a file of another folder, and where the line
// has not the keyboard it then writes that file's bare name, which means another file here.
void FileDialog::keepName(const QString& text) {
    const auto* list = findChild<QTreeView*>(QStringLiteral("treeView"));
    const QModelIndexList selected = list->selectionModel()->selectedRows();
    const bool isElsewhere =
        std::any_of(selected.begin(), selected.end(), [this, &text](const QModelIndex& file) {
            return text == file.data().toString() &&
                   pathOf(text) != file.data(QFileSystemModel::FilePathRole).toString();
        });
    if (!isElsewhere) {
        name_ = text;
    } else if (text != name_) {
        line_->setText(name_);
    }
}

QString FileDialog::pathOf(const QString& name) const {
    return QDir::cleanPath(directory().absoluteFilePath(name));
}

void FileDialog::layOut() {
    const double scale = question_.scale;
    dressDialog(*this, scale);
    setMinimumSize((kLeastUnits * scale).toSize());
    const QSizeF units = question_.size.isEmpty() ? kUsualUnits : QSizeF(question_.size);
    resize((units * scale).toSize());
    if (question_.isSave) {
        line_->setPlaceholderText(tr("name.bmp"));
    }
    QList<QUrl> places;
    for (const auto place : {QStandardPaths::HomeLocation, QStandardPaths::DocumentsLocation,
                             QStandardPaths::PicturesLocation, QStandardPaths::DownloadLocation}) {
        const QString path = QStandardPaths::writableLocation(place);
        if (QFileInfo(path).isDir() && !places.contains(QUrl::fromLocalFile(path))) {
            places << QUrl::fromLocalFile(path);
        }
    }
    setSidebarUrls(places);
    for (auto* view : findChildren<QAbstractItemView*>()) {
        view->setDragEnabled(
            false);  // nothing to drag them to, and the picture outlives the dialog
    }
    auto* list = findChild<QTreeView*>(QStringLiteral("treeView"));
    list->setColumnHidden(kTypeColumn, true);
    QHeaderView* header = list->header();
    header->setStretchLastSection(false);
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(0, QHeaderView::Stretch);
    if (auto* sidebar = findChild<QWidget*>(QStringLiteral("sidebar"))) {
        sidebar->setMinimumWidth(pixels(kPlacesUnits, scale));
    }
}

std::optional<QString> FileDialog::ask() {
    while (exec() == Accepted) {
        if (line_ != nullptr) {
            return chosen_;
        }
        const QString path = selectedFiles().value(0);
        if (!question_.isSave || !isTaken(path)) {
            return path;
        }
    }
    return std::nullopt;
}

void FileDialog::accept() {
    if (line_ == nullptr) {
        QFileDialog::accept();
        return;
    }
    const QString typed = line_->text();
    if (typed.isEmpty()) {
        return;
    }
    const QString path = pathOf(typed);
    const QFileInfo info(path);
    if (info.isDir()) {
        setDirectory(path);
        line_->clear();
        return;
    }
    if (question_.isSave ? isTaken(path) : !info.exists()) {
        if (!question_.isSave) {
            question_.tell(messages::nothingOfThisName(path.toStdString()), kOkBox);
        }
        line_->setFocus();
        line_->selectAll();
        return;
    }
    chosen_ = path;
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): the other reads the name its own way
    QDialog::accept();
}

// Whether the save must go back to the choice.
bool FileDialog::isTaken(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists()) {
        return false;
    }
    if (info.size() == 0 && info.isFile()) {
        return question_.tell(messages::useEmptyFile(path.toStdString()),
                              kYesNoStopSecondDefault) != kAnswerYes;
    }
    question_.tell(messages::neverReplaced(path.toStdString()), kOkBox);
    return true;
}

}  // namespace ombrelia
