// SPDX-License-Identifier: MIT
#include <marlin/geometry/rectangle.h>
#include <marlin/geometry/transformation_2d.h>

#include <array>
#include <cmath>
#include <limits>
#include <thread>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

namespace CLS = GTL::CLS;
using Point = GTL::Point2D<double>;
using Rectangle = GTL::Rectangle<Point>;
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

TEST(Rectangle, StartsAllZero) {
    const Rectangle rectangle;
    EXPECT_EQ(rectangle.points, Corners());
    EXPECT_EQ(rectangle.rotation.Get(), 0.0);
    EXPECT_EQ(rectangle.width, 0.0);
    EXPECT_EQ(rectangle.height, 0.0);
    EXPECT_EQ(rectangle.anchor, 0);
}

TEST(Rectangle, LaysOutItsCornersFromTheOriginCorner) {
    for (const int anchor : {0, 1, 2, 3, 8}) {
        const Corners expected{{{10, 20}, {14, 20}, {14, 22}, {10, 22}}};
        EXPECT_EQ(Made({10, 20}, 4, 2, 0, anchor).points, expected) << anchor;
    }
}

TEST(Rectangle, TurnsItsCornersAboutTheAnchor) {
    const struct {
        int anchor;
        Corners expected;
    } cases[] = {{0, {{{10, 20}, {10, 16}, {12, 16}, {12, 20}}}},
                 {1, {{{14, 24}, {14, 20}, {16, 20}, {16, 24}}}},
                 {2, {{{12, 26}, {12, 22}, {14, 22}, {14, 26}}}},
                 {3, {{{8, 22}, {8, 18}, {10, 18}, {10, 22}}}},
                 {8, {{{11, 23}, {11, 19}, {13, 19}, {13, 23}}}}};
    for (const auto& [anchor, expected] : cases) {
        EXPECT_EQ(Made({10, 20}, 4, 2, 90, anchor).points, expected) << anchor;
    }
}

TEST(Rectangle, LeavesTheAnchorCornerExactlyInPlace) {
    const Corners flat = Made({0.1, 1e6}, 1.0 / 3, 7.7, 0, 0).points;
    for (const int anchor : {0, 1, 2, 3}) {
        const Rectangle turned = Made({0.1, 1e6}, 1.0 / 3, 7.7, 33.3, anchor);
        EXPECT_EQ(turned.Point(anchor).x, flat[static_cast<std::size_t>(anchor)].x);
        EXPECT_EQ(turned.Point(anchor).y, flat[static_cast<std::size_t>(anchor)].y);
    }
}

TEST(Rectangle, TurnsASecondTimeUnlessCorner0IsSetAgain) {
    Rectangle rectangle = Made({0, 0}, 2, 2, 90, 8);
    EXPECT_EQ(rectangle.Point(0), Point(0, 2));
    rectangle.UpdateCorners();
    // From (0, 2) the square is laid out to (2, 4), and turned about (1, 3).
    EXPECT_EQ(rectangle.Point(0), Point(0, 4));
    rectangle.SetPoint(0, Point(0, 0));
    rectangle.UpdateCorners();
    EXPECT_EQ(rectangle.Point(0), Point(0, 2));
}

TEST(Rectangle, WithARotationNextToZeroKeepsItsCornersButClassifiesTurned) {
    const Rectangle rectangle = Made({0, 0}, 1, 1000, 1e-10, 0);
    EXPECT_EQ(rectangle.Point(3).x, 0.0);
    EXPECT_EQ(rectangle.Point(3).y, 1000.0);
    // 1e-10 degrees move the far end of the side by 1.7e-9.
    EXPECT_EQ(rectangle.Classify({0, 1000}), CLS::OUTSIDE);
    EXPECT_EQ(rectangle.Classify({1e-8, 999}), CLS::INSIDE);
}

TEST(Rectangle, ClassifiesExactlyWithoutRotation) {
    const Rectangle rectangle = Made({10, 20}, 4, 2, 0, 0);
    for (const Point& corner : rectangle.points) {
        EXPECT_EQ(rectangle.Classify(corner), CLS::INSIDE) << corner.x << ' ' << corner.y;
    }
    EXPECT_EQ(rectangle.Classify({12, 21}), CLS::INSIDE);
    for (const Point& beyond :
         {Point(std::nextafter(10.0, 0), 21), Point(std::nextafter(14.0, 20), 21),
          Point(12, std::nextafter(20.0, 0)), Point(12, std::nextafter(22.0, 30))}) {
        EXPECT_EQ(rectangle.Classify(beyond), CLS::OUTSIDE) << beyond.x << ' ' << beyond.y;
    }
}

TEST(Rectangle, GoesByItsCornersWithoutRotationAndByItsSizeWithOne) {
    Rectangle rectangle = Made({0, 0}, 4, 2, 0, 0);
    rectangle.width = rectangle.height = 100;
    EXPECT_EQ(rectangle.Classify({50, 50}), CLS::OUTSIDE);
    rectangle.rotation = 360 - 1e-7;
    EXPECT_EQ(rectangle.Classify({50, 50}), CLS::INSIDE);
}

TEST(Rectangle, HoldsItsCornersAndSidesAtEveryRotation) {
    const std::vector<std::pair<Point, Point>> places{{{10, 20}, {4, 2}},
                                                      {{0, 0}, {1, 1}},
                                                      {{500000.25, 6200000.75}, {35.5, 2.25}},
                                                      {{-3, 7}, {1e-3, 50}}};
    const double beyond = 1e-3;
    for (const auto& [origin, size] : places) {
        for (double degrees = 0; degrees < 360; degrees += 7.5) {
            for (const int anchor : {0, 1, 2, 3, 8}) {
                const Rectangle made = Made(origin, size.x, size.y, degrees, anchor);
                for (const Point& corner : made.points) {
                    ASSERT_EQ(made.Classify(corner), CLS::INSIDE) << degrees << ' ' << anchor;
                }
                ASSERT_EQ(made.Classify(Within(made, 0.5, 0.5)), CLS::INSIDE) << degrees;
                for (const Point& part : {Point(-beyond, 0.5), Point(1 + beyond, 0.5),
                                          Point(0.5, -beyond), Point(0.5, 1 + beyond)}) {
                    ASSERT_EQ(made.Classify(Within(made, part.x, part.y)), CLS::OUTSIDE) << degrees;
                }
            }
        }
    }
}

TEST(Rectangle, IsLeftByLittleMoreThanRounding) {
    const Rectangle made = Made({10, 20}, 4, 2, 30, 0);
    for (const Point& part :
         {Point(-1e-12, 0.5), Point(1 + 1e-12, 0.5), Point(0.5, -1e-12), Point(0.5, 1 + 1e-12)}) {
        EXPECT_EQ(made.Classify(Within(made, part.x, part.y)), CLS::OUTSIDE) << part.x;
    }
}

TEST(Rectangle, ClassifiesOneAfterAnotherAndOnEveryThreadAlike) {
    const Rectangle level = Made({0, 0}, 10, 1, 360 - 1e-6, 0);
    const Rectangle upright = Made({0, 0}, 10, 1, 90, 0);
    const auto expectBoth = [&] {
        for (int i = 0; i < 1000; ++i) {
            ASSERT_EQ(level.Classify({9, 0.5}), CLS::INSIDE);
            ASSERT_EQ(upright.Classify({9, 0.5}), CLS::OUTSIDE);
            ASSERT_EQ(upright.Classify({0.5, -9}), CLS::INSIDE);
            ASSERT_EQ(level.Classify({0.5, -9}), CLS::OUTSIDE);
        }
    };
    std::thread other(expectBoth);
    expectBoth();
    other.join();
}

TEST(Rectangle, HoldsNothingWhenItsNumbersAreBroken) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    const Rectangle turned = Made({0, 0}, 4, 2, 10, 0);
    EXPECT_EQ(turned.Classify({nan, 0}), CLS::OUTSIDE);
    EXPECT_EQ(turned.Classify({1, nan}), CLS::OUTSIDE);
    EXPECT_EQ(turned.Classify({infinity, -infinity}), CLS::OUTSIDE);
    EXPECT_EQ(Made({0, 0}, 4, 2, nan, 0).Classify({0, 0}), CLS::OUTSIDE);
    EXPECT_EQ(Made({0, 0}, nan, 2, 10, 0).Classify({0, 0}), CLS::OUTSIDE);
    EXPECT_EQ(Made({0, 0}, 4, nan, 10, 0).Classify({0, 0}), CLS::OUTSIDE);
    EXPECT_EQ(Made({0, 0}, infinity, 2, 10, 0).Classify({0, -50}), CLS::OUTSIDE);
    EXPECT_EQ(Made({0, 0}, -4, 2, 10, 0).Classify({-1, 1}), CLS::OUTSIDE);
}

TEST(Rectangle, WorksThroughTheInterfaceOfItsBases) {
    Rectangle rectangle = Made({10, 20}, 4, 2, 0, 0);
    GTL::GeoPrimitiveBase<Point>& shape = rectangle;
    EXPECT_EQ(shape.NumPoints(), 4);
    EXPECT_EQ(&shape.SetPoint(3, Point(9, 22)), &rectangle.points[3]);
    EXPECT_EQ(&shape.Point(3), &rectangle.points[3]);
    EXPECT_EQ(shape.Point(3), Point(9, 22));
    EXPECT_EQ(shape.Classify(Point(11, 21)), CLS::INSIDE);
    GTL::Transformation2D<Point> move;
    move.Translate(1, -1);
    shape.Transform(move);
    EXPECT_EQ(rectangle.points, (Corners{{{11, 19}, {15, 19}, {15, 21}, {10, 21}}}));
}

TEST(Rectangle, GrowsABoxByItsCornersAtHeightZero) {
    GTL::Extents3D<double> extents;
    Made({10, 20}, 4, 2, 90, 0).UpdateExtents(extents);
    EXPECT_TRUE(extents.MinPnt() == Point(10, 16));
    EXPECT_TRUE(extents.MaxPnt() == Point(12, 20));
    EXPECT_EQ(extents.MinZ(), 0.0);
    EXPECT_EQ(extents.MaxZ(), 0.0);
    extents.Update(11, 17, 5);
    Made({0, 0}, 1, 1, 0, 0).UpdateExtents(extents);
    EXPECT_EQ(extents.MaxZ(), 5.0);
    EXPECT_EQ(extents.MinX(), 0.0);
}

/// A shape without points and with nothing of its own to grow a box by.
class NoShape : public GTL::GeoPrimitiveBase<Point> {
public:
    GTL::Point2D<double>& Point(int) override { return m_Point; }
    GTL::Point2D<double>& SetPoint(int, const GTL::Point2D<double>&) override { return m_Point; }
    [[nodiscard]] int NumPoints() const override { return 0; }
    [[nodiscard]] CLS::CLASSIFICATION Classify(const GTL::Point2D<double>&) const override {
        return CLS::NONE;
    }
    void Transform(const GTL::Transformation<GTL::Point2D<double>>&) override {}

private:
    GTL::Point2D<double> m_Point;
};

TEST(GeoPrimitiveBase, LeavesABoxAsItIs) {
    GTL::Extents3D<double> extents;
    NoShape().UpdateExtents(extents);
    EXPECT_FALSE(extents.IsValid());
}

TEST(Rectangle, CopiesEverything) {
    const Rectangle original = Made({10, 20}, 4, 2, 30, 8);
    Rectangle copy = original;
    copy.SetPoint(0, Point(0, 0));
    copy = original;
    EXPECT_EQ(copy.points, original.points);
    EXPECT_EQ(copy.rotation.Get(), 30.0);
    EXPECT_EQ(copy.width, 4.0);
    EXPECT_EQ(copy.height, 2.0);
    EXPECT_EQ(copy.anchor, 8);
}

}  // namespace
