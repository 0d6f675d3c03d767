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

// The top of what drops down from a field, by the same measures: below it, above it where only
// there is room for all of it, else inside what is free.
double droppedFrom(double fieldTop, double fieldHeight, double height, double freeTop,
                   double freeHeight);

}  // namespace ombrelia
