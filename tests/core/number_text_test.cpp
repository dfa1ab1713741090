// SPDX-License-Identifier: MIT
#include <marlin/core/number_text.h>

#include <array>
#include <bit>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace {

using namespace MARLINSUITE;

std::string Fixed(double value, int decimals) {
    std::string text;
    AppendFixed(text, value, decimals);
    return text;
}

// The C library, in its own locale, rounds exactly.
std::string PrintedFixed(double value, int decimals) {
    std::array<char, 512> text{};
    std::snprintf(text.data(), text.size(), "%.*f", decimals, value);
    return text.data();
}

TEST(NumberText, FixedNotationRoundsTheExactValueHalvesToEven) {
    const struct {
        double Value;
        int Decimals;
        const char* Text;
    } cases[] = {{0.5, 0, "0"},
                 {1.5, 0, "2"},
                 {0.125, 2, "0.12"},
                 {0.375, 2, "0.38"},
                 {0.0000005, 6, "0.000000"},  // just below the half
                 {-3.0, 6, "-3.000000"},
                 {-0.0, 1, "-0.0"},
                 {9.9999999, 6, "10.000000"},
                 {1.25, -3, "1"},
                 {std::numeric_limits<double>::infinity(), 2, "inf"},
                 {-std::numeric_limits<double>::infinity(), 2, "-inf"}};
    for (const auto& [value, decimals, text] : cases) {
        EXPECT_EQ(Fixed(value, decimals), text);
    }
    EXPECT_EQ(Fixed(1e300, 1).size(), 303U);
}

TEST(NumberText, FixedNotationOfAnyBitPatternIsTheExactOne) {
    std::mt19937_64 random(1);
    for (int i = 0; i < 50'000; ++i) {
        double value = std::bit_cast<double>(random());
        if (i % 3 == 1) {
            value = static_cast<double>(static_cast<std::int64_t>(random() >> 20)) / 4096.0;
        } else if (i % 3 == 2) {  // next to a half of the last decimal
            value = (static_cast<double>(random() % 100'000) + 0.5) / std::pow(10.0, i % 10);
        }
        if (value == value && value - value == 0) {
            const int decimals = i % 3 == 2 ? i % 10 : static_cast<int>(random() % 12);
            ASSERT_EQ(Fixed(value, decimals), PrintedFixed(value, decimals));
        }
    }
}

TEST(NumberText, DecimalsReadBackToTheNearestValue) {
    std::mt19937_64 random(2);
    for (int i = 0; i < 50'000; ++i) {
        std::array<char, 64> text{};
        const int exponent = static_cast<int>(random() % 80) - 40;
        std::snprintf(text.data(), text.size(), "%llu.%llue%d",
                      static_cast<unsigned long long>(random() >> (random() % 64)),
                      static_cast<unsigned long long>(random() >> (random() % 64)), exponent);
        double value = 0;
        ASSERT_TRUE(ParseNumber(text.data(), value));
        ASSERT_EQ(value, std::strtod(text.data(), nullptr)) << text.data();
        float narrow = 0;
        if (ParseNumber(text.data(), narrow)) {
            ASSERT_EQ(narrow, std::strtof(text.data(), nullptr)) << text.data();
        }
    }
}

TEST(NumberText, LimitsOfTheDecimalTypes) {
    const std::pair<std::string, double> cases[] = {
        {"1.7976931348623157e308", std::numeric_limits<double>::max()},
        {"5e-324", std::numeric_limits<double>::denorm_min()},
        {"+.5e", 0.5},
        {"-1e-99999999999999999999", 0.0},
        {"0e999999999999", 0.0},
        {std::string(400, '0') + "1" + std::string(30, '0'), 1e30},
        {"0." + std::string(400, '0') + "1e401", 1.0}};
    for (const auto& [text, expected] : cases) {
        double value = 3;
        EXPECT_TRUE(ParseNumber(text, value)) << text;
        EXPECT_EQ(value, expected) << text;
    }
    for (const char* const text : {"1.8e308", "1e99999999999999999999", "inf", "-inf", "nan",
                                   "infinity", "+-1", "--1", "-", ".", "-.", "e5", "x1", ""}) {
        double value = 3;
        EXPECT_FALSE(ParseNumber(text, value)) << text;
        EXPECT_EQ(value, 3) << text;
    }
    for (const auto& [text, expected] :
         {std::pair("1e-60", 0.0F), std::pair("100e-60", 0.0F), std::pair("0.00001e-45", 0.0F),
          std::pair("0.1e-99999999999", 0.0F), std::pair("3.5e38", 3.0F),
          std::pair("0.0035e41", 3.0F),
          std::pair("350000000000000000000000000000000000000", 3.0F)}) {
        float value = 3;
        EXPECT_EQ(ParseNumber(text, value), expected != 3) << text;
        EXPECT_EQ(value, expected) << text;
    }
}

TEST(NumberText, AWholeItemMayHaveBlanksAroundItAndNothingElse) {
    int number = 7;
    EXPECT_TRUE(ParseWhole(" 12 ", number));
    for (const char* const text : {"", " ", "13x", "1 3", "1.5"}) {
        EXPECT_FALSE(ParseWhole(text, number)) << text;
    }
    EXPECT_EQ(number, 12);
    double decimal = 0;
    EXPECT_TRUE(ParseWhole("2.50 ", decimal));
    EXPECT_FALSE(ParseWhole("2.5,", decimal));
}

TEST(NumberText, ShortestAndGeneralForms) {
    std::string text;
    AppendShortest(text, 0.1F);
    AppendShortest(text += ' ', 0.1);
    AppendGeneral(text += ' ', 1.0 / 3.0);
    AppendGeneral(text += ' ', 2.5);
    AppendGeneral(text += ' ', 1234567.0);
    AppendNumber(text += ' ', 0x1'0000'0001UL);  // the low 32 bits
    EXPECT_EQ(text, "0.1 0.1 0.333333 2.5 1.23457e+06 1");
}

TEST(NumberText, TheLocalePlaysNoPart) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    const bool changed = std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
    std::string text = Fixed(1234.5, 6);
    double value = 0;
    const bool read = ParseNumber("1.5", value);
    std::setlocale(LC_ALL, before.c_str());
    EXPECT_EQ(text, "1234.500000");
    EXPECT_TRUE(read && value == 1.5);
    if (!changed) {
        GTEST_SKIP() << "the locale de_DE.UTF-8 is not installed";
    }
}

}  // namespace
