// SPDX-License-Identifier: MIT
#include <marlin/geometry/rectangle.h>

#include <array>
#include <cmath>
#include <limits>
#include <utility>

#include <gtest/gtest.h>

namespace {

using enum GTL::CLS::CLASSIFICATION;
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

/// Expects that the corners are inside, and places beyond each side, by a part of the other sides,
/// are not.
void ExpectBounds(const Rectangle& made, double part) {
    const auto& [origin, right, opposite, up] = made.points;
    const std::array<double, 3> places[] = {{0.5, 0.5, INSIDE},
                                            {0.5, 1 + part, OUTSIDE},
                                            {0.5, -part, OUTSIDE},
                                            {-part, 0.5, OUTSIDE},
                                            {1 + part, 0.5, OUTSIDE}};
    for (const auto& [along, across, expected] : places) {
        const Point place(origin.x + along * (right.x - origin.x) + across * (up.x - origin.x),
                          origin.y + along * (right.y - origin.y) + across * (up.y - origin.y));
        ASSERT_EQ(made.Classify(place), expected)
            << made.rotation.Get() << ' ' << along << ' ' << across;
    }
    for (const Point& corner : made.points) {
        ASSERT_EQ(made.Classify(corner), INSIDE) << made.rotation.Get() << ' ' << made.anchor;
    }
}

TEST(Rectangle, TurnsItsCornersAboutTheAnchor) {
    const Corners flat{{{10, 20}, {14, 20}, {14, 22}, {10, 22}}};
    const std::pair<int, Corners> cases[] = {{0, {{{10, 20}, {10, 16}, {12, 16}, {12, 20}}}},
                                             {1, {{{14, 24}, {14, 20}, {16, 20}, {16, 24}}}},
                                             {2, {{{12, 26}, {12, 22}, {14, 22}, {14, 26}}}},
                                             {3, {{{8, 22}, {8, 18}, {10, 18}, {10, 22}}}},
                                             {8, {{{11, 23}, {11, 19}, {13, 19}, {13, 23}}}}};
    for (const auto& [anchor, expected] : cases) {
        EXPECT_EQ(Made({10, 20}, 4, 2, 0, anchor).points, flat) << anchor;
        EXPECT_EQ(Made({10, 20}, 4, 2, 90, anchor).points, expected) << anchor;
    }
}

TEST(Rectangle, WithARotationNextToZeroKeepsItsCornersButClassifiesTurned) {
    const Rectangle rectangle = Made({0, 0}, 1, 1000, 1e-10, 0);
    EXPECT_EQ(rectangle.Point(3).x, 0.0);
    // 1e-10 degrees move the far end of the side by 1.7e-9.
    EXPECT_EQ(rectangle.Classify({0, 1000}), OUTSIDE);
    EXPECT_EQ(rectangle.Classify({1e-8, 999}), INSIDE);
}

TEST(Rectangle, GoesExactlyByItsCornersWithoutRotationAndByItsSizeWithOne) {
    Rectangle rectangle = Made({10, 20}, 4, 2, 0, 0);
    rectangle.width = rectangle.height = 100;
    EXPECT_EQ(rectangle.Classify({14, 22}), INSIDE);
    for (const Point& beyond :
         {Point(std::nextafter(10.0, 0), 21), Point(std::nextafter(14.0, 20), 21),
          Point(12, std::nextafter(20.0, 0)), Point(12, std::nextafter(22.0, 30))}) {
        EXPECT_EQ(rectangle.Classify(beyond), OUTSIDE) << beyond.x << ' ' << beyond.y;
    }
    rectangle.rotation = 360 - 1e-7;
    EXPECT_EQ(rectangle.Classify({50, 50}), INSIDE);
}

TEST(Rectangle, HoldsItsCornersAtEveryRotationAndLeavesTheAnchorExactlyInPlace) {
    const std::array<double, 4> places[] = {
        {10, 20, 4, 2}, {500000.25, 6200000.75, 35.5, 2.25}, {-3, 7, 1e-3, 50}};
    for (const auto& [x, y, width, height] : places) {
        const Rectangle flat = Made({x, y}, width, height, 0, 0);
        for (double degrees = 0; degrees < 360; degrees += 7.5) {
            for (const int anchor : {0, 1, 2, 3, 8}) {
                const Rectangle made = Made({x, y}, width, height, degrees, anchor);
                ExpectBounds(made, 1e-3);
                if (anchor < 4) {
                    ASSERT_EQ(made.Point(anchor).x, flat.Point(anchor).x) << degrees;
                    ASSERT_EQ(made.Point(anchor).y, flat.Point(anchor).y) << degrees;
                }
            }
        }
    }
    // Little more than rounding.
    ExpectBounds(Made({10, 20}, 4, 2, 30, 0), 1e-13);
    ExpectBounds(Made({-10, -20}, 4, 2, 30, 0), 1e-13);
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
        EXPECT_EQ(Made({0, 0}, width, height, degrees, 0).Classify({x, y}), OUTSIDE)
            << width << ' ' << height << ' ' << degrees << ' ' << x << ' ' << y;
    }
}

// Moves each point one further than the one before.
struct Walk final : GTL::Transformation<Point> {
    mutable int Steps = 0;
    void Apply(Point& point) const override { point.x += ++Steps; }
};

TEST(Rectangle, WorksThroughTheInterfaceOfItsBases) {
    Rectangle rectangle = Made({10, 20}, 4, 2, 0, 0);
    Base& shape = rectangle;
    EXPECT_EQ(shape.NumPoints(), 4);
    EXPECT_EQ(&shape.SetPoint(3, Point(9, 22)), &rectangle.points[3]);
    EXPECT_EQ(&shape.Point(3), &rectangle.points[3]);
    EXPECT_EQ(shape.Classify(Point(11, 21)), INSIDE);
    shape.Transform(Walk());
    EXPECT_EQ(rectangle.points, (Corners{{{11, 20}, {16, 20}, {17, 22}, {13, 22}}}));
    GTL::Transformation2D<Point> move;
    move.Translate(1, -1);
    rectangle.Transform(move);
    EXPECT_EQ(rectangle.points, (Corners{{{12, 19}, {17, 19}, {18, 21}, {14, 21}}}));
    GTL::Extents3D<double> extents;
    rectangle.Base::UpdateExtents(extents);
    EXPECT_FALSE(extents.IsValid());
    shape.UpdateExtents(extents);
    EXPECT_EQ(extents.MinPnt(), GTL::Point3D<double>(12, 19, 0));
    EXPECT_EQ(extents.MaxPnt(), GTL::Point3D<double>(18, 21, 0));
}

}  // namespace
