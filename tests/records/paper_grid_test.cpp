// SPDX-License-Identifier: MIT
#include <marlin/records/paper_grid.h>
#include <marlin/settings/section.h>

#include <cmath>
#include <limits>

#include <gtest/gtest.h>
#include <support/section_keys.h>

namespace {

std::string WrittenKeys(const PaperGrid& grid) {
    Section section("Paper");
    EXPECT_TRUE(grid.Write(section).Empty());
    return KeysOf(section);
}

TEST(PaperGrid, WritesItsDefaults) {
    EXPECT_EQ(WrittenKeys(PaperGrid()),
              "XStep=1.000000\nYStep=1.000000\nVisible=1\nSnapOn=1\n"
              "OringinX=0.000000\nOringinY=0.000000\n");
}

TEST(PaperGrid, ReadsBackWhatItWrote) {
    const PaperGrid grid(-0.5, 2.5, {1.25F, -3.0F}, false, true);
    Section section("Paper");
    grid.Write(section);
    PaperGrid read(7.0, 7.0, {7.0F, 7.0F}, true, false);
    EXPECT_TRUE(read.Read(section).Empty());
    EXPECT_EQ(WrittenKeys(read),
              "XStep=0.500000\nYStep=2.500000\nVisible=1\nSnapOn=0\n"
              "OringinX=1.250000\nOringinY=-3.000000\n");
    PaperGrid().Write(section);
    EXPECT_EQ(section.NumKeys(), 12);
}

TEST(PaperGrid, KeepsTheFieldsOfMissingAndUnreadableKeys) {
    Section section("Paper");
    section["XStep"] << "-0.5 mm";
    section["YStep"] << "wide";
    section["Visible"] << "yes";
    section["OringinY"] << "4";
    PaperGrid grid(7.0, 8.0, {1.0F, 2.0F}, false, false);
    EXPECT_TRUE(grid.Read(section).Empty());
    EXPECT_EQ(WrittenKeys(grid),
              "XStep=0.500000\nYStep=8.000000\nVisible=0\nSnapOn=0\n"
              "OringinX=1.000000\nOringinY=4.000000\n");
}

TEST(PaperGrid, SettersKeepStepsAtOneOrAbove) {
    const double infinity = std::numeric_limits<double>::infinity();
    for (const auto& [step, stored] : {std::pair{0.5, 1.0},
                                       {0.0, 1.0},
                                       {-3.0, 3.0},
                                       {1.0, 1.0},
                                       {-0.25, 1.0},
                                       {2.75, 2.75},
                                       {-infinity, infinity},
                                       {std::nan(""), 1.0}}) {
        PaperGrid grid(0.5, -0.25);
        EXPECT_EQ(grid.XStep(), 0.5);
        EXPECT_EQ(grid.YStep(), 0.25);
        grid.XStep(step);
        EXPECT_EQ(grid.XStep(), stored);
        EXPECT_EQ(grid.YStep(), 0.25);
        grid.YStep(step);
        EXPECT_EQ(grid.YStep(), stored);
    }
}

TEST(PaperGrid, ShowsAndHides) {
    PaperGrid grid;
    grid.SnapOn(false);
    grid.ToggleVisible();
    EXPECT_FALSE(grid.Visible());
    grid.ToggleVisible();
    EXPECT_TRUE(grid.Visible());
    grid.Visible(false);
    EXPECT_FALSE(grid.Visible());
    EXPECT_FALSE(grid.SnapOn());
}

TEST(PaperGrid, SnapsToTheNearestLine) {
    const struct {
        double step;
        float origin;
        double position;
        double expected;
    } cases[] = {
        {10.0, 0.0F, 14.9, 10.0},
        {10.0, 0.0F, 15.0, 20.0},
        {10.0, 0.0F, -15.0, -20.0},
        {10.0, 0.0F, -14.9, -10.0},
        {10.0, 0.0F, 0.0, 0.0},
        {2.5, 1.0F, 1.0, 1.0},
        {2.5, 1.0F, 2.2, 1.0},
        {2.5, 1.0F, 0.0, 1.0},
        {2.5, 1.0F, 2.25, 3.5},
        {2.5, 1.0F, -0.25, -1.5},
        {-4.0, 0.0F, 7.0, 8.0},
        {0.0, 3.0F, 4.7, 4.7},
        {1.0, 0.1F, 0.2, static_cast<double>(0.1F)},
    };
    for (const auto& [step, origin, position, expected] : cases) {
        const PaperGrid along(step, 3.0, {origin, 0.5F}, false, true);
        EXPECT_DOUBLE_EQ(along.SnapToGrid({position, 3.4}).x, expected) << position;
        EXPECT_DOUBLE_EQ(along.SnapToGrid({position, 3.4}).y, 3.5) << position;
        const PaperGrid across(3.0, step, {0.5F, origin}, true, false);
        EXPECT_DOUBLE_EQ(across.SnapToGrid({-2.4, position}).x, -2.5) << position;
        EXPECT_DOUBLE_EQ(across.SnapToGrid({-2.4, position}).y, expected) << position;
    }
}

}  // namespace
