// The dialog that names a file: the toolkit's, at the editor's scale, with our own ideas of names.
#pragma once

#include <QFileDialog>
#include <functional>
#include <optional>
#include <string>

class QLineEdit;

namespace ombrelia {

// What the dialog is to ask for.
struct FileQuestion {
    QString title;
    QStringList filters;
    QString folder;  // where it begins
    QSize size;      // of its inside, in units; empty: the usual one
    bool isSave = false;
    double scale = 1;  // device pixels to a unit
    // Tells something, or asks and gives the answer, as Dialogs::message does.
    std::function<int(const std::string& text, int style)> tell;
};

// A name is taken as it is typed, quotes and all. A save goes back to the choice when the name
// holds something, since that is never replaced, and asks before it uses an empty file.
class FileDialog : public QFileDialog {
  public:
    FileDialog(QWidget* parent, FileQuestion question);

    // The path that was chosen; nothing when cancelled.
    std::optional<QString> ask();

    void accept() override;

  private:
    bool isTaken(const QString& path);
    void layOut();
    void keepName(const QString& text);
    QString pathOf(const QString& name) const;

    FileQuestion question_;
    QLineEdit* line_ = nullptr;  // none in a dialog of the desktop
    QString name_;               // what stands in the line by the user's will
    QString chosen_;
};

}  // namespace ombrelia
