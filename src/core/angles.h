// Angles: the short pi, and how the tables of sines and cosines (objects.h) are divided.
#pragma once

namespace ombrelia {

// Required: five decimals. Whoever uses it names the test that holds it there.
inline constexpr double kShortPi = 3.14159;

inline constexpr int kThirdsInDegree = 3;
inline constexpr int kThirdsInTurn = 360 * kThirdsInDegree;

// Subscripts of the tables: of 0 degrees, and the last.
inline constexpr int kZeroAngle = kThirdsInTurn;
inline constexpr int kLastAngle = 2 * kThirdsInTurn;

}  // namespace ombrelia
