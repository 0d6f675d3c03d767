#include "mouse_buttons.h"

#include <algorithm>
#include <iterator>

#include "errors.h"

namespace ombrelia::scenario {

namespace {

struct ButtonWord {
    const char* word;
    MouseButton button;
};
constexpr ButtonWord kButtons[] = {{"left", MouseButton::Left},
                                   {"right", MouseButton::Right},
                                   {"middle", MouseButton::Middle},
                                   {"none", MouseButton::None}};

}  // namespace

MouseButton buttonNamed(const std::string& word) {
    const auto* row = std::find_if(std::begin(kButtons), std::end(kButtons),
                                   [&word](const ButtonWord& r) { return word == r.word; });
    if (row == std::end(kButtons)) {
        throw LineError{"there is no mouse button \"" + word + "\""};
    }
    return row->button;
}

}  // namespace ombrelia::scenario
