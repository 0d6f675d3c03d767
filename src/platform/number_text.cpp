#include "platform/number_text.h"

#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <locale.h>
#include <string_view>

namespace ombrelia::by_c {

namespace {

// While one lives, numbers have a point whatever the user's language has.
class PlainLocale {
  public:
    PlainLocale() : before_(::uselocale(plain())) {}
    ~PlainLocale() { ::uselocale(before_); }
    PlainLocale(const PlainLocale&) = delete;
    PlainLocale& operator=(const PlainLocale&) = delete;

  private:
    static locale_t plain() {
        static const locale_t kPlain = ::newlocale(LC_ALL_MASK, "C", nullptr);
        return kPlain;
    }

    locale_t before_;
};

// The library also reads blanks, signs and digits to the base 16.
bool isDecimal(std::string_view unsignedText) {
    return unsignedText.find_first_of("0123456789.iInN") == 0 &&
           unsignedText.find_first_of("xX") != 1;
}

template <typename Real, typename Read>
std::optional<Real> realOf(const std::string& text, Read read) {
    const PlainLocale locale;
    const bool isNegative = text.starts_with('-');
    const char* const unsignedText = text.c_str() + (isNegative ? 1 : 0);
    char* stop = nullptr;
    errno = 0;
    const Real number = read(unsignedText, &stop);
    // The same report is made of numbers near 0 that fit with fewer digits.
    const bool isOutside = errno == ERANGE && (number == 0 || std::isinf(number));
    if (!isDecimal(unsignedText) || stop != text.data() + text.size() || isOutside) {
        return std::nullopt;
    }
    return isNegative ? -number : number;
}

std::string printed(const char* format, int digits, double number) {
    const PlainLocale locale;
    // Enough for the largest whole number.
    std::array<char, std::numeric_limits<double>::max_exponent10 + 10> buffer{};
    const int length = std::snprintf(buffer.data(), buffer.size(), format, digits, number);
    return {buffer.data(), static_cast<std::size_t>(length)};
}

// A text of the form 1.23e+45 with one more in its last digit.
std::string nextUp(std::string text) {
    for (std::size_t place = text.find('e'); place-- > 0;) {
        char& digit = text[place];
        if (digit >= '0' && digit < '9') {
            ++digit;
            break;
        }
        digit = digit == '9' ? '0' : digit;
    }
    return text;
}

// The fewest digits that read back as the number, in the form 1.23e+45.
template <typename Read>
std::string fewestDigits(double number, Read read) {
    constexpr int kAlwaysEnough = std::numeric_limits<double>::max_digits10;
    for (int behindFirst = 0; behindFirst + 1 < kAlwaysEnough; ++behindFirst) {
        const std::string nearest = printed("%.*e", behindFirst, number);
        // Numbers lie farther apart above a power of two than below it, so what is nearest may
        // belong to the neighbour below when one more does not.
        for (const std::string& text : {nearest, nextUp(nearest)}) {
            if (read(text) == number) {
                return text;
            }
        }
    }
    return printed("%.*e", kAlwaysEnough - 1, number);
}

// The number of a text of the form 1.23e+45 without an exponent.
std::string withoutExponent(const std::string& scientific, double number) {
    const std::size_t e = scientific.find('e');
    const int exponent = std::atoi(scientific.c_str() + e + 1);
    const std::string sign = scientific.starts_with('-') ? "-" : "";
    std::string digits;
    for (const char c : scientific.substr(0, e)) {
        if (c >= '0' && c <= '9') {
            digits += c;
        }
    }
    if (exponent < 0) {
        return sign + "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
    }
    const auto whole = static_cast<std::size_t>(exponent) + 1;
    if (digits.size() <= whole) {
        return printed("%.*f", 0, number);
    }
    return sign + digits.substr(0, whole) + "." + digits.substr(whole);
}

template <typename Read>
std::string shortest(double number, Read read) {
    if (!std::isfinite(number)) {
        return printed("%.*f", 0, number);
    }
    const std::string scientific = fewestDigits(number, read);
    const std::string plain = withoutExponent(scientific, number);
    return scientific.size() < plain.size() ? scientific : plain;
}

}  // namespace

std::optional<float> floatOf(const std::string& text) {
    return realOf<float>(text, ::strtof);
}

std::optional<double> doubleOf(const std::string& text) {
    return realOf<double>(text, ::strtod);
}

std::string shortestText(float number) {
    return shortest(number, floatOf);
}

std::string shortestText(double number) {
    return shortest(number, doubleOf);
}

std::string roundedText(double number, int digits) {
    return printed("%.*g", digits, number);
}

}  // namespace ombrelia::by_c
