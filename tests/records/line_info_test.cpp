// SPDX-License-Identifier: MIT
#include <marlin/records/line_info.h>

#include <string>
#include <tuple>
#include <utility>

#include <gtest/gtest.h>
#include <support/section_keys.h>

namespace {

// What another object's constructor finds before main.
const std::string textOfStaticLine = LineInfo().ToString();

LineInfo Line(const std::string& text) {
    LineInfo line;
    line.FromString("8,1,Dash dot,255,0");
    line.FromString(text);
    return line;
}

TEST(LineInfo, ReadsTextFormsAndWritesThem) {
    const std::string plain = "0.1,0,Solid Line,0,1";
    EXPECT_EQ(textOfStaticLine, plain);
    // Of the palette 0 is black, 1 and 10 are red, 7 is white, 90 green, 170 blue.
    const std::pair<const char*, std::string> cases[] = {
        {"2.5,1,Dashed", "2.5,10,Dashed,255,1"},
        {"2.5,1", plain},
        {"", plain},
        {",,", plain},
        {"x,y,z,w,v", plain},
        {"1,256,Solid Line", "1,0,Solid Line,0,1"},
        {"2.5,1,dot,16711680", "2.5,170,Dot,16711680,1"},
        {"1e+20,1,DASH DOT,,0", "1e+20,10,Dash dot,255,0"},
        {"2.5,1,Dot,4294967295,0,more", "2.5,7,Dot,4294967295,0"},
        {"-2.5,1,Dot,-1", "-2.5,7,Dot,4294967295,1"},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(Line(text).ToString(), expected) << text;
        EXPECT_EQ(Line(text), Line(expected)) << text;
    }
}

TEST(LineInfo, ReadsSettingsOfEveryKind) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"LineColor", "5", "3,170,Solid Line,16711680,0"},
        {"linecolor", "256", "3,0,Solid Line,0,0"},
        {"LineColor", "-1", "3,0,Solid Line,0,0"},
        {"LineColor", "99999999999", "3,0,Solid Line,0,0"},
        {"LineTrueColor", "4294967295", "3,7,Solid Line,4294967295,0"},
        {"LineTrueColor", "4294967296", "3,0,Solid Line,0,0"},
        {"LineStyle", "dash DOT", "3,0,Dash dot,0,0"},
        {"LineStyle", "Dash-dot", "3,0,Solid Line,0,0"},
        {"LineWidth", "-1.5 mm", "-1.5,0,Solid Line,0,0"},
    };
    for (const auto& [name, value, expected] : cases) {
        const LineInfo line = Line("3,90,Dot,65280,0");
        EXPECT_EQ(ReadFrom(line, name, value).ToString(), expected) << name << " = " << value;
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
