// How a run in a process of its own ended.
#pragma once

#include <functional>
#include <string>

namespace ombrelia::monkey {

struct Outcome {
    std::string what;     // empty: all was well; otherwise a sentence
    bool isLine = false;  // a line could not be understood or run

    bool isGood() const { return what.empty(); }

    // Whether both ended in the same way: by the same values where one was expected, otherwise
    // numbers aside.
    bool isLike(const Outcome& other) const;
};

// Runs work in a process of its own, in an empty folder of its own. It ends well if work returns,
// nothing leaks and no limit of time is passed.
Outcome runApart(const std::function<void()>& work, unsigned seconds);

}  // namespace ombrelia::monkey
