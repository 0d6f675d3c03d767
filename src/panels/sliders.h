// The sliders of the option strip: thumb from value, value from thumb, readouts.
#pragma once

namespace ombrelia {

// Fills records of the pages with their start values and places each thumb; readouts follow.
void fillSliders();

// Moves the thumb of slider i to its Value; slider 0 moves the option frames too.
void PlaceSlider(int i);

// Writes the readout of slider of the pages from its Value.
void showReadout(int i);

// Gives slider 0 or of the pages a value, kept in its range, as a drag of its thumb would.
void setSlider(int i, int value);

// On which side of a thumb, which begins at a place and has a length, a point lies: -1 before it, 1
// behind it, 0 on it.
int sideOf(double thumbStart, double thumbLength, double point);

// A press on the track of slider i: its value goes up or down by 1, towards the press; xTwips from
// the track's left edge.
void stepSlider(int i, float xTwips);

// A drag of the thumb of slider i: the press, then every move; xTwips from the thumb's left edge.
// The press counts as a move too.
void grabThumb(float xTwips);
void dragThumb(int i, float xTwips);

}  // namespace ombrelia
