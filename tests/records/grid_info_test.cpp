// SPDX-License-Identifier: MIT
#include <marlin/records/grid_info.h>
#include <marlin/settings/section.h>

#include <string>

#include <gtest/gtest.h>
#include <support/section_keys.h>

namespace {

GridInfo Different() {
    GridInfo grid;
    grid.XInterval = 12.5;
    grid.YInterval = -0.25;
    grid.Style = 7;
    grid.TickSize = 3.0F;
    grid.MinorTickSize = -1.5F;
    grid.EastingMark = " mE";
    grid.NorthingMark = "m N ";
    return grid;
}

int StyleReadFrom(const char* text) {
    Section section("Grid");
    section["GridStyle"] << text;
    GridInfo grid;
    EXPECT_TRUE(grid.Read(section));
    return grid.Style;
}

std::string StyleWrittenFor(int style) {
    GridInfo grid;
    grid.Style = style;
    Section section("Grid");
    EXPECT_TRUE(grid.Write(section));
    return section["GridStyle"].GetValue();
}

TEST(GridInfo, WritesItsDefaults) {
    Section section("Grid");
    EXPECT_TRUE(GridInfo().Write(section));
    EXPECT_EQ(KeysOf(section),
              "XInterval=50.000000\nYInterval=50.000000\n"
              "GridStyle=X_TICKS,Y_TICKS,X_MINORTICKS,Y_MINORTICKS,LONG_NORTHTICK\n"
              "TickSize=2.500000\nMinorTickSize=1.000000\nEastingMark=\"\"\nNorthingMark=\"\"\n");
}

TEST(GridInfo, ReadsBackWhatItWroteBlanksOfMarksIncluded) {
    Section section("Grid");
    Different().Write(section);
    EXPECT_EQ(section["EastingMark"].GetValue(), "\" mE\"");
    GridInfo grid;
    EXPECT_TRUE(grid.Read(section));
    EXPECT_EQ(grid, Different());
    EXPECT_EQ(grid.NorthingMark, "m N ");
}

TEST(GridInfo, AppendsKeysToThoseThatAreThere) {
    Section section("Grid");
    GridInfo().Write(section);
    Different().Write(section);
    EXPECT_EQ(section.NumKeys(), 14);
    GridInfo grid = Different();
    grid.Read(section);
    EXPECT_EQ(grid, GridInfo());
}

TEST(GridInfo, WithoutKeysKeepsSizesAndClearsStyleAndMarks) {
    GridInfo expected = Different();
    expected.Style = 0;
    expected.EastingMark.clear();
    expected.NorthingMark.clear();
    GridInfo grid = Different();
    EXPECT_TRUE(grid.Read(Section("Grid")));
    EXPECT_EQ(grid, expected);
}

TEST(GridInfo, FindsTheWordsOfAStyle) {
    const struct {
        const char* text;
        int style;
    } cases[] = {
        {"", 0},
        {"POINTS", 1},
        {"Y_LINES,POINTS", 5},
        {"X_MINORTICKS", 32},
        {"LONG_NORTHTICK,X_LINES", 130},
        {"POINTS,POINTS", 1},
        {"GRID,X_TICKS,,", 8},
        {"x_ticks", 0},
        {"X_TICKS2", 0},
        {"248", 0},
    };
    for (const auto& [text, style] : cases) {
        EXPECT_EQ(StyleReadFrom(text), style) << text;
    }
}

TEST(GridInfo, EveryStyleOfEightBitsSurvives) {
    for (int style = 0; style < 256; ++style) {
        EXPECT_EQ(StyleReadFrom(StyleWrittenFor(style).c_str()), style);
    }
    EXPECT_EQ(StyleWrittenFor(0), "");
    EXPECT_EQ(StyleWrittenFor(0x7FFFFF02), "X_LINES");
    EXPECT_EQ(StyleWrittenFor(255),
              "POINTS,X_LINES,Y_LINES,X_TICKS,Y_TICKS,X_MINORTICKS,Y_MINORTICKS,LONG_NORTHTICK");
}

TEST(GridInfo, TakesMarksWithAndWithoutQuotes) {
    const struct {
        const char* value;
        const char* mark;
    } cases[] = {
        {"E", "E"}, {"\"E\"", "E"}, {"\"\"\" E\"\"", " E"}, {"5\" E", "5\" E"}, {"\"", ""},
    };
    for (const auto& [value, mark] : cases) {
        Section section("Grid");
        section["EastingMark"] << value;
        GridInfo grid;
        grid.Read(section);
        EXPECT_EQ(grid.EastingMark, mark) << value;
    }
}

TEST(GridInfo, IsEqualWithinTheToleranceOfItsIntervalsOnly) {
    GridInfo near;
    near.XInterval += 1e-10;
    near.YInterval -= 1e-10;
    EXPECT_EQ(near, GridInfo());
    void (*const changes[])(GridInfo&) = {
        [](GridInfo& grid) { grid.XInterval += 1e-6; },
        [](GridInfo& grid) { grid.YInterval += 1e-6; },
        [](GridInfo& grid) { grid.Style ^= 1; },
        [](GridInfo& grid) { grid.TickSize = 2.5000002F; },
        [](GridInfo& grid) { grid.MinorTickSize = 1.0000001F; },
        [](GridInfo& grid) { grid.EastingMark = "e"; },
        [](GridInfo& grid) { grid.NorthingMark = "n"; },
    };
    for (const auto change : changes) {
        GridInfo grid;
        change(grid);
        EXPECT_FALSE(grid == GridInfo()) << &change - changes;
    }
}

}  // namespace
