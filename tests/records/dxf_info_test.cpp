// SPDX-License-Identifier: MIT
#include <marlin/records/dxf_info.h>
#include <marlin/settings/section.h>

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

TEST(DXFInfo, WritesAndReadsBack) {
    Section section("Pen");
    const DXFInfo pen = Pen(-3.0F, 0x00FF01UL, -7);
    EXPECT_TRUE(pen.Write(section));
    EXPECT_EQ(KeysOf(section),
              "DXFLineColor=90\nDXFLineTrueColor=65281\nDXFLineWidth=3.000000\nDXFColorMode=-7\n");
    DXFInfo read;
    EXPECT_TRUE(read.Read(section));
    EXPECT_EQ(read, pen);
    section.RemoveKey("DXFLineTrueColor");
    read.Read(section);
    EXPECT_EQ(read, Pen(3.0F, 0x00FF00UL, -7));
}

TEST(DXFInfo, ResetsTheColorAloneWhenReadFromNothing) {
    DXFInfo pen = Pen(2.0F, 0x123456, 4);
    EXPECT_TRUE(pen.Read(Section("Pen")));
    EXPECT_EQ(pen, Pen(2.0F, 0, 4));
}

TEST(DXFInfo, ReadsAnIndexOutsideThePaletteAsBlack) {
    for (const char* index : {"300", "-1", "256", "99999999999"}) {
        Section section("Pen");
        section["DXFLineColor"] << index;
        DXFInfo pen = Pen(0.0F, 0x123456, 0);
        pen.Read(section);
        EXPECT_EQ(pen.Color(), 0UL) << index;
    }
}

TEST(DXFInfo, GoesThroughItsTextForm) {
    EXPECT_EQ(Pen(2.5F, 0xFF0000UL, 3).ToString(), "2.5,170,3,16711680");
    for (const DXFInfo& pen : {DXFInfo(), Pen(0.1F, 0xFFFFFFFFUL, -1), Pen(1e20F, 77, 2)}) {
        DXFInfo read = Pen(1.0F, 1, 1);
        read.FromString(pen.ToString());
        EXPECT_EQ(read, pen) << pen.ToString();
    }
}

TEST(DXFInfo, ReadsTextForms) {
    const struct {
        const char* text;
        DXFInfo expected;
    } cases[] = {
        {"", DXFInfo()},
        {"2.5,1", DXFInfo()},
        {"2.5,1,3", Pen(2.5F, 0x0000FF, 3)},
        {"2.5,256,3", Pen(2.5F, 0, 3)},
        {"2.5,1,3,blue", Pen(2.5F, 0x0000FF, 3)},
        {"2.5,1,3,-2", Pen(2.5F, 0xFFFFFFFE, 3)},
        {"2.5,1,3,4294967295", Pen(2.5F, 0xFFFFFFFF, 3)},
        {"wide,red,none", DXFInfo()},
    };
    for (const auto& [text, expected] : cases) {
        DXFInfo pen = Pen(8.0F, 8, 8);
        pen.FromString(text);
        EXPECT_EQ(pen, expected) << text;
    }
}

}  // namespace
