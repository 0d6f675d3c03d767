// The scroll bar of the help window's pages: slider 20.
#pragma once

namespace ombrelia {

// The range from the page that shows; the page's top in sight. A page shorter than the viewport
// leaves a range below 0, which cannot be scrolled: the thumb is not seen then.
void fitScrollerToPage();

// A drag of the thumb; yTwips from its top edge.
void beginPageThumbDrag(float yTwips);
void dragPageThumb(float yTwips);
void endPageThumbDrag();

// The two arrows, and the window's timer that follows a held one.
void holdPageArrow(bool isUp);
void releasePageArrow(bool isUp);
void scrollHeldPageArrow();

// Scrolls the page by so many steps of an arrow, down above 0, up to its ends.
void scrollHelpPage(int steps);

// A press on the track: the page goes on by what was in sight, less a step of an arrow, towards the
// press; yTwips from the track's top edge.
void turnHelpPage(float yTwips);

}  // namespace ombrelia
