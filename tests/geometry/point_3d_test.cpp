// SPDX-License-Identifier: MIT
#include <marlin/geometry/point_3d.h>

#include <cmath>
#include <limits>

#include <gtest/gtest.h>
#include <support/order.h>

namespace {

using Point = GTL::Point3D<double>;
using PlanePoint = GTL::Point2D<double>;
using Vector = GTL::Vector3D<double>;

TEST(Point3D, ConvertsToAndFromVectorsAndPointsOfThePlane) {
    EXPECT_EQ(Point(PlanePoint(4, 5), 6), Point(4, 5, 6));
    Point point(1, 2, 3);
    EXPECT_EQ(PlanePoint(GTL::Vector2D<double>(point)), PlanePoint(1, 2));
    // In the plane it is the same object.
    PlanePoint& view = point;
    view = PlanePoint(10, 20);
    point.Z(4);
    EXPECT_EQ(point, Point(10, 20, 4));
    const Vector all = Point(1, 2, 3);
    point = all;
    EXPECT_EQ(point, Point(1, 2, 3));
    EXPECT_EQ(point.Z(), 3);
}

TEST(Point3D, Calculates) {
    const Vector way(10, 20, 30);
    Point point(1, 2, 3);
    EXPECT_EQ(point / 2, Point(0.5, 1, 1.5));
    EXPECT_EQ(Point(point - Point(5, 5, 5)), Point(-4, -3, -2));
    (point += way).Z() += 1;
    EXPECT_EQ(point, Point(11, 22, 34));
    EXPECT_EQ(point -= way, Point(1, 2, 4));
}

TEST(Point3D, MeasuresDistancesInThePlaneAndInSpaceSingleOnesWithASingleRoot) {
    EXPECT_EQ(Point(0, 0, 7).Dist2D(Point(3, 4, 99), false), 5.0);
    EXPECT_EQ(Point(1, 2, 7).Dist3D({3, 5, 1}, true), 49.0);
    EXPECT_EQ(Point(1, 2, 7).Dist3D({3, 5, 1}, false), 7.0);
    EXPECT_EQ(Point().Dist3D({1, 1, 1}, false), 1.7320508075688772);
    const GTL::Point3D<float> origin;
    EXPECT_EQ(origin.Dist3D({1, 1, 1}, false), static_cast<double>(1.7320508F));
    // 4096^2 + 1^2 needs 25 bits: before the root it is rounded to 4096^2.
    EXPECT_EQ(origin.Dist3D({4096, 1, 0}, true), 16777217.0);
    EXPECT_EQ(origin.Dist3D({4096, 1, 0}, false), 4096.0);
}

TEST(Point3D, OrdersByXThenYThenZAndTellsApartWhatIsEqualInThePlane) {
    const double above = std::nextafter(1.0, 2.0);
    ExpectAscending<Point>({{-1, 9, 9},
                            {0, -2, 9},
                            {0, 3, -9},
                            {0, 3, 1},
                            {1, 1, 1},
                            {1, 1, above},
                            {1, above, 1},
                            {above, 1, 1}});
    EXPECT_EQ(PlanePoint(Point(above, above, 1)), PlanePoint(1, 1));
    const Point broken(std::numeric_limits<double>::quiet_NaN(), 0, 0);
    const Point point(0, 1, 1);
    EXPECT_FALSE(broken < point || broken > point || broken == broken);
    EXPECT_TRUE(broken <= point && broken >= point);
}

}  // namespace
