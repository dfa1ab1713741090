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

TEST(GridInfo, WritesItsDefaults) {
    EXPECT_EQ(WrittenKeys(GridInfo()),
              "XInterval=50.000000\nYInterval=50.000000\n"
              "GridStyle=X_TICKS,Y_TICKS,X_MINORTICKS,Y_MINORTICKS,LONG_NORTHTICK\n"
              "TickSize=2.500000\nMinorTickSize=1.000000\nEastingMark=\"\"\nNorthingMark=\"\"\n");
}

TEST(GridInfo, ReadsBackEveryFieldBlanksOfMarksIncluded) {
    ExpectEachChangeKept<GridInfo>({
        [](GridInfo& grid) { grid.XInterval += 1e-6; },
        [](GridInfo& grid) { grid.YInterval = -0.25; },
        [](GridInfo& grid) { grid.Style ^= 1; },
        [](GridInfo& grid) { grid.TickSize = 2.500001F; },
        [](GridInfo& grid) { grid.MinorTickSize = -1.5F; },
        [](GridInfo& grid) { grid.EastingMark = " mE"; },
        [](GridInfo& grid) { grid.NorthingMark = "m N "; },
    });
    GridInfo near;
    near.XInterval += 1e-10;
    near.YInterval -= 1e-10;
    EXPECT_EQ(near, GridInfo());
}

TEST(GridInfo, WithoutKeysKeepsSizesAndClearsStyleAndMarks) {
    GridInfo expected;
    expected.XInterval = 12.5;
    expected.YInterval = -0.25;
    expected.TickSize = 3.0F;
    expected.MinorTickSize = -1.5F;
    expected.Style = 0;
    GridInfo grid = expected;
    grid.Style = 7;
    grid.EastingMark = " mE";
    grid.NorthingMark = "m N ";
    EXPECT_EQ(ReadFrom(grid, "Other", "1"), expected);
}

TEST(GridInfo, FindsTheWordsOfAStyle) {
    const std::pair<const char*, int> cases[] = {
        {"", 0},        {"Y_LINES,POINTS", 5},           {"POINTS", 1},   {"X_MINORTICKS,", 32},
        {"x_ticks", 0}, {"LONG_NORTHTICK,X_LINES", 130}, {"X_TICKS2", 0}, {"POINTS,POINTS", 1},
        {"248", 0},     {"GRID,X_TICKS,,", 8},
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
