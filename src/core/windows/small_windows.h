// The windows around the editor: splash, size dialog, wait window, hint frame.
#pragma once

#include "platform/control.h"

namespace ombrelia {

// Splash at the start, About box later. Its lettering is part of its picture, so that nothing waits
// for a font.
struct SplashWindow : Window {
    Timer Timer1;  // 7000 ms
    SplashWindow();
};
extern SplashWindow frmSplash;

// Chooses the size of the map.
struct SizeSelectWindow : Window {
    Label Label11;  // title; a press on it moves the window
    PictureBox Picture1;
    Label Label1;
    Label Label2;               // a small joke
    ControlArray<Image> NTool;  // 80..85
    ControlArray<Label> LTool;  // 80..84
    ControlArray<Label> SizeLabel;
    ControlArray<Line> Edge;  // 0..3: left, top, right, bottom
    SizeSelectWindow();
};
extern SizeSelectWindow SizeSelect;

inline constexpr const char* kImportLine = "Or, you can import a map from a file:";
inline constexpr const char* kImportLineHovered = "Or, you kan import a map from a file:";
inline constexpr const char* kImportLineArmed = "Or, u kan import ah map phrom ah phile:";

// Says "Please Wait..." while the editor loads.
struct Form3Window : Window {
    Label Label1;
    Image Groove;
    Image Bar;  // grows in Groove while the editor loads
    Form3Window();
};
extern Form3Window Form3;

// How far the editor is loaded, 0..1.
void showLoaded(double share);

// One sentence about what the pointer is over, docked to the editor's right edge.
struct HelpFrmWindow : Window {
    Label HelpLbl;
    HelpFrmWindow();
};
extern HelpFrmWindow HelpFrm;

}  // namespace ombrelia
