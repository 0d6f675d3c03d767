#include "values.h"

#include <algorithm>
#include <cmath>

#include "errors.h"
#include "fields.h"
#include "names.h"
#include "properties.h"
#include "register/value_row.h"

namespace ombrelia::scenario {

namespace {

constexpr double kRelativeDifference = 1e-9;

Found foundCount(long count) {
    return {Measure::Number, std::to_string(count), {}};
}

std::optional<Found> findCount(const Session& session, const std::string& name) {
    if (name == "Random.Draws") {
        return foundCount(session.platform.Draws);
    }
    if (name == "Yields") {
        return foundCount(session.platform.Yields);
    }
    return std::nullopt;
}

std::optional<Found> findRegistered(const Name& name) {
    const std::string field = name.size() == 2 ? name[1].word : std::string();
    if (name.size() > 2 || (name.size() == 2 && !name[1].subscripts.empty())) {
        return std::nullopt;
    }
    for (const ValueRow& row : allValues()) {
        if (row.name != name[0].word || row.field != field) {
            continue;
        }
        void* element = row.at(name[0].subscripts);
        if (element != nullptr) {
            return foundRow(row, element);
        }
    }
    return std::nullopt;
}

// WINDOW.PROPERTY or WINDOW.CONTROL.PROPERTY.
std::optional<Found> findOfWindow(const Name& name) {
    Window* window = name[0].subscripts.empty() ? findWindow(name[0].word) : nullptr;
    if (window == nullptr || name.size() < 2 || name.size() > 3) {
        return std::nullopt;
    }
    Control* control = name.size() == 2 ? window : findControl(*window, name[1]);
    if (control == nullptr) {
        return std::nullopt;
    }
    return findProperty(*control, name.back());
}

Found findValue(const Session& session, const std::string& text) {
    const Name name = parseName(text);
    auto found = findCount(session, text);
    if (!found) {
        found = findRegistered(name);
    }
    if (!found) {
        found = findOfWindow(name);
    }
    if (!found) {
        throw LineError{"there is no value " + text};
    }
    return *found;
}

bool areClose(double a, double b) {
    return std::fabs(a - b) <= kRelativeDifference * std::max(std::fabs(a), std::fabs(b));
}

bool isTruth(const Found& found, const std::string& expected) {
    const auto wanted = truthOf(expected);
    if (!wanted) {
        throw LineError{"\"" + expected + "\" is neither true nor false"};
    }
    return wanted == truthOf(found.text);
}

bool isValue(const Found& found, const std::string& expected) {
    switch (found.measure) {
        case Measure::Text:
            return found.text == expected;
        case Measure::Truth:
            return isTruth(found, expected);
        case Measure::Single: {
            // A written decimal means the single that lies nearest to it.
            const auto single = static_cast<float>(realNumber(found.text));
            return areClose(single, static_cast<float>(realNumber(expected)));
        }
        default:
            return areClose(realNumber(found.text), realNumber(expected));
    }
}

}  // namespace

std::string valueText(const Session& session, const std::string& name) {
    return findValue(session, name).text;
}

void checkValue(const Session& session, const std::string& name, const std::string& expected) {
    const Found found = findValue(session, name);
    if (!isValue(found, expected)) {
        throw ExpectFailed{name + " is \"" + found.text + "\", not \"" + expected + "\""};
    }
}

void assignValue(const Session& session, const std::string& name, const std::string& text) {
    const Found found = findValue(session, name);
    if (!found.set) {
        throw LineError{name + " can only be read"};
    }
    if (!found.set(text)) {
        throw LineError{name + " cannot be set to \"" + text + "\""};
    }
}

}  // namespace ombrelia::scenario
