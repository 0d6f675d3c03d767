#include "platform/kept_input.h"

#include <utility>

namespace ombrelia {

KeptInput::Hold::Hold(KeptInput& input) : input_(input) {
    ++input_.holds_;
}

KeptInput::Hold::~Hold() {
    --input_.holds_;
    if (input_.holds_ == 0 && !input_.kept_.empty() && input_.OnReleased) {
        input_.OnReleased();
    }
}

void KeptInput::hand(std::function<void()> event) {
    kept_.push_back(std::move(event));
    replay();
}

void KeptInput::replay() {
    while (!isHolding() && !kept_.empty()) {
        const std::function<void()> event = std::move(kept_.front());
        kept_.pop_front();
        event();
    }
}

}  // namespace ombrelia
