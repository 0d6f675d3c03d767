// The one sentence in the hint frame about what the pointer is over.
#pragma once

#include <string>

#include "platform/control.h"

namespace ombrelia {

inline constexpr const char* kOptionFrameHint = "Click && Drag here to scroll the box up or down.";
inline constexpr const char* kPickedColorHint = "This shows the currently selected color.";
inline constexpr const char* kPickerHint =
    "This is the color picker. Click on a color to select it, for use with the Pencil and Line "
    "tools.";
inline constexpr const char* kRangeHint =
    "Click && Drag this slider to set the length && size of the gradient.";
inline constexpr const char* kColorBoxHint = "Click here to change the current color for this box.";
inline constexpr const char* kZoomHint =
    "This shows a zoomed-up view of the map under the cursor, for precise work.";
inline constexpr const char* kTitleHint =
    "This is the title bar. Click and drag to move the window.";
inline constexpr const char* kHintFrameHint =
    "Double-Click here to hide this help box. You can make me re-appear in the Options dialog.";

// Rewrites the label of the hint frame.
void ShowHint(const std::string& text);

// The sentence of a button 0..99 or a slider; nothing changes for a number without one.
void showButtonHint(int button);
void showSliderHint(int slider);

// The map's own: composed from the selected tool; then the seam for its pointer.
void aboutMap();

// Handlers of parts that do nothing but tell what they are.
void PickedColor_MouseMove(EventArgs& args);
void Rng1_MouseMove(EventArgs& args);
void Title_MouseMove(EventArgs& args);
void HelpLbl_MouseMove(EventArgs& args);
void PlainPart_MouseMove(EventArgs& args);  // list, track: no sentence
void Arrow_MouseMove(EventArgs& args);

// Hides the frame and puts the option out that shows it.
void HelpLbl_DblClick(EventArgs& args);

}  // namespace ombrelia
