// SPDX-License-Identifier: MIT
#include <marlin/records/geo_grid_info.h>

#include <tuple>

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

TEST(GeoGridInfo, WritesEachIntervalWithItsOwnDecimalsAndThePaletteIndexBesideTheColor) {
    // 1/1800 takes 19 decimals to read back, and as a double is 0.000555555555555555555073...
    EXPECT_EQ(WrittenKeys(GeoGridInfo()),
              "LonInterval=0.000555555555555555555\nLatInterval=0.000555555555555555555\n"
              "LatLonStyle=0\nLatLonDecimals=2\nTrailingHemisphereIndicator=0\n"
              "DegMinSecSymbols=0\nGridStyle=1\nGridColor=0\nGridTrueColor=0\n");
    // 0.25 takes 2 decimals; 1/3 is 0.3333333333333333 (16), as a double 0.333...33314829...
    // The nearest index to the color is that of pure red, 10.
    EXPECT_EQ(WrittenKeys(Different()),
              "LonInterval=0.333333333333333315\nLatInterval=0.2500\n"
              "LatLonStyle=3\nLatLonDecimals=-1\nTrailingHemisphereIndicator=1\n"
              "DegMinSecSymbols=1\nGridStyle=0\nGridColor=10\nGridTrueColor=131583\n");
}

TEST(GeoGridInfo, ReadsBackEveryField) {
    ExpectEachChangeKept<GeoGridInfo>({
        [](GeoGridInfo& grid) { grid.GridColor(0x0201FFUL); },
        [](GeoGridInfo& grid) { grid.LatLonStyle(1); },
        [](GeoGridInfo& grid) { grid.LatLonDecimals(3); },
        [](GeoGridInfo& grid) { grid.TrailingHemisphereIndicator(true); },
        [](GeoGridInfo& grid) { grid.DegMinSecSymbols(true); },
        [](GeoGridInfo& grid) { grid.GridStyle(2); },
        [](GeoGridInfo& grid) { grid.LatInterval(1.0); },
        [](GeoGridInfo& grid) { grid.LonInterval(1.0); },
    });
    GeoGridInfo near;
    near.LatInterval(near.LatInterval() + 1e-10);
    near.LonInterval(near.LonInterval() - 1e-10);
    EXPECT_EQ(near, GeoGridInfo());
}

TEST(GeoGridInfo, IntervalsOfEverySizeSurviveWithoutTheirSign) {
    for (const double interval :
         {0.0, 5e-324, 1e-9, 0.1, 1.0 / 3.0, 1.0, 15.0, 123456.789, 1e22, 1.5e300}) {
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
    EXPECT_EQ(ReadFrom(Different(), "LonInterval", "-2").LonInterval(), 2.0);
    EXPECT_EQ(ReadFrom(Different(), "LatInterval", "-1e-3 deg").LatInterval(), 0.001);
    EXPECT_EQ(ReadFrom(Different(), "LatInterval", "none").LatInterval(), 0.25);
}

TEST(GeoGridInfo, ReadsColorsOfEveryKindAndKeepsAllElseWithoutKeys) {
    const std::tuple<const char*, const char*, unsigned long> cases[] = {
        {"Other", "1", 0},
        {"GridColor", "1", 0x0000FF},
        {"GridColor", "5", 0xFF0000},
        {"GridColor", "256", 0},
        {"GridColor", "blue", 0},
        {"GridTrueColor", "66051", 66051},
        {"GridTrueColor", "4294967295", 0xFFFFFFFF},
        {"GridTrueColor", "x", 0}};
    for (const auto& [name, value, color] : cases) {
        GeoGridInfo expected = Different();
        expected.GridColor(color);
        EXPECT_EQ(ReadFrom(Different(), name, value), expected) << name << " = " << value;
    }
}

}  // namespace
