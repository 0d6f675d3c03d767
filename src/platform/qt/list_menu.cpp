#include "platform/qt/list_menu.h"

#include <QAction>
#include <QMenu>
#include <algorithm>
#include <cmath>

#include "platform/control.h"
#include "platform/qt/palette_style.h"
#include "platform/screen_fit.h"

namespace ombrelia {

namespace {

// %1 letters, %2 edge, %3 and %4 padding of an entry, %5 width; all in logical pixels.
constexpr StyleText kMenuStyle = R"(
QMenu { menu-scrollable: 1; background: @well; color: @text; font-size: %1px; border: %2px solid @edge;
        padding: %2px; }
QMenu::item { min-width: %5px; padding: %3px %4px; background: transparent; }
QMenu::item:selected { background: @over_lo; }
QMenu::item:checked { color: @amber_hi; }
QMenu::indicator { width: 0px; height: 0px; })";

// A name as a menu shows it: on one line, no letter underlined.
QString entryText(const std::string& name) {
    QString text = QString::fromStdString(name);
    text.replace(QLatin1Char('&'), QStringLiteral("&&"));
    for (QChar& letter : text) {
        if (letter < QLatin1Char(' ')) {
            letter = QLatin1Char(' ');
        }
    }
    return text;
}

}  // namespace

void openListMenu(QWidget& parent, const ListBox& list, const QRect& field, const QRect& free,
                  double scale, const std::function<void(int)>& chosen) {
    auto* menu = new QMenu(&parent);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setAttribute(Qt::WA_NoMouseReplay);  // a press on the open list closes it
    const double unit = scale / parent.devicePixelRatioF();
    const auto pixels = [unit](double units) {
        return std::max(1, static_cast<int>(std::lround(units * unit)));
    };
    const int edge = pixels(1);
    const int width = field.width() - 4 * edge - 2 * pixels(5);
    menu->setStyleSheet(
        kMenuStyle.sheet().arg(pixels(11)).arg(edge).arg(pixels(3)).arg(pixels(5)).arg(width));
    for (std::size_t i = 0; i < list.List.size(); ++i) {
        const int entry = static_cast<int>(i);
        QAction* action = menu->addAction(entryText(list.List[i]));
        action->setCheckable(true);
        action->setChecked(entry == list.ListIndex);
        QObject::connect(action, &QAction::triggered, &parent, [chosen, entry] { chosen(entry); });
        if (entry == list.ListIndex) {
            menu->setActiveAction(action);
        }
    }
    const QPoint corner = parent.mapToGlobal(field.topLeft());
    menu->popup({corner.x(),
                 static_cast<int>(droppedFrom(corner.y(), field.height(), menu->sizeHint().height(),
                                              free.top(), free.height()))});
}

}  // namespace ombrelia
