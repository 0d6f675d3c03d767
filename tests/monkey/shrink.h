// Makes a scenario that fails as short as it gets.
#pragma once

#include "journal.h"
#include "outcome.h"

namespace ombrelia::monkey {

// Runs lines as the scenario tool does, in a process of their own.
Outcome runLines(const Lines& lines);

// Leaves lines out as long as the rest still ends like the wanted outcome. The last look at the
// desk stays whole, since what it finds is wrong only after all of it.
Lines shrink(Lines lines, const Outcome& wanted);

}  // namespace ombrelia::monkey
