// How large the windows are on a screen, and where they stand so that nothing is out of reach.
#pragma once

namespace ombrelia {

// Device pixels to a unit on screens on which the editor fits.
inline constexpr double kScales[] = {4, 3, 2.5, 2, 1.75, 1.5, 1.25, 1};

// What the scale is chosen for, in units: the editor, and what docks to its right edge.
struct EditorSize {
    double width, dockedWidth, height;
};

// Device pixels to a unit on a screen with so many free ones: the largest of kScales at which all
// of it fits. 1 where the editor alone does; below it the largest of 0.9 to 0.5 at which it does,
// and at last 0.5.
double fittingScale(const EditorSize& editor, double freeWidth, double freeHeight);

// The largest scale of at most this at which a window of its own is no higher than what is free.
double scaleForHeight(double most, double heightUnits, double freeHeight);

// The left edge, or by the same measures the top one, nearest to what is wished at which a window
// of this length lies in the free stretch; its begin where it is too long.
double keptInside(double wished, double length, double freeBegin, double freeLength);

// A window or a stretch of a screen, and a place on it.
struct ScreenBox {
    double left, top, width, height;
};
struct ScreenPlace {
    double left, top;
};

// Where a window of this size opens: in the middle of what it belongs to, so far to the right and
// down, with room beside it for what docks to it; at the top of what is free where there is no such
// room. Always inside what is free.
ScreenPlace openingPlace(double width, double height, double dockedWidth, const ScreenBox& around,
                         const ScreenBox& free, double offset);

// The nearest place inside what is free; what docks to the window counts where there is room for
// both.
ScreenPlace placeInside(const ScreenBox& window, double dockedWidth, const ScreenBox& free);

// Where a window stands that docks to another, beside which this is. Where there is no room beside
// it, at the bottom of what is free, over as little of it as can be.
ScreenPlace dockedPlace(const ScreenBox& beside, const ScreenBox& free);

// The top of what drops down from a field, by the same measures: below it, above it where only
// there is room for all of it, else inside what is free.
double droppedFrom(double fieldTop, double fieldHeight, double height, double freeTop,
                   double freeHeight);

}  // namespace ombrelia
