// SPDX-License-Identifier: MIT
#include <marlin/base/crc_checksum.h>

#include <string>

#include <gtest/gtest.h>

namespace {

// Bit by bit, from the definition of the polynomial.
unsigned int CrcByDefinition(const std::string& bytes) {
    unsigned int state = 0xFFFFFFFFU;
    for (const char byte : bytes) {
        state ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            state = (state & 1U) != 0 ? (state >> 1) ^ 0xEDB88320U : state >> 1;
        }
    }
    return ~state;
}

TEST(CRCChecksum, IsTheCrcOfTheBytesFedAtEveryLength) {
    CRCChecksum check;
    check += "123456789";
    EXPECT_EQ(check.Value(), 0xCBF43926U);
    EXPECT_EQ(CRCChecksum().Value(), 0U);
    std::string bytes;
    for (int length = 0; length < 300; ++length) {
        CRCChecksum whole;
        whole += bytes;
        ASSERT_EQ(whole.Value(), CrcByDefinition(bytes)) << length;
        CRCChecksum parts;
        parts += std::string_view(bytes).substr(0, bytes.size() / 3);
        parts += std::string_view(bytes).substr(bytes.size() / 3);
        ASSERT_EQ(parts.Value(), whole.Value()) << length;
        bytes += static_cast<char>(length * 151 + 7);
    }
}

TEST(CRCChecksum, AnIntegerIsFourBytesLowByteFirst) {
    CRCChecksum words;
    words += 0x34333231;
    words += 0xFFFFFFFEU;
    words += -2;
    EXPECT_EQ(words.Value(), CrcByDefinition("1234\xFE\xFF\xFF\xFF\xFE\xFF\xFF\xFF"));
}

}  // namespace
