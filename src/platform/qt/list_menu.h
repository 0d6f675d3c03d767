// The drop-down under a list.
#pragma once

#include <QPoint>
#include <functional>

class QWidget;

namespace ombrelia {

struct ListBox;

// Opens the list's entries below it and returns at once; chosen is called with the entry that the
// user picks, also if it is the one shown already. corner: where the menu's left top corner goes,
// on the screen; widthDevice: at least this wide; scale: device pixels to a unit.
void openListMenu(QWidget& parent, const ListBox& list, const QPoint& corner, int widthDevice,
                  double scale, const std::function<void(int)>& chosen);

}  // namespace ombrelia
