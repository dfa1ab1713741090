// SPDX-License-Identifier: MIT
#include <marlin/platform/text/code_page.h>

#include <string>

#include <gtest/gtest.h>

namespace {

using PLATFORM::CodePointOf;
using PLATFORM::FromUtf8;
using PLATFORM::IsUtf8;
using PLATFORM::ToUtf8;

TEST(CodePage, BytesStandForTheCharactersOfWindows1252) {
    struct Case {
        unsigned char Byte;
        char32_t CodePoint;
        const char* Utf8;
    };
    const Case cases[] = {
        {0x41, U'A', "A"},
        {0x7F, 0x7F, "\x7F"},
        {0x80, 0x20AC, "\xE2\x82\xAC"},  // euro sign
        {0x96, 0x2013, "\xE2\x80\x93"},  // en dash
        {0x99, 0x2122, "\xE2\x84\xA2"},  // trade mark
        {0x9F, 0x0178, "\xC5\xB8"},      // Y with diaeresis
        {0xA0, 0xA0, "\xC2\xA0"},
        {0xB0, 0xB0, "\xC2\xB0"},  // degree sign
        {0xE6, 0xE6, "\xC3\xA6"},  // ae
        {0xFF, 0xFF, "\xC3\xBF"},
    };
    for (const Case& c : cases) {
        const std::string byte(1, static_cast<char>(c.Byte));
        EXPECT_EQ(CodePointOf(c.Byte), c.CodePoint);
        EXPECT_EQ(ToUtf8(byte), c.Utf8);
        EXPECT_EQ(FromUtf8(c.Utf8), byte);
    }
}

TEST(CodePage, EveryByteComesBack) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
        all += static_cast<char>(static_cast<unsigned char>(byte));
    }
    const std::string utf8 = ToUtf8(all);
    EXPECT_TRUE(IsUtf8(utf8));
    EXPECT_EQ(FromUtf8(utf8), all);
}

TEST(CodePage, WhatHasNoByteBecomesAQuestionMark) {
    EXPECT_EQ(FromUtf8("a\xCE\xA9z"), "a?z");               // omega
    EXPECT_EQ(FromUtf8("\xE6\xB5\xB7\xE5\x9B\xBE"), "??");  // two han characters
    EXPECT_EQ(FromUtf8("\xF0\x9F\x90\x9F"), "?");           // a fish
    EXPECT_EQ(FromUtf8("\xC2\x80"), "?");                   // the byte 0x80 is the euro sign
}

TEST(CodePage, WhatIsNotUtf8IsToldAndBecomesQuestionMarks) {
    struct Case {
        const char* Bytes;
        const char* Text;
    };
    const Case cases[] = {
        {"\xE6", "?"},  // begun, not ended
        {"\xB0"
         "C",
         "?C"},                        // a byte that only continues
        {"\xC1\x81", "??"},            // overlong
        {"\xE0\x80\xAF", "???"},       // overlong
        {"\xED\xA0\x80", "???"},       // surrogate
        {"\xF4\x90\x80\x80", "????"},  // above 0x10FFFF
        {"\xC3(", "?("},
        {"\xFF", "?"},
    };
    for (const Case& c : cases) {
        EXPECT_FALSE(IsUtf8(c.Bytes)) << c.Text;
        EXPECT_EQ(FromUtf8(c.Bytes), c.Text);
    }
    EXPECT_TRUE(IsUtf8(""));
    EXPECT_TRUE(IsUtf8("\xF4\x8F\xBF\xBF"));
}

}  // namespace
