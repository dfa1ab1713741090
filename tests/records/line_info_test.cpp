// SPDX-License-Identifier: MIT
#include <marlin/records/line_info.h>
#include <marlin/settings/section.h>

#include <string>

#include <gtest/gtest.h>
#include <support/section_keys.h>

namespace {

// What another object's constructor finds before main.
const std::string textOfStaticLine = LineInfo().ToString();

LineInfo Line(float width, unsigned long color, LineInfo::LINESTYLE style, bool enable) {
    LineInfo line;
    line.SetWidth(width);
    line.SetColor(color);
    line.SetStyle(style);
    line.SetEnable(enable);
    return line;
}

std::string WrittenKeys(const LineInfo& line) {
    Section section("Line");
    EXPECT_TRUE(line.Write(section));
    return KeysOf(section);
}

TEST(LineInfo, WritesItsDefaults) {
    EXPECT_EQ(WrittenKeys(LineInfo()),
              "LineColor=0\nLineWidth=0.100000\nLineStyle=Solid Line\nLineTrueColor=0\n"
              "Enable=1\n");
    EXPECT_EQ(textOfStaticLine, "0.1,0,Solid Line,0,1");
}

TEST(LineInfo, WritesThePaletteIndexBesideTheColor) {
    // (1, 2, 255) is nearest to pure blue, index 170.
    EXPECT_EQ(WrittenKeys(Line(2.5F, 0xFF0201UL, LineInfo::DASH_DOT_LINE, false)),
              "LineColor=170\nLineWidth=2.500000\nLineStyle=Dash dot\n"
              "LineTrueColor=16712193\nEnable=0\n");
}

TEST(LineInfo, AppendsKeysToThoseThatAreThere) {
    Section section("Line");
    LineInfo().Write(section);
    Line(9.0F, 0, LineInfo::DOTTED_LINE, true).Write(section);
    EXPECT_EQ(section.NumKeys(), 10);
    LineInfo line;
    EXPECT_TRUE(line.Read(section));
    EXPECT_EQ(line, LineInfo());
}

TEST(LineInfo, ReadsBackWhatItWrote) {
    for (const LineInfo& line : {LineInfo(), Line(0.0F, 0xABCDEFUL, LineInfo::DASHED_LINE, false),
                                 Line(12.25F, 0xFFFFFFFFUL, LineInfo::DOTTED_LINE, true),
                                 Line(1e6F, 1, LineInfo::DASH_DOT_LINE, false)}) {
        Section section("Line");
        line.Write(section);
        LineInfo read = Line(7.0F, 7, LineInfo::SOLID_LINE, true);
        EXPECT_TRUE(read.Read(section));
        EXPECT_EQ(read, line) << line.ToString();
        read.FromString(line.ToString());
        EXPECT_EQ(read, line) << line.ToString();
    }
}

TEST(LineInfo, KeepsOrResetsFieldsOfMissingKeys) {
    const Section empty("Line");
    LineInfo line = Line(3.0F, 0x123456, LineInfo::DOTTED_LINE, false);
    EXPECT_TRUE(line.Read(empty));
    EXPECT_EQ(line, Line(3.0F, 0, LineInfo::SOLID_LINE, false));
}

TEST(LineInfo, ReadsSettingsOfEveryKind) {
    const struct {
        const char* name;
        const char* value;
        LineInfo expected;
    } cases[] = {
        {"LineColor", "5", Line(3.0F, 0xFF0000, LineInfo::SOLID_LINE, false)},
        {"linecolor", "300", Line(3.0F, 0, LineInfo::SOLID_LINE, false)},
        {"LineColor", "-1", Line(3.0F, 0, LineInfo::SOLID_LINE, false)},
        {"LineColor", "red", Line(3.0F, 0, LineInfo::SOLID_LINE, false)},
        {"LineTrueColor", "4294967295", Line(3.0F, 0xFFFFFFFF, LineInfo::SOLID_LINE, false)},
        {"LineTrueColor", "4294967296", Line(3.0F, 0, LineInfo::SOLID_LINE, false)},
        {"LineStyle", "dash DOT", Line(3.0F, 0, LineInfo::DASH_DOT_LINE, false)},
        {"LineStyle", "Dash-dot", Line(3.0F, 0, LineInfo::SOLID_LINE, false)},
        {"Enable", "1", Line(3.0F, 0, LineInfo::SOLID_LINE, true)},
        {"Enable", "yes", Line(3.0F, 0, LineInfo::SOLID_LINE, false)},
        {"LineWidth", "1.5 mm", Line(1.5F, 0, LineInfo::SOLID_LINE, false)},
        {"LineWidth", "1,5", Line(1.0F, 0, LineInfo::SOLID_LINE, false)},
    };
    for (const auto& [name, value, expected] : cases) {
        Section section("Line");
        section[name] << value;
        LineInfo line = Line(3.0F, 0x123456, LineInfo::DOTTED_LINE, false);
        line.Read(section);
        EXPECT_EQ(line, expected) << name << " = " << value;
    }
}

TEST(LineInfo, ReadsANegativeWidthAsItStands) {
    Section section("Line");
    section["LineWidth"] << -2.0F;
    LineInfo line;
    line.Read(section);
    EXPECT_EQ(line.Width(), -2.0F);
    line.SetWidth(-0.5F);
    EXPECT_EQ(line.Width(), 0.5F);
}

TEST(LineInfo, FallsBackToThePaletteColorWithoutTheTrueOne) {
    Section section("Line");
    Line(1.0F, 0x0201FFUL, LineInfo::SOLID_LINE, true).Write(section);
    section.RemoveKey("LineTrueColor");
    LineInfo line;
    line.Read(section);
    EXPECT_EQ(line.Color(), 0x0000FFUL);
}

TEST(LineInfo, ReadsTextForms) {
    const struct {
        const char* text;
        LineInfo expected;
    } cases[] = {
        {"2.5,1,Dashed", Line(2.5F, 0x0000FF, LineInfo::DASHED_LINE, true)},
        {"2.5,1", LineInfo()},
        {"", LineInfo()},
        {",,", LineInfo()},
        {"2.5,1,dot,66051", Line(2.5F, 66051, LineInfo::DOTTED_LINE, true)},
        {"2.5,1,Dot,,0", Line(2.5F, 0x0000FF, LineInfo::DOTTED_LINE, false)},
        {"2.5,1,Dot,4294967295,0,more", Line(2.5F, 0xFFFFFFFF, LineInfo::DOTTED_LINE, false)},
        {"2.5,1,Dot,-1", Line(2.5F, 0xFFFFFFFF, LineInfo::DOTTED_LINE, true)},
        {"x,y,z,w,v", LineInfo()},
        {"1,256,Solid Line", Line(1.0F, 0, LineInfo::SOLID_LINE, true)},
        {"1,-1,Solid Line", Line(1.0F, 0, LineInfo::SOLID_LINE, true)},
    };
    for (const auto& [text, expected] : cases) {
        LineInfo line = Line(8.0F, 8, LineInfo::DASH_DOT_LINE, false);
        line.FromString(text);
        EXPECT_EQ(line, expected) << text;
    }
}

TEST(LineInfo, AssertsAStyleThatItHasNoTextFor) {
    LineInfo line;
    for (const int style : {-1, 4}) {
        line.SetStyle(static_cast<LineInfo::LINESTYLE>(style));
        EXPECT_DEBUG_DEATH(EXPECT_EQ(line.StyleStr(), "Solid Line"), "known");
    }
}

}  // namespace
