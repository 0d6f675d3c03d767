// The sliders of the option strip as they start: a row each.
#pragma once

#include <cstdint>
#include <span>

namespace ombrelia {

// What a slider's readout says of its value.
enum class Readout { Value, MetresOfAmount, MetresOfHeight };

struct SliderStart {
    int number;
    std::int16_t min, max, start;
    Readout readout;
};

// Rows of the sliders 1, 2, 3 ... in this order.
std::span<const SliderStart> sliderStarts();

// The row of a slider; throws MissingPartFailure for a number that has none.
const SliderStart& sliderStart(int number);

}  // namespace ombrelia
