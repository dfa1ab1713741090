// SPDX-License-Identifier: MIT
#include <marlin/geometry/transformation_2d.h>

#include <vector>

#include <gtest/gtest.h>

namespace {

using Point = GTL::Point2D<double>;
using Transformation2D = GTL::Transformation2D<Point>;

Point Applied(const GTL::Transformation<Point>& transformation, Point point) {
    transformation.Apply(point);
    return point;
}

const std::vector<Point> POINTS{{0, 0}, {1, 0}, {-3.5, 2}, {1e6, -4e5}, {1e-12, 7}};

TEST(Transformation2D, StartsAsTheIdentity) {
    for (const Point& point : POINTS) {
        const Point applied = Applied(Transformation2D(), point);
        EXPECT_EQ(applied.x, point.x);
        EXPECT_EQ(applied.y, point.y);
    }
}

TEST(Transformation2D, TurnsClockwise) {
    const struct {
        double degrees;
        Point expected;
    } cases[] = {{90, {0, -1}},
                 {180, {-1, 0}},
                 {270, {0, 1}},
                 {-90, {0, 1}},
                 {30, {0.8660254037844386, -0.5}},
                 {45, {0.7071067811865476, -0.7071067811865476}}};
    for (const auto& [degrees, expected] : cases) {
        Transformation2D turn;
        turn.Rotate(degrees);
        EXPECT_EQ(Applied(turn, {1, 0}), expected) << degrees;
        EXPECT_EQ(Applied(turn, {0, 1}), Point(-expected.y, expected.x)) << degrees;
    }
}

TEST(Transformation2D, AppliesLastWhatIsComposedLast) {
    Transformation2D movedThenTurned;
    movedThenTurned.Translate(1, 0);
    movedThenTurned.Rotate(90);
    EXPECT_EQ(Applied(movedThenTurned, {0, 0}), Point(0, -1));
    Transformation2D turnedThenMoved;
    turnedThenMoved.Rotate(90);
    turnedThenMoved.Translate(1, 0);
    EXPECT_EQ(Applied(turnedThenMoved, {0, 0}), Point(1, 0));
    EXPECT_EQ(Applied(turnedThenMoved, {2, 3}), Point(4, -2));
}

TEST(Transformation2D, TurnsAboutAnyPoint) {
    Transformation2D turn;
    turn.Translate(-5, -7);
    turn.Rotate(90);
    turn.Translate(5, 7);
    EXPECT_EQ(Applied(turn, {5, 7}), Point(5, 7));
    EXPECT_EQ(Applied(turn, {6, 7}), Point(5, 6));
}

TEST(Transformation2D, IsUndoneByItsInverse) {
    for (const double degrees : {0.0, 1.0, 45.0, 90.0, 123.4, 359.999}) {
        Transformation2D both;
        both.Translate(12.5, -3);
        both.Rotate(degrees);
        both.Translate(0.25, 100);
        both.Translate(-0.25, -100);
        both.Rotate(-Angle(degrees));
        both.Translate(-12.5, 3);
        for (const Point& point : POINTS) {
            EXPECT_EQ(Applied(both, point), point) << degrees << ' ' << point.x;
        }
    }
}

}  // namespace
