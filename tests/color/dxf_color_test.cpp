// SPDX-License-Identifier: MIT
#include <marlin/color/dxf_color.h>
#include <marlin/color/hsv_color.h>

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

namespace {

constinit const DXFColor constantInitialised = DXFColor::_WHITE;

TEST(DXFColor, ChoosesTheIndexThatTheRuleGivesByHand) {
    const struct {
        RGBColor color;
        int index;
    } cases[] = {
        {{0, 0, 0}, 0},         {{255, 255, 255}, 7},  {{250, 250, 250}, 7},
        {{100, 100, 100}, 250}, {{1, 1, 1}, 250},      {{128, 128, 128}, 251},
        {{101, 101, 101}, 250},  // midway between 84 and 118: the first one
        {{255, 0, 4}, 10},      {{255, 128, 128}, 11}, {{255, 127, 127}, 10},
        {{127, 0, 0}, 14},      {{40, 0, 0}, 18},      {{204, 0, 0}, 12},
        {{205, 0, 0}, 10},      {{255, 0, 0}, 10},     {{0, 0, 255}, 170},
        {{255, 255, 0}, 50},    {{255, 0, 255}, 210},  {{0, 255, 0}, 90},
        {{0, 255, 255}, 130},   {{255, 0, 64}, 240},  // 344.9 degrees
        {{255, 31, 0}, 10},     {{255, 32, 0}, 20},   // 7.29 and 7.53 degrees
    };
    for (const auto& [color, index] : cases) {
        EXPECT_EQ(DXFColor(color).Index(), index)
            << color.Red() << ' ' << color.Green() << ' ' << color.Blue();
    }
    EXPECT_EQ(DXFColor(0xFF0000FFUL).Index(), 10) << "the top byte is ignored";
    EXPECT_EQ(DXFColor(0xFF000000UL).Index(), 0);
}

TEST(DXFColor, ChoosesTheBrightestColorOfEachHueForItself) {
    for (int index = 10; index < 250; index += 10) {
        EXPECT_EQ(DXFColor(static_cast<unsigned long>(DXFColor(index))).Index(), index);
    }
}

TEST(DXFColor, IsBlackForAnIndexOutsideThePalette) {
    for (const int index : {-1, 256, 300, -2147483647 - 1, 2147483647}) {
        EXPECT_EQ(DXFColor(index).Index(), 0) << index;
    }
    EXPECT_EQ(DXFColor(255).Index(), 255);
}

TEST(DXFColor, ComparesIndicesNotColors) {
    EXPECT_FALSE(DXFColor(7) == DXFColor(0)) << "both are black";
    EXPECT_TRUE(constantInitialised == DXFColor(7));
}

TEST(DXFColor, NamesTheBasicColorsOfThePalette) {
    const struct {
        DXFColor color;
        unsigned long word;
    } cases[] = {
        {DXFColor::_BLACK, 0x000000},   {DXFColor::_RED, 0x0000FF},   {DXFColor::_YELLOW, 0x00FFFF},
        {DXFColor::_GREEN, 0x00FF00},   {DXFColor::_CYAN, 0xFFFF00},  {DXFColor::_BLUE, 0xFF0000},
        {DXFColor::_MAGENTA, 0xFF00FF}, {DXFColor::_WHITE, 0x000000}, {DXFColor(8), 0x808080},
        {DXFColor(9), 0xC0C0C0},        {DXFColor(250), 0x545454},    {DXFColor(255), 0xFFFFFF},
    };
    for (const auto& [color, word] : cases) {
        EXPECT_EQ(static_cast<unsigned long>(color), word) << color.Index();
    }
}

TEST(DXFColor, HasAPaletteOfHueGroupsFromBrightToDark) {
    constexpr int brightness[] = {0xFF, 0xA5, 0x7F, 0x4C, 0x26};
    constexpr int halfSaturated[] = {0x7F, 0x52, 0x3F, 0x26, 0x13};
    for (int index = 10; index <= 249; ++index) {
        const RGBColor color = DXFColor(index);
        const int step = index % 10 / 2;
        const bool half = index % 2 == 1;
        EXPECT_EQ(std::max({color.Red(), color.Green(), color.Blue()}), brightness[step]) << index;
        EXPECT_EQ(std::min({color.Red(), color.Green(), color.Blue()}),
                  half ? halfSaturated[step] : 0)
            << index;
        const float away = HSVColor(color).Hue() - static_cast<float>((index / 10 - 1) * 15);
        EXPECT_LT(std::fabs(std::remainder(away, 360.0F)), 16.0F) << index;
    }
}

}  // namespace
