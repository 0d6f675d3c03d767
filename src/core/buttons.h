// The faces of the buttons.
#pragma once

#include "platform/control.h"

namespace ombrelia {

// What a kind of button looks like.
struct FaceSet {
    int kind;
    Picture picture;
    double overlayLeft, overlayTop;  // units of the text or icon from the face's corner
};

// The row of a kind, or nullptr.
const FaceSet* faceSet(int kind);

// Sets the face of button i (0..100) from its Kind and State and places what lies on it. A state
// that has no face leaves the face as it is.
void DrawButton(int i);

// The variant of the size dialog, for its kinds 1 and 2.
void DrawSizeButton(int i);

// The same of the help window; a button of another window's kinds is passed over.
void DrawHelpButton(int i);

// Whether button i is on (State 2).
bool isOn(int i);

}  // namespace ombrelia
