// SPDX-License-Identifier: MIT
#include <marlin/records/dxf_info.h>

#include <utility>

#include <gtest/gtest.h>
#include <support/section_keys.h>

namespace {

DXFInfo Pen(float width, unsigned long color, int mode) {
    DXFInfo pen;
    pen.SetWidth(width);
    pen.SetColor(color);
    pen.SetColorMode(mode);
    return pen;
}

TEST(DXFInfo, ReadsBackItsText) {
    EXPECT_EQ(Pen(-2.5F, 0xFF0000UL, 3).ToString(), "2.5,170,3,16711680");
    for (const DXFInfo& pen : {DXFInfo(), Pen(0.1F, 0xFFFFFFFFUL, -1), Pen(1e20F, 77, 2)}) {
        DXFInfo read = Pen(1.0F, 1, 1);
        read.FromString(pen.ToString());
        EXPECT_EQ(read, pen) << pen.ToString();
    }
}

TEST(DXFInfo, ReadsPaletteIndicesThatThereAre) {
    EXPECT_EQ(ReadFrom(DXFInfo(), "DXFLineColor", "90").Color(), 0x00FF00UL);
    for (const char* index : {"300", "-1", "256", "99999999999"}) {
        EXPECT_EQ(ReadFrom(Pen(2.0F, 0x123456, 4), "DXFLineColor", index), Pen(2.0F, 0, 4))
            << index;
    }
}

TEST(DXFInfo, ReadsTextForms) {
    const std::pair<const char*, DXFInfo> cases[] = {
        {"", DXFInfo()},
        {"2.5,1", DXFInfo()},
        {"2.5,1,3", Pen(2.5F, 0x0000FF, 3)},
        {"2.5,1,3,blue", Pen(2.5F, 0x0000FF, 3)},
        {"2.5,1,3,-2", Pen(2.5F, 0xFFFFFFFE, 3)},
        {"wide,red,none", DXFInfo()},
    };
    for (const auto& [text, expected] : cases) {
        DXFInfo pen = Pen(8.0F, 8, 8);
        pen.FromString(text);
        EXPECT_EQ(pen, expected) << text;
    }
}

}  // namespace
