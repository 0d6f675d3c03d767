#include <bit>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "platform/number_text.h"

namespace ombrelia {

namespace {

// Where the C++ library tells no reals there is nothing to hold the others against.
class NumberText : public testing::Test {
  protected:
    void SetUp() override {
        if (!kLibraryTellsReals) {
            GTEST_SKIP() << "left out: the library tells no real numbers";
        }
    }

    static void sameRead(const std::string& text) {
        same(numberOf<double>(text), by_c::doubleOf(text), text);
        same(numberOf<float>(text), by_c::floatOf(text), text);
    }

    template <typename Real>
    static void sameWritten(Real number) {
        const std::string text = shortestText(number);
        EXPECT_EQ(by_c::shortestText(number), text);
        sameRead(text);
        for (const int digits : {1, 7, 17}) {
            EXPECT_EQ(by_c::roundedText(number, digits), roundedText(number, digits)) << text;
        }
    }

  private:
    template <typename Real>
    static void same(std::optional<Real> expected, std::optional<Real> found,
                     const std::string& text) {
        ASSERT_EQ(found.has_value(), expected.has_value()) << text;
        if (!expected) {
            return;
        }
        EXPECT_EQ(std::isnan(*found), std::isnan(*expected)) << text;
        EXPECT_EQ(std::signbit(*found), std::signbit(*expected)) << text;
        EXPECT_TRUE(*found == *expected || std::isnan(*expected)) << text;
    }
};

TEST_F(NumberText, both_ways_take_and_refuse_the_same_texts) {
    std::vector<std::string> texts = {
        "",    " ",       "1",    "+1",    "-1",     "--1",   "-+1",      " 1",    "1 ",     "- 1",
        "\t1", "1,5",     "1.5",  ".5",    "5.",     ".",     "-.",       "-.e1",  "e1",     "1e",
        "1e+", "1e5",     "1E+5", "1e-5",  "1d5",    "00001", "-0",       "0x10",  "-0X1p3", "0x",
        "x1",  "1x1",     "inf",  "-inf",  "INF",    "+inf",  "infinity", "infin", "nan",    "-nan",
        "NaN", "nan(ab)", "nan(", "nan()", "nan(x)", "1_",    "1'000",    "\u0663"};
    texts.insert(texts.end(), {"1e400",
                               "-1e400",
                               "1e-400",
                               "-1e-400",
                               "0e-400",
                               "0e99999999999999",
                               "1e99999999999999999999",
                               "1e-99999999999999999999",
                               "1e-320",
                               "4.9e-324",
                               "2e-324",
                               "2.4703282292062327e-324",
                               "2.4703282292062328e-324",
                               "1.7976931348623158e308",
                               "1.7976931348623159e308",
                               "1e-45",
                               "7e-46",
                               "1e-40",
                               "1e39",
                               "3.4028235677973366e38",
                               "3.4028235677973367e38"});
    texts.emplace_back("1\0", 2);
    texts.emplace_back(
        "\0"
        "1",
        2);
    texts.push_back("0." + std::string(400, '0') + "1");
    texts.push_back("1" + std::string(400, '0') + "e-400");
    // Half-way between two numbers, and a little more.
    texts.insert(texts.end(), {"9007199254740993", "9007199254740993.0000000000000000000000001",
                               "16777217", "16777217.0000001"});
    for (const std::string& text : texts) {
        sameRead(text);
    }
}

TEST_F(NumberText, both_ways_write_chosen_numbers_the_same) {
    for (const double number :
         {0.0,     -0.0,    1.0,      -1.0,     0.1,      0.3,       1.0 / 3,
          9999.0,  10000.0, 100000.0, 120000.0, 123456.0, 1234567.0, 0.001,
          0.0001,  0.00012, 0.00001,  1e22,     1e23,     5e-324,    9007199254740993.0,
          65535.5, 86399.99}) {
        sameWritten(number);
        sameWritten(static_cast<float>(number));
    }
    using Limits = std::numeric_limits<double>;
    for (const double number :
         {Limits::max(), Limits::lowest(), Limits::min(), Limits::denorm_min(), Limits::infinity(),
          -Limits::infinity(), Limits::quiet_NaN(), -Limits::quiet_NaN()}) {
        sameWritten(number);
    }
    using Narrow = std::numeric_limits<float>;
    for (const float number : {Narrow::max(), Narrow::lowest(), Narrow::min(), Narrow::denorm_min(),
                               Narrow::infinity(), Narrow::quiet_NaN()}) {
        sameWritten(number);
    }
}

// Above a power of two numbers lie twice as far apart as below it.
TEST_F(NumberText, both_ways_write_powers_of_two_and_their_neighbours_the_same) {
    for (int exponent = -1074; exponent <= 1023; ++exponent) {
        const double number = std::ldexp(1.0, exponent);
        sameWritten(number);
        sameWritten(std::nextafter(number, 0.0));
        sameWritten(std::nextafter(-number, -std::numeric_limits<double>::infinity()));
    }
    for (int exponent = -149; exponent <= 127; ++exponent) {
        const float number = std::ldexp(1.0F, exponent);
        sameWritten(number);
        sameWritten(std::nextafter(number, 0.0F));
        sameWritten(std::nextafter(-number, -std::numeric_limits<float>::infinity()));
    }
}

TEST_F(NumberText, both_ways_write_whole_numbers_and_hundredths_the_same) {
    for (int number = -40000; number <= 40000; number += 7) {
        sameWritten(static_cast<double>(number));
        sameWritten(number / 100.0);
        sameWritten(static_cast<float>(number) / 100);
    }
}

TEST_F(NumberText, both_ways_write_any_bits_the_same) {
    std::mt19937_64 chance(1);
    for (int n = 0; n < 3000; ++n) {
        const std::uint64_t bits = chance();
        sameWritten(std::bit_cast<double>(bits));
        sameWritten(std::bit_cast<float>(static_cast<std::uint32_t>(bits >> 32U)));
    }
}

TEST(NumberTextWhole, a_whole_number_must_fit_its_type) {
    EXPECT_EQ(numberOf<std::int16_t>("-32768"), std::int16_t{-32768});
    EXPECT_EQ(numberOf<std::int16_t>("32768"), std::nullopt);
    EXPECT_EQ(numberOf<std::uint32_t>("4294967295"), 4294967295U);
    EXPECT_EQ(numberOf<std::uint32_t>("-1"), std::nullopt);
    EXPECT_EQ(numberOf<std::int64_t>("9223372036854775807"),
              std::numeric_limits<std::int64_t>::max());
    for (const char* text : {"", "+1", " 1", "1 ", "1.0", "0x1", "-"}) {
        EXPECT_EQ(numberOf<std::int32_t>(text), std::nullopt) << text;
    }
    EXPECT_EQ(shortestText(std::int16_t{-7}), "-7");
}

}  // namespace

}  // namespace ombrelia
