// SPDX-License-Identifier: MIT
#include <marlin/geometry/extents_3d.h>
#include <marlin/geometry/transformation_2d.h>

#include <array>
#include <cmath>
#include <limits>
#include <utility>

#include <gtest/gtest.h>

namespace {

using enum GTL::CLS::CLASSIFICATION;
using Point = GTL::Point2D<double>;
using Extents = GTL::Extents2D<double>;

/// A box from its least and greatest x and y.
template <class E>
E Box(const std::array<double, 4>& sides) {
    E box;
    static_cast<Point&>(box.min) = {sides[0], sides[1]};
    static_cast<Point&>(box.max) = {sides[2], sides[3]};
    return box;
}

// A box of space follows the rules of the plane in x and y.
template <class E>
class EveryExtents : public testing::Test {};

using ExtentsTypes = testing::Types<Extents, GTL::Extents3D<double>>;
TYPED_TEST_SUITE(EveryExtents, ExtentsTypes);

TYPED_TEST(EveryExtents, IsEmptyUnlessMaxReachesMinOnBothAxes) {
    TypeParam box = Box<TypeParam>({1, 1, 1, 1});
    EXPECT_TRUE(box.IsValid());
    box.Reset();
    EXPECT_EQ(box, Box<TypeParam>({1, 1, 0, 0}));
    EXPECT_EQ(Point(box.Center()), Point(0.5, 0.5));
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const auto& sides :
         {std::array<double, 4>{1, 1, 0, 0}, {1, 1, 0, 5}, {1, 1, 5, 0}, {0, 0, nan, 1}}) {
        const TypeParam empty = Box<TypeParam>(sides);
        EXPECT_FALSE(empty.IsValid()) << sides[2] << ' ' << sides[3];
        EXPECT_EQ(Point(empty.ExtentX(), empty.ExtentY()), Point()) << sides[2] << ' ' << sides[3];
        EXPECT_EQ(empty.Classify(box), NONE) << sides[2] << ' ' << sides[3];
        EXPECT_EQ(empty.Classify(box.max), NONE) << sides[2] << ' ' << sides[3];
    }
}

TYPED_TEST(EveryExtents, UnitesWithPointsAndOtherBoxes) {
    TypeParam box;
    box.Update(box.max);
    EXPECT_EQ(box, Box<TypeParam>({0, 0, 0, 0}));
    box.Update(Box<TypeParam>({2, 2, 2, 2}).min);
    box.Update(Box<TypeParam>({1, -3, 1, -3}).min);
    box += Box<TypeParam>({1, -1, 5, 1});
    box.Update(TypeParam());
    box.Update(box);
    EXPECT_EQ(box, Box<TypeParam>({0, -3, 5, 2}));
    EXPECT_EQ(TypeParam() + box, box);
    EXPECT_EQ(Point(box.ExtentX(), box.ExtentY()), Point(5, 5));
    EXPECT_EQ(Point(box.Center()), Point(2.5, -0.5));
}

TYPED_TEST(EveryExtents, ClassifiesPointsAndBoxes) {
    const TypeParam box = Box<TypeParam>({0, 0, 10, 10});
    const double above = std::nextafter(10.0, 11.0);
    const double below = -std::numeric_limits<double>::denorm_min();
    const std::pair<Point, GTL::CLS::CLASSIFICATION> points[] = {
        {{10, 10}, INSIDE},    {{0, 0}, INSIDE},      {{5, 5}, INSIDE},      {{10.5, 5}, OUTSIDE},
        {{above, 5}, OUTSIDE}, {{below, 5}, OUTSIDE}, {{5, above}, OUTSIDE}, {{5, below}, OUTSIDE},
    };
    for (const auto& [point, expected] : points) {
        const TypeParam single = Box<TypeParam>({point.x, point.y, point.x, point.y});
        EXPECT_EQ(box.Classify(single.min), expected) << point.x << ' ' << point.y;
    }
    const std::pair<std::array<double, 4>, GTL::CLS::CLASSIFICATION> boxes[] = {
        {{10, 10, 20, 20}, OVERLAP}, {{2, 2, 8, 8}, INSIDE},    {{0, 0, 10, 10}, INSIDE},
        {{-5, -5, 15, 15}, OVERLAP}, {{11, 0, 12, 1}, OUTSIDE}, {{-2, 0, -1, 1}, OUTSIDE},
        {{0, 11, 1, 12}, OUTSIDE},   {{0, -2, 1, -1}, OUTSIDE}, {{-5, 0, 0, 1}, OVERLAP},
        {{2, -1, 8, 8}, OVERLAP},    {{2, 2, 11, 8}, OVERLAP},  {{2, 2, 8, 11}, OVERLAP},
        {{-1, 2, 8, 8}, OVERLAP},    {{1, 1, 0, 0}, NONE},
    };
    for (const auto& [sides, expected] : boxes) {
        const TypeParam other = Box<TypeParam>(sides);
        EXPECT_EQ(box.Classify(other), expected) << sides[0] << ' ' << sides[1];
        EXPECT_TRUE(expected == NONE || (box + other).Classify(other) == INSIDE) << sides[0];
        EXPECT_EQ((box + other).Classify(box), INSIDE) << sides[0] << ' ' << sides[1];
        EXPECT_EQ(box + other, other + box) << sides[0] << ' ' << sides[1];
    }
    EXPECT_EQ(OVERLAP, 10);
}

TEST(Extents2D, BoundsItsTransformedCorners) {
    GTL::Transformation2D<Point> turn;
    turn.Rotate(45);
    Extents box = Box<Extents>({1, 2, 5, 3});
    box.Transform(turn);
    // (x, y) comes to ((x + y) / sqrt 2, (y - x) / sqrt 2).
    const double part = 0.7071067811865476;
    EXPECT_EQ(box, Box<Extents>({3 * part, -3 * part, 8 * part, 2 * part}));
    Extents empty;
    empty.Transform(turn);
    EXPECT_EQ(empty, Extents());
}

TEST(Extents2D, IsEqualWithinTheToleranceOfItsStoredCorners) {
    const Extents box = Box<Extents>({0, 0, 10, 10});
    EXPECT_EQ(box, Box<Extents>({1e-10, 0, 10, 10 + 1e-10}));
    EXPECT_FALSE(box == Box<Extents>({1e-8, 0, 10, 10}));
    EXPECT_FALSE(box == Box<Extents>({0, 0, 10, 10.1}));
    EXPECT_FALSE(Extents() == Box<Extents>({2, 2, 0, 0}));
}

}  // namespace
