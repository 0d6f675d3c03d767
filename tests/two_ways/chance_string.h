// A string of pointer events by chance, as lines of a scenario: what a hasty user does with the
// mouse on the windows that are open.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "session.h"

namespace ombrelia::two_ways {

// Plays a string of so many lines on a new process of the session, at a scale; told is called with
// each line that could be run, after it was. The same seed and scale give the same string.
void playChanceString(scenario::Session& session, std::uint64_t seed, int lines,
                      const std::string& scale,
                      const std::function<void(const std::string& line)>& told);

}  // namespace ombrelia::two_ways
