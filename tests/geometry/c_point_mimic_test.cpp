// SPDX-License-Identifier: MIT
#include <marlin/geometry/c_point_mimic.h>

#include <limits>
#include <utility>

#include <gtest/gtest.h>

namespace {

TEST(CPointMimic, TakesIntegersAsTheyAreAndRoundsHalvesUpWithin32Bits) {
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    const double infinity = std::numeric_limits<double>::infinity();
    const std::pair<double, int> cases[] = {{2.5, 3},
                                            {-2.5, -2},
                                            {2.25, 2},
                                            {-2.75, -3},
                                            {-0.5, 0},
                                            {-7.0, -7},
                                            {0.75, 1},
                                            {-1e-9, 0},
                                            {1e300, most},
                                            {most - 0.5, most},
                                            {-1e300, least},
                                            {least - 0.5, least},
                                            {infinity, most},
                                            {most - 1.5, most - 1},
                                            {infinity - infinity, 0}};
    for (const auto& [value, rounded] : cases) {
        EXPECT_EQ(CPoint(CPointMimic(GTL::Point2D<double>(value, 7))), CPoint(rounded, 7)) << value;
        EXPECT_EQ(CPoint(CPointMimic(GTL::Point2D<double>(7, value))), CPoint(7, rounded)) << value;
        EXPECT_EQ(CPoint(CPointMimic(GTL::Point2D<int>(rounded, 7))), CPoint(rounded, 7));
        EXPECT_EQ(CPoint(CPointMimic(CPoint(7, rounded))), CPoint(7, rounded));
    }
    // The single value just below a half stays below it when a half is added.
    EXPECT_EQ(CPoint(CPointMimic(GTL::Point2D<float>(0.49999997F, 3e9F))), CPoint(0, most));
    CPointMimic point(1, 2);
    point.X(3);
    EXPECT_EQ(CPoint(point.X(), point.Y()), CPoint(3, 2));
    point.Y(4);
    EXPECT_EQ(CPoint(point), CPoint(3, 4));
}

}  // namespace
