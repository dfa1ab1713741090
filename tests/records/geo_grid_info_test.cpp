// SPDX-License-Identifier: MIT
#include <marlin/records/geo_grid_info.h>

#include <gtest/gtest.h>
#include <support/section_keys.h>

namespace {

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
    EXPECT_EQ(ReadFrom(GeoGridInfo(), "LonInterval", "-2").LonInterval(), 2.0);
    EXPECT_EQ(ReadFrom(GeoGridInfo(), "LatInterval", "-1e-3 deg").LatInterval(), 0.001);
}

TEST(GeoGridInfo, ComparesIntervalsWithATolerance) {
    GeoGridInfo near;
    near.LatInterval(near.LatInterval() + 1e-10);
    near.LonInterval(near.LonInterval() - 1e-10);
    EXPECT_EQ(near, GeoGridInfo());
}

}  // namespace
