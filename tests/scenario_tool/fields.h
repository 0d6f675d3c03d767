// The words of a line and the numbers in them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace ombrelia::scenario {

using Fields = std::vector<std::string>;

// The fields of a line, separated by blanks; one in double quotes may hold blanks, and "" inside it
// stands for one double quote. Empty for an empty line and for a comment. Throws LineError for
// quotes that do not pair.
Fields splitFields(const std::string& line);

// A whole number from low to high; throws LineError for any other text.
std::int64_t wholeNumber(const std::string& text, std::int64_t low, std::int64_t high);

// Any decimal number; throws LineError for any other text.
double realNumber(const std::string& text);

}  // namespace ombrelia::scenario
