// SPDX-License-Identifier: MIT
#include <marlin/color/rgb_color.h>

#include <gtest/gtest.h>

namespace {

TEST(RGBColor, PacksRedIntoTheLowByteOfTheColorWordAndIgnoresTheTopByte) {
    const RGBColor color(0xABFF8040UL);
    EXPECT_EQ(color.Red(), 64);
    EXPECT_EQ(color.Green(), 128);
    EXPECT_EQ(color.Blue(), 255);
    EXPECT_EQ(static_cast<unsigned long>(color), 0x00FF8040UL);
    EXPECT_EQ(static_cast<unsigned long>(RGBColor()), 0UL);
}

TEST(RGBColor, KeepsTheLowEightBitsOfItsComponentsAndDiffersInAnyOne) {
    RGBColor color;
    color.SetRed(300);
    color.SetGreen(-1);
    color.SetBlue(257);
    EXPECT_EQ(color, RGBColor(300, -1, 257));
    EXPECT_EQ(color, RGBColor(0x01FF2CUL));
    for (const RGBColor& other : {RGBColor(45, 255, 1), RGBColor(44, 0, 1), RGBColor(44, 255, 2)}) {
        EXPECT_FALSE(color == other) << static_cast<unsigned long>(other);
    }
}

// 76.5, 150.45, 28.05, 118 + 30 + 5.5 and 254.89; the last four are sums of whole numbers that
// fall short of one by the order of their adding.
TEST(RGBColor, TurnsIntoTheGrayOfItsBrightness) {
    const struct {
        RGBColor color;
        int gray;
    } cases[] = {{{10, 10, 10}, 10},     {{255, 255, 255}, 255}, {{255, 0, 0}, 76},
                 {{0, 255, 0}, 150},     {{0, 0, 255}, 28},      {{100, 200, 50}, 153},
                 {{255, 255, 254}, 254}, {{1, 5, 25}, 6},        {{1, 21, 21}, 15},
                 {{2, 5, 95}, 14},       {{1, 209, 49}, 128}};
    for (const auto& [color, gray] : cases) {
        EXPECT_EQ(color.GrayScale(), RGBColor(gray, gray, gray));
    }
}

}  // namespace
