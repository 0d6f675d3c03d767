// The strip of option frames behind the fixed viewport Picture1.
#pragma once

namespace ombrelia {

// Lays out the frames with their captions and pictures and sets the record of slider 0.
void layOutOptionFrames();

// Puts the progress panel over the strip's viewport.
void placeProgressFrame();

// Makes the strip show frame 0..14 at its top, or its end if the frame lies near the end.
void ScrollToFrame(int frame);

// The share of the editor's timer: a held arrow scrolls the strip.
void scrollHeldArrow();

// Scrolls the strip by so many steps of an arrow, down above 0, up to its ends.
void scrollStrip(int steps);

// A press on the bar's track: the strip goes a page towards it; yTwips from the track's top edge.
void pageStrip(float yTwips);

// Presses and releases of the two arrows.
void holdArrow(bool isUp);
void releaseArrow(bool isUp);

// A drag of the strip's own thumb; yTwips from the thumb's top edge.
void beginStripThumbDrag(float yTwips);
void dragStripThumb(float yTwips);
void endStripThumbDrag();

// A drag of the frames themselves (frame 0..14) or of the viewport behind them (-1); y in units
// from the part's inner top edge.
void beginFrameDrag(int frame, float y);
void dragFrames(int frame, float y);
void endFrameDrag();

}  // namespace ombrelia
