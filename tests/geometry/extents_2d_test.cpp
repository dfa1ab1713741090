// SPDX-License-Identifier: MIT
#include <marlin/geometry/extents_2d.h>
#include <marlin/geometry/transformation_2d.h>

#include <limits>
#include <vector>

#include <gtest/gtest.h>

namespace {

namespace CLS = GTL::CLS;

template <class T>
GTL::Extents2D<T> Box(T minX, T minY, T maxX, T maxY) {
    GTL::Extents2D<T> box;
    box.min = {minX, minY};
    box.max = {maxX, maxY};
    return box;
}

TEST(Extents2D, StartsEmpty) {
    GTL::Extents2D<double> box;
    EXPECT_FALSE(box.IsValid());
    EXPECT_EQ(box, Box<double>(1, 1, 0, 0));
    EXPECT_EQ(box.ExtentX() + box.ExtentY(), 0.0);
    EXPECT_EQ(box.Center(), GTL::Point2D<double>(0.5, 0.5));
    box.Update(2, 3);
    box.Reset();
    EXPECT_EQ(box, Box<double>(1, 1, 0, 0));
}

TEST(Extents2D, GrowsToEachPoint) {
    GTL::Extents2D<float> box;
    box.Update(3, 4);
    EXPECT_EQ(box, Box<float>(3, 4, 3, 4));
    EXPECT_TRUE(box.IsValid());
    box.Update(GTL::Point2D<float>(1, 10));
    box.Update(8, -2);
    box.Update(5, 5);
    EXPECT_EQ(box, Box<float>(1, -2, 8, 10));
    EXPECT_EQ(GTL::Point2D<float>(box.MinX(), box.MinY()), box.MinPnt());
    EXPECT_EQ(GTL::Point2D<float>(box.MaxX(), box.MaxY()), box.MaxPnt());
    EXPECT_EQ(GTL::Point2D<float>(box.ExtentX(), box.ExtentY()), GTL::Point2D<float>(7, 12));
    EXPECT_EQ(box.Center(), GTL::Point2D<float>(4.5, 4));
}

TEST(Extents2D, UnitesWithOtherBoxes) {
    const auto box = Box<double>(0, 0, 2, 2);
    const GTL::Extents2D<double> empty;
    EXPECT_EQ(box + empty, box);
    EXPECT_EQ(empty + box, box);
    EXPECT_EQ(empty + empty, empty);
    auto grown = box;
    EXPECT_EQ(&(grown += Box<double>(1, -3, 5, 1)), &grown);
    grown.Update(empty);
    grown.Update(grown);
    EXPECT_EQ(grown, Box<double>(0, -3, 5, 2));
    GTL::Extents2D<double> itsOwnCorner;
    itsOwnCorner.Update(itsOwnCorner.max);
    EXPECT_EQ(itsOwnCorner, Box<double>(0, 0, 0, 0));
}

TEST(Extents2D, IsValidWhenMaxReachesMinOnBothAxes) {
    EXPECT_TRUE(Box<double>(1, 1, 1, 1).IsValid());
    EXPECT_FALSE(Box<double>(1, 1, 0, 1).IsValid());
    EXPECT_FALSE(Box<double>(1, 1, 1, 0).IsValid());
    EXPECT_FALSE(Box<double>(0, 0, std::numeric_limits<double>::quiet_NaN(), 1).IsValid());
    EXPECT_EQ(Box<double>(1, 1, 5, 0).ExtentX(), 0.0);
    EXPECT_EQ(Box<double>(1, 0, 0, 5).ExtentY(), 0.0);
}

TEST(Extents2D, ClassifiesPoints) {
    const auto box = Box<double>(0, 0, 10, 10);
    const double above = std::nextafter(10.0, 11.0);
    const double below = -std::numeric_limits<double>::denorm_min();
    const struct {
        GTL::Point2D<double> point;
        CLS::CLASSIFICATION expected;
    } cases[] = {{{10, 10}, CLS::INSIDE},    {{0, 0}, CLS::INSIDE},      {{5, 5}, CLS::INSIDE},
                 {{10.5, 5}, CLS::OUTSIDE},  {{above, 5}, CLS::OUTSIDE}, {{below, 5}, CLS::OUTSIDE},
                 {{5, above}, CLS::OUTSIDE}, {{5, below}, CLS::OUTSIDE}};
    for (const auto& [point, expected] : cases) {
        EXPECT_EQ(box.Classify(point), expected) << point.x << ' ' << point.y;
    }
    EXPECT_EQ(GTL::Extents2D<double>().Classify(GTL::Point2D<double>(0, 0)), CLS::NONE);
}

TEST(Extents2D, ClassifiesBoxes) {
    const auto box = Box<double>(0, 0, 10, 10);
    const struct {
        GTL::Extents2D<double> other;
        CLS::CLASSIFICATION expected;
    } cases[] = {
        {Box<double>(10, 10, 20, 20), CLS::OVERLAP}, {Box<double>(2, 2, 8, 8), CLS::INSIDE},
        {Box<double>(0, 0, 10, 10), CLS::INSIDE},    {Box<double>(-5, -5, 15, 15), CLS::OVERLAP},
        {Box<double>(11, 0, 12, 1), CLS::OUTSIDE},   {Box<double>(-2, 0, -1, 1), CLS::OUTSIDE},
        {Box<double>(0, 11, 1, 12), CLS::OUTSIDE},   {Box<double>(0, -2, 1, -1), CLS::OUTSIDE},
        {Box<double>(-5, 0, 0, 1), CLS::OVERLAP},    {Box<double>(2, -1, 8, 8), CLS::OVERLAP},
        {Box<double>(2, 2, 11, 8), CLS::OVERLAP},    {Box<double>(2, 2, 8, 11), CLS::OVERLAP},
        {Box<double>(-1, 2, 8, 8), CLS::OVERLAP},    {GTL::Extents2D<double>(), CLS::NONE}};
    for (const auto& [other, expected] : cases) {
        EXPECT_EQ(box.Classify(other), expected) << other.min.x << ' ' << other.min.y;
    }
    EXPECT_EQ(GTL::Extents2D<double>().Classify(box), CLS::NONE);
    EXPECT_EQ(CLS::OVERLAP, 10);
}

TEST(Extents2D, AUnionContainsBothBoxes) {
    const std::vector<GTL::Extents2D<float>> boxes{Box<float>(0, 0, 1, 1), Box<float>(-5, 2, -4, 9),
                                                   Box<float>(3, 3, 3, 3),
                                                   Box<float>(-1e6F, -1, 1e6F, 1)};
    for (const auto& a : boxes) {
        for (const auto& b : boxes) {
            EXPECT_EQ((a + b).Classify(a), CLS::INSIDE);
            EXPECT_EQ((a + b).Classify(b), CLS::INSIDE);
            EXPECT_EQ(a + b, b + a);
        }
    }
}

TEST(Extents2D, BoundsItsTransformedCorners) {
    using Point = GTL::Point2D<double>;
    GTL::Transformation2D<Point> turn;
    turn.Rotate(45);
    auto box = Box<double>(-1, -1, 1, 1);
    box.Transform(turn);
    const double root = 1.4142135623730951;
    EXPECT_EQ(box, Box<double>(-root, -root, root, root));

    GTL::Transformation2D<Point> quarter;
    quarter.Rotate(90);
    auto wide = Box<double>(1, 2, 5, 3);
    wide.Transform(quarter);
    EXPECT_EQ(wide, Box<double>(2, -5, 3, -1));

    GTL::Extents2D<double> empty;
    empty.Transform(quarter);
    EXPECT_EQ(empty.MinX(), 1.0);
    EXPECT_EQ(empty.MaxY(), 0.0);
}

TEST(Extents2D, IsEqualWithinTheToleranceOfItsStoredCorners) {
    const auto box = Box<double>(0, 0, 10, 10);
    EXPECT_EQ(box, Box<double>(1e-10, 0, 10, 10 + 1e-10));
    EXPECT_NE(box, Box<double>(1e-8, 0, 10, 10));
    EXPECT_NE(box, Box<double>(0, 0, 10, 10.1));
    EXPECT_NE(GTL::Extents2D<double>(), Box<double>(2, 2, 0, 0));
}

}  // namespace
