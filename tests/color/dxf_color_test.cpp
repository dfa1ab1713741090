// SPDX-License-Identifier: MIT
#include <marlin/base/crc_checksum.h>
#include <marlin/color/dxf_color.h>

#include <string>

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
    EXPECT_TRUE(DXFColor(7) == 7 && 7 == DXFColor(7));
    EXPECT_TRUE(DXFColor(0) != 256) << "no index at all";
}

// The names, and the whole palette as the CRC-32 of its published entries, red first.
TEST(DXFColor, HasThePublishedPalette) {
    const DXFColor named[] = {DXFColor::_BLACK,   DXFColor::_RED,  DXFColor::_YELLOW,
                              DXFColor::_GREEN,   DXFColor::_CYAN, DXFColor::_BLUE,
                              DXFColor::_MAGENTA, DXFColor::_WHITE};
    for (int index = 0; index < 8; ++index) {
        EXPECT_EQ(named[index].Index(), index);
    }
    std::string bytes;
    for (int index = 0; index < 256; ++index) {
        const RGBColor color = DXFColor(index);
        EXPECT_EQ(static_cast<unsigned long>(DXFColor(index)), static_cast<unsigned long>(color));
        for (const int component : {color.Red(), color.Green(), color.Blue()}) {
            bytes += static_cast<char>(static_cast<unsigned char>(component));
        }
    }
    CRCChecksum checksum;
    checksum += bytes;
    EXPECT_EQ(checksum.Value(), 0x0494D22AU);
}

}  // namespace
