// Whether the desk is in order: nothing disabled, no gesture left, and the map as it should be.
#pragma once

#include "journal.h"
#include "user.h"

namespace ombrelia::monkey {

// The line with which each look at the desk begins.
inline constexpr const char* kLookBegins = "# the desk is looked at";

// Lets go of everything, waits for the ticks, and looks: tools, light, panel, gestures, ranges;
// then saves the map, imports it and compares the heights. What is wrong ends in ExpectFailed by
// the line that says so.
void checkDesk(User& user, Journal& journal, int number);

}  // namespace ombrelia::monkey
