// The program as it is, watched: each line on standard input is answered by one line that tells
// where its windows stand and whether the desk is in order. The line "restore" first brings
// minimized windows back, and the keyboard to the dialog if a click on the screen's ground has
// taken it from every window, as a panel of the desktop would; "settle" gives memory that is free
// back to the system. File dialogs cannot leave the
// current folder, and change nothing in it but what is saved.
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <algorithm>
#include <iostream>
#include <malloc.h>
#include <string>
#include <thread>

#include "app/bindings.h"
#include "core/button_numbers.h"
#include "core/editor_state.h"
#include "core/progress.h"
#include "core/windows/form1.h"
#include "core/windows/small_windows.h"
#include "desk/startup.h"
#include "platform/dispatch.h"
#include "platform/program.h"
#include "platform/qt/window_view.h"

namespace ombrelia {

namespace {

class DialogKeeper : public QObject {
  protected:
    bool eventFilter(QObject* target, QEvent* event) override {
        auto* dialog = qobject_cast<QFileDialog*>(target);
        if (dialog != nullptr && event->type() == QEvent::Show) {
            dialog->setOption(QFileDialog::ReadOnly);
            stay(*dialog);
            // Not at once: the dialog may still be on its way into the folder.
            connect(
                dialog, &QFileDialog::directoryEntered, dialog, [dialog] { stay(*dialog); },
                Qt::QueuedConnection);
        }
        return false;
    }

  private:
    static void stay(QFileDialog& dialog) {
        if (dialog.directory().absolutePath() != QDir::currentPath()) {
            dialog.setDirectory(QDir::currentPath());
        }
    }
};

struct Order {
    const char* what;
    bool (*holds)();
};
constexpr Order kOrders[] = {
    {"the map is disabled", [] { return Form1.MapView.Enabled; }},
    {"the light is red", [] { return Form1.NTool(button::kStop + kOverlayOffset).Face.face == 0; }},
    {"the panel is hidden", [] { return Form1.Picture1.Visible; }},
    {"the progress stays", [] { return !Form1.ProgressFrame.Visible; }},
    {"a stop waits", [] { return StopFlag != 2; }},
    {"a gesture is left", [] { return MouseState == kGestureNone; }},
    {"a thumb is held", [] { return SliderDragState == 0; }},
    {"a tool is disabled",
     [] {
         for (int i = 1; i <= button::kPlain; ++i) {
             if (!Form1.NTool(i).Enabled || !Form1.OptFrame(i).Enabled) {
                 return false;
             }
         }
         return true;
     }},
};

std::string problems() {
    std::string text;
    for (const Order& row : kOrders) {
        if (Form1.Loaded && !row.holds()) {
            text += std::string(text.empty() ? "" : ", ") + row.what;
        }
    }
    return text;
}

void restoreWindows() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && widget->isMinimized()) {
            widget->showNormal();
            widget->activateWindow();
        }
    }
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog != nullptr && QApplication::activeWindow() == nullptr) {
        dialog->activateWindow();
    }
}

bool isAnyMinimized() {
    const QWidgetList widgets = QApplication::topLevelWidgets();
    return std::any_of(widgets.begin(), widgets.end(), [](const QWidget* widget) {
        return widget->isVisible() && widget->isMinimized();
    });
}

// Tab between the fields: busy, loaded, minimized, problems, title of the dialog, then windows with
// place.
std::string look() {
    std::string line = isHandling() ? "1\t" : "0\t";
    line += Form1.Loaded && Form1.Visible ? "1\t" : "0\t";
    line += isAnyMinimized() ? "1\t" : "0\t";
    line += problems() + "\t";
    const QWidget* modal = QApplication::activeModalWidget();
    line += modal != nullptr ? modal->windowTitle().toStdString() + " " : std::string();
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && !widget->isMinimized()) {
            const QRect place = widget->frameGeometry();
            line += "\t" + std::to_string(place.x()) + " " + std::to_string(place.y()) + " " +
                    std::to_string(place.width()) + " " + std::to_string(place.height()) +
                    (widget == modal ? " modal" : "");
        }
    }
    return line;
}

void answerLooks() {
    for (std::string asked; std::getline(std::cin, asked);) {
        std::string line;
        const auto answer = [&line, &asked] {
            if (asked == "restore") {
                restoreWindows();
            } else if (asked == "settle") {
                malloc_trim(0);
            }
            line = look();
        };
        QMetaObject::invokeMethod(qApp, answer, Qt::BlockingQueuedConnection);
        std::cout << line << std::endl;
    }
}

void startWatched() {
    static DialogKeeper keeper;
    qApp->installEventFilter(&keeper);
    startEditor();
    std::thread(answerLooks).detach();
}

}  // namespace

}  // namespace ombrelia

int main(int argc, char** argv) {
    ombrelia::bindEvents();
    const int status = ombrelia::runProgram(
        argc, argv,
        {ombrelia::startWatched,
         ombrelia::repairAfterFailure,
         {ombrelia::Form1.Width, ombrelia::HelpFrm.Width, ombrelia::Form1.Height}});
    std::_Exit(status);  // the thread that answers may still be waiting
}
