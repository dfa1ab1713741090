// SPDX-License-Identifier: MIT
#include <marlin/records/paper_grid.h>
#include <marlin/settings/section.h>

#include <cmath>
#include <tuple>
#include <utility>

#include <gtest/gtest.h>

namespace {

TEST(PaperGrid, TakesStepsOfAnySizeButBySetters) {
    PaperGrid grid = {};
    EXPECT_EQ(grid.Origin(), GTL::Point2D<float>());
    grid = PaperGrid(7.0, -0.5, {1, 2});
    EXPECT_EQ(grid.YStep(), 0.5);
    EXPECT_EQ(grid.Origin(), GTL::Point2D<float>(1, 2));
    Section section("Paper");
    section["XStep"] << "-0.5 mm";
    EXPECT_TRUE(grid.Read(section).Empty());
    EXPECT_EQ(grid.XStep(), 0.5);
    EXPECT_TRUE(grid.Write(section).Empty());
    const std::pair<double, double> cases[] = {
        {0.5, 1},   {0, 1},       {-3, 3},  {1, 1},
        {-0.25, 1}, {2.75, 2.75}, {NAN, 1}, {-INFINITY, INFINITY}};
    for (const auto& [step, stored] : cases) {
        grid.XStep(step);
        EXPECT_EQ(grid.XStep(), stored) << step;
        grid.YStep(step);
        EXPECT_EQ(grid.YStep(), stored) << step;
    }
    grid.ToggleVisible();
    EXPECT_FALSE(grid.Visible());
    grid.ToggleVisible();
    EXPECT_TRUE(grid.Visible());
}

TEST(PaperGrid, SnapsToTheNearestLine) {
    constexpr double tenth = static_cast<double>(0.1F);
    const std::tuple<double, float, double, double> cases[] = {
        {10, 0, 14.9, 10},     {10, 0, 15, 20},       {10, 0, -15, -20}, {10, 0, -14.9, -10},
        {10, 0, 0, 0},         {2.5, 1, 1, 1},        {2.5, 1, 2.2, 1},  {2.5, 1, 0, 1},
        {2.5, 1, 2.25, 3.5},   {2.5, 1, -0.25, -1.5}, {-4, 0, 7, 8},     {0, 3, 4.7, 4.7},
        {1, 0.1F, 0.2, tenth}, {2, 10, 3, 2},
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

TEST(PaperGrid, LeavesAPositionWhereItHasNoFiniteLineForIt) {
    const std::tuple<double, float> cases[] = {
        {0, 0}, {5e-324, 0}, {1e308, 3e38F}, {INFINITY, 0}, {NAN, 0}, {1, INFINITY}, {1, NAN}};
    for (const auto& [step, origin] : cases) {
        const PaperGrid grid(step, step, {origin, origin});
        for (const double position : {0.0, -4.7, 1e300, 1.7e308}) {
            const GTL::Point2D<double> snapped = grid.SnapToGrid({position, -position});
            EXPECT_TRUE(std::isfinite(snapped.x) && std::isfinite(snapped.y)) << step << origin;
        }
        EXPECT_EQ(grid.SnapToGrid({1.7e308, 0}).x, 1.7e308) << step << ' ' << origin;
    }
}

}  // namespace
