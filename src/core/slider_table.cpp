#include "core/slider_table.h"

#include <iterator>

#include "platform/failure.h"

namespace ombrelia {

namespace {

constexpr SliderStart kRows[] = {
    {1, 1, 20, 1, Readout::Value},           {2, 1, 20, 1, Readout::Value},
    {3, 1, 20, 10, Readout::MetresOfAmount}, {4, 1, 10, 4, Readout::Value},
    {5, 1, 10, 1, Readout::Value},           {6, 50, 255, 255, Readout::MetresOfHeight},
    {7, 1, 30, 1, Readout::Value},           {8, 5, 30, 5, Readout::Value},
    {9, 1, 20, 1, Readout::Value},           {10, 20, 200, 60, Readout::MetresOfHeight},
    {11, 1, 20, 4, Readout::MetresOfAmount}, {12, 2, 15, 3, Readout::Value},
    {13, 3, 25, 10, Readout::Value},         {14, 1, 8, 5, Readout::Value},
};

}  // namespace

std::span<const SliderStart> sliderStarts() {
    return kRows;
}

const SliderStart& sliderStart(int number) {
    if (number < 1 || number > static_cast<int>(std::size(kRows))) {
        throw MissingPartFailure("slider", number);
    }
    return kRows[number - 1];
}

}  // namespace ombrelia
