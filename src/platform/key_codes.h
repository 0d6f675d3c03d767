// Virtual key codes, as handlers of KeyDown get them. Letters and digits are their capital ASCII.
#pragma once

namespace ombrelia::key {

inline constexpr int kBackspace = 8;
inline constexpr int kTab = 9;
inline constexpr int kClear = 12;  // 5 of the number pad while it moves
inline constexpr int kReturn = 13;
inline constexpr int kShift = 16;
inline constexpr int kControl = 17;
inline constexpr int kAlt = 18;
inline constexpr int kEscape = 27;
inline constexpr int kSpace = 32;
inline constexpr int kPageUp = 33;
inline constexpr int kPageDown = 34;
inline constexpr int kEnd = 35;
inline constexpr int kHome = 36;
inline constexpr int kLeft = 37;
inline constexpr int kUp = 38;
inline constexpr int kRight = 39;
inline constexpr int kDown = 40;
inline constexpr int kInsert = 45;
inline constexpr int kDelete = 46;
inline constexpr int kPadDigit0 = 96;  // of the number pad; 1 to 9 follow
inline constexpr int kF1 = 112;        // F2 to F12 follow
inline constexpr int kF12 = 123;

}  // namespace ombrelia::key
