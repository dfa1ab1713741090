// SPDX-License-Identifier: MIT
#include <marlin/platform/text/c_string.h>
#include <marlin/platform/text/code_page.h>

#include <clocale>
#include <cstdlib>
#include <string>
#include <string_view>
#include <tuple>

#include <gtest/gtest.h>

namespace {

using namespace PLATFORM;

TEST(CString, IsMadeFromTextsAndCutsPartsToItsLength) {
    EXPECT_TRUE(CString(nullptr).IsEmpty());
    EXPECT_EQ(CString("a\0b", 3).GetLength(), 3);
    EXPECT_EQ(CString("abc", -1).GetLength(), 0);
    EXPECT_EQ('<' + CString('x', 3) + CString("d") + ">" + '!', "<xxxd>!");
    const CString text("abcdef");
    EXPECT_EQ(text.Left(2) + '|' + text.Left(-1) + '|' + text.Left(99), "ab||abcdef");
    EXPECT_EQ(text.Right(2) + '|' + text.Right(99), "ef|abcdef");
    EXPECT_EQ(text.Mid(4) + '|' + text.Mid(1, 2) + '|' + text.Mid(99, 2), "ef|bc|");
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
    EXPECT_TRUE(CString("a") < CString("b"));
    EXPECT_GT(CString("\xE4").Compare("z"), 0);
    EXPECT_EQ(CString("MixED").CompareNoCase("mIXed"), 0);
    EXPECT_LT(CString("ab").CompareNoCase("ABC"), 0);
    EXPECT_LT(CString("_").CompareNoCase("A"), 0);  // letters are folded downwards
    CString text("a\xE4Z");
    EXPECT_EQ(text.MakeUpper(), "A\xE4Z");
    EXPECT_EQ(text.MakeLower(), "a\xE4z");
}

template <class... Arguments>
concept Formats = requires(CString text, Arguments... arguments) {
    text.Format("", arguments...);
};
static_assert(Formats<> && Formats<int, const char*, double>);
static_assert(!Formats<CString> && !Formats<int, CString> && !Formats<std::string, int>);

TEST(CString, FormatsEvenFromItselfAndAlikeInEveryLocale) {
    CString text("7");
    text.Format("%s-%d", text.GetString(), 5);
    EXPECT_EQ(text, "7-5");
    text.Format("%s", std::string(1000, 'x').c_str());
    EXPECT_EQ(text.GetLength(), 1000);
    const std::string before = std::setlocale(LC_ALL, nullptr);
    if (!std::setlocale(LC_ALL, "de_DE.UTF-8")) {
        GTEST_SKIP() << "the locale de_DE.UTF-8 is not installed";
    }
    text.Format("%.2f", 1.5);
    const double hosts = std::strtod("1,5", nullptr);
    std::setlocale(LC_ALL, before.c_str());
    EXPECT_EQ(text, "1.50");
    EXPECT_EQ(hosts, 1.5);  // the host's own locale is left to it
}

TEST(CodePage, BytesStandForTheCharactersOfWindows1252AndComeBack) {
    const std::pair<const char*, const char*> cases[] = {
        {"A", "A"},
        {"\x7F", "\x7F"},
        {"\xA0", "\xC2\xA0"},
        {"\xFF", "\xC3\xBF"},
        // The euro sign, the en dash and a Y with diaeresis.
        {"\x80", "\xE2\x82\xAC"},
        {"\x96", "\xE2\x80\x93"},
        {"\x9F", "\xC5\xB8"}};
    for (const auto& [byte, utf8] : cases) {
        EXPECT_EQ(ToUtf8(byte), utf8);
        EXPECT_EQ(FromUtf8(utf8), byte);
    }
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
        all += static_cast<char>(static_cast<unsigned char>(byte));
    }
    EXPECT_TRUE(IsUtf8(ToUtf8(all)));
    EXPECT_EQ(FromUtf8(ToUtf8(all)), all);
}

TEST(CodePage, ATextThatIsUtf8AsAWholeStaysAsItIs) {
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},
        {"caf\xC3\xA9 \xCE\xA9", "caf\xC3\xA9 \xCE\xA9"},
        // One byte that is not UTF-8 makes all of them Windows-1252.
        {"\xC3\xA9\xE9", "\xC3\x83\xC2\xA9\xC3\xA9"},
        {"\xE2\x82", "\xC3\xA2\xE2\x80\x9A"},
    };
    for (const auto& [bytes, utf8] : cases) {
        EXPECT_EQ(ToUtf8(bytes), utf8);
    }
}

TEST(CodePage, TakesCodePointsOffAText) {
    std::string_view text = "A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x90\x9F\xE9z";
    for (const char32_t codePoint : {U'A', U'\u00E9', U'\u20AC', U'\U0001F41F', U'\uFFFD', U'z'}) {
        EXPECT_EQ(TakeCodePoint(text), codePoint);
    }
    EXPECT_TRUE(text.empty());
}

TEST(CodePage, WhatHasNoByteOrIsNotUtf8BecomesQuestionMarks) {
    const std::tuple<const char*, const char*, bool> cases[] = {
        {"", "", true},
        {"a\xCE\xA9z", "a?z", true},               // omega
        {"\xE6\xB5\xB7\xE5\x9B\xBE", "??", true},  // two han characters
        {"\xF0\x9F\x90\x9F", "?", true},           // a fish
        {"\xF4\x8F\xBF\xBF", "?", true},           // the last one
        {"\xC2\x80", "?", true},                   // the byte 0x80 is the euro sign
        {"\xE6", "?", false},                      // begun, not ended
        {"\xB0-", "?-", false},                    // a byte that only continues
        {"\xC1\x81", "??", false},                 // overlong
        {"\xE0\x80\xAF", "???", false},            // overlong
        {"\xED\xA0\x80", "???", false},            // surrogate
        {"\xF4\x90\x80\x80", "????", false},       // above 0x10FFFF
        {"\xC3(", "?(", false},
        {"\xFF", "?", false},
    };
    for (const auto& [bytes, text, valid] : cases) {
        EXPECT_EQ(IsUtf8(bytes), valid) << testing::PrintToString(bytes);
        EXPECT_EQ(FromUtf8(bytes), text) << testing::PrintToString(bytes);
    }
}

}  // namespace
