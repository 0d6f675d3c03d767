// What can be read and written by name: the register's values, properties of controls, counts of
// the platform.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "names.h"
#include "register/value_row.h"

namespace ombrelia::scenario {

// How a value is compared with an expected text.
enum class Measure { Text, Truth, Single, Number };

// A value that a name has led to.
struct Found {
    Measure measure = Measure::Number;
    std::string text;
    std::function<bool(const std::string&)> set;  // false: not such a text; empty: read-only
};

// A value of the register, at one element.
Found foundRow(const ValueRow& row, void* element);

// A property of a control, or nothing if it has none of this name.
std::optional<Found> findProperty(Control& control, const NamePart& part);

// "1", "-1" and "true" mean true, "0" and "false" mean false.
std::optional<bool> truthOf(const std::string& text);

}  // namespace ombrelia::scenario
