#include "panels/sliders.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "core/color_ramp.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/option_strip_table.h"
#include "core/windows/form1.h"
#include "platform/dispatch.h"
#include "platform/numeric.h"
#include "platform/window_life.h"

namespace ombrelia {

namespace {

// Thumbs stand at places of single precision: the tracks' widths count on it.
float single(double place) {
    return static_cast<float>(place);
}

// Where the value lies between Min and Max, 0..1.
double shareOf(const SliderRecord& record) {
    return static_cast<double>(record.Value - record.Min) / (record.Max - record.Min);
}

void placeFrames() {
    for (int j = 0; j < kOptionFrames; ++j) {
        Form1.OptFrame(j).Top = page::kPitch * j - SliderValues(slider::kStrip).Value;
    }
    refreshControl(Form1.Picture1);
}

void setAndPlace(int i, int value) {
    SliderValues(i).Value = narrowTo<std::int16_t>(value);
    PlaceSlider(i);
    showReadout(i);
}

// The bank of a canyon is always wider than its river.
void keepBankWider(int dragged) {
    const int river = SliderValues(slider::kRiverWidth).Value;
    const int bank = SliderValues(slider::kBankWidth).Value;
    if (bank > river) {
        return;
    }
    if (dragged == slider::kRiverWidth) {
        setAndPlace(slider::kBankWidth, river + 1);
    } else if (dragged == slider::kBankWidth) {
        setAndPlace(slider::kRiverWidth, bank - 1);
    }
}

}  // namespace

void fillSliders() {
    for (const slider::Row& row : slider::kRows) {
        SliderValues(row.number) = {1, row.start, row.max, row.min};
        PlaceSlider(row.number);
        showReadout(row.number);
    }
}

void PlaceSlider(int i) {
    const SliderRecord& record = SliderValues(i);
    if (record.Orientation == 1) {
        Image& track = Form1.VertFiller(i);
        Image& thumb = Form1.VertScroller(i);
        if (track.Face.picture == Picture::None) {
            track.Face = {Picture::SliderTrack, 0};
        }
        thumb.Left = single(shareOf(record) * (track.Width - thumb.Width) + track.Left);
        refreshControl(thumb);
        refreshControl(track);
    } else {
        Image& track = Form1.Filler(i);
        Image& thumb = Form1.Scroller(i);
        thumb.Top = shareOf(record) * (track.Height - thumb.Height) + track.Top;
        refreshControl(thumb);
        refreshControl(track);
    }
    if (i == slider::kStrip) {
        placeFrames();
    }
}

void showReadout(int i) {
    const int value = SliderValues(i).Value;
    std::string& text = Form1.Readout(i).Caption;
    switch (slider::row(i).readout) {
        case slider::Readout::Value:
            text = std::to_string(value);
            break;
        case slider::Readout::MetresOfAmount:
            text = std::to_string(value * kMetresPerStep) + "m";
            break;
        case slider::Readout::MetresOfHeight:
            text = metresText(value);
            break;
    }
}

void setSlider(int i, int value) {
    SliderRecord& record = SliderValues(i);
    record.Value = static_cast<std::int16_t>(std::clamp<int>(value, record.Min, record.Max));
    PlaceSlider(i);
    if (i != slider::kStrip) {
        showReadout(i);
        keepBankWider(i);
    }
}

int sideOf(double thumbStart, double thumbLength, double point) {
    return point < thumbStart ? -1 : point >= thumbStart + thumbLength ? 1 : 0;
}

void stepSlider(int i, float xTwips) {
    const Image& thumb = Form1.VertScroller(i);
    const double x = Form1.VertFiller(i).Left + xTwips / kTwipsPerPixel;
    setSlider(i, SliderValues(i).Value + sideOf(thumb.Left, thumb.Width, x));
}

void grabThumb(float xTwips) {
    ThumbGrab = roundToInt16(static_cast<double>(xTwips) / kTwipsPerPixel);
}

void dragThumb(int i, float xTwips) {
    const Image& track = Form1.VertFiller(i);
    Image& thumb = Form1.VertScroller(i);
    const float trackLeft = single(track.Left);
    const float room = single(track.Width - thumb.Width);
    const float along = single(thumb.Left) - trackLeft + xTwips / kTwipsPerPixel;
    const float place = trackLeft + along - static_cast<float>(ThumbGrab);
    thumb.Left = std::clamp(place, trackLeft, trackLeft + room);
    SliderRecord& record = SliderValues(i);
    record.Value =
        floorToInt16((thumb.Left - trackLeft) / room * (record.Max - record.Min) + record.Min);
    showReadout(i);
    keepBankWider(i);
}

}  // namespace ombrelia
