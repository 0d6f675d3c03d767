// The drop-down under a list.
#pragma once

#include <QRect>
#include <functional>

class QWidget;

namespace ombrelia {

struct ListBox;

// Opens the list's entries below it, or above where only there is room, and returns at once;
// chosen is called with the entry that the user picks, also if it is the one shown already. field:
// the list in the parent, logical pixels, beside which the menu goes and which it is at least as
// wide as; free: of the screen; scale: device pixels to a unit.
void openListMenu(QWidget& parent, const ListBox& list, const QRect& field, const QRect& free,
                  double scale, const std::function<void(int)>& chosen);

}  // namespace ombrelia
