// SPDX-License-Identifier: MIT
#include <marlin/records/grid_info.h>

#include <string>
#include <utility>

#include <gtest/gtest.h>
#include <support/section_keys.h>

namespace {

std::string StyleWrittenFor(int style) {
    GridInfo grid;
    grid.Style = style;
    Section section("Grid");
    EXPECT_TRUE(grid.Write(section));
    return section["GridStyle"].GetValue();
}

TEST(GridInfo, ComparesIntervalsWithATolerance) {
    GridInfo near;
    near.XInterval += 1e-10;
    near.YInterval -= 1e-10;
    EXPECT_EQ(near, GridInfo());
}

TEST(GridInfo, FindsTheWordsOfAStyle) {
    const std::pair<const char*, int> cases[] = {
        {"", 0},
        {"Y_LINES,POINTS", 5},
        {"POINTS", 1},
        {"X_MINORTICKS,", 32},
        {"x_ticks", 0},
        {"LONG_NORTHTICK,X_LINES", 130},
        {"X_TICKS2", 0},
        {"POINTS,POINTS", 1},
        {"248", 0},
        {"GRID,X_TICKS,,", 8},
        {" X_LINES, Y_LINES\t", 6},
        {"X_ LINES", 0},
    };
    for (const auto& [text, style] : cases) {
        EXPECT_EQ(ReadFrom(GridInfo(), "GridStyle", text).Style, style) << text;
    }
}

TEST(GridInfo, EveryStyleOfEightBitsSurvives) {
    for (int style = 0; style < 256; ++style) {
        EXPECT_EQ(ReadFrom(GridInfo(), "GridStyle", StyleWrittenFor(style)).Style, style);
    }
    EXPECT_EQ(StyleWrittenFor(0), "");
    EXPECT_EQ(StyleWrittenFor(0x7FFFFF02), "X_LINES");
    EXPECT_EQ(StyleWrittenFor(255),
              "POINTS,X_LINES,Y_LINES,X_TICKS,Y_TICKS,X_MINORTICKS,Y_MINORTICKS,LONG_NORTHTICK");
}

TEST(GridInfo, TakesMarksWithAndWithoutQuotes) {
    const std::pair<const char*, const char*> cases[] = {
        {"E", "E"}, {"\"E\"", "E"}, {"\"\"\" E\"\"", " E"}, {"5\" E", "5\" E"}, {"\"", ""},
    };
    for (const auto& [value, mark] : cases) {
        EXPECT_EQ(ReadFrom(GridInfo(), "EastingMark", value).EastingMark, mark) << value;
    }
}

}  // namespace
