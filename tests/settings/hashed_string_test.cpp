// SPDX-License-Identifier: MIT
#include <marlin/base/crc_checksum.h>
#include <marlin/settings/hashed_string.h>

#include <string>
#include <unordered_set>

#include <gtest/gtest.h>

namespace {

// The definition, step by step.
unsigned int HashByDefinition(const std::string& text) {
    CRCChecksum checksum;
    for (const char c : text) {
        const int widened = static_cast<signed char>(c);
        checksum += widened >= 'a' && widened <= 'z' ? widened - 32 : widened;
    }
    return checksum.Value();
}

TEST(HashedString, HashIsTheChecksumOfTheUpperCasedCharactersAsInts) {
    std::string text;
    for (int length = 0; length < 80; ++length) {
        EXPECT_EQ(HashedString(text).HashValue(), HashByDefinition(text)) << text;
        EXPECT_EQ(HashedString::ComputeHashValue(text), HashByDefinition(text)) << text;
        text += static_cast<char>(length * 37 + 60);  // all kinds, bytes over 127 too
    }
}

TEST(HashedString, NamesAreEqualIgnoringTheCaseOfAsciiLettersOnly) {
    EXPECT_EQ(HashedString("a-Key"), HashedString("A-kEY"));
    EXPECT_NE(HashedString("\xE4"), HashedString("\xC4"));
    EXPECT_NE(HashedString("Key"), HashedString("Key "));
    EXPECT_NE(HashedString("["), HashedString("{"));
    EXPECT_EQ(*HashedString("KeY"), "KeY");
    EXPECT_EQ(HashedString().HashValue(), 0U);
}

TEST(HashedString, NamesOfOneHashAreToldApartByTheirTexts) {
    const HashedString a("K4112366960");
    const HashedString b("k2663348725");
    ASSERT_EQ(a.HashValue(), b.HashValue());
    EXPECT_NE(a, b);
    EXPECT_TRUE(b < a && a > b) << "by text, since the hashes are equal";
    const std::unordered_set<HashedString> names = {a, b, "K2663348725"};
    EXPECT_EQ(names.size(), 2U);
    EXPECT_TRUE(names.contains("k4112366960"));
}

TEST(HashedString, TheOrderIsStrictAndFollowsTheHash) {
    const HashedString names[] = {"", "Alpha", "ALPHA", "Beta",
                                  "more than 32 characters in a name"};
    for (const HashedString& a : names) {
        for (const HashedString& b : names) {
            EXPECT_EQ((a < b) + (a > b) + (a == b), 1) << *a << " " << *b;
            EXPECT_TRUE(a == b || (a < b) == (a.HashValue() < b.HashValue())) << *a << " " << *b;
        }
    }
}

}  // namespace
