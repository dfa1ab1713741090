// SPDX-License-Identifier: MIT
#include <marlin/base/text_functions.h>

#include <limits>
#include <utility>

#include <gtest/gtest.h>

namespace {

TEST(TextFunctions, TheLeadingNumberOfATextIsTaken) {
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const struct {
        const char* Text;
        int Integer;
        double Decimal;
    } table[] = {{"", 0, 0.0},
                 {"abc", 0, 0.0},
                 {" \t12abc", 12, 12.0},
                 {"-3.75", -3, -3.75},
                 {"+7", 7, 7.0},
                 {".5", 0, 0.5},
                 {"1e3", 1, 1000.0},
                 {"- 1", 0, 0.0},
                 {"2147483648", most, 2147483648.0},
                 {" +9999999999", most, 9999999999.0},
                 {"-2147483649", least, -2147483649.0},
                 {"-1e999", -1, -infinity},
                 {" .2e999", 0, infinity},
                 {"inf", 0, 0.0}};
    for (const auto& [text, integer, decimal] : table) {
        EXPECT_EQ(atoi(std::string(text)), integer) << text;
        EXPECT_EQ(atof(std::string(text)), decimal) << text;
    }
}

TEST(TextFunctions, TheOrderIsStrictAndIgnoresTheCaseOfAsciiLettersOnly) {
    const char* const ascending[] = {"", "@", "A", "ab", "B", "b ", "\xC4", "\xE4"};
    for (const char* const* a = std::begin(ascending); a != std::end(ascending); ++a) {
        for (const char* const* b = std::begin(ascending); b != std::end(ascending); ++b) {
            EXPECT_EQ(Smaller(*a, *b), a < b) << *a << ' ' << *b;
            EXPECT_EQ(Greater(*a, *b), a > b) << *a << ' ' << *b;
            EXPECT_EQ(icompare(*a, *b), a == b) << *a << ' ' << *b;
        }
    }
    EXPECT_TRUE(icompare("aBz", "AbZ"));
    EXPECT_FALSE(icompare("@", "`"));
    EXPECT_FALSE(Smaller("aB", "Ab") || Greater("aB", "Ab"));
}

TEST(TextFunctions, TrimmingTakesTheCharactersFromBothEndsOnly) {
    for (const auto& [text, expected] :
         {std::pair(" \ta b\r\n", "a b"), std::pair("abc", "abc"), std::pair(" \n ", "")}) {
        std::string trimmed = text;
        trim(trimmed, " \t\n\r");
        EXPECT_EQ(trimmed, expected);
        trimmed = text;
        trim(trimmed, "");
        EXPECT_EQ(trimmed, text);
    }
}

TEST(TextFunctions, ValuesAreAppendedInTheirTextForms) {
    CString text;
    text << true << false << -12 << 4294967295UL << 0.1F << " literal ";
    text << CString("name") << static_cast<const char*>(nullptr);
    EXPECT_STREQ(text, "10-1242949672950.1 literal name");
}

}  // namespace
