// The tables and values of the process. They outlive every window. Each line: unit or range, and
// who writes it. All begin at 0; tests name and reset them through tests/register.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/angles.h"
#include "platform/checked_array.h"

namespace ombrelia {

// Sides of the four maps, points.
inline constexpr int kMiniatureSize = 65;
inline constexpr int kSmallSize = 129;
inline constexpr int kMediumSize = 193;
inline constexpr int kLargeSize = 257;

// A shadow cell of this value differs from every height: the cell is painted at the next refresh
// (65534 as a signed 16-bit number).
inline constexpr std::int16_t kDirtyShadow = -2;

// Heights in the working range, 0..255.
inline constexpr int kHeights = 256;

// Metres to one step of height.
inline constexpr int kMetresPerStep = 13;

using HeightGrid = CheckedGrid<std::int16_t, kLargeSize>;

// The terrain: heights, working range 0..255; (x, y) = (column, row). Written by terrain operations
// and the import; a colour look-up clamps the cell that it is given.
inline HeightGrid HeightMap;

// Height last painted into Mapview2, or kDirtyShadow. Written by refresh, import, colour commands.
inline HeightGrid ShadowMap;

inline std::int16_t MapSize = 0;        // points on a side; size dialog, import
inline std::string AppName;             // title and key of the settings; frmSplash
inline std::int16_t SplashMode = 0;     // 0 start-up splash, 1 About box; Form1's load
inline std::int16_t ImportAtStart = 0;  // 1 from the choice Import until it has run; size dialog
inline std::int16_t ImportTarget = 0;   // MapSize that the import sets; import
inline std::int16_t ImportDirect = 0;   // 1 copies point for point, 0 samples; import
inline std::int16_t ImportRunning = 0;  // 1 while an import writes the map and refreshes it; import
inline std::int16_t NewMapPending = 0;  // 1 between New Map's Yes and the unloading; start-up
inline std::int16_t EggArmed = 0;       // 1 after a double click on the joke; size dialog
inline std::int16_t BaseHeight = 0;     // height of a new map, 0..255; InitEditor
inline std::int16_t SeaLevel = 0;       // zero of the metre scale, 0..255; InitEditor

// What the title says of a map of MapSize points a side; empty for another number.
const char* sizeSuffix();

// Colour table: rows 1..6, ends 1 (low) and 2 (high), components 0 height, 1 red, 2 green, 3 blue,
// each 0..255. Kept with the row fastest.
class ColorTable {
  public:
    static constexpr int kRows = 6;
    static constexpr int kEnds = 2;
    static constexpr int kComponents = 4;

    std::int16_t& operator()(int row, int end, int component) {
        return cells_(row - 1 + kRows * (end - 1) + kRows * kEnds * component);
    }
    const std::int16_t& operator()(int row, int end, int component) const {
        return cells_(row - 1 + kRows * (end - 1) + kRows * kEnds * component);
    }
    std::int16_t* data() { return cells_.data(); }
    bool operator==(const ColorTable&) const = default;

  private:
    CheckedArray<std::int16_t, 0, kRows * kEnds * kComponents - 1> cells_;
};
inline ColorTable ColorRange;  // written by InitEditor, loading a set, the colour page

// One button. Written by InitEditor, the button handlers and preferences.
struct ButtonRecord {
    std::int16_t State = 0;       // 0 up, 1 pointer over it, 2 pressed or on
    std::int16_t Kind = 0;        // picture set 0..8; 0: no button
    std::int16_t Latching = 0;    // 0 push button, -1 stays on
    std::int16_t SavedState = 0;  // State at the moment of the press
    std::int16_t Group = 0;       // subscript of GroupCurrent, 0 none
    std::int16_t Exclusive = 0;   // -1 one of a radio group

    bool operator==(const ButtonRecord&) const = default;
};
inline CheckedArray<ButtonRecord, 0, 100> OptionStates;

// One slider. Written by InitEditor and the drags.
struct SliderRecord {
    std::int16_t Orientation = 0;  // 1 left and right, 0 up and down
    std::int16_t Value = 0;        // Min..Max
    std::int16_t Max = 0;
    std::int16_t Min = 0;

    bool operator==(const SliderRecord&) const = default;
};
inline CheckedArray<SliderRecord, 0, 20> SliderValues;

// Sines and cosines of (k - kZeroAngle) / 3 degrees, k = 0..kLastAngle; InitEditor.
inline CheckedArray<double, 0, kLastAngle> SinTable;
inline CheckedArray<double, 0, kLastAngle> CosTable;

}  // namespace ombrelia
