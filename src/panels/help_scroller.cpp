#include "panels/help_scroller.h"

#include <algorithm>
#include <cmath>

#include "core/editor_state.h"
#include "core/objects.h"
#include "core/option_strip_table.h"
#include "core/windows/help_box.h"
#include "panels/sliders.h"
#include "platform/dispatch.h"
#include "platform/numeric.h"
#include "platform/window_life.h"

namespace ombrelia {

namespace {

constexpr int kArrowStep = 9;
constexpr std::int16_t kThumbHeld = 2;

SliderRecord& record() {
    return SliderValues(slider::kHelpPage);
}

Image& thumb() {
    return HelpBox.Scroller(slider::kHelpPage);
}

const Image& track() {
    return HelpBox.Filler(slider::kHelpPage);
}

void placePage() {
    PictureBox& page = HelpBox.Topic(CurrentTopic);
    page.Top = -record().Value;
    refreshControl(page);
}

void placeThumb() {
    const SliderRecord& slider = record();
    const double share = slider.Max == slider.Min ? 0
                                                  : static_cast<double>(slider.Value - slider.Min) /
                                                        (slider.Max - slider.Min);
    thumb().Top = share * (track().Height - thumb().Height) + track().Top;
    refreshControl(thumb());
}

bool canScroll() {
    return record().Max > record().Min;
}

// Up to the page's ends.
void scrollBy(int units) {
    if (!canScroll()) {
        return;
    }
    const int value = std::clamp<int>(record().Value + units, record().Min, record().Max);
    record().Value = static_cast<std::int16_t>(value);
    placeThumb();
    placePage();
}

}  // namespace

void fitScrollerToPage() {
    const double overflow = HelpBox.Topic(CurrentTopic).Height - HelpBox.Picture1.Height;
    record() = {0, 0, roundToInt16(overflow), 0};
    placeThumb();
    thumb().Visible = canScroll();
}

void beginPageThumbDrag(float yTwips) {
    HelpSliderDragState = kThumbHeld;
    HelpThumbGrab = roundToInt16(thumb().Top + yTwips / kTwipsPerPixel);
}

void dragPageThumb(float yTwips) {
    if (HelpSliderDragState != kThumbHeld || !canScroll()) {
        return;
    }
    const double low = track().Top;
    const double room = track().Height - thumb().Height;
    const double pointer = std::floor(thumb().Top + yTwips / kTwipsPerPixel);
    if (pointer < low || pointer > low + room) {
        return;
    }
    const double moved = std::floor(pointer - HelpThumbGrab);
    thumb().Top = std::clamp(std::floor(moved + thumb().Top), low, low + room);
    HelpThumbGrab = roundToInt16(pointer);
    record().Value =
        floorToInt16((thumb().Top - low) / room * (record().Max - record().Min) + record().Min);
    placePage();
}

void endPageThumbDrag() {
    HelpSliderDragState = 0;
}

void holdPageArrow(bool isUp) {
    if (isUp) {
        HelpBox.ScrollUp(slider::kHelpPage).Face = {Picture::UpArrow, 1};
        HelpMouseState = kGestureScrollUp;
    } else {
        HelpBox.ScrollDown(slider::kHelpPage).Face = {Picture::DownArrow, 1};
        HelpMouseState = kGestureScrollDown;
    }
}

void releasePageArrow(bool isUp) {
    if (isUp) {
        HelpBox.ScrollUp(slider::kHelpPage).Face = {Picture::UpArrow, 0};
    } else {
        HelpBox.ScrollDown(slider::kHelpPage).Face = {Picture::DownArrow, 0};
    }
    HelpMouseState = kGestureNone;
}

void scrollHeldPageArrow() {
    if (HelpMouseState == kGestureScrollUp && record().Value >= kArrowStep) {
        scrollBy(-kArrowStep);
    }
    if (HelpMouseState == kGestureScrollDown && record().Value <= record().Max - kArrowStep) {
        scrollBy(kArrowStep);
    }
}

void scrollHelpPage(int steps) {
    scrollBy(steps * kArrowStep);
}

void turnHelpPage(float yTwips) {
    const double y = track().Top + yTwips / kTwipsPerPixel;
    const double sight = HelpBox.Picture1.Height - kArrowStep;
    scrollBy(roundToInt16(sight) * sideOf(thumb().Top, thumb().Height, y));
}

}  // namespace ombrelia
