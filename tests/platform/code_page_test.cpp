// SPDX-License-Identifier: MIT
#include <marlin/platform/text/code_page.h>

#include <string>

#include <gtest/gtest.h>

namespace {

using PLATFORM::FromUtf8;
using PLATFORM::ToUtf8;

TEST(CodePage, EveryByteComesBack) {
    for (int i = 0; i < 256; ++i) {
        const std::string byte(1, static_cast<char>(i));
        EXPECT_EQ(FromUtf8(ToUtf8(byte)), byte) << i;
    }
}

TEST(CodePage, KnowsItsCharacters) {
    EXPECT_EQ(ToUtf8("A\x80\xE9\x99"), "A\u20AC\u00E9\u2122");
    EXPECT_EQ(PLATFORM::CodePoint('\x81'), char32_t{0x81});
    EXPECT_EQ(PLATFORM::CodePoint('\xFF'), char32_t{0xFF});
}

TEST(CodePage, RefusesWhatHasNoByte) {
    const char* const refused[] = {"\u0416",   "\U0001F600", "\xC3",         "\xC3(",
                                   "\xE2\x82", "\xC0\x80",   "\xE0\x80\x80", "\xFF"};
    for (const char* text : refused) {
        EXPECT_EQ(FromUtf8(text), std::nullopt) << text;
    }
}

}  // namespace
