// SPDX-License-Identifier: MIT
#include <marlin/color/rgb_color.h>

#include <gtest/gtest.h>

namespace {

TEST(RGBColor, PacksRedIntoTheLowByteOfTheColorWordAndIgnoresTheTopByte) {
    const RGBColor color(0xABFF8040UL);
    EXPECT_EQ(color, RGBColor(64, 128, 255));
    EXPECT_EQ(color.Red(), 64);
    EXPECT_EQ(color.Green(), 128);
    EXPECT_EQ(color.Blue(), 255);
    EXPECT_EQ(static_cast<unsigned long>(color), 0x00FF8040UL);
    EXPECT_EQ(static_cast<unsigned long>(RGBColor()), 0UL);
}

TEST(RGBColor, KeepsTheLowEightBitsOfItsComponents) {
    EXPECT_EQ(RGBColor(300, -1, 256), RGBColor(44, 255, 0));
    RGBColor color;
    color.SetRed(300);
    color.SetGreen(-1);
    color.SetBlue(257);
    EXPECT_EQ(color, RGBColor(44, 255, 1));
}

TEST(RGBColor, DiffersInAnyOneComponent) {
    for (const RGBColor& other : {RGBColor(0, 2, 3), RGBColor(1, 0, 3), RGBColor(1, 2, 0)}) {
        EXPECT_FALSE(RGBColor(1, 2, 3) == other) << static_cast<unsigned long>(other);
    }
}

TEST(RGBColor, TurnsIntoTheGrayOfItsBrightness) {
    const struct {
        RGBColor color;
        int gray;
    } cases[] = {
        {{10, 10, 10}, 10},
        {{255, 255, 255}, 255},
        {{255, 0, 0}, 76},       // 76.5
        {{0, 255, 0}, 150},      // 150.45
        {{0, 0, 255}, 28},       // 28.05
        {{100, 200, 50}, 153},   // 118 + 30 + 5.5
        {{255, 255, 254}, 254},  // 254.89
        // Sums of whole numbers, which fall short of one by the order of their adding.
        {{1, 5, 25}, 6},
        {{1, 21, 21}, 15},
        {{2, 5, 95}, 14},
        {{1, 209, 49}, 128},
    };
    for (const auto& [color, gray] : cases) {
        EXPECT_EQ(color.GrayScale(), RGBColor(gray, gray, gray));
    }
}

}  // namespace
