// All that an event can change, as text: every value of the register, every part of every window,
// what was asked of the platform.
#pragma once

#include <string>
#include <vector>

#include "session.h"

namespace ombrelia::two_ways {

// A line each: NAME = VALUE, or a digest for a large table or a picture. Where a window stands on
// its screen is left out. The same on every machine.
std::vector<std::string> stateLines(const scenario::Session& session);

// One number for all of it, as text.
std::string stateDigest(const scenario::Session& session);

}  // namespace ombrelia::two_ways
