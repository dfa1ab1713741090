// SPDX-License-Identifier: MIT
#include <marlin/geometry/extents_3d.h>

#include <array>
#include <cmath>
#include <limits>
#include <type_traits>
#include <utility>

#include <gtest/gtest.h>

namespace {

using enum GTL::CLS::CLASSIFICATION;
using Point = GTL::Point2D<double>;
using Extents = GTL::Extents2D<double>;
using SpacePoint = GTL::Point3D<double>;
using Extents3D = GTL::Extents3D<double>;
/// The least and greatest x and y of a box.
using Sides = std::array<double, 4>;

template <class E>
E Box(const Sides& sides) {
    E box;
    static_cast<Point&>(box.min) = {sides[0], sides[1]};
    static_cast<Point&>(box.max) = {sides[2], sides[3]};
    return box;
}

template <class E>
Sides SidesOf(const E& box) {
    EXPECT_EQ(box.MinPnt(), box.min);
    EXPECT_EQ(box.MaxPnt(), box.max);
    return {box.MinX(), box.MinY(), box.MaxX(), box.MaxY()};
}

// A box of space follows the rules of the plane in x and y.
template <class E>
class EveryExtents : public testing::Test {};

using ExtentsTypes = testing::Types<Extents, Extents3D>;
TYPED_TEST_SUITE(EveryExtents, ExtentsTypes);

TYPED_TEST(EveryExtents, IsEmptyUnlessMaxReachesMinOnBothAxes) {
    TypeParam box = Box<TypeParam>({1, 1, 1, 1});
    EXPECT_TRUE(box.IsValid());
    box.Reset();
    EXPECT_EQ(SidesOf(box), (Sides{1, 1, 0, 0}));
    EXPECT_EQ(Point(box.Center()), Point(0.5, 0.5));
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const auto& sides : {Sides{1, 1, 0, 0}, {1, 1, 0, 5}, {1, 1, 5, 0}, {0, 0, nan, 1}}) {
        const TypeParam empty = Box<TypeParam>(sides);
        EXPECT_FALSE(empty.IsValid()) << sides[2] << ' ' << sides[3];
        EXPECT_EQ(Point(empty.ExtentX(), empty.ExtentY()), Point()) << sides[2] << ' ' << sides[3];
        EXPECT_EQ(empty.Classify(Box<TypeParam>({1, 1, 1, 1})), NONE) << sides[2];
        EXPECT_EQ(empty.Classify(empty.max), NONE) << sides[2] << ' ' << sides[3];
    }
}

TYPED_TEST(EveryExtents, UnitesWithPointsAndOtherBoxes) {
    TypeParam box;
    box.Update(box.max);
    EXPECT_EQ(SidesOf(box), (Sides{0, 0, 0, 0}));
    box.Update(Box<TypeParam>({2, 2, 2, 2}).min);
    box.Update(Box<TypeParam>({1, -3, 1, -3}).min);
    box += Box<TypeParam>({1, -1, 5, 1});
    box.Update(TypeParam());
    box.Update(box);
    EXPECT_EQ(SidesOf(box), (Sides{0, -3, 5, 2}));
    EXPECT_EQ(SidesOf(TypeParam() + box), (Sides{0, -3, 5, 2}));
    EXPECT_EQ(Point(box.ExtentX(), box.ExtentY()), Point(5, 5));
    EXPECT_EQ(Point(box.Center()), Point(2.5, -0.5));
}

TYPED_TEST(EveryExtents, ClassifiesPointsAndBoxes) {
    const TypeParam box = Box<TypeParam>({0, 0, 10, 10});
    const double above = std::nextafter(10.0, 11.0);
    const double below = -std::numeric_limits<double>::denorm_min();
    const std::pair<Sides, GTL::CLS::CLASSIFICATION> boxes[] = {
        {{10, 10, 20, 20}, OVERLAP},     {{2, 2, 8, 8}, INSIDE},
        {{0, 0, 10, 10}, INSIDE},        {{-5, -5, 15, 15}, OVERLAP},
        {{11, 0, 12, 1}, OUTSIDE},       {{-2, 0, -1, 1}, OUTSIDE},
        {{0, 11, 1, 12}, OUTSIDE},       {{0, -2, 1, -1}, OUTSIDE},
        {{-5, 0, 0, 1}, OVERLAP},        {{2, -1, 8, 8}, OVERLAP},
        {{2, 2, 11, 8}, OVERLAP},        {{2, 2, 8, 11}, OVERLAP},
        {{-1, 2, 8, 8}, OVERLAP},        {{1, 1, 0, 0}, NONE},
        {{10, 10, 10, 10}, INSIDE},      {{0, 0, 0, 0}, INSIDE},
        {{above, 5, above, 5}, OUTSIDE}, {{below, 5, below, 5}, OUTSIDE},
        {{5, above, 5, above}, OUTSIDE}, {{5, below, 5, below}, OUTSIDE}};
    for (const auto& [sides, expected] : boxes) {
        const TypeParam other = Box<TypeParam>(sides);
        EXPECT_EQ(box.Classify(other), expected) << sides[0] << ' ' << sides[1];
        EXPECT_EQ((box + other).Classify(box), INSIDE) << sides[0] << ' ' << sides[1];
        if (other.min == other.max) {
            EXPECT_EQ(box.Classify(other.min), expected) << sides[0] << ' ' << sides[1];
        }
    }
}

// Moves points by the box's right side, wherever that is at the time.
template <class E, class P = std::remove_cvref_t<decltype(E().min)>>
struct Turn final : GTL::Transformation<P> {
    const E* Box = nullptr;
    void Apply(P& point) const override {
        static_cast<Point&>(point) = {3 * Box->MaxX() - point.x + 10 * point.y,
                                      point.y + 100 * point.x};
    }
};

TYPED_TEST(EveryExtents, BoundsItsCornersOnceAllOfThemAreTransformed) {
    TypeParam box = Box<TypeParam>({1, 2, 5, 3});
    Turn<TypeParam> turn;
    turn.Box = &box;
    box.Transform(turn);
    // (5, 2) comes to the left, (1, 2) to the bottom, (1, 3) to the right and (5, 3) to the top.
    EXPECT_EQ(SidesOf(box), (Sides{30, 102, 44, 503}));
    box.Reset();
    box.Transform(turn);
    EXPECT_EQ(SidesOf(box), (Sides{1, 1, 0, 0}));
}

TEST(Extents2D, IsEqualWithinTheToleranceOfItsStoredCorners) {
    const Extents box = Box<Extents>({0, 0, 10, 10});
    EXPECT_EQ(box, Box<Extents>({1e-10, 0, 10, 10 + 1e-10}));
    EXPECT_FALSE(box == Box<Extents>({1e-8, 0, 10, 10}));
    EXPECT_FALSE(box == Box<Extents>({0, 0, 10, 10.1}));
    EXPECT_FALSE(Extents() == Box<Extents>({2, 2, 0, 0}));
}

Extents3D Box(const SpacePoint& min, const SpacePoint& max) {
    Extents3D box;
    box.min = min;
    box.max = max;
    return box;
}

TEST(Extents3D, UnitesWithPointsAndOtherBoxesAndIsEqualOnlyExactly) {
    EXPECT_EQ(Extents3D(), Box({1, 1, 0}, {0, 0, 0}));
    EXPECT_EQ(Box({1, 1, 1}, {0, 0, 3}).ExtentZ(), 0.0);
    Extents3D box;
    box.Update(3, 4, -5);
    EXPECT_EQ(box, Box({3, 4, -5}, {3, 4, -5}));
    box.Update(SpacePoint(1, 10, 7));
    box.Update(5, 5, 5);
    box += Box({2, 5, -6}, {3, 5, 6});
    EXPECT_EQ(box, Box({1, 4, -6}, {5, 10, 7}));
    EXPECT_FALSE(box == Box({1, 4, -6}, {5, 10, std::nextafter(7.0, 8.0)}));
    EXPECT_FALSE(box == Box({std::nextafter(1.0, 2.0), 4, -6}, {5, 10, 7}));
    EXPECT_EQ(box.MinZ(), -6.0);
    EXPECT_EQ(box.MaxZ(), 7.0);
    EXPECT_EQ(box.ExtentZ(), 13.0);
    EXPECT_EQ(box.Center(), SpacePoint(3, 7, 0.5));
    Extents3D poisoned;
    poisoned.Update(0, 0, std::numeric_limits<double>::quiet_NaN());
    poisoned.Update(1, 1, 1);
    EXPECT_TRUE(std::isnan(poisoned.ExtentZ()));
    EXPECT_EQ(poisoned.Classify(SpacePoint(1, 1, 1)), OUTSIDE);
}

TEST(Extents3D, LosesZAsABoxOfThePlane) {
    const Extents empty = Box({9, 9, 9}, {8, 10, 10});
    EXPECT_EQ(empty, Extents());
    const Extents flat = Box({1, 2, 3}, {4, 5, 6});
    EXPECT_EQ(flat.min, Point(1, 2));
    EXPECT_EQ(flat.max, Point(4, 5));
}

TEST(Extents3D, ClassifiesByZTooButIsValidWhateverThatIs) {
    const Extents3D turned = Box({0, 0, 5}, {1, 1, -5});
    EXPECT_EQ(turned.ExtentZ(), -10.0);
    EXPECT_EQ(turned.Classify(SpacePoint(0.5, 0.5, 0)), OUTSIDE);
    const Extents3D box = Box({0, 0, 0}, {10, 10, 10});
    const std::array<double, 3> cases[] = {
        {0, 10, INSIDE},  {2, 8, INSIDE},    {10, 20, OVERLAP}, {2, 11, OVERLAP},
        {-1, 8, OVERLAP}, {11, 12, OUTSIDE}, {-2, -1, OUTSIDE}, {-1, 0, OVERLAP},
    };
    for (const auto& [low, high, expected] : cases) {
        EXPECT_EQ(box.Classify(Box({2, 2, low}, {8, 8, high})), expected) << low << ' ' << high;
        const bool within = low >= 0 && low <= 10;
        EXPECT_EQ(box.Classify(SpacePoint(5, 5, low)), within ? INSIDE : OUTSIDE) << low;
    }
}

// Moves z by as much as x and y say, so that every corner counts.
struct Shear final : GTL::Transformation<SpacePoint> {
    void Apply(SpacePoint& point) const override {
        point.z += 10 * point.x - 100 * point.y;
        point.x -= point.z;
    }
};

TEST(Extents3D, BoundsItsEightTransformedCorners) {
    Extents3D box = Box({0, 0, 0}, {1, 2, 3});
    box.Transform(Shear());
    // z reaches from 0 - 200 to 3 + 10; x - z from 0 - 3 (or 1 - 13) to 0 + 200.
    EXPECT_EQ(box, Box({-12, 0, -200}, {200, 2, 13}));
    SpacePoint point(1, 0, 3);
    point.Transform(Shear());
    EXPECT_EQ(point, SpacePoint(-12, 0, 13));
}

}  // namespace
