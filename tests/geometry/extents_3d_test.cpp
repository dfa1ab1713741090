// SPDX-License-Identifier: MIT
#include <marlin/geometry/extents_3d.h>

#include <array>
#include <cmath>
#include <utility>

#include <gtest/gtest.h>

namespace {

using enum GTL::CLS::CLASSIFICATION;
using Point = GTL::Point3D<double>;
using Extents = GTL::Extents3D<double>;

Extents Box(const Point& min, const Point& max) {
    Extents box;
    box.min = min;
    box.max = max;
    return box;
}

TEST(Extents3D, UnitesWithPointsAndOtherBoxesAndIsEqualOnlyExactly) {
    EXPECT_EQ(Extents().ExtentZ(), 0.0);
    Extents box;
    box.Update(3, 4, -5);
    EXPECT_EQ(box, Box({3, 4, -5}, {3, 4, -5}));
    box.Update(Point(1, 10, 7));
    box.Update(5, 5, 5);
    box += Box({2, 5, -6}, {3, 5, 6});
    EXPECT_EQ(box, Box({1, 4, -6}, {5, 10, 7}));
    EXPECT_FALSE(box == Box({1, 4, -6}, {5, 10, std::nextafter(7.0, 8.0)}));
    EXPECT_FALSE(box == Box({std::nextafter(1.0, 2.0), 4, -6}, {5, 10, 7}));
    EXPECT_EQ(box.ExtentZ(), 13.0);
    EXPECT_EQ(box.Center(), Point(3, 7, 0.5));
}

TEST(Extents3D, LosesZAsABoxOfThePlane) {
    const GTL::Extents2D<double> empty = Box({9, 9, 9}, {8, 10, 10});
    EXPECT_EQ(empty, GTL::Extents2D<double>());
    const GTL::Extents2D<double> flat = Box({1, 2, 3}, {4, 5, 6});
    EXPECT_EQ(flat.min, GTL::Point2D<double>(1, 2));
    EXPECT_EQ(flat.max, GTL::Point2D<double>(4, 5));
}

TEST(Extents3D, ClassifiesByZTooButIsValidWhateverThatIs) {
    const Extents turned = Box({0, 0, 5}, {1, 1, -5});
    EXPECT_TRUE(turned.IsValid());
    EXPECT_EQ(turned.ExtentZ(), -10.0);
    EXPECT_EQ(turned.Classify(Point(0.5, 0.5, 0)), OUTSIDE);
    const Extents box = Box({0, 0, 0}, {10, 10, 10});
    const std::array<double, 3> cases[] = {
        {0, 10, INSIDE},  {2, 8, INSIDE},    {10, 20, OVERLAP}, {2, 11, OVERLAP},
        {-1, 8, OVERLAP}, {11, 12, OUTSIDE}, {-2, -1, OUTSIDE}, {10.1, 11, OUTSIDE},
    };
    for (const auto& [low, high, expected] : cases) {
        EXPECT_EQ(box.Classify(Box({2, 2, low}, {8, 8, high})), expected) << low << ' ' << high;
        const bool within = low >= 0 && low <= 10;
        EXPECT_EQ(box.Classify(Point(5, 5, low)), within ? INSIDE : OUTSIDE) << low;
    }
}

// Moves z by as much as x and y say, so that every corner counts.
struct Shear final : GTL::Transformation<Point> {
    void Apply(Point& point) const override {
        point.z += 10 * point.x - 100 * point.y;
        point.x -= point.z;
    }
};

TEST(Extents3D, BoundsItsEightTransformedCorners) {
    Extents box = Box({0, 0, 0}, {1, 2, 3});
    box.Transform(Shear());
    // z reaches from 0 - 200 to 3 + 10; x - z from 0 - 3 (or 1 - 13) to 0 + 200.
    EXPECT_EQ(box, Box({-12, 0, -200}, {200, 2, 13}));
    Extents empty;
    empty.Transform(Shear());
    EXPECT_EQ(empty, Extents());
    Point point(1, 0, 3);
    point.Transform(Shear());
    EXPECT_EQ(point, Point(-12, 0, 13));
}

}  // namespace
