// SPDX-License-Identifier: MIT
#include <marlin/base/text_functions.h>

#include <limits>
#include <vector>

#include <gtest/gtest.h>

namespace {

struct Leading {
    const char* Text;
    int Integer;
    double Decimal;
};

TEST(TextFunctions, TheLeadingNumberOfATextIsTaken) {
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    const double infinity = std::numeric_limits<double>::infinity();
    const Leading table[] = {{"", 0, 0.0},
                             {"abc", 0, 0.0},
                             {" \t12abc", 12, 12.0},
                             {"-3.75", -3, -3.75},
                             {"+7", 7, 7.0},
                             {".5", 0, 0.5},
                             {"1e3", 1, 1000.0},
                             {"- 1", 0, 0.0},
                             {"2147483648", most, 2147483648.0},
                             {"-2147483649", least, -2147483649.0},
                             {"-1e999", -1, -infinity},
                             {"2e999", 2, infinity},
                             {"inf", 0, 0.0}};
    for (const Leading& row : table) {
        EXPECT_EQ(atoi(std::string(row.Text)), row.Integer) << row.Text;
        EXPECT_EQ(atof(std::string(row.Text)), row.Decimal) << row.Text;
    }
}

TEST(TextFunctions, TheOrderIsStrictAndTellsApartWhatDiffersInMoreThanCase) {
    const std::vector<std::string> ascending = {"", "A", "ab", "B", "b ", "\xC4", "\xE4"};
    for (std::size_t i = 0; i < ascending.size(); ++i) {
        for (std::size_t k = 0; k < ascending.size(); ++k) {
            EXPECT_EQ(Smaller(ascending[i], ascending[k]), i < k) << i << ' ' << k;
            EXPECT_EQ(Greater(ascending[i], ascending[k]), i > k) << i << ' ' << k;
        }
    }
    EXPECT_FALSE(Smaller("aB", "Ab"));
    EXPECT_FALSE(Greater("aB", "Ab"));
}

TEST(TextFunctions, EqualityIgnoresTheCaseOfAsciiLettersOnly) {
    EXPECT_TRUE(icompare("Solid LINE", "solid line"));
    EXPECT_FALSE(icompare("@", "`"));
    EXPECT_FALSE(icompare("\xC4", "\xE4"));
    EXPECT_FALSE(icompare("line", "line "));
}

TEST(TextFunctions, TrimmingTakesTheCharactersFromBothEndsOnly) {
    const std::pair<std::string, std::string> table[] = {
        {" \ta b\r\n", "a b"}, {"abc", "abc"}, {" \n ", ""}, {"", ""}};
    for (const auto& [text, expected] : table) {
        std::string trimmed = text;
        trim(trimmed, " \t\n\r");
        EXPECT_EQ(trimmed, expected);
    }
    std::string untouched = " a ";
    trim(untouched, "");
    EXPECT_EQ(untouched, " a ");
}

TEST(TextFunctions, ValuesAreAppendedInTheirTextForms) {
    CString text;
    text << true << "," << false << "," << -12 << "," << 4294967295UL << "," << 0.1F;
    EXPECT_STREQ(text, "1,0,-12,4294967295,0.1");
    const CString name("name");
    text = "";
    text << "literal " << name << static_cast<const char*>(nullptr);
    EXPECT_STREQ(text, "literal name");
}

}  // namespace
