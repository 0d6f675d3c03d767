// Numbers as text, the same on every machine: a point before the fraction, no blanks, no groups.
#pragma once

#include <array>
#include <charconv>
#include <optional>
#include <string>
#include <system_error>
#include <type_traits>

namespace ombrelia {

// The same by the C library, for C++ libraries that know whole numbers alone. Held against the
// others in number_text's tests.
namespace by_c {

std::optional<float> floatOf(const std::string& text);
std::optional<double> doubleOf(const std::string& text);
std::string shortestText(float number);
std::string shortestText(double number);
std::string roundedText(double number, int digits);

}  // namespace by_c

#ifdef __cpp_lib_to_chars
inline constexpr bool kLibraryTellsReals = true;
#else
inline constexpr bool kLibraryTellsReals = false;
#endif

// The number that the whole text is; none for any other text, a plus sign before it, and what the
// type cannot hold. A real number may be an infinity or none at all, in letters.
template <typename Number>
std::optional<Number> numberOf(const std::string& text) {
    if constexpr (std::is_floating_point_v<Number> && !kLibraryTellsReals) {
        if constexpr (std::is_same_v<Number, float>) {
            return by_c::floatOf(text);
        } else {
            return by_c::doubleOf(text);
        }
    } else {
        Number number{};
        const char* const end = text.data() + text.size();
        const auto [stop, error] = std::from_chars(text.data(), end, number);
        return error == std::errc{} && stop == end ? std::optional(number) : std::nullopt;
    }
}

// The shortest text that reads back as the same number.
template <typename Number>
std::string shortestText(Number number) {
    if constexpr (std::is_floating_point_v<Number> && !kLibraryTellsReals) {
        return by_c::shortestText(number);
    } else {
        std::array<char, 40> buffer{};
        return {buffer.data(),
                std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr};
    }
}

// A real number rounded to so many digits, at most 17, without zeros at the end; with an exponent
// where that many digits do not reach the point, or begin below the fourth place after it.
template <typename Real>
std::string roundedText(Real number, int digits) {
    if constexpr (!kLibraryTellsReals) {
        return by_c::roundedText(number, digits);
    } else {
        std::array<char, 40> buffer{};
        return {buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                             std::chars_format::general, digits)
                                   .ptr};
    }
}

}  // namespace ombrelia
