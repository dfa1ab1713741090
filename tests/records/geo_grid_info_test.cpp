// SPDX-License-Identifier: MIT
#include <marlin/records/geo_grid_info.h>
#include <marlin/settings/section.h>

#include <string>

#include <gtest/gtest.h>
#include <support/section_keys.h>

namespace {

GeoGridInfo Different() {
    GeoGridInfo grid;
    grid.GridColor(0x0201FFUL);
    grid.LatLonStyle(3);
    grid.LatLonDecimals(-1);
    grid.TrailingHemisphereIndicator(true);
    grid.DegMinSecSymbols(true);
    grid.GridStyle(0);
    grid.LatInterval(0.25);
    grid.LonInterval(1.0 / 3.0);
    return grid;
}

GeoGridInfo ReadFrom(const char* name, const char* value) {
    Section section("Geo");
    section[name] << value;
    GeoGridInfo grid = Different();
    EXPECT_TRUE(grid.Read(section));
    return grid;
}

TEST(GeoGridInfo, WritesItsDefaults) {
    Section section("Geo");
    EXPECT_TRUE(GeoGridInfo().Write(section));
    // 1/1800 takes 19 decimals to read back, and as a double is 0.000555555555555555555073...
    EXPECT_EQ(KeysOf(section),
              "LonInterval=0.000555555555555555555\nLatInterval=0.000555555555555555555\n"
              "LatLonStyle=0\nLatLonDecimals=2\nTrailingHemisphereIndicator=0\n"
              "DegMinSecSymbols=0\nGridStyle=1\nGridColor=0\nGridTrueColor=0\n");
}

TEST(GeoGridInfo, WritesEachIntervalWithItsOwnDecimals) {
    Section section("Geo");
    Different().Write(section);
    // 0.25 takes 2 decimals; 1/3 is 0.3333333333333333 (16), as a double 0.333...33314829...
    EXPECT_EQ(section["LatInterval"].GetValue(), "0.2500");
    EXPECT_EQ(section["LonInterval"].GetValue(), "0.333333333333333315");
    GeoGridInfo grid;
    EXPECT_TRUE(grid.Read(section));
    EXPECT_EQ(grid, Different());
    EXPECT_EQ(grid.LonInterval(), 1.0 / 3.0);
}

TEST(GeoGridInfo, IntervalsOfEverySizeSurvive) {
    for (const double interval : {0.0, 5e-324, 1e-9, 0.1, 1.0, 15.0, 123456.789, 1e22, 1.5e300}) {
        GeoGridInfo grid;
        grid.LatInterval(-interval);
        grid.LonInterval(interval);
        Section section("Geo");
        grid.Write(section);
        GeoGridInfo read;
        read.Read(section);
        EXPECT_EQ(read.LatInterval(), interval);
        EXPECT_EQ(read.LonInterval(), interval);
    }
}

TEST(GeoGridInfo, WithoutKeysKeepsAllButTheColor) {
    GeoGridInfo expected = Different();
    expected.GridColor(0);
    EXPECT_EQ(ReadFrom("Other", "1"), expected);
}

TEST(GeoGridInfo, ReadsColorsOfEveryKind) {
    const struct {
        const char* name;
        const char* value;
        unsigned long color;
    } cases[] = {
        {"GridColor", "1", 0x0000FF},
        {"GridColor", "5", 0xFF0000},
        {"GridColor", "256", 0},
        {"GridColor", "-1", 0},
        {"GridColor", "blue", 0},
        {"GridTrueColor", "66051", 66051},
        {"GridTrueColor", "4294967295", 0xFFFFFFFF},
        {"GridTrueColor", "x", 0},
    };
    for (const auto& [name, value, color] : cases) {
        EXPECT_EQ(ReadFrom(name, value).GridColor(), color) << name << " = " << value;
    }
}

TEST(GeoGridInfo, TheExactColorWinsOverThePalette) {
    Section section("Geo");
    Different().Write(section);
    EXPECT_EQ(section["GridColor"].GetValue(), "10");  // the nearest pure red
    GeoGridInfo grid;
    grid.Read(section);
    EXPECT_EQ(grid.GridColor(), 0x0201FFUL);
    section.RemoveKey("GridTrueColor");
    grid.Read(section);
    EXPECT_EQ(grid.GridColor(), 0x0000FFUL);
}

TEST(GeoGridInfo, IntervalsHaveNoSign) {
    GeoGridInfo grid;
    grid.LatInterval(-0.5);
    EXPECT_EQ(grid.LatInterval(), 0.5);
    EXPECT_EQ(ReadFrom("LonInterval", "-2").LonInterval(), 2.0);
    EXPECT_EQ(ReadFrom("LatInterval", "-1e-3 deg").LatInterval(), 0.001);
    EXPECT_EQ(ReadFrom("LatInterval", "none").LatInterval(), 0.25);
}

TEST(GeoGridInfo, IsEqualWithinTheToleranceOfItsIntervalsOnly) {
    GeoGridInfo near;
    near.LatInterval(near.LatInterval() + 1e-10);
    near.LonInterval(near.LonInterval() - 1e-10);
    EXPECT_EQ(near, GeoGridInfo());
    void (*const changes[])(GeoGridInfo&) = {
        [](GeoGridInfo& grid) { grid.GridColor(1); },
        [](GeoGridInfo& grid) { grid.LatLonStyle(1); },
        [](GeoGridInfo& grid) { grid.LatLonDecimals(3); },
        [](GeoGridInfo& grid) { grid.TrailingHemisphereIndicator(true); },
        [](GeoGridInfo& grid) { grid.DegMinSecSymbols(true); },
        [](GeoGridInfo& grid) { grid.GridStyle(2); },
        [](GeoGridInfo& grid) { grid.LatInterval(1.0); },
        [](GeoGridInfo& grid) { grid.LonInterval(1.0); },
    };
    for (const auto change : changes) {
        GeoGridInfo grid;
        change(grid);
        EXPECT_FALSE(grid == GeoGridInfo()) << &change - changes;
    }
}

}  // namespace
