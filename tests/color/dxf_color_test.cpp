// SPDX-License-Identifier: MIT
#include <marlin/base/crc_checksum.h>
#include <marlin/color/dxf_color.h>

#include <string>

#include <gtest/gtest.h>

namespace {

constinit const DXFColor constantInitialised = DXFColor::_WHITE;

// Midway between the grays 84 and 118 the first one is taken; a saturation of a half is a full one;
// 204, 153, 102 and 51 are values of 0.8 down to 0.2; (255, 31, 0) lies at 7.29 degrees, 32
// at 7.53.
TEST(DXFColor, ChoosesTheIndexThatTheRuleGivesByHand) {
    const struct {
        RGBColor color;
        int index;
    } cases[] = {{{0, 0, 0}, 0},         {{255, 255, 255}, 7},   {{250, 250, 250}, 7},
                 {{1, 1, 1}, 250},       {{100, 100, 100}, 250}, {{101, 101, 101}, 250},
                 {{128, 128, 128}, 251}, {{255, 0, 4}, 10},      {{255, 128, 128}, 11},
                 {{254, 127, 127}, 10},  {{205, 0, 0}, 10},      {{204, 0, 0}, 12},
                 {{154, 0, 0}, 12},      {{153, 0, 0}, 14},      {{103, 0, 0}, 14},
                 {{102, 0, 0}, 16},      {{52, 0, 0}, 16},       {{51, 0, 0}, 18},
                 {{255, 0, 64}, 240},    {{255, 31, 0}, 10},     {{255, 32, 0}, 20}};
    for (const auto& [color, index] : cases) {
        EXPECT_EQ(DXFColor(color).Index(), index)
            << color.Red() << ' ' << color.Green() << ' ' << color.Blue();
    }
    EXPECT_EQ(DXFColor(0xFF0000FFUL).Index(), 10) << "the top byte is ignored";
    for (int index = 10; index < 250; index += 10) {  // the brightest color of each hue
        EXPECT_EQ(DXFColor(static_cast<unsigned long>(DXFColor(index))).Index(), index);
    }
}

TEST(DXFColor, IsAnIndexThatIsZeroOutsideThePalette) {
    for (const int index : {-1, 256, 300, -2147483647 - 1, 2147483647}) {
        EXPECT_EQ(DXFColor(index).Index(), 0) << index;
    }
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
    CRCChecksum checksum;
    for (int index = 0; index < 256; ++index) {
        EXPECT_TRUE(index >= 8 || named[index].Index() == index) << index;
        const RGBColor color = DXFColor(index);
        EXPECT_EQ(static_cast<unsigned long>(DXFColor(index)), static_cast<unsigned long>(color));
        for (const int component : {color.Red(), color.Green(), color.Blue()}) {
            checksum += std::string(1, static_cast<char>(component));
        }
    }
    EXPECT_EQ(checksum.Value(), 0x0494D22AU);
}

}  // namespace
