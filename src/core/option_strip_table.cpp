#include "core/option_strip_table.h"

#include "platform/failure.h"

namespace ombrelia::slider {

const Row& row(int number) {
    if (number < kFirst || number > kLast) {
        throw MissingPartFailure("slider", number);
    }
    return kRows[number - kFirst];
}

}  // namespace ombrelia::slider
