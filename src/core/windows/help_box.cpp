#include "core/windows/help_box.h"

#include <algorithm>
#include <iterator>

#include "core/button_numbers.h"
#include "core/option_strip_table.h"
#include "core/windows/help_texts_table.h"
#include "core/windows/layout.h"
#include "core/windows/text_size.h"

namespace ombrelia {

HelpBoxWindow HelpBox;

namespace {

constexpr double kWidth = 566;
constexpr double kHeight = 355;
constexpr Box kViewport = {134, 32, 398, 313};
constexpr double kBarLeft = 538;
constexpr double kBarTop = 30;
constexpr double kBarHeight = 317;
constexpr double kArrowSide = 20;

constexpr double kMargin = 16;
constexpr double kTextWidth = kViewport.width - 2 * kMargin;
constexpr double kTextSize = 12;
constexpr double kTitleTop = 10;
constexpr double kTextTop = 46;
constexpr double kGap = 10;
constexpr double kPictureGap = 18;
constexpr double kLinkHeight = 19;
constexpr int kFirstTextPage = 200;
constexpr double kToolPitch = 44;
constexpr double kToolSide = 32;
constexpr double kIconSide = 36;
constexpr double kIconTextTop = 64;

constexpr TextStyle kBodyStyle = {.size = kTextSize, .wrap = true};
constexpr TextStyle kTitleStyle = {.size = 16, .color = palette::kText, .bold = true};
constexpr TextStyle kLinkStyle = {.size = kTextSize, .color = palette::kAmber, .wrap = true};

constexpr const char* kButtonTexts[] = {"Contents", "Starting Out", "Simple", "Icons",
                                        "Advanced", "Advanced TE",  "About",  "Back"};

void designButtons() {
    for (int i = button::kHelpContents; i <= button::kHelpBack; ++i) {
        const char* text = kButtonTexts[i - button::kHelpContents];
        const double extra = i == button::kHelpBack ? 8 : 0;
        const double top = 32 + 34.0 * (i - button::kHelpContents) + extra;
        Image& face = HelpBox.NTool.make(i);
        designImage(face, "NTool", HelpBox, 10, top, Picture::Stand);
        face.AccessibleName = text;
        designLabel(HelpBox.LTool.make(i), "LTool", HelpBox,
                    {19, top + 8, face.Width - 18, face.Height - 16}, text,
                    {.align = TextAlign::Center, .bold = true});
        HelpBox.LTool(i).LiesOn = &face;
    }
    Image& close = HelpBox.NTool.make(button::kHelpClose);
    designImage(close, "NTool", HelpBox, kWidth - 23, 2, Picture::CloseB);
    close.AccessibleName = "Close";
}

// A page with its rule; the heading is a label of the caller's choice.
PictureBox& designPage(int number) {
    PictureBox& page = HelpBox.Topic.make(number);
    designPart(page, "Topic", HelpBox.Picture1, {0, 0, kViewport.width, kViewport.height});
    page.Visible = number == kContentsPage;
    return page;
}

void designHeading(Label& label, const char* name, PictureBox& page, const char* title) {
    designLabel(label, name, page, {kMargin, kTitleTop, kTextWidth, 22}, title, kTitleStyle);
    Line& rule = HelpBox.TopicRule.make(page.Index);
    designLine(rule, "TopicRule", page, kMargin, 37, kViewport.width - kMargin - 1, 37,
               palette::kEdge);
}

// A text that wraps; the place below it.
double designText(Label& label, const char* name, PictureBox& page, double top,
                  const std::string& text, const TextStyle& style) {
    const double height = wrappedHeight(text, style.size, kTextWidth);
    designLabel(label, name, page, {kMargin, top, kTextWidth, height}, text, style);
    label.Underline = style.color == palette::kAmber;
    return top + height;
}

// Where the way on stands below a text: at the foot of its page.
double footTop(double textBottom) {
    return std::max(textBottom, kViewport.height - kMargin - kLinkHeight - kGap);
}

double designLinks(PictureBox& page, double top) {
    for (std::size_t row = 0; row < std::size(kHelpLinks); ++row) {
        if (kHelpLinks[row].page == page.Index) {
            Label& link = HelpBox.LinkLbl.make(static_cast<int>(row));
            top = designText(link, "LinkLbl", page, top + kGap, kHelpLinks[row].text, kLinkStyle);
        }
    }
    return top;
}

double designContents(PictureBox& page, double top) {
    for (std::size_t i = 0; i < std::size(kContentsEntries); ++i) {
        top = designText(HelpBox.ContLbl.make(static_cast<int>(i)), "ContLbl", page, top + kGap,
                         kContentsEntries[i], kLinkStyle);
    }
    return top;
}

double designToolList(PictureBox& page, double top) {
    for (int i = 0; i < kToolPageCount; ++i) {
        const double rowTop = top + 6 + kToolPitch * i;
        designPart(HelpBox.ToolPic.make(i), "ToolPic", page,
                   {kMargin, rowTop, kToolSide, kToolSide});
        Label& name = HelpBox.ToolName.make(i);
        designLabel(name, "ToolName", page,
                    {kMargin + kToolSide + 12, rowTop, kTextWidth - kToolSide - 12, kToolSide},
                    kToolPages[i].title, {.size = kTextSize, .color = palette::kAmber});
        name.Underline = true;
        HelpBox.ToolPic(i).AccessibleName = kToolPages[i].title;
    }
    return top + kToolPitch * kToolPageCount;
}

void designTopic(const HelpPage& row) {
    PictureBox& page = designPage(row.number);
    designHeading(HelpBox.TopicTitle.make(row.number), "TopicTitle", page, row.title);
    double bottom = kTextTop - kGap;
    if (*row.text != '\0') {
        bottom = designText(HelpBox.TopicLabel.make(row.number), "TopicLabel", page, kTextTop,
                            row.text, kBodyStyle);
    }
    if (row.number == kContentsPage) {
        bottom = designContents(page, bottom);
    } else if (row.number == kIconsPage) {
        bottom = designToolList(page, bottom);
    }
    if (row.number < kFirstTextPage) {
        bottom = designLinks(page, bottom);
    }
    if (row.picture != Picture::None) {
        Image& picture = HelpBox.TopicPicture.make(row.number);
        designImage(picture, "TopicPicture", page, kMargin, bottom + kPictureGap, row.picture);
        bottom += kPictureGap + picture.Height;
    }
    if (row.number >= kFirstTextPage) {
        bottom = designLinks(page, footTop(bottom));
    }
    page.Height = bottom + kMargin;
}

// The pages of the tools stay empty until the window is loaded, which gives them picture and text.
void designToolPage(const HelpPage& row) {
    PictureBox& page = designPage(row.number);
    designPart(HelpBox.IconPic.make(row.number), "IconPic", page,
               {kMargin, 14, kIconSide, kIconSide});
    designLabel(HelpBox.IconName.make(row.number), "IconName", page,
                {kMargin + kIconSide + 12, 21, kTextWidth - kIconSide - 12, 22}, "", kTitleStyle);
    designLabel(HelpBox.IconText.make(row.number), "IconText", page,
                {kMargin, kIconTextTop, kTextWidth, 0}, "", kBodyStyle);
}

void designAbout() {
    PictureBox& page = designPage(kAboutPage);
    designHeading(HelpBox.Label41, "Label41", page, kAboutTitle);
    designLabel(HelpBox.Label40, "Label40", page, {kMargin, kTextTop, kTextWidth, 0}, "",
                kBodyStyle);
}

void designBar() {
    Image& track = HelpBox.Filler.make(slider::kHelpPage);
    designImage(track, "Filler", HelpBox, kBarLeft, kBarTop + kArrowSide, Picture::Filler);
    track.Height = kBarHeight - 2 * kArrowSide;
    designImage(HelpBox.Scroller.make(slider::kHelpPage), "Scroller", HelpBox, kBarLeft,
                kBarTop + kArrowSide, Picture::Scroller);
    designImage(HelpBox.ScrollUp.make(slider::kHelpPage), "ScrollUp", HelpBox, kBarLeft, kBarTop,
                Picture::UpArrow);
    designImage(HelpBox.ScrollDown.make(slider::kHelpPage), "ScrollDown", HelpBox, kBarLeft,
                kBarTop + kBarHeight - kArrowSide, Picture::DownArrow);
    HelpBox.Scroller(slider::kHelpPage).AccessibleName = "Page";
    HelpBox.ScrollUp(slider::kHelpPage).AccessibleName = "Scroll up";
    HelpBox.ScrollDown(slider::kHelpPage).AccessibleName = "Scroll down";
}

void designHelpBox() {
    designWindow(HelpBox, "HelpBox", "Help", kWidth, kHeight, Picture::HelpBoxBack);
    designLabel(HelpBox.Label14, "Label14", HelpBox, {26, 0, kWidth - 60, 22}, "Help",
                {.size = 12, .color = palette::kText, .bold = true});
    designButtons();
    designLabel(HelpBox.Label13, "Label13", HelpBox, {10, 327, 110, 18}, "quillbyte",
                {.color = palette::kTextDim, .align = TextAlign::Center});
    HelpBox.Label13.Underline = true;
    designPart(HelpBox.Picture1, "Picture1", HelpBox, kViewport);
    for (const HelpPage& row : kHelpPages) {
        designTopic(row);
    }
    for (const HelpPage& row : kToolPages) {
        designToolPage(row);
    }
    designAbout();
    designBar();
    designTimer(HelpBox.Timer1, "Timer1", HelpBox, 1);
}

}  // namespace

HelpBoxWindow::HelpBoxWindow() {
    Design = designHelpBox;
}

void fitHelpText(Label& label, const std::string& text) {
    label.Caption = text;
    label.Height = wrappedHeight(text, label.FontSize, label.Width);
}

}  // namespace ombrelia
