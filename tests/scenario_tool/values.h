// Reading, checking and setting of values by name.
#pragma once

#include <string>

#include "session.h"

namespace ombrelia::scenario {

// The value as text; throws LineError for a name that leads to none.
std::string valueText(const Session& session, const std::string& name);

// Throws ExpectFailed unless the value is the expected one: texts exactly, numbers within a
// relative difference of 1e-9. Throws LineError if the expected text is no such value.
void checkValue(const Session& session, const std::string& name, const std::string& expected);

// Sets a value; throws LineError if it cannot be set to this.
void assignValue(const Session& session, const std::string& name, const std::string& text);

}  // namespace ombrelia::scenario
