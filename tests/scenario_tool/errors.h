// What ends a scenario before its last line.
#pragma once

#include <string>

namespace ombrelia::scenario {

// A line that cannot be understood or run.
struct LineError {
    std::string sentence;
};

// An expectation that does not hold.
struct ExpectFailed {
    std::string sentence;
};

// Exit statuses of the tool.
inline constexpr int kAllHeld = 0;
inline constexpr int kExpectFailed = 1;
inline constexpr int kBadLine = 2;
inline constexpr int kRunTimeFailure = 3;

}  // namespace ombrelia::scenario
