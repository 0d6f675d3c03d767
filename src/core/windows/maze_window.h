// The window of the maze game: a system frame with menus, the maze, its tilt bar, a line of text.
#pragma once

#include "platform/control.h"

namespace ombrelia {

struct MazeWindow : Window {
    PictureBox Picture;  // the window's own surface, under bar and text line
    TextLine Text1;
    ScrollBar VScroll1;  // tilt
    Timer Timer1;        // 55 ms
    MenuItem mnuAction;
    ControlArray<MenuItem> mnuActionItem;  // 0 New, 1 Solve, 2 Clear, 3 separator, 4 Exit
    MenuItem mnuStyle;
    ControlArray<MenuItem> mnuStyleItem;  // 0 hexagonal, 1 square
    MenuItem mnuHelp;
    ControlArray<MenuItem> mnuHelpItem;  // 0 About
    MazeWindow();
};
extern MazeWindow frm3DMaze;

}  // namespace ombrelia
