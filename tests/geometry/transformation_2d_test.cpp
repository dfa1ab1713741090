// SPDX-License-Identifier: MIT
#include <marlin/geometry/transformation_2d.h>

#include <utility>

#include <gtest/gtest.h>

namespace {

using Point = GTL::Point2D<double>;
using Transformation2D = GTL::Transformation2D<Point>;

Point Applied(const GTL::Transformation<Point>& transformation, Point point) {
    point.Transform(transformation);
    return point;
}

TEST(Transformation2D, TurnsClockwise) {
    const double longer = 0.8660254037844386;
    const std::pair<double, Point> cases[] = {
        {90, {0, -1}}, {180, {-1, 0}}, {-90, {0, 1}}, {30, {longer, -0.5}}};
    for (const auto& [degrees, expected] : cases) {
        Transformation2D turn;
        turn.Rotate(degrees);
        EXPECT_EQ(Applied(turn, {1, 0}), expected) << degrees;
        EXPECT_EQ(Applied(turn, {0, 1}), Point(-expected.y, expected.x)) << degrees;
    }
}

TEST(Transformation2D, AppliesLastWhatIsComposedLast) {
    Transformation2D composed;
    composed.Translate(1, 0);
    composed.Rotate(90);
    EXPECT_EQ(Applied(composed, {0, 0}), Point(0, -1));
    composed.Translate(5, 7);
    EXPECT_EQ(Applied(composed, {0, 0}), Point(5, 6));
    EXPECT_EQ(Applied(composed, {2, 3}), Point(8, 4));
    composed.Translate(-5, -7);
    composed.Rotate(270);
    composed.Translate(-1, 0);
    EXPECT_EQ(Applied(composed, {1e6, -4e5}), Point(1e6, -4e5));
}

}  // namespace
