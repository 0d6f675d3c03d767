// What a window that is sized by hand has of the system and of the toolkit's own: its frame's
// events, menu bar and scroll bars. Bars and menus follow the window's record.
#pragma once

#include <QElapsedTimer>
#include <QMenuBar>
#include <QScrollBar>
#include <map>

#include "platform/control.h"
#include "platform/exposure.h"

class QAction;

namespace ombrelia {

class QtDesktop;

class FrameParts : public QObject {
  public:
    // host: the widget that stands for the window; the parts become its children.
    FrameParts(QWidget& host, Window& window, QtDesktop& desktop);

    // Height of the menu bar, logical pixels; 0 without menus.
    int menuHeight() const;

    // Gives the host its first size, logical pixels without the menu bar; a window that does
    // nothing about another size keeps it.
    void place(const QSize& size, double logicalPerUnit);

    // The host has another size: tells the window.
    void resized(double logicalPerUnit);

    // Brings everything to the state of the record.
    void sync(double logicalPerUnit);

    // Hears when the host's window was uncovered, and lets it paint its picture anew.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void makeMenus();
    void makeBar(ScrollBar& record);
    void moveBar(ScrollBar& record, const QScrollBar& bar);
    void settleBar(ScrollBar& record, const QScrollBar& bar);

    struct Bar {
        QScrollBar* widget = nullptr;
        int settled = 0;  // the value that Change was last raised for
    };

    QWidget& host_;
    Window& window_;
    QtDesktop& desktop_;
    QMenuBar* menuBar_ = nullptr;
    std::map<MenuItem*, QAction*> actions_;
    std::map<ScrollBar*, Bar> bars_;
    Exposures exposures_;
    QElapsedTimer sinceMade_;
};

}  // namespace ombrelia
