// Colour sets in the settings store, and the defaults of a first run: a set that is loaded empty
// resets everything, and the reset writes the sets, so both live here.
#pragma once

#include <cstdint>
#include <string>

namespace ombrelia {

inline constexpr const char* kCurrentColors = "Current Colors";
inline constexpr const char* kSettingsSection = "Settings";
inline constexpr const char* kColorSetPrefix = "ColorPal";  // section and index key: prefix + name

// Puts the set "Default" into ColorRange; the store is not touched.
void fillDefaultColors();

// Writes ColorRange under a name, any text.
void SaveColorSet(const std::string& name);

// Reads ColorRange from a stored set; what is missing or no number reads as 0. A set of nothing but
// zeros calls ResetPreferences.
void LoadColorSet(const std::string& name);

// Writes "Default" from ColorRange as it stands, then the other seven built-in sets.
void WriteDefaultColorSets();

// Writes the defaults of a first run into the store; the states in memory stay as they are.
void ResetPreferences();

// The number that a stored text stands for: 0 if the text as a whole is no number.
double storedNumber(const std::string& text);

// A stored number as 16 bits, rounded to nearest, ties to even; 0 if it does not fit.
std::int16_t storedInt16(double value);

// One preference kept in the store.
struct PreferenceKey {
    const char* key;
    int button;
    const char* resetValue;
};

// In the order in which ResetPreferences writes them.
inline constexpr PreferenceKey kPreferenceKeys[] = {
    {"OptCheck20to1", 68, "1"}, {"OptCheck10to1", 69, "1"}, {"OptCheck5to1", 70, "1"},
    {"OptCheck2to1", 71, "1"},  {"OptCheck1to1", 72, "1"},  {"OptCheckAuto", 66, "1"},
    {"OptCheckUse", 67, "0"},   {"OptUseCursors", 62, "0"}, {"OptUseColor", 63, "1"},
    {"OptUseBW", 64, "0"},      {"OptUseSounds", 65, "1"},  {"OptHelpBox", 73, "1"},
    {"OptAdv3D", 74, "0"},
};

inline constexpr const char* kSavedBeforeKey = "SavedBefore";

}  // namespace ombrelia
