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

}  // namespace ombrelia
