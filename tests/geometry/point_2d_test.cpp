// SPDX-License-Identifier: MIT
#include <marlin/geometry/point_2d.h>

#include <limits>
#include <vector>

#include <gtest/gtest.h>

namespace {

using GTL::Point2D;
using GTL::Vector2D;

template <class T>
class EveryPoint2D : public testing::Test {};

using CoordinateTypes = testing::Types<int, float, double>;
TYPED_TEST_SUITE(EveryPoint2D, CoordinateTypes);

TYPED_TEST(EveryPoint2D, ConvertsToAVectorAndBack) {
    const Vector2D<TypeParam> vector = Point2D<TypeParam>(3, -4);
    EXPECT_EQ(vector.y, TypeParam{-4});
    const Point2D<TypeParam> point = vector;
    EXPECT_EQ(point, Point2D<TypeParam>(3, -4));
    EXPECT_EQ(Point2D<TypeParam>(), Point2D<TypeParam>(0, 0));
    EXPECT_EQ(Point2D<TypeParam>(Vector2D<TypeParam>()), Point2D<TypeParam>(0, 0));
}

TYPED_TEST(EveryPoint2D, MovesByVectors) {
    using Point = Point2D<TypeParam>;
    const Vector2D<TypeParam> way(2, 5);
    Point point(7, -7);
    EXPECT_EQ(point + way, Point(9, -2));
    EXPECT_EQ(point - way, Point(5, -12));
    (point += way).X() += TypeParam{1};
    EXPECT_EQ(point, Point(10, -2));
    (point -= way).Y(0);
    EXPECT_EQ(point, Point(8, 0));
}

TYPED_TEST(EveryPoint2D, GivesVectorsForSumsAndDifferencesOfPoints) {
    using Point = Point2D<TypeParam>;
    const Vector2D<TypeParam> sum = Point(7, -7) + Point(2, 5);
    const Vector2D<TypeParam> difference = Point(7, -7) - Point(2, 5);
    static_assert(std::same_as<decltype(Point() + Point()), Vector2D<TypeParam>>);
    EXPECT_EQ(Point(sum), Point(9, -2));
    EXPECT_EQ(Point(difference), Point(5, -12));
}

TYPED_TEST(EveryPoint2D, MeasuresDistances) {
    const Point2D<TypeParam> origin;
    const Point2D<TypeParam> point(3, -4);
    EXPECT_EQ(origin.Dist2D(point, true), 25.0);
    EXPECT_EQ(origin.Dist2D(point, false), 5.0);
    EXPECT_EQ(point.Dist2D(origin, false), 5.0);
    EXPECT_EQ(point.Dist2D(point, false), 0.0);
}

TYPED_TEST(EveryPoint2D, OrdersByXThenByYStrictlyAndWeakly) {
    const std::vector<Point2D<TypeParam>> ascending{{-1, 9}, {0, -2}, {0, 3}, {5, -9}, {5, 0}};
    for (std::size_t i = 0; i < ascending.size(); ++i) {
        for (std::size_t k = 0; k < ascending.size(); ++k) {
            const auto& p = ascending[i];
            const auto& q = ascending[k];
            EXPECT_EQ(p < q, i < k) << i << ' ' << k;
            EXPECT_EQ(p > q, i > k) << i << ' ' << k;
            EXPECT_EQ(p <= q, i <= k) << i << ' ' << k;
            EXPECT_EQ(p >= q, i >= k) << i << ' ' << k;
            EXPECT_EQ(p == q, i == k) << i << ' ' << k;
            EXPECT_EQ(p != q, i != k) << i << ' ' << k;
        }
    }
}

TEST(Point2D, DividesIntegersTowardsZero) {
    const Point2D<int> half = Point2D<int>(7, -7) / 2;
    EXPECT_EQ(half.x, 3);
    EXPECT_EQ(half.y, -3);
    const Point2D<double> exact = Point2D<double>(7, -7) / 2;
    EXPECT_EQ(exact.x, 3.5);
    EXPECT_EQ(exact.y, -3.5);
    EXPECT_EQ((Point2D<float>(1, -1) / 0.0F).y, -std::numeric_limits<float>::infinity());
}

TEST(Point2D, IsEqualWithinTheToleranceAndYetOrdered) {
    const double near = 1.0 + 1e-10;
    const double far = 1.0 + 1e-8;
    const Point2D<double> point(1, 1);
    EXPECT_TRUE(point == Point2D<double>(near, near));
    EXPECT_TRUE(point < Point2D<double>(near, 1));
    EXPECT_TRUE(point < Point2D<double>(1, near));
    EXPECT_FALSE(point == Point2D<double>(far, 1));
    EXPECT_FALSE(point == Point2D<double>(1, far));
}

TEST(Point2D, ComparesLargeIntegersExactly) {
    const int largest = std::numeric_limits<int>::max();
    EXPECT_TRUE(Point2D<int>(largest, 0) != Point2D<int>(largest - 1, 0));
    EXPECT_TRUE(Point2D<int>(0, -largest) != Point2D<int>(0, -largest + 1));
}

TEST(Point2D, SquaresSingleDifferencesInDoublePrecision) {
    // 1e-3 more than 4096 in single precision is 4096 + 2^-10; its square has no single form.
    const Point2D<float> origin(0, 0);
    const Point2D<float> point(4096.001F, 0);
    EXPECT_EQ(origin.Dist2D(point, true), 16777216.0 + 8.0 + 1.0 / 1048576.0);
    // The difference 16777216 - (-1) is rounded to single before it is squared.
    EXPECT_EQ(Point2D<float>(-1, 0).Dist2D({16777216.0F, 0}, false), 16777216.0);
}

TEST(Point2D, IsUnequalToEverythingWithACoordinateThatIsNoNumber) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const Point2D<double> broken(nan, 1);
    EXPECT_FALSE(broken == broken);
    EXPECT_FALSE(broken < Point2D<double>(0, 2));
    EXPECT_FALSE(broken > Point2D<double>(0, 0));
    EXPECT_TRUE(broken <= Point2D<double>(0, 1));
    EXPECT_TRUE(broken >= Point2D<double>(0, 1));
}

struct Mirror final : GTL::Transformation<Point2D<float>> {
    void Apply(Point2D<float>& point) const override { std::swap(point.x, point.y); }
};

TEST(Point2D, HandsItselfToATransformation) {
    Point2D<float> point(1, 2);
    point.Transform(Mirror());
    EXPECT_EQ(point, Point2D<float>(2, 1));
}

}  // namespace
