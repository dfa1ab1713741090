// SPDX-License-Identifier: MIT
#include <marlin/geometry/point_2d.h>

#include <limits>

#include <gtest/gtest.h>
#include <support/order.h>

namespace {

using GTL::Point2D;
using GTL::Vector2D;

template <class T>
class EveryPoint2D : public testing::Test {};

using CoordinateTypes = testing::Types<int, float, double>;
TYPED_TEST_SUITE(EveryPoint2D, CoordinateTypes);

TYPED_TEST(EveryPoint2D, CalculatesAndOrdersByXThenByY) {
    using Point = Point2D<TypeParam>;
    const Vector2D<TypeParam> way = Point(2, 5);
    Point point(7, -7);
    EXPECT_EQ(Point(point + Point(2, 5)), Point(9, -2));
    EXPECT_EQ(Point(point - Point(2, 5)), Point(5, -12));
    (point += way).X() += TypeParam{1};
    EXPECT_EQ(point, Point(10, -2));
    EXPECT_EQ(point -= way, Point(8, -7));
    point.X(3);
    point.Y(-5);
    point.Y() += TypeParam{1};
    EXPECT_EQ(Point(point.X(), point.Y()), Point(3, -4));
    EXPECT_EQ(Point().Dist2D(point, true), 25.0);
    EXPECT_EQ(point.Dist2D({6, 0}, false), 5.0);
    ExpectAscending<Point>({{-1, 9}, {0, -2}, {0, 3}, {5, -9}, {5, 0}});
}

TEST(Point2D, DividesIntegersTowardsZero) {
    EXPECT_EQ(Point2D<int>(7, -7) / 2, Point2D<int>(3, -3));
    EXPECT_EQ(Point2D<double>(7, -7) / 2, Point2D<double>(3.5, -3.5));
    EXPECT_EQ((Point2D<float>(1, -1) / 0.0F).y, -std::numeric_limits<float>::infinity());
}

TEST(Point2D, IsEqualWithinTheToleranceAndYetOrdered) {
    const double near = 1.0 + 1e-10;
    const Point2D<double> point(1, 1);
    EXPECT_EQ(point, Point2D<double>(near, near));
    EXPECT_TRUE(point < Point2D<double>(near, 1) && point < Point2D<double>(1, near));
    ExpectAscending<Point2D<double>>({{1, 1}, {1, 1 + 1e-8}, {1 + 1e-8, 1}});
    const int largest = std::numeric_limits<int>::max();
    ExpectAscending<Point2D<int>>(
        {{0, -largest}, {0, 1 - largest}, {largest - 1, 0}, {largest, 0}});
    const Point2D<double> broken(std::numeric_limits<double>::quiet_NaN(), 1);
    EXPECT_FALSE(broken == broken || broken < Point2D<double>(0, 2) || broken > Point2D<double>());
    EXPECT_TRUE(broken <= Point2D<double>(0, 1) && broken >= Point2D<double>(0, 1));
}

TEST(Point2D, SquaresSingleDifferencesInDoublePrecision) {
    // 1e-3 more than 4096 in single precision is 4096 + 2^-10; its square has no single form.
    const Point2D<float> point(4096.001F, 0);
    EXPECT_EQ(Point2D<float>().Dist2D(point, true), 16777216.0 + 8.0 + 1.0 / 1048576.0);
    // The difference 16777216 - (-1) is rounded to single before it is squared.
    EXPECT_EQ(Point2D<float>(-1, 0).Dist2D({16777216.0F, 0}, false), 16777216.0);
}

}  // namespace
