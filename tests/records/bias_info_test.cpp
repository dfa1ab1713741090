// SPDX-License-Identifier: MIT
#include <marlin/records/bias_info.h>
#include <marlin/settings/section.h>

#include <gtest/gtest.h>
#include <support/section_keys.h>

namespace {

TEST(BiasInfo, WritesInThePlaceOfItsKeyAndKeepsItsModeWithoutAReadableOne) {
    ExpectEachChangeKept<BiasInfo>({[](BiasInfo& bias) { bias.BiasMode = -3; }}, true);
    BiasInfo bias;
    bias.BiasMode = 7;
    Section section("Bias");
    EXPECT_TRUE(bias.Write("Main", section));
    EXPECT_TRUE(bias.Write("", section));
    EXPECT_EQ(KeysOf(section) + WrittenKeys(bias), "Main.BiasMode=7\n.BiasMode=7\nBiasMode=7\n");
    section["BiasMode"] << "none";
    bias.BiasMode = 5;
    EXPECT_TRUE(bias.Read(section));
    EXPECT_TRUE(bias.Read("Left", section));
    EXPECT_EQ(bias.BiasMode, 5);
    EXPECT_TRUE(bias.Read("main", section));
    EXPECT_EQ(bias.BiasMode, 7);
}

}  // namespace
