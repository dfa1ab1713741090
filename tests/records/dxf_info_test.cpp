// SPDX-License-Identifier: MIT
#include <marlin/records/dxf_info.h>

#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace {

DXFInfo Pen(const std::string& text) {
    DXFInfo pen;
    pen.FromString("8,1,8,255");
    pen.FromString(text);
    return pen;
}

TEST(DXFInfo, ReadsTextFormsAndWritesThem) {
    // Of the palette 0 is black, 1 and 10 are red, 7 is white, 170 is blue.
    const std::pair<const char*, const char*> cases[] = {
        {"", "0,0,0,0"},
        {"2.5,1", "0,0,0,0"},
        {"wide,red,none", "0,0,0,0"},
        {"-2.5,1,3", "-2.5,10,3,255"},
        {"1e+20,1,-1,blue", "1e+20,10,-1,255"},
        {"2.5,1,3,-1", "2.5,7,3,4294967295"},
        {"0.1,170,3,16711680", "0.1,170,3,16711680"},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(Pen(text).ToString(), expected) << text;
        EXPECT_EQ(Pen(text), Pen(expected)) << text;
    }
}

}  // namespace
