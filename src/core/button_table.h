// The editor's buttons as they start: a row each, filled into the records by InitEditor.
#pragma once

#include <cstdint>
#include <span>

namespace ombrelia {

struct ButtonStart {
    std::int16_t number;
    std::int16_t kind;
    std::int16_t latching;
    std::int16_t exclusive;
    std::int16_t group;
    std::int16_t state;
    const char* name;  // what assistive technology says
};

// Rows in ascending order of numbers; a number that has no row has no button.
std::span<const ButtonStart> buttonStarts();

// The row of a number, or nullptr.
const ButtonStart* buttonStart(int number);

}  // namespace ombrelia
