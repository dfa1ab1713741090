// SPDX-License-Identifier: MIT
#include <marlin/base/crc_checksum.h>
#include <marlin/settings/hashed_string.h>

#include <array>
#include <set>
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
    // CRC-32 of the four bytes 41 00 00 00.
    EXPECT_EQ(HashedString("a").HashValue(), HashedString("A").HashValue());
}

TEST(HashedString, NamesAreEqualIgnoringTheCaseOfAsciiLettersOnly) {
    EXPECT_EQ(HashedString("Key"), HashedString("KEY"));
    EXPECT_EQ(HashedString("a-z"), HashedString("A-Z"));
    EXPECT_NE(HashedString("\xE4"), HashedString("\xC4"));
    EXPECT_NE(HashedString("Key"), HashedString("Key "));
    EXPECT_NE(HashedString("["), HashedString("{"));
    EXPECT_EQ(*HashedString("KeY"), "KeY");
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

TEST(HashedString, DefaultMadeHasHashZeroAndCopiesKeepBothFields) {
    const HashedString none;
    EXPECT_EQ(none.HashValue(), 0U);
    EXPECT_TRUE(none.empty());
    EXPECT_STREQ(none.c_str(), "");
    HashedString copy("Name");
    const HashedString other = copy;
    copy = none;
    EXPECT_EQ(*other, "Name");
    EXPECT_EQ(other.HashValue(), HashByDefinition("NAME"));
    EXPECT_TRUE(copy.empty());
}

TEST(HashedString, TheOrderIsStrictAndFollowsTheHash) {
    const std::array<HashedString, 6> names = {
        "", "Alpha", "ALPHA", "Beta", "Gamma", "a name of more than 32 characters"};
    for (const HashedString& a : names) {
        for (const HashedString& b : names) {
            EXPECT_EQ((a < b) + (a > b) + (a == b), 1) << *a << " " << *b;
            if (a.HashValue() != b.HashValue()) {
                EXPECT_EQ(a < b, a.HashValue() < b.HashValue());
            }
        }
    }
    EXPECT_EQ(std::set<HashedString>(names.begin(), names.end()).size(), 5U);
}

}  // namespace
