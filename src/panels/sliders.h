// The sliders of the option strip: thumb from value, value from thumb, readouts.
#pragma once

namespace ombrelia {

inline constexpr int kStripSlider = 0;
inline constexpr int kFirstSlider = 1;
inline constexpr int kLastSlider = 14;

// Fills records 1..14 with their start values and places each thumb; readouts follow.
void fillSliders();

// Moves the thumb of slider i to its Value; slider 0 moves the option frames too.
void PlaceSlider(int i);

// Writes the readout of slider 1..14 from its Value.
void showReadout(int i);

// Gives slider 0..14 a value, kept in its range, as a drag of its thumb would.
void setSlider(int i, int value);

// A drag of the thumb of slider i: the press, then every move; xTwips from the thumb's left edge.
// The press counts as a move too.
void grabThumb(float xTwips);
void dragThumb(int i, float xTwips);

}  // namespace ombrelia
