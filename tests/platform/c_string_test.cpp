// SPDX-License-Identifier: MIT
#include <marlin/platform/text/c_string.h>

#include <clocale>
#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

namespace {

TEST(CString, IsMadeFromTextsWithAndWithoutNullCharacters) {
    EXPECT_TRUE(CString(nullptr).IsEmpty());
    EXPECT_EQ(CString("a\0b", 3).GetLength(), 3);
    EXPECT_EQ(CString("abc", -1).GetLength(), 0);
    EXPECT_STREQ(CString('x', 3), "xxx");
    CString text("a");
    text += "b";
    text += 'c';
    text += CString("d");
    EXPECT_EQ(text, "abcd");
    EXPECT_EQ("<" + text + ">" + '!', "<abcd>!");
}

TEST(CString, CutsPartsToItsLength) {
    const CString text("abcdef");
    EXPECT_EQ(text.Left(2), "ab");
    EXPECT_EQ(text.Left(-1), "");
    EXPECT_EQ(text.Left(99), "abcdef");
    EXPECT_EQ(text.Right(2), "ef");
    EXPECT_EQ(text.Right(99), "abcdef");
    EXPECT_EQ(text.Mid(4), "ef");
    EXPECT_EQ(text.Mid(1, 2), "bc");
    EXPECT_EQ(text.Mid(99, 2), "");
    EXPECT_EQ(text.Mid(-2, 1), "a");
}

TEST(CString, FindsReplacesAndTrims) {
    CString text("  one two two ");
    EXPECT_EQ(text.Find("two"), 6);
    EXPECT_EQ(text.Find("two", 7), 10);
    EXPECT_EQ(text.Find('x'), -1);
    EXPECT_EQ(text.ReverseFind('t'), 10);
    EXPECT_EQ(text.Trim(), "one two two");
    EXPECT_EQ(text.Replace("two", "2"), 2);
    EXPECT_EQ(text.Replace("", "x"), 0);
    EXPECT_EQ(text.Replace('2', '3'), 2);
    EXPECT_EQ(text, "one 3 3");
    EXPECT_EQ(CString(" \t\n").Trim(), "");
}

TEST(CString, ComparesBytesAndIgnoresTheCaseOfAsciiLetters) {
    EXPECT_LT(CString("a").Compare("b"), 0);
    EXPECT_GT(CString("\xE4").Compare("z"), 0);
    EXPECT_EQ(CString("MixED").CompareNoCase("mIXed"), 0);
    EXPECT_LT(CString("ab").CompareNoCase("ABC"), 0);
    EXPECT_LT(CString("_").CompareNoCase("A"), 0);  // letters are folded downwards
    EXPECT_TRUE(CString("a") < CString("b"));
    CString text("a\xE4Z");
    EXPECT_EQ(text.MakeUpper(), "A\xE4Z");
    EXPECT_EQ(text.MakeLower(), "a\xE4z");
}

TEST(CString, FormatsEvenFromItself) {
    CString text("7");
    text.Format("%s-%d", text.GetString(), 5);
    EXPECT_EQ(text, "7-5");
    text.Format("%s", std::string(1000, 'x').c_str());
    EXPECT_EQ(text.GetLength(), 1000);
}

TEST(CString, FormatsNumbersAlikeInEveryLocale) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    const bool changed = std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
    CString text;
    text.Format("%.2f", 1.5);
    const double hosts = std::strtod(changed ? "1,5" : "1.5", nullptr);
    std::setlocale(LC_ALL, before.c_str());
    EXPECT_EQ(text, "1.50");
    EXPECT_EQ(hosts, 1.5);  // the host's own locale is left to it
    if (!changed) {
        GTEST_SKIP() << "the locale de_DE.UTF-8 is not installed";
    }
}

}  // namespace
