// Colours of the texts and grounds that the skin's pictures leave to the program.
#pragma once

#include "platform/color.h"

namespace ombrelia::skin {

inline constexpr Color kText = rgb(232, 238, 245);
inline constexpr Color kTextQuiet = rgb(159, 176, 195);
inline constexpr Color kAccent = rgb(255, 190, 92);
inline constexpr Color kTitle = rgb(255, 255, 255);
inline constexpr Color kWell = rgb(14, 20, 28);
inline constexpr Color kEdge = rgb(70, 92, 118);
inline constexpr Color kShowOnMap = rgb(255, 0, 0);

}  // namespace ombrelia::skin
