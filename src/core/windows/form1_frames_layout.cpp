// Form1's layout: the option strip, what stands in its frames, the progress panel.
#include <cmath>

#include "core/button_table.h"
#include "core/option_strip_table.h"
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
constexpr double kGrowthLeft = 12;
constexpr double kGrowthTop = 63;

struct FrameTextPlace {
    int page;
    Box box;
    const char* text;
    TextAlign align;
};

constexpr FrameTextPlace kTexts[] = {
    {page::k3DView, {12, 61, 100, 14}, "Style", TextAlign::Left},
    {page::kColorPicker,
     {10, 50, 260, 30},
     "There are currently no options for this tool.",
     TextAlign::Center},
    {page::kMountain, {12, 69, 92, 14}, "Side Steepness", TextAlign::Left},
    {page::kCanyon, {12, 69, 92, 14}, "Edge Steepness", TextAlign::Left},
};

constexpr const char* kRowLabels[] = {"Water", "Sand", "Grass", "Dirt", "High", "Peak"};

void designFrames(Form1Window& form) {
    for (int i = 0; i < kOptionFrames; ++i) {
        PictureBox& frame = form.OptFrame.make(i);
        designPart(frame, "OptFrame", form.Picture1,
                   {0, 1.0 * page::kPitch * i, pictureWidth(Picture::OptionFrame),
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
double trackWidth(const slider::Row& row, double thumbWidth) {
    constexpr double kPartsOfUnit = 256;
    constexpr double kOneBit = 1.0 / (1 << 17);
    const int steps = row.max - row.min;
    const double step = std::floor(kThumbRoom / steps * kPartsOfUnit) / kPartsOfUnit;
    return step * steps + thumbWidth - kOneBit;
}

// Under the place of the thumb's middle: a mark for each value, or for each tenth where they would
// be too many to be told apart.
Marks marksOf(const slider::Row& row, const Image& track, const Image& thumb) {
    constexpr int kMostMarks = 32;
    const int values = row.max - row.min;
    const int valuesOfMark = values < kMostMarks ? 1 : 10;
    return {thumb.Width / 2, (track.Width - thumb.Width) / values * valuesOfMark,
            values / valuesOfMark + 1};
}

void designSliders(Form1Window& form) {
    for (const slider::Row& row : slider::kRows) {
        PictureBox& frame = form.OptFrame(page::indexOf(row.page));
        designLabel(form.SliderLabel.make(row.number), "SliderLabel", frame,
                    {12, row.top + 1, 74, 15}, row.caption, {});
        Image& track = form.VertFiller.make(row.number);
        designImage(track, "VertFiller", frame, kTrackLeft, row.top, Picture::SliderTrack);
        track.Face = {};  // PlaceSlider gives it its picture
        Image& thumb = form.VertScroller.make(row.number);
        designImage(thumb, "VertScroller", frame, kTrackLeft, row.top, Picture::VertScroller);
        track.Width = trackWidth(row, thumb.Width);
        track.Scale = marksOf(row, track, thumb);
        if (row.growth != Picture::None) {
            Image& growth = form.Growth.make(row.number);
            designImage(growth, "Growth", frame, kGrowthLeft, kGrowthTop, row.growth);
            growth.TakesPointer = false;
        }
        thumb.AccessibleName = row.caption;
        thumb.Role = AccessRole::Slider;
        Label& readout = form.Readout.make(row.number);
        readout.Index = Control::kNoIndex;
        readout.AccessibleName = row.caption;
        designLabel(readout, row.readoutName, frame, {kReadoutLeft, row.top + 1, 48, 15}, "",
                    {.color = palette::kAmber, .align = TextAlign::Right});
    }
}

void designButtons(Form1Window& form) {
    for (const ButtonRow& row : button::kRows) {
        if (row.place.page != page::kNone) {
            designButton(form, row, form.OptFrame(page::indexOf(row.place.page)));
        }
    }
}

void designTexts(Form1Window& form) {
    int index = 0;
    for (const FrameTextPlace& row : kTexts) {
        designLabel(form.FrameText.make(index++), "FrameText", form.OptFrame(row.page), row.box,
                    row.text, {.color = palette::kTextDim, .align = row.align, .wrap = true});
    }
}

void designColorPage(Form1Window& form) {
    PictureBox& frame = form.OptFrame(page::kColors);
    designPart(form.Combo1, "Combo1", frame, {12, 21, 220, 20});
    form.Combo1.List.clear();
    form.Combo1.ListIndex = -1;
    designSurface(form.PrefPicker, "PrefPicker", frame, {12, 45, 256, 9});
    for (int i = 1; i <= 5; ++i) {
        Image& marker = form.Range.make(i);
        designImage(marker, "Range", frame, 12, 54, Picture::Range);
    }
    for (int row = 0; row < 6; ++row) {
        const double left = 12 + 43.0 * row;
        designLabel(form.FrameText.make(10 + row), "FrameText", frame, {left, 60, 39, 12},
                    kRowLabels[row],
                    {.size = 9, .color = palette::kTextDim, .align = TextAlign::Center});
        for (int end = 0; end < 2; ++end) {
            PictureBox& swatch = form.Rng1.make(2 * row + end);
            designPart(swatch, "Rng1", frame, {left + 20 * end, 72, 19, 11});
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
                {.color = palette::kTextDim, .align = TextAlign::Center});
}

}  // namespace

void designOptionFrames(Form1Window& form) {
    designPart(form.Picture1, "Picture1", form, {kPanelLeft, kPanelTop, kPanelWidth, kPanelHeight});
    designFrames(form);
    designSliders(form);
    designButtons(form);
    designTexts(form);
    designColorPage(form);
    designStripBar(form);
    designProgress(form);
}

}  // namespace ombrelia
