// The help window: a contents list, pages behind a viewport, a scroll bar.
#pragma once

#include "platform/control.h"

namespace ombrelia {

inline constexpr int kFirstToolPage = 400;
inline constexpr int kToolPageCount = 11;
inline constexpr int kContentsPage = 1;
inline constexpr int kIconsPage = 4;
inline constexpr int kAboutPage = 7;

struct HelpBoxWindow : Window {
    Label Label14;              // title; a press on it moves the window
    Label Label13;              // opens the maker's web page
    ControlArray<Image> NTool;  // 90..98
    ControlArray<Label> LTool;  // 90..97

    PictureBox Picture1;             // viewport
    ControlArray<PictureBox> Topic;  // by page number
    ControlArray<Label> TopicTitle;  // headings, by page number
    ControlArray<Line> TopicRule;    // under the headings, by page number
    ControlArray<Label> TopicLabel;  // texts, by page number
    ControlArray<Image> TopicPicture;
    ControlArray<Label> LinkLbl;   // by row of kHelpLinks
    ControlArray<Label> ContLbl;   // 0..5
    ControlArray<Image> ToolPic;   // 0..10
    ControlArray<Label> ToolName;  // 0..10
    ControlArray<Image> IconPic;   // 400..410
    ControlArray<Label> IconName;  // 400..410
    ControlArray<Label> IconText;  // 400..410
    Label Label40;                 // the About page's text
    Label Label41;                 // the About page's heading

    ControlArray<Image> Scroller;  // slider::kHelpPage alone, like the three below
    ControlArray<Image> Filler;
    ControlArray<Image> ScrollUp;
    ControlArray<Image> ScrollDown;

    Timer Timer1;

    HelpBoxWindow();
};
extern HelpBoxWindow HelpBox;

// Gives a text its label on a page, high enough for it.
void fitHelpText(Label& label, const std::string& text);

}  // namespace ombrelia
