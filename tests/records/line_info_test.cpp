// SPDX-License-Identifier: MIT
#include <marlin/records/line_info.h>

#include <string>
#include <tuple>
#include <utility>

#include <gtest/gtest.h>
#include <support/section_keys.h>

namespace {

using enum LineInfo::LINESTYLE;

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

TEST(LineInfo, ReadsBackItsText) {
    EXPECT_EQ(textOfStaticLine, "0.1,0,Solid Line,0,1");
    for (const LineInfo& line :
         {LineInfo(), Line(0.0F, 0xABCDEFUL, DASHED_LINE, false),
          Line(12.25F, 0xFFFFFFFFUL, DOTTED_LINE, true), Line(1e6F, 1, DASH_DOT_LINE, false)}) {
        LineInfo read = Line(7.0F, 7, SOLID_LINE, true);
        read.FromString(line.ToString());
        EXPECT_EQ(read, line) << line.ToString();
    }
}

TEST(LineInfo, ReadsSettingsOfEveryKind) {
    const std::tuple<const char*, const char*, LineInfo> cases[] = {
        {"LineColor", "5", Line(3.0F, 0xFF0000, SOLID_LINE, false)},
        {"linecolor", "300", Line(3.0F, 0, SOLID_LINE, false)},
        {"LineTrueColor", "4294967295", Line(3.0F, 0xFFFFFFFF, SOLID_LINE, false)},
        {"LineTrueColor", "4294967296", Line(3.0F, 0, SOLID_LINE, false)},
        {"LineStyle", "dash DOT", Line(3.0F, 0, DASH_DOT_LINE, false)},
        {"LineStyle", "Dash-dot", Line(3.0F, 0, SOLID_LINE, false)},
        {"LineWidth", "1.5 mm", Line(1.5F, 0, SOLID_LINE, false)},
    };
    for (const auto& [name, value, expected] : cases) {
        const LineInfo line = Line(3.0F, 0x123456, DOTTED_LINE, false);
        EXPECT_EQ(ReadFrom(line, name, value), expected) << name << " = " << value;
    }
    // Only the setter takes the sign away.
    EXPECT_EQ(ReadFrom(LineInfo(), "LineWidth", "-2").Width(), -2.0F);
}

TEST(LineInfo, ReadsTextForms) {
    const std::pair<const char*, LineInfo> cases[] = {
        {"2.5,1,Dashed", Line(2.5F, 0x0000FF, DASHED_LINE, true)},
        {"2.5,1", LineInfo()},
        {"", LineInfo()},
        {",,", LineInfo()},
        {"2.5,1,dot,66051", Line(2.5F, 66051, DOTTED_LINE, true)},
        {"2.5,1,Dot,,0", Line(2.5F, 0x0000FF, DOTTED_LINE, false)},
        {"2.5,1,Dot,4294967295,0,more", Line(2.5F, 0xFFFFFFFF, DOTTED_LINE, false)},
        {"2.5,1,Dot,-1", Line(2.5F, 0xFFFFFFFF, DOTTED_LINE, true)},
        {"x,y,z,w,v", LineInfo()},
        {"1,256,Solid Line", Line(1.0F, 0, SOLID_LINE, true)},
    };
    for (const auto& [text, expected] : cases) {
        LineInfo line = Line(8.0F, 8, DASH_DOT_LINE, false);
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
