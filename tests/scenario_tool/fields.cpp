#include "fields.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "errors.h"
#include "platform/number_text.h"

namespace ombrelia::scenario {

namespace {

constexpr const char* kBlanks = " \t\r";
constexpr const char* kByteOrderMark = "\xEF\xBB\xBF";

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

// Reads the quoted field that begins at place, and moves place behind it.
std::string quotedField(const std::string& line, std::size_t& place) {
    std::string field;
    for (++place; place < line.size(); ++place) {
        if (line[place] != '"') {
            field += line[place];
            continue;
        }
        ++place;
        const bool isDoubled = place < line.size() && line[place] == '"';
        if (isDoubled) {
            field += '"';
        } else if (place == line.size() || isBlank(line[place])) {
            return field;
        } else {
            break;
        }
    }
    throw LineError{"a double quote is not closed, or something follows it without a blank"};
}

std::string plainField(const std::string& line, std::size_t& place) {
    const std::size_t first = place;
    place = std::min(line.find_first_of(kBlanks, first), line.size());
    return line.substr(first, place - first);
}

// The number that the text is, with or without a plus sign.
template <typename T>
std::optional<T> readNumber(const std::string& text) {
    return numberOf<T>(text.starts_with('+') ? text.substr(1) : text);
}

}  // namespace

Fields splitFields(const std::string& line) {
    Fields fields;
    std::size_t place = line.starts_with(kByteOrderMark) ? 3 : 0;
    place = line.find_first_not_of(kBlanks, place);
    if (place == std::string::npos || line[place] == '#') {
        return fields;
    }
    while (place < line.size()) {
        fields.push_back(line[place] == '"' ? quotedField(line, place) : plainField(line, place));
        place = std::min(line.find_first_not_of(kBlanks, place), line.size());
    }
    return fields;
}

std::int64_t wholeNumber(const std::string& text, std::int64_t low, std::int64_t high) {
    const std::optional<std::int64_t> number = readNumber<std::int64_t>(text);
    if (!number) {
        throw LineError{"\"" + text + "\" is no whole number"};
    }
    if (*number < low || *number > high) {
        throw LineError{text + " does not lie in " + std::to_string(low) + " to " +
                        std::to_string(high)};
    }
    return *number;
}

double realNumber(const std::string& text) {
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    const double number = readNumber<double>(text).value_or(kNone);
    if (!std::isfinite(number)) {
        throw LineError{"\"" + text + "\" is no number"};
    }
    return number;
}

}  // namespace ombrelia::scenario
