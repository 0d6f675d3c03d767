#include "core/color_sets.h"

#include <cmath>
#include <limits>
#include <span>

#include "core/color_sets_table.h"
#include "core/objects.h"
#include "platform/number_text.h"
#include "platform/numeric.h"
#include "platform/services.h"

namespace ombrelia {

namespace {

// "110" for row 1, end 1, component 0.
std::string entryKey(int row, int end, int component) {
    return std::to_string(row) + std::to_string(end) + std::to_string(component);
}

// Visits the 48 entries in the order of the store: row, end, component.
template <typename Visit>
void forEachEntry(Visit visit) {
    for (int row = 1; row <= ColorTable::kRows; ++row) {
        for (int end = 1; end <= ColorTable::kEnds; ++end) {
            for (int component = 0; component < ColorTable::kComponents; ++component) {
                visit(row, end, component);
            }
        }
    }
}

void writeIndexEntry(const std::string& name) {
    services().settings->write(kSettingsSection, kColorSetPrefix + name, name);
}

void writeBuiltIn(const BuiltInColorSet& set) {
    const std::string section = std::string(kColorSetPrefix) + set.name;
    forEachEntry([&](int row, int end, int component) {
        services().settings->write(section, entryKey(row, end, component),
                                   std::to_string(set.value(row, end, component)));
    });
    writeIndexEntry(set.name);
}

}  // namespace

void fillDefaultColors() {
    forEachEntry([](int row, int end, int component) {
        ColorRange(row, end, component) = kBuiltInColorSets[0].value(row, end, component);
    });
}

void SaveColorSet(const std::string& name) {
    const std::string section = kColorSetPrefix + name;
    forEachEntry([&](int row, int end, int component) {
        services().settings->write(section, entryKey(row, end, component),
                                   std::to_string(ColorRange(row, end, component)));
    });
    writeIndexEntry(name);
}

void LoadColorSet(const std::string& name) {
    const std::string section = kColorSetPrefix + name;
    bool isAnySet = false;
    forEachEntry([&](int row, int end, int component) {
        const double value =
            storedNumber(services().settings->read(section, entryKey(row, end, component), "0"));
        ColorRange(row, end, component) = storedInt16(value);
        isAnySet = isAnySet || value != 0;
    });
    if (!isAnySet) {
        ResetPreferences();
    }
}

void WriteDefaultColorSets() {
    SaveColorSet(kBuiltInColorSets[0].name);
    for (const BuiltInColorSet& set : std::span(kBuiltInColorSets).subspan(1)) {
        writeBuiltIn(set);
    }
}

void ResetPreferences() {
    SettingsStore& store = *services().settings;
    store.write(kSettingsSection, kSavedBeforeKey, "1");
    for (const PreferenceKey& row : kPreferenceKeys) {
        store.write(kSettingsSection, row.key, row.resetValue);
    }
    SaveColorSet(kCurrentColors);
    WriteDefaultColorSets();
}

double storedNumber(const std::string& text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string::npos) {
        return 0;
    }
    std::string digits = text.substr(first, text.find_last_not_of(" \t") + 1 - first);
    if (digits.starts_with('+') && !digits.starts_with("+-")) {
        digits.erase(0, 1);
    }
    const double value = numberOf<double>(digits).value_or(0);
    return std::isfinite(value) ? value : 0;
}

std::int16_t storedInt16(double value) {
    constexpr double kLow = std::numeric_limits<std::int16_t>::min() - 0.5;
    constexpr double kHigh = std::numeric_limits<std::int16_t>::max() + 0.5;
    return value >= kLow && value < kHigh ? roundToInt16(value) : std::int16_t{0};
}

}  // namespace ombrelia
