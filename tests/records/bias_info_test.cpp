// SPDX-License-Identifier: MIT
#include <marlin/records/bias_info.h>
#include <marlin/settings/section.h>

#include <gtest/gtest.h>
#include <support/section_keys.h>

namespace {

TEST(BiasInfo, WritesInThePlaceOfItsKey) {
    BiasInfo bias;
    Section section("Bias");
    EXPECT_TRUE(bias.Write(section));
    section += "Other";
    bias.BiasMode = -3;
    EXPECT_TRUE(bias.Write(section));
    EXPECT_TRUE(bias.Write("Main", section));
    EXPECT_TRUE(bias.Write("", section));
    EXPECT_EQ(KeysOf(section), "BiasMode=-3\nOther=\nMain.BiasMode=-3\n.BiasMode=-3\n");
}

TEST(BiasInfo, KeepsItsModeWithoutAReadableKey) {
    BiasInfo bias;
    bias.BiasMode = 5;
    Section section("Bias");
    section["BiasMode"] << "none";
    section["Main.BiasMode"] << 7;
    EXPECT_TRUE(bias.Read(section));
    EXPECT_TRUE(bias.Read("Left", section));
    EXPECT_EQ(bias.BiasMode, 5);
    EXPECT_TRUE(bias.Read("main", section));
    EXPECT_EQ(bias.BiasMode, 7);
    EXPECT_FALSE(bias == BiasInfo());
}

}  // namespace
