// What the dialogs show, take and remember.
#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QHelpEvent>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QStandardPaths>
#include <QStyle>
#include <QTemporaryDir>
#include <QToolTip>
#include <QTreeView>
#include <gtest/gtest.h>

#include "core/objects.h"
#include "core/option_strip_table.h"
#include "core/questions.h"
#include "panels/option_frames.h"
#include "stories.h"

namespace ombrelia {

namespace {

constexpr const char* kSave = "Save Terrain";
constexpr const char* kImport = "Select Image to Import";

void openDialog(ScreenDriver& driver, int number, const char* title) {
    pressWide(driver, number);
    ASSERT_TRUE(driver.waitForDialog(title));
}

// The editor with a map, and one of its menu's dialogs.
void openFromMenu(ScreenDriver& driver, int number, const char* title) {
    ASSERT_TRUE(openEditor(driver, button::kSizeMiniature));
    pressWide(driver, button::kMenu);
    openDialog(driver, number, title);
}

template <typename Part>
Part* partOf(const char* name) {
    return QApplication::activeModalWidget()->findChild<Part*>(QString::fromLatin1(name));
}

void closeDialog(ScreenDriver& driver) {
    driver.key("Escape");
    ASSERT_TRUE(driver.waitFor([] { return QApplication::activeModalWidget() == nullptr; }));
}

void write(const QString& path, const char* text) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
}

// Whether a box stands before the dialog and has the keyboard.
bool isAnotherInFront(const QWidget* dialog) {
    const QWidget* front = QApplication::activeModalWidget();
    return front != nullptr && front != dialog && front->isActiveWindow();
}

// Names the file; the dialog answers it with a box of this text and stays.
void expectSentBack(ScreenDriver& driver, const QString& path, const char* text) {
    ASSERT_TRUE(driver.typeName(path.toStdString()));
    QWidget* dialog = nullptr;
    driver.inProgram([&] { dialog = QApplication::activeModalWidget(); });
    ASSERT_TRUE(
        driver.keyUntil("Return", [&] { return QApplication::activeModalWidget() != dialog; }));
    driver.rest(300);
    EXPECT_NE(driver.dialogText().find(text), std::string::npos) << driver.dialogText();
    driver.key("Return");
    ASSERT_TRUE(driver.waitFor([&] { return QApplication::activeModalWidget() == dialog; }));
    driver.rest(300);
}

// The letters, buttons and margins of the dialog in front have the editor's scale, nothing is cut
// off, and the whole of it is on the screen.
void expectAtScale(double scale, const char* title) {
    constexpr double kUnit = 0.99;  // but for rounding
    const QWidget* dialog = QApplication::activeModalWidget();
    EXPECT_TRUE(dialog->screen()->availableGeometry().contains(dialog->frameGeometry())) << title;
    for (const auto* button : dialog->findChildren<QPushButton*>()) {
        if (button->isVisible()) {
            EXPECT_GE(button->height(), kUnit * 22 * scale) << title;
            EXPECT_GE(button->width(), kUnit * 64 * scale) << title;
            EXPECT_GE(button->width(), button->fontMetrics().horizontalAdvance(button->text()))
                << title << ": " << button->text().toStdString();
            EXPECT_GE(button->mapTo(dialog, QPoint()).x(), kUnit * 6 * scale) << title;
        }
    }
    int letters = 0;
    for (const auto* label : dialog->findChildren<QLabel*>()) {
        if (label->isVisible() && !label->text().isEmpty()) {
            ++letters;
            EXPECT_GE(label->fontInfo().pixelSize(), kUnit * 11 * scale) << title;
            EXPECT_GE(label->height(), label->heightForWidth(label->width())) << title;
            EXPECT_TRUE(label->wordWrap() || label->width() >= label->sizeHint().width())
                << title << ": " << label->text().toStdString();
        }
    }
    EXPECT_GT(letters, 0) << title;
}

// Every label of the dialog in front shows its text as it stands.
void expectPlain(const char* title) {
    const QWidget* dialog = QApplication::activeModalWidget();
    const auto labels = dialog->findChildren<QLabel*>();
    EXPECT_FALSE(labels.isEmpty()) << title;
    for (const QLabel* label : labels) {
        EXPECT_TRUE(label->textFormat() == Qt::PlainText || !label->isVisible())
            << title << ": " << label->text().toStdString();
    }
}

}  // namespace

TEST(FileDialogs, what_holds_something_is_said_to_be_never_replaced) {
    const QTemporaryDir folder;
    const QString taken = folder.filePath(QStringLiteral("taken.bmp"));
    const QString other = folder.filePath(QStringLiteral("other.bmp"));
    write(taken, "something");
    ScreenDriver::run([&](ScreenDriver& driver) {
        openFromMenu(driver, button::kSave, kSave);
        expectSentBack(driver, taken, "never replaced");
        ASSERT_TRUE(driver.typeName(other.toStdString()));
        EXPECT_TRUE(driver.keyUntil("Return", [&] { return QFileInfo(other).size() == 5498; }));
        EXPECT_EQ(QFileInfo(taken).size(), 9);
    });
}

TEST(FileDialogs, an_empty_file_is_used_after_a_question) {
    const QTemporaryDir folder;
    const QString empty = folder.filePath(QStringLiteral("empty.bmp"));
    write(empty, "");
    ScreenDriver::run([&](ScreenDriver& driver) {
        openFromMenu(driver, button::kSave, kSave);
        expectSentBack(driver, empty, "empty");  // No is the default
        QWidget* dialog = nullptr;
        driver.inProgram([&] { dialog = QApplication::activeModalWidget(); });
        // Waits long: one key too many would answer the question with No.
        const auto asks = [&] {
            driver.key("Return");
            return driver.waitFor([&] { return isAnotherInFront(dialog); });
        };
        ASSERT_TRUE(asks() || asks());
        EXPECT_TRUE(driver.keyUntil("alt+y", [&] { return QFileInfo(empty).size() == 5498; }));
    });
}

// The toolkit selects what was typed once it has looked into its folder, however late.
TEST(FileDialogs, a_path_stays_when_its_file_is_selected_in_another_folder) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("there.bmp"));
    write(path, "something");
    ScreenDriver::run([&](ScreenDriver& driver) {
        openFromMenu(driver, button::kSave, kSave);
        ASSERT_TRUE(driver.typeName(path.toStdString()));
        driver.inProgram([&] {
            auto* line = partOf<QLineEdit>("fileNameEdit");
            const auto* list = partOf<QTreeView>("treeView");
            const auto* files = dynamic_cast<QFileSystemModel*>(list->model());
            line->clearFocus();
            list->selectionModel()->clear();
            list->selectionModel()->select(files->index(path),
                                           QItemSelectionModel::Select | QItemSelectionModel::Rows);
            EXPECT_EQ(line->text(), path);
            list->window()->close();  // Escape is the list's of completions
        });
    });
}

TEST(FileDialogs, a_click_in_the_list_names_the_file) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("there.bmp"));
    write(path, "something");
    ScreenDriver::run([&](ScreenDriver& driver) {
        openFromMenu(driver, button::kImport, kImport);
        ASSERT_TRUE(driver.typeName(folder.path().toStdString()));
        const QTreeView* list = nullptr;
        driver.inProgram([&] { list = partOf<QTreeView>("treeView"); });
        const auto row = [&] {
            return list->visualRect(list->model()->index(0, 0, list->rootIndex()));
        };
        ASSERT_TRUE(driver.keyUntil("Return", [&] {
            return list->rootIndex().data(QFileSystemModel::FilePathRole) == folder.path() &&
                   !row().isEmpty();
        }));
        QPoint place;
        driver.inProgram([&] { place = list->viewport()->mapToGlobal(row().center()); });
        // The first may only close the list of completions.
        EXPECT_TRUE(driver.clickUntil(
            place, [] { return partOf<QLineEdit>("fileNameEdit")->text() == "there.bmp"; }));
        closeDialog(driver);
    });
}

TEST(FileDialogs, a_name_is_taken_as_it_is_typed) {
    const QTemporaryDir folder;
    ScreenDriver::run([&](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeMiniature));
        pressWide(driver, button::kMenu);
        for (const char* name : {"my \"best\" map.bmp", "no suffix", "ends in .bmp.bmp"}) {
            const QString path = folder.filePath(QString::fromLatin1(name));
            pressWide(driver, button::kSave);
            ASSERT_TRUE(driver.nameFile(kSave, path.toStdString()));
            EXPECT_TRUE(driver.waitFor([&] { return QFileInfo(path).size() == 5498; })) << name;
        }
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 3);
    });
}

TEST(FileDialogs, a_typed_folder_is_gone_into_and_an_unknown_name_is_told) {
    const QTemporaryDir folder;
    ScreenDriver::run([&](ScreenDriver& driver) {
        openFromMenu(driver, button::kImport, kImport);
        const auto isThere = [&] {
            const auto* dialog = dynamic_cast<QFileDialog*>(QApplication::activeModalWidget());
            return dialog != nullptr && dialog->directory() == QDir(folder.path());
        };
        ASSERT_TRUE(driver.typeName(folder.path().toStdString()));
        EXPECT_TRUE(driver.keyUntil("Return", isThere));
        driver.key("Return");  // on an empty line
        driver.rest();
        driver.inProgram([&] { EXPECT_TRUE(isThere()); });
        ASSERT_TRUE(driver.typeName("nothing.bmp"));
        EXPECT_TRUE(driver.keyUntil("Return", [&] { return !isThere(); }));
        EXPECT_NE(driver.dialogText().find("nothing.bmp"), std::string::npos);
        EXPECT_TRUE(driver.keyUntil("Escape", isThere));
    });
}

TEST(FileDialogs, each_begins_where_it_was_last_and_keeps_its_size) {
    const QTemporaryDir folder;
    const QString picture = folder.filePath(QStringLiteral("p.bmp"));
    ScreenDriver::run([&](ScreenDriver& driver) {
        openFromMenu(driver, button::kSave, kSave);
        driver.inProgram([] { QApplication::activeModalWidget()->resize(900, 700); });
        ASSERT_TRUE(driver.nameFile(kSave, picture.toStdString()));
        ASSERT_TRUE(driver.waitFor([&] { return QFileInfo::exists(picture); }));
    });
    ScreenDriver::run([&](ScreenDriver& driver) {
        openFromMenu(driver, button::kSave, kSave);
        driver.inProgram([&] {
            auto* dialog = dynamic_cast<QFileDialog*>(QApplication::activeModalWidget());
            EXPECT_EQ(dialog->directory(), QDir(folder.path()));
            EXPECT_NEAR(dialog->width(), 900, 4);
            EXPECT_NEAR(dialog->height(), 700, 4);
        });
        closeDialog(driver);
        openDialog(driver, button::kImport, kImport);
        driver.inProgram([&] {
            auto* dialog = dynamic_cast<QFileDialog*>(QApplication::activeModalWidget());
            EXPECT_NE(dialog->directory(), QDir(folder.path()));
        });
        closeDialog(driver);
        // Nothing in the toolkit's own files.
        const QDir settings(
            QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
        EXPECT_FALSE(settings.exists(QStringLiteral("QtProject.conf")));
    });
}

TEST(FileDialogs, all_pictures_come_second) {
    ScreenDriver::run([](ScreenDriver& driver) {
        openFromMenu(driver, button::kImport, kImport);
        driver.inProgram([] {
            const auto* kinds = partOf<QComboBox>("fileTypeCombo");
            EXPECT_EQ(kinds->itemText(0), "Image Files (*.bmp)");
            EXPECT_TRUE(kinds->itemText(1).startsWith("All Pictures (*.bmp *.png *.jpg *.jpeg"));
            EXPECT_EQ(kinds->itemText(2), "All Files (*)");
            EXPECT_EQ(kinds->count(), 3);
        });
        closeDialog(driver);
    });
}

TEST(FileDialogs, everything_can_be_read) {
    ScreenDriver::run([](ScreenDriver& driver) {
        openFromMenu(driver, button::kSave, kSave);
        const double scale = driver.scale();
        driver.inProgram([scale] {
            const QWidget* dialog = QApplication::activeModalWidget();
            EXPECT_GE(dialog->width(), 420 * scale);
            EXPECT_GE(dialog->height(), 280 * scale);
            EXPECT_EQ(partOf<QLineEdit>("fileNameEdit")->placeholderText(), "name.bmp");
            const QHeaderView* header = partOf<QTreeView>("treeView")->header();
            EXPECT_GE(header->sectionSize(0), 150 * scale);
            EXPECT_GE(header->sectionSize(3), header->sectionSizeHint(3));
            for (const auto* button : dialog->findChildren<QAbstractButton*>()) {
                EXPECT_TRUE(
                    button->text().isEmpty() || button->icon().isNull() ||
                    button->style()->styleHint(QStyle::SH_DialogButtonBox_ButtonsHaveIcons) == 0)
                    << button->text().toStdString();
            }
        });
        closeDialog(driver);
    });
}

TEST(Dialogs, each_grows_with_the_editor) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeMiniature));
        const auto look = [&](const char* title) {
            ASSERT_TRUE(driver.waitForDialog(title));
            const double scale = driver.scale();
            driver.inProgram([&] { expectAtScale(scale, title); });
            closeDialog(driver);
        };
        pressWide(driver, button::kMenu);
        pressWide(driver, button::kSave);
        look(kSave);
        pressWide(driver, button::kImport);
        look(kImport);
        pressWide(driver, button::kNewMap);
        look(messages::kNewMapTitle);
        driver.inProgram([] { ScrollToFrame(page::kColors); });
        driver.moveTo(Form1, 5, 350);
        driver.click(Form1.Rng1(6));
        look("Select a Color");
        pressWide(driver, button::kAddColor);
        look("Save Color Set");
    });
}

TEST(PlainTexts, no_name_from_outside_is_markup) {
    const QTemporaryDir folder;
    const QString bold = folder.filePath(QStringLiteral("<b>bold"));
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("<b>bold")));
    const QString junk = bold + QStringLiteral("/<a href=https:nowhere.example>click.png");
    write(junk, "junk");
    ScreenDriver::run([&](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeMiniature));
        pressWide(driver, button::kMenu);
        pressWide(driver, button::kImport);
        ASSERT_TRUE(driver.nameFile(kImport, junk.toStdString()));
        ASSERT_TRUE(driver.waitForDialog("Ombrelia Terrain Editor"));
        driver.inProgram([] { expectPlain("a failure"); });
        EXPECT_NE(driver.dialogText().find("<a href"), std::string::npos);
        closeDialog(driver);

        openDialog(driver, button::kImport, kImport);
        driver.inProgram([&] {
            expectPlain(kImport);
            auto* list = partOf<QTreeView>("treeView");
            const QPoint place = list->viewport()->rect().center();
            QHelpEvent wish(QEvent::ToolTip, place, list->viewport()->mapToGlobal(place));
            QApplication::sendEvent(list->viewport(), &wish);
            EXPECT_FALSE(QToolTip::isVisible());
        });
        closeDialog(driver);
        openDialog(driver, button::kSave, kSave);
        driver.inProgram([] { expectPlain(kSave); });
        closeDialog(driver);
    });
}

}  // namespace ombrelia
