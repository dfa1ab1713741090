// SPDX-License-Identifier: MIT
#include <marlin/geometry/rectangle.h>
#include <marlin/geometry/transformation_2d.h>

#include <array>
#include <cmath>
#include <limits>
#include <utility>

#include <gtest/gtest.h>

namespace {

namespace CLS = GTL::CLS;
using Point = GTL::Point2D<double>;
using Rectangle = GTL::Rectangle<Point>;
using Base = GTL::GeoPrimitiveBase<Point>;
using Corners = std::array<Point, 4>;

Rectangle Made(const Point& origin, double width, double height, double degrees, int anchor) {
    Rectangle rectangle;
    rectangle.SetPoint(0, origin);
    rectangle.width = width;
    rectangle.height = height;
    rectangle.rotation = degrees;
    rectangle.anchor = anchor;
    rectangle.UpdateCorners();
    return rectangle;
}

/// The place that lies the given parts of the sides from the origin corner.
Point Within(const Rectangle& rectangle, double partX, double partY) {
    const auto& [origin, right, opposite, up] = rectangle.points;
    return {origin.x + partX * (right.x - origin.x) + partY * (up.x - origin.x),
            origin.y + partX * (right.y - origin.y) + partY * (up.y - origin.y)};
}

/// Expects that places outside of each side are so, by the given part of the other sides.
void ExpectLeftBy(double part, const Rectangle& made) {
    for (const Point& place :
         {Point(-part, 0.5), Point(1 + part, 0.5), Point(0.5, -part), Point(0.5, 1 + part)}) {
        ASSERT_EQ(made.Classify(Within(made, place.x, place.y)), CLS::OUTSIDE)
            << made.rotation.Get() << ' ' << place.x << ' ' << place.y;
    }
}

TEST(Rectangle, TurnsItsCornersAboutTheAnchor) {
    const Corners flat{{{10, 20}, {14, 20}, {14, 22}, {10, 22}}};
    const std::pair<int, Corners> cases[] = {
        {0, {{{10, 20}, {10, 16}, {12, 16}, {12, 20}}}},
        {1, {{{14, 24}, {14, 20}, {16, 20}, {16, 24}}}},
        {2, {{{12, 26}, {12, 22}, {14, 22}, {14, 26}}}},
        {3, {{{8, 22}, {8, 18}, {10, 18}, {10, 22}}}},
        {8, {{{11, 23}, {11, 19}, {13, 19}, {13, 23}}}},
    };
    for (const auto& [anchor, expected] : cases) {
        EXPECT_EQ(Made({10, 20}, 4, 2, 0, anchor).points, flat) << anchor;
        EXPECT_EQ(Made({10, 20}, 4, 2, 90, anchor).points, expected) << anchor;
    }
}

TEST(Rectangle, TurnsASecondTimeWhenCorner0IsNotSetAgain) {
    Rectangle rectangle = Made({0, 0}, 2, 2, 90, 8);
    EXPECT_EQ(rectangle.Point(0), Point(0, 2));
    rectangle.UpdateCorners();
    // From (0, 2) the square is laid out to (2, 4), and turned about (1, 3).
    EXPECT_EQ(rectangle.Point(0), Point(0, 4));
}

TEST(Rectangle, WithARotationNextToZeroKeepsItsCornersButClassifiesTurned) {
    const Rectangle rectangle = Made({0, 0}, 1, 1000, 1e-10, 0);
    EXPECT_EQ(rectangle.Point(3).x, 0.0);
    EXPECT_EQ(rectangle.Point(3).y, 1000.0);
    // 1e-10 degrees move the far end of the side by 1.7e-9.
    EXPECT_EQ(rectangle.Classify({0, 1000}), CLS::OUTSIDE);
    EXPECT_EQ(rectangle.Classify({1e-8, 999}), CLS::INSIDE);
}

TEST(Rectangle, GoesExactlyByItsCornersWithoutRotationAndByItsSizeWithOne) {
    Rectangle rectangle = Made({10, 20}, 4, 2, 0, 0);
    rectangle.width = rectangle.height = 100;
    EXPECT_EQ(rectangle.Classify({14, 22}), CLS::INSIDE);
    for (const Point& beyond :
         {Point(std::nextafter(10.0, 0), 21), Point(std::nextafter(14.0, 20), 21),
          Point(12, std::nextafter(20.0, 0)), Point(12, std::nextafter(22.0, 30))}) {
        EXPECT_EQ(rectangle.Classify(beyond), CLS::OUTSIDE) << beyond.x << ' ' << beyond.y;
    }
    rectangle.rotation = 360 - 1e-7;
    EXPECT_EQ(rectangle.Classify({50, 50}), CLS::INSIDE);
}

TEST(Rectangle, HoldsItsCornersAndSidesAtEveryRotationAndLeavesTheAnchorExactlyInPlace) {
    const std::array<double, 4> places[] = {{10, 20, 4, 2},
                                            {0, 0, 1, 1},
                                            {500000.25, 6200000.75, 35.5, 2.25},
                                            {-3, 7, 1e-3, 50},
                                            {0.1, 1e6, 1.0 / 3, 7.7}};
    for (const auto& [x, y, width, height] : places) {
        const Rectangle flat = Made({x, y}, width, height, 0, 0);
        for (double degrees = 0; degrees < 360; degrees += 7.5) {
            for (const int anchor : {0, 1, 2, 3, 8}) {
                const Rectangle made = Made({x, y}, width, height, degrees, anchor);
                for (const Point& corner : made.points) {
                    ASSERT_EQ(made.Classify(corner), CLS::INSIDE) << degrees << ' ' << anchor;
                }
                ASSERT_EQ(made.Classify(Within(made, 0.5, 0.5)), CLS::INSIDE) << degrees;
                ExpectLeftBy(1e-3, made);
                if (anchor < 4) {
                    ASSERT_EQ(made.Point(anchor).x, flat.Point(anchor).x) << degrees;
                    ASSERT_EQ(made.Point(anchor).y, flat.Point(anchor).y) << degrees;
                }
            }
        }
    }
    // Little more than rounding.
    ExpectLeftBy(1e-12, Made({10, 20}, 4, 2, 30, 0));
}

TEST(Rectangle, HoldsNothingWhenItsNumbersAreBroken) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    // Width, height, rotation, place.
    const std::array<double, 5> cases[] = {
        {4, 2, 10, nan, 0}, {4, 2, 10, 1, nan}, {4, 2, 10, infinity, -infinity}, {4, 2, nan, 0, 0},
        {nan, 2, 10, 0, 0}, {4, nan, 10, 0, 0}, {infinity, 2, 10, 0, -50},       {-4, 2, 10, -1, 1},
    };
    for (const auto& [width, height, degrees, x, y] : cases) {
        EXPECT_EQ(Made({0, 0}, width, height, degrees, 0).Classify({x, y}), CLS::OUTSIDE)
            << width << ' ' << height << ' ' << degrees << ' ' << x << ' ' << y;
    }
}

TEST(Rectangle, WorksThroughTheInterfaceOfItsBases) {
    Rectangle rectangle = Made({10, 20}, 4, 2, 0, 0);
    Base& shape = rectangle;
    EXPECT_EQ(shape.NumPoints(), 4);
    EXPECT_EQ(&shape.SetPoint(3, Point(9, 22)), &rectangle.points[3]);
    EXPECT_EQ(&shape.Point(3), &rectangle.points[3]);
    EXPECT_EQ(shape.Classify(Point(11, 21)), CLS::INSIDE);
    GTL::Transformation2D<Point> move;
    move.Translate(1, -1);
    shape.Transform(move);
    EXPECT_EQ(rectangle.points, (Corners{{{11, 19}, {15, 19}, {15, 21}, {10, 21}}}));
    struct Shear final : GTL::Transformation<Point> {
        void Apply(Point& point) const override { point.x += point.y; }
    };
    shape.Transform(Shear());
    EXPECT_EQ(rectangle.points, (Corners{{{30, 19}, {34, 19}, {36, 21}, {31, 21}}}));
    rectangle.Transform(move);
    EXPECT_EQ(rectangle.points, (Corners{{{31, 18}, {35, 18}, {37, 20}, {32, 20}}}));
}

TEST(Rectangle, GrowsABoxByItsCornersAtHeightZeroAndItsBaseGrowsNone) {
    const Rectangle rectangle = Made({10, 20}, 4, 2, 90, 0);
    GTL::Extents3D<double> extents;
    rectangle.Base::UpdateExtents(extents);
    EXPECT_FALSE(extents.IsValid());
    rectangle.UpdateExtents(extents);
    EXPECT_TRUE(extents.MinPnt() == Point(10, 16));
    EXPECT_TRUE(extents.MaxPnt() == Point(12, 20));
    EXPECT_EQ(extents.MinZ(), 0.0);
    EXPECT_EQ(extents.MaxZ(), 0.0);
}

}  // namespace
