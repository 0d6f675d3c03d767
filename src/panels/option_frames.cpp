#include "panels/option_frames.h"

#include <algorithm>
#include <cmath>

#include "core/editor_state.h"
#include "core/objects.h"
#include "core/option_strip_table.h"
#include "core/windows/form1.h"
#include "core/windows/layout.h"
#include "panels/sliders.h"
#include "platform/dispatch.h"
#include "platform/numeric.h"

namespace ombrelia {

namespace {

constexpr int kFrameTestPitch = 136;
constexpr int kArrowStep = 9;
constexpr int kEndRoom = 12;

constexpr int kHeldFace = 1;
constexpr int kFreeFace = 0;

void scrollStripBy(int units) {
    setSlider(slider::kStrip, SliderValues(slider::kStrip).Value + units);
}

}  // namespace

void layOutOptionFrames() {
    for (int i = 0; i < kOptionFrames; ++i) {
        PictureBox& frame = Form1.OptFrame(i);
        frame.Top = page::kPitch * i;
        frame.Left = 0;
        frame.Width = pictureWidth(Picture::OptionFrame);
        frame.Height = pictureHeight(Picture::OptionFrame) - 1;
        frame.Face = {Picture::OptionFrame, 0};
        Form1.OptLabel(i).Caption = page::kRows[i].title;
        Form1.OptBox(i).Face = {Picture::OptionCaption, 0};
        Form1.OptBox(i).Width = pictureWidth(Picture::OptionCaption);
        Form1.OptLabel(i).Width = pictureWidth(Picture::OptionCaption);
    }
    const PictureBox& last = Form1.OptFrame(kOptionFrames - 1);
    const double end = last.Top + last.Height - Form1.Picture1.innerHeight() + kEndRoom;
    SliderValues(slider::kStrip) = {0, 0, roundToInt16(end), 0};
}

void placeProgressFrame() {
    Form1.ProgressFrame.Face = {Picture::OptionFrame, 0};
    Form1.ProgressFrame.Top = Form1.Picture1.Top;
    Form1.ProgressFrame.Left = Form1.Picture1.Left;
}

void ScrollToFrame(int frame) {
    SliderRecord& strip = SliderValues(slider::kStrip);
    // Required: the test uses another pitch than the move (scroll_to_frame_has_two_factors).
    strip.Value = frame * kFrameTestPitch <= strip.Max
                      ? narrowTo<std::int16_t>(frame * page::kPitch)
                      : strip.Max;
    PlaceSlider(slider::kStrip);
}

void scrollHeldArrow() {
    const SliderRecord& strip = SliderValues(slider::kStrip);
    if (MouseState == kGestureScrollUp && strip.Value >= kArrowStep) {
        scrollStrip(-1);
    }
    if (MouseState == kGestureScrollDown && strip.Value <= strip.Max - kArrowStep) {
        scrollStrip(1);
    }
}

void scrollStrip(int steps) {
    scrollStripBy(steps * kArrowStep);
}

void pageStrip(float yTwips) {
    const double y = Form1.Filler(0).Top + yTwips / kTwipsPerPixel;
    scrollStripBy(page::kPitch * sideOf(Form1.Scroller(0).Top, Form1.Scroller(0).Height, y));
}

void holdArrow(bool isUp) {
    if (isUp) {
        Form1.ScrollUp(0).Face = {Picture::UpArrow, kHeldFace};
        MouseState = kGestureScrollUp;
    } else {
        Form1.ScrollDown(0).Face = {Picture::DownArrow, kHeldFace};
        MouseState = kGestureScrollDown;
    }
}

void releaseArrow(bool isUp) {
    if (isUp) {
        Form1.ScrollUp(0).Face = {Picture::UpArrow, kFreeFace};
    } else {
        Form1.ScrollDown(0).Face = {Picture::DownArrow, kFreeFace};
    }
    MouseState = kGestureNone;
}

void beginStripThumbDrag(float yTwips) {
    SliderDragState = 2;
    ThumbGrab = roundToInt16(Form1.Scroller(0).Top + yTwips / kTwipsPerPixel);
}

void dragStripThumb(float yTwips) {
    if (SliderDragState != 2) {
        return;
    }
    const Image& track = Form1.Filler(0);
    Image& thumb = Form1.Scroller(0);
    const double low = track.Top;
    const double room = track.Height - thumb.Height;
    const double high = track.Top + room;
    const double pointer = std::floor(thumb.Top + yTwips / kTwipsPerPixel);
    if (pointer < low || pointer > high) {
        return;
    }
    const double moved = std::floor(pointer - ThumbGrab);
    thumb.Top = std::clamp(std::floor(moved + thumb.Top), low, high);
    ThumbGrab = roundToInt16(pointer);
    SliderRecord& strip = SliderValues(slider::kStrip);
    strip.Value = floorToInt16((thumb.Top - low) / room * (strip.Max - strip.Min) + strip.Min);
    for (int j = 0; j < kOptionFrames; ++j) {
        Form1.OptFrame(j).Top = page::kPitch * j - strip.Value;
    }
}

void endStripThumbDrag() {
    SliderDragState = 0;
}

namespace {

// The pointer in the strip's own coordinates, from the top of frame 0.
double stripPlace(int frame, float y) {
    const double top = frame >= 0 ? Form1.OptFrame(frame).Top : 0;
    return y + top - Form1.OptFrame(0).Top;
}

}  // namespace

void beginFrameDrag(int frame, float y) {
    MouseState = frame >= 0 ? kGestureFrameDrag : kGesturePanelDrag;
    PanelGrabY = roundToInt16(frame >= 0 ? stripPlace(frame, y) : y);
}

void dragFrames(int frame, float y) {
    if (MouseState != kGestureFrameDrag && MouseState != kGesturePanelDrag) {
        return;
    }
    const double place = y == 0 ? PanelGrabY : stripPlace(frame, y);
    const double delta = PanelGrabY - place;
    SliderRecord& strip = SliderValues(slider::kStrip);
    const std::int16_t before = strip.Value;
    if (strip.Value + delta >= 0 && strip.Value + delta <= strip.Max) {
        strip.Value = floorToInt16(strip.Value + delta);
    }
    PlaceSlider(slider::kStrip);
    // The strip has moved under the pointer: its place there is a new one.
    PanelGrabY = roundToInt16(place + strip.Value - before);
}

void endFrameDrag() {
    MouseState = kGestureNone;
}

}  // namespace ombrelia
