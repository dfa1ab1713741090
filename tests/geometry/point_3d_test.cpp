// SPDX-License-Identifier: MIT
#include <marlin/geometry/point_3d.h>

#include <limits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

using GTL::Point2D;
using GTL::Point3D;
using GTL::Vector2D;
using GTL::Vector3D;

template <class T>
class EveryPoint3D : public testing::Test {};

using RealTypes = testing::Types<float, double>;
TYPED_TEST_SUITE(EveryPoint3D, RealTypes);

TYPED_TEST(EveryPoint3D, IsMadeFromAPointOfThePlaneOrAVector) {
    using Point = Point3D<TypeParam>;
    EXPECT_EQ(Point(), Point(0, 0, 0));
    EXPECT_EQ(Point(Point2D<TypeParam>(4, 5), 6), Point(4, 5, 6));
    EXPECT_EQ(Point(Vector3D<TypeParam>(7, 8, 9)), Point(7, 8, 9));
    Point assigned;
    assigned = Vector3D<TypeParam>(1, 2, 3);
    EXPECT_EQ(assigned, Point(1, 2, 3));
    assigned = {4, 5, 6};
    EXPECT_EQ(assigned, Point(4, 5, 6));
}

TYPED_TEST(EveryPoint3D, ViewedInThePlaneIsTheSameObject) {
    using Point = Point3D<TypeParam>;
    Point point(1, 2, 3);
    Point2D<TypeParam>& view = point;
    view = Point2D<TypeParam>(10, 20);
    EXPECT_EQ(point, Point(10, 20, 3));
    view += Vector2D<TypeParam>(1, 1);
    EXPECT_EQ(point, Point(11, 21, 3));
    const Point2D<TypeParam>& constView = std::as_const(point);
    EXPECT_EQ(&constView, &view);
}

TYPED_TEST(EveryPoint3D, ConvertsToVectorsAndToThePlane) {
    const Point3D<TypeParam> point(1, 2, 3);
    const Vector3D<TypeParam> all = point;
    const Vector2D<TypeParam> flat = point;
    const Point2D<TypeParam> dropped = point;
    EXPECT_EQ(Point3D<TypeParam>(all), point);
    EXPECT_EQ(Point2D<TypeParam>(flat), Point2D<TypeParam>(1, 2));
    EXPECT_EQ(dropped, Point2D<TypeParam>(1, 2));
}

TYPED_TEST(EveryPoint3D, Calculates) {
    using Point = Point3D<TypeParam>;
    const Vector3D<TypeParam> way(10, 20, 30);
    Point point(1, 2, 3);
    EXPECT_EQ(point + way, Point(11, 22, 33));
    EXPECT_EQ(point - way, Point(-9, -18, -27));
    EXPECT_EQ(point / 2, Point(0.5, 1, 1.5));
    const Vector3D<TypeParam> difference = point - Point(5, 5, 5);
    EXPECT_EQ(Point(difference), Point(-4, -3, -2));
    (point += way).Z() += TypeParam{1};
    EXPECT_EQ(point, Point(11, 22, 34));
    (point -= way).Z(0);
    EXPECT_EQ(point, Point(1, 2, 0));
}

TYPED_TEST(EveryPoint3D, MeasuresDistancesInThePlaneAndInSpace) {
    const Point3D<TypeParam> high(0, 0, 7);
    EXPECT_EQ(high.Dist2D(Point2D<TypeParam>(3, 4), false), 5.0);
    EXPECT_EQ(high.Dist2D(Point3D<TypeParam>(3, 4, 99), true), 25.0);
    const Point3D<TypeParam> other(2, 3, 1);
    EXPECT_EQ(high.Dist3D(other, true), 49.0);
    EXPECT_EQ(high.Dist3D(other, false), 7.0);
}

TYPED_TEST(EveryPoint3D, OrdersByXThenYThenZStrictlyAndWeakly) {
    const std::vector<Point3D<TypeParam>> ascending{{-1, 9, 9}, {0, -2, 9}, {0, 3, -9},
                                                    {0, 3, 1},  {5, -9, 0}, {5, -9, 1}};
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

TEST(Point3D, IsEqualOnlyExactlyThoughItsViewInThePlaneIsTolerant) {
    const double above = std::nextafter(1.0, 2.0);
    const Point3D<double> point(1, 1, 1);
    for (const Point3D<double>& near : {Point3D<double>(above, 1, 1), Point3D<double>(1, above, 1),
                                        Point3D<double>(1, 1, above)}) {
        EXPECT_FALSE(point == near);
        EXPECT_TRUE(point < near);
        const Point2D<double>& view = near;
        EXPECT_TRUE(view == point);
    }
}

TEST(Point3D, WithACoordinateThatIsNoNumberIsNeitherLessNorGreater) {
    const Point3D<double> broken(std::numeric_limits<double>::quiet_NaN(), 0, 0);
    const Point3D<double> point(0, 1, 1);
    EXPECT_FALSE(broken < point || broken > point || broken == broken);
    EXPECT_TRUE(broken <= point && broken >= point);
}

TEST(Point3D, TakesTheRootOfSingleCoordinatesInSinglePrecision) {
    const Point3D<float> origin;
    const Point3D<float> corner(1, 1, 1);
    EXPECT_EQ(origin.Dist3D(corner, true), 3.0);
    EXPECT_EQ(origin.Dist3D(corner, false), static_cast<double>(1.7320508F));
    EXPECT_EQ(Point3D<double>().Dist3D({1, 1, 1}, false), 1.7320508075688772);
    // 4096^2 + 1^2 needs 25 bits: before the root it is rounded to 4096^2.
    EXPECT_EQ(origin.Dist3D({4096, 1, 0}, true), 16777217.0);
    EXPECT_EQ(origin.Dist3D({4096, 1, 0}, false), 4096.0);
}

struct Rise final : GTL::Transformation<Point3D<double>> {
    void Apply(Point3D<double>& point) const override { point.z += point.x; }
};

TEST(Point3D, HandsItselfToATransformation) {
    Point3D<double> point(1, 2, 3);
    point.Transform(Rise());
    EXPECT_EQ(point, Point3D<double>(1, 2, 4));
}

}  // namespace
