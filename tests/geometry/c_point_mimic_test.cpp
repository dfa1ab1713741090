// SPDX-License-Identifier: MIT
#include <marlin/geometry/c_point_mimic.h>

#include <limits>
#include <utility>

#include <gtest/gtest.h>

namespace {

constexpr int LARGEST = std::numeric_limits<int>::max();
constexpr int SMALLEST = std::numeric_limits<int>::min();

TEST(CPointMimic, TakesIntegersAsTheyAre) {
    const GTL::Point2D<int> point(LARGEST, SMALLEST);
    EXPECT_EQ(CPoint(CPointMimic(point)), CPoint(LARGEST, SMALLEST));
    EXPECT_EQ(CPoint(CPointMimic(CPoint(7, -8))), CPoint(7, -8));
}

TEST(CPointMimic, RoundsHalvesUpAndKeepsTo32Bits) {
    const double infinity = std::numeric_limits<double>::infinity();
    const std::pair<double, int> cases[] = {
        {2.5, 3},   {-2.5, -2}, {2.25, 2},  {-2.75, -3}, {-0.5, 0}, {0.5, 1},
        {-1.5, -1}, {1e-9, 0},  {-1e-9, 0}, {-7.0, -7},  {0.75, 1}, {-0.75, -1},
    };
    const std::pair<double, int> limits[] = {
        {2147483646.5, LARGEST},   {2147483647.4, LARGEST}, {2147483647.5, LARGEST},
        {-2147483648.5, SMALLEST}, {1e300, LARGEST},        {infinity, LARGEST},
        {-1e300, SMALLEST},        {-infinity, SMALLEST},   {infinity - infinity, 0},
    };
    for (const auto& [value, expected] : cases) {
        EXPECT_EQ(CPointMimic(GTL::Point2D<double>(value, 0)).X(), expected) << value;
        EXPECT_EQ(CPointMimic(GTL::Point2D<double>(0, value)).Y(), expected) << value;
    }
    for (const auto& [value, expected] : limits) {
        EXPECT_EQ(CPointMimic(GTL::Point2D<double>(value, 0)).X(), expected) << value;
    }
    EXPECT_EQ(CPointMimic(GTL::Point2D<float>(0, 3e9F)).Y(), LARGEST);
    // The single value just below a half stays below it when a half is added.
    EXPECT_EQ(CPointMimic(GTL::Point2D<float>(0.49999997F, 0)).X(), 0);
}

}  // namespace
