// SPDX-License-Identifier: MIT
#include <marlin/geometry/c_point_mimic.h>

#include <limits>

#include <gtest/gtest.h>

namespace {

constexpr int LARGEST = std::numeric_limits<int>::max();
constexpr int SMALLEST = std::numeric_limits<int>::min();

TEST(CPointMimic, TakesIntegersAsTheyAre) {
    CPointMimic point;
    EXPECT_EQ(point.X(), 0);
    EXPECT_EQ(point.Y(), 0);
    point = CPointMimic(GTL::Point2D<int>(LARGEST, SMALLEST));
    EXPECT_EQ(point.X(), LARGEST);
    EXPECT_EQ(point.Y(), SMALLEST);
    const CPointMimic mimic = CPoint(7, -8);
    const CPoint back = mimic;
    EXPECT_EQ(back, CPoint(7, -8));
}

TEST(CPointMimic, RoundsHalvesUp) {
    const struct {
        double value;
        int expected;
    } cases[] = {{2.5, 3},   {-2.5, -2}, {2.25, 2},  {-2.75, -3}, {-0.5, 0},
                 {0.5, 1},   {-1.5, -1}, {1e-9, 0},  {-1e-9, 0},  {2147483646.5, LARGEST},
                 {-7.0, -7}, {0.75, 1},  {-0.75, -1}};
    for (const auto& [value, expected] : cases) {
        EXPECT_EQ(CPointMimic(GTL::Point2D<double>(value, 0)).X(), expected) << value;
        EXPECT_EQ(CPointMimic(GTL::Point2D<double>(0, value)).Y(), expected) << value;
    }
    const CPointMimic single(GTL::Point2D<float>(-0.4F, 0.6F));
    EXPECT_EQ(single.X(), 0);
    EXPECT_EQ(single.Y(), 1);
    // The single value just below a half stays below it when a half is added.
    EXPECT_EQ(CPointMimic(GTL::Point2D<float>(0.49999997F, 0)).X(), 0);
}

TEST(CPointMimic, KeepsTo32Bits) {
    const double infinity = std::numeric_limits<double>::infinity();
    const struct {
        double value;
        int expected;
    } cases[] = {{2147483647.4, LARGEST},   {2147483647.5, LARGEST}, {1e300, LARGEST},
                 {-2147483648.5, SMALLEST}, {-1e300, SMALLEST},      {infinity, LARGEST},
                 {-infinity, SMALLEST},     {infinity - infinity, 0}};
    for (const auto& [value, expected] : cases) {
        EXPECT_EQ(CPointMimic(GTL::Point2D<double>(value, 0)).X(), expected) << value;
    }
    EXPECT_EQ(CPointMimic(GTL::Point2D<float>(0, 3e9F)).Y(), LARGEST);
}

}  // namespace
