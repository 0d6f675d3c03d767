// Form1's layout: the option strip, what stands in its frames, the progress panel.
#include <cmath>

#include "core/button_numbers.h"
#include "core/button_table.h"
#include "core/slider_table.h"
#include "core/windows/form1_layout.h"
#include "core/windows/layout.h"

namespace ombrelia {

namespace {

constexpr double kPanelLeft = 459;
constexpr double kPanelTop = 86;
constexpr double kPanelWidth = 280;
constexpr double kPanelHeight = 261;
constexpr double kBarLeft = 743;
constexpr double kArrowSide = 20;

constexpr double kTrackLeft = 88;
constexpr double kThumbRoom = 116;  // how far a thumb can go, about
constexpr double kReadoutLeft = 224;

struct SliderPlace {
    int slider;
    int frame;
    double top;
    const char* caption;
    const char* readoutName;
};

constexpr SliderPlace kSliders[] = {
    {1, 0, 54, "Thickness:", "lblThick"},      {2, 1, 54, "Thickness:", "lblLineThick"},
    {3, 2, 54, "Amount", "lblRaiseAmount"},    {4, 6, 22, "Resolution", "lblRes"},
    {5, 6, 42, "Draw Width", "lblWidth"},      {6, 8, 22, "Height", "lblHeightValue"},
    {7, 8, 42, "Top Size", "lblSizeValue"},    {8, 10, 54, "Size", "lblPlainSize"},
    {9, 4, 22, "Smoothness", "lblRough"},      {10, 4, 42, "Height", "lblRoughHeight"},
    {11, 3, 54, "Amount", "lblLowerAmount"},   {12, 9, 22, "River Width", "lblRiverWidth"},
    {13, 9, 42, "Bank Width", "lblBankWidth"}, {14, 4, 62, "Detail", "lblDetail"},
};

struct FrameButton {
    int number;
    int frame;
    double left, top;
    Picture icon;
};

constexpr FrameButton kButtons[] = {
    {button::kGenerate, 4, 85, 84, Picture::None},
    {button::kUpdate2D, 5, 85, 48, Picture::None},
    {button::kStyleLine, 6, 10, 76, Picture::StyleLine},
    {button::kStyleDot, 6, 54, 76, Picture::StyleDot},
    {button::kStylePolygon, 6, 98, 76, Picture::StylePolygon},
    {button::kDraw3D, 6, 160, 80, Picture::None},
    {button::kMountainVertical, 8, 106, 63, Picture::SteepVertical},
    {button::kMountainVerySteep, 8, 140, 63, Picture::SteepVery},
    {button::kMountainSlightlySteep, 8, 174, 63, Picture::SteepSlightly},
    {button::kMountainSmooth, 8, 208, 63, Picture::SteepSmooth},
    {button::kCanyonVertical, 9, 106, 63, Picture::SteepVertical},
    {button::kCanyonVerySteep, 9, 140, 63, Picture::SteepVery},
    {button::kCanyonSlightlySteep, 9, 174, 63, Picture::SteepSlightly},
    {button::kCanyonSmooth, 9, 208, 63, Picture::SteepSmooth},
    {button::kNewMap, 11, 26, 18, Picture::None},
    {button::kImport, 11, 144, 18, Picture::None},
    {button::kSave, 11, 26, 51, Picture::None},
    {button::kAbout, 11, 144, 51, Picture::None},
    {button::kExit, 11, 85, 84, Picture::None},
    {button::kRedrawColors, 14, 238, 19, Picture::None},
    {button::kAddColor, 14, 26, 84, Picture::None},
    {button::kDeleteColor, 14, 144, 84, Picture::None},
};

struct CheckPlace {
    int number;
    int frame;
    double left, top, textWidth;
};

constexpr CheckPlace kChecks[] = {
    {button::kOnlyLower, 8, 12, 97, 220},
    {button::kRiverInMiddle, 9, 12, 97, 220},
    {button::kAutoRefresh, 12, 12, 26, 230},
    {button::kStepRefresh, 12, 12, 48, 230},
    {button::kStep20, 12, 24, 70, 30},
    {button::kStep10, 12, 76, 70, 30},
    {button::kStep5, 12, 128, 70, 26},
    {button::kStep2, 12, 176, 70, 26},
    {button::kStep1, 12, 224, 70, 26},
    {button::kAdvanced3D, 12, 12, 92, 230},
    {button::kUseCursors, 13, 12, 26, 200},
    {button::kColorCursors, 13, 32, 48, 60},
    {button::kBlackWhiteCursors, 13, 120, 48, 120},
    {button::kUseSounds, 13, 12, 70, 200},
    {button::kShowHelpBox, 13, 12, 92, 200},
};

struct FrameTextPlace {
    int frame;
    Box box;
    const char* text;
    TextAlign align;
};

constexpr FrameTextPlace kTexts[] = {
    {6, {12, 61, 100, 14}, "Style", TextAlign::Left},
    {7, {10, 50, 260, 30}, "There are currently no options for this tool.", TextAlign::Center},
    {8, {12, 69, 92, 14}, "Side Steepness", TextAlign::Left},
    {9, {12, 69, 92, 14}, "Edge Steepness", TextAlign::Left},
};

constexpr const char* kRowLabels[] = {"Water", "Sand", "Grass", "Dirt", "High", "Peak"};

void designFrames(Form1Window& form) {
    for (int i = 0; i < kOptionFrames; ++i) {
        PictureBox& frame = form.OptFrame.make(i);
        designPart(frame, "OptFrame", form.Picture1,
                   {0, 128.0 * i, pictureWidth(Picture::OptionFrame),
                    pictureHeight(Picture::OptionFrame) - 1});
        designPart(form.OptBox.make(i), "OptBox", frame,
                   {0, 0, kPanelWidth, pictureHeight(Picture::OptionCaption)});
        designLabel(form.OptLabel.make(i), "OptLabel", frame, {0, 1, kPanelWidth, 16}, "",
                    {.align = TextAlign::Center, .bold = true});
    }
}

// A press on a thumb reads the value back from its place, and shall find the one that put it there.
// So a step is a number of units that single precision holds however often it is added. The room
// is one bit shorter than the steps: the places, rounded to single precision, lie on the steps
// none the less, and the share of the room that is read from them never falls short of the value's.
double trackWidth(const SliderStart& slider, double thumbWidth) {
    constexpr double kPartsOfUnit = 256;
    constexpr double kOneBit = 1.0 / (1 << 17);
    const int steps = slider.max - slider.min;
    const double step = std::floor(kThumbRoom / steps * kPartsOfUnit) / kPartsOfUnit;
    return step * steps + thumbWidth - kOneBit;
}

void designSliders(Form1Window& form) {
    for (const SliderPlace& row : kSliders) {
        PictureBox& frame = form.OptFrame(row.frame);
        designLabel(form.SliderLabel.make(row.slider), "SliderLabel", frame,
                    {12, row.top + 1, 74, 15}, row.caption, {});
        Image& track = form.VertFiller.make(row.slider);
        designImage(track, "VertFiller", frame, kTrackLeft, row.top, Picture::SliderTrack);
        track.Face = {};  // PlaceSlider gives it its picture
        Image& thumb = form.VertScroller.make(row.slider);
        designImage(thumb, "VertScroller", frame, kTrackLeft, row.top, Picture::VertScroller);
        track.Width = trackWidth(sliderStart(row.slider), thumb.Width);
        thumb.AccessibleName = row.caption;
        thumb.Role = AccessRole::Slider;
        form.readout(row.slider).AccessibleName = row.caption;
        designLabel(form.readout(row.slider), row.readoutName, frame,
                    {kReadoutLeft, row.top + 1, 48, 15}, "",
                    {.color = skin::kAccent, .align = TextAlign::Right});
    }
}

void designChecks(Form1Window& form) {
    for (const CheckPlace& row : kChecks) {
        PictureBox& frame = form.OptFrame(row.frame);
        designButton(form, row.number, frame, row.left, row.top);
        designLabel(form.LTool.make(row.number), "LTool", frame,
                    {row.left + 21, row.top, row.textWidth, 16}, buttonStart(row.number)->name, {});
        form.LTool(row.number).LiesOn = &form.NTool(row.number);
    }
}

void designTexts(Form1Window& form) {
    int index = 0;
    for (const FrameTextPlace& row : kTexts) {
        designLabel(form.FrameText.make(index++), "FrameText", form.OptFrame(row.frame), row.box,
                    row.text, {.color = skin::kTextQuiet, .align = row.align, .wrap = true});
    }
}

void designColorPage(Form1Window& form) {
    PictureBox& frame = form.OptFrame(14);
    designPart(form.Combo1, "Combo1", frame, {12, 20, 220, 20});
    form.Combo1.List.clear();
    form.Combo1.ListIndex = -1;
    designSurface(form.PrefPicker, "PrefPicker", frame, {12, 42, 256, 9});
    for (int i = 1; i <= 5; ++i) {
        Image& marker = form.Range.make(i);
        designImage(marker, "Range", frame, 12, 51, Picture::Range);
    }
    for (int row = 0; row < 6; ++row) {
        const double left = 12 + 43.0 * row;
        designLabel(form.FrameText.make(10 + row), "FrameText", frame, {left, 58, 39, 12},
                    kRowLabels[row],
                    {.size = 9, .color = skin::kTextQuiet, .align = TextAlign::Center});
        for (int end = 0; end < 2; ++end) {
            PictureBox& swatch = form.Rng1.make(2 * row + end);
            designPart(swatch, "Rng1", frame, {left + 20 * end, 70, 19, 11});
            swatch.Opaque = true;
            swatch.AccessibleName = std::string(kRowLabels[row]) + (end == 0 ? ", low" : ", high");
            swatch.Role = AccessRole::Button;
        }
    }
}

void designStripBar(Form1Window& form) {
    designImage(form.Filler.make(0), "Filler", form, kBarLeft, kPanelTop + kArrowSide,
                Picture::Filler);
    designImage(form.Scroller.make(0), "Scroller", form, kBarLeft, kPanelTop + kArrowSide,
                Picture::Scroller);
    designImage(form.ScrollUp.make(0), "ScrollUp", form, kBarLeft, kPanelTop, Picture::UpArrow);
    designImage(form.ScrollDown.make(0), "ScrollDown", form, kBarLeft,
                kPanelTop + kPanelHeight - kArrowSide, Picture::DownArrow);
    form.Scroller(0).AccessibleName = "Option strip";
    form.Scroller(0).Role = AccessRole::Slider;
    form.ScrollUp(0).AccessibleName = "Scroll up";
    form.ScrollDown(0).AccessibleName = "Scroll down";
}

void designProgress(Form1Window& form) {
    designPart(form.ProgressFrame, "ProgressFrame", form,
               {kPanelLeft, kPanelTop, kPanelWidth, kPanelHeight});
    form.ProgressFrame.Visible = false;
    designLabel(form.WorkWhat, "WorkWhat", form.ProgressFrame, {14, 84, 252, 18},
                "Refreshing Viewport", {.size = 12, .align = TextAlign::Center, .bold = true});
    const double height = pictureHeight(Picture::ProgressBack);
    designPart(form.PBarFrame, "PBarFrame", form.ProgressFrame,
               {20, 112, pictureWidth(Picture::ProgressBack), height});
    designImage(form.PBarBack, "PBarBack", form.PBarFrame, 0, 0, Picture::ProgressBack);
    designPart(form.PBar, "PBar", form.PBarFrame, {1, 2, 0, height - 4}, {Picture::ProgressBar, 0});
    designLabel(form.PercDone, "PercDone", form.ProgressFrame, {14, 138, 252, 16}, "0 Percent Done",
                {.color = skin::kTextQuiet, .align = TextAlign::Center});
}

}  // namespace

void designOptionFrames(Form1Window& form) {
    designPart(form.Picture1, "Picture1", form, {kPanelLeft, kPanelTop, kPanelWidth, kPanelHeight});
    designFrames(form);
    designSliders(form);
    for (const FrameButton& row : kButtons) {
        designButton(form, row.number, form.OptFrame(row.frame), row.left, row.top, row.icon);
    }
    designChecks(form);
    designTexts(form);
    designColorPage(form);
    designStripBar(form);
    designProgress(form);
}

}  // namespace ombrelia
