// SPDX-License-Identifier: MIT
#include <marlin/geometry/extents_3d.h>

#include <gtest/gtest.h>

namespace {

namespace CLS = GTL::CLS;

template <class T>
GTL::Extents3D<T> Box(const GTL::Point3D<T>& min, const GTL::Point3D<T>& max) {
    GTL::Extents3D<T> box;
    box.min = min;
    box.max = max;
    return box;
}

TEST(Extents3D, StartsEmpty) {
    GTL::Extents3D<double> box;
    EXPECT_FALSE(box.IsValid());
    EXPECT_EQ(box, Box<double>({1, 1, 0}, {0, 0, 0}));
    EXPECT_EQ(box.ExtentX() + box.ExtentY() + box.ExtentZ(), 0.0);
    EXPECT_EQ(box.Center(), GTL::Point3D<double>(0.5, 0.5, 0));
    box.Update(1, 2, 3);
    box.Reset();
    EXPECT_EQ(box, GTL::Extents3D<double>());
}

TEST(Extents3D, GrowsToEachPoint) {
    GTL::Extents3D<float> box;
    box.Update(3, 4, -5);
    EXPECT_EQ(box, Box<float>({3, 4, -5}, {3, 4, -5}));
    box.Update(GTL::Point3D<float>(1, 10, 7));
    box.Update(8, -2, -6);
    box.Update(5, 5, 5);
    EXPECT_EQ(box, Box<float>({1, -2, -6}, {8, 10, 7}));
    EXPECT_EQ(GTL::Point3D<float>(box.MinX(), box.MinY(), box.MinZ()), box.MinPnt());
    EXPECT_EQ(GTL::Point3D<float>(box.MaxX(), box.MaxY(), box.MaxZ()), box.MaxPnt());
    EXPECT_EQ(GTL::Point3D<float>(box.ExtentX(), box.ExtentY(), box.ExtentZ()),
              GTL::Point3D<float>(7, 12, 13));
    EXPECT_EQ(box.Center(), GTL::Point3D<float>(4.5, 4, 0.5));
}

TEST(Extents3D, UnitesWithOtherBoxes) {
    const auto box = Box<double>({0, 0, 0}, {2, 2, 2});
    const GTL::Extents3D<double> empty;
    EXPECT_EQ(box + empty, box);
    EXPECT_EQ(empty + box, box);
    auto grown = box;
    EXPECT_EQ(&(grown += Box<double>({1, 1, -4}, {3, 1, 9})), &grown);
    EXPECT_EQ(grown, Box<double>({0, 0, -4}, {3, 2, 9}));
    EXPECT_EQ(grown.Classify(box), CLS::INSIDE);
    grown.Update(empty);
    EXPECT_EQ(grown, Box<double>({0, 0, -4}, {3, 2, 9}));
}

TEST(Extents3D, LosesZAsABoxOfThePlane) {
    GTL::Extents2D<double> expected;
    const GTL::Extents2D<double> empty = Box<double>({9, 9, 9}, {8, 10, 10});
    EXPECT_EQ(empty, expected);
    expected.Update(1, 2);
    expected.Update(4, 5);
    const GTL::Extents2D<double> flat = Box<double>({1, 2, 3}, {4, 5, 6});
    EXPECT_EQ(flat, expected);
}

TEST(Extents3D, IsValidWhateverItsZ) {
    const auto box = Box<double>({0, 0, 5}, {1, 1, -5});
    EXPECT_TRUE(box.IsValid());
    EXPECT_EQ(box.ExtentZ(), -10.0);
    EXPECT_EQ(box.Classify(GTL::Point3D<double>(0.5, 0.5, 0)), CLS::OUTSIDE);
    EXPECT_FALSE(Box<double>({0, 2, 0}, {1, 1, 0}).IsValid());
    EXPECT_FALSE(Box<double>({2, 0, 0}, {1, 1, 0}).IsValid());
}

TEST(Extents3D, ClassifiesPoints) {
    const auto box = Box<double>({0, 0, 0}, {10, 10, 10});
    const struct {
        GTL::Point3D<double> point;
        CLS::CLASSIFICATION expected;
    } cases[] = {{{0, 0, 0}, CLS::INSIDE},     {{10, 10, 10}, CLS::INSIDE},
                 {{11, 5, 5}, CLS::OUTSIDE},   {{-1, 5, 5}, CLS::OUTSIDE},
                 {{5, 11, 5}, CLS::OUTSIDE},   {{5, -1, 5}, CLS::OUTSIDE},
                 {{5, 5, 10.1}, CLS::OUTSIDE}, {{5, 5, -0.1}, CLS::OUTSIDE}};
    for (const auto& [point, expected] : cases) {
        EXPECT_EQ(box.Classify(point), expected) << point.x << ' ' << point.y << ' ' << point.z;
    }
    EXPECT_EQ(GTL::Extents3D<double>().Classify(GTL::Point3D<double>()), CLS::NONE);
}

TEST(Extents3D, ClassifiesBoxes) {
    const auto box = Box<double>({0, 0, 0}, {10, 10, 10});
    const struct {
        GTL::Extents3D<double> other;
        CLS::CLASSIFICATION expected;
    } cases[] = {{box, CLS::INSIDE},
                 {Box<double>({2, 2, 2}, {8, 8, 8}), CLS::INSIDE},
                 {Box<double>({10, 10, 10}, {20, 20, 20}), CLS::OVERLAP},
                 {Box<double>({2, 2, 2}, {8, 8, 11}), CLS::OVERLAP},
                 {Box<double>({2, 2, -1}, {8, 8, 8}), CLS::OVERLAP},
                 {Box<double>({2, 2, 11}, {8, 8, 12}), CLS::OUTSIDE},
                 {Box<double>({2, 2, -2}, {8, 8, -1}), CLS::OUTSIDE},
                 {Box<double>({11, 2, 2}, {12, 8, 8}), CLS::OUTSIDE},
                 {Box<double>({2, -8, 2}, {8, -2, 8}), CLS::OUTSIDE},
                 {GTL::Extents3D<double>(), CLS::NONE}};
    for (const auto& [other, expected] : cases) {
        EXPECT_EQ(box.Classify(other), expected) << other.min.x << ' ' << other.min.z;
    }
    EXPECT_EQ(GTL::Extents3D<double>().Classify(box), CLS::NONE);
}

// Moves z by as much as x and y say, so that every corner counts.
struct Shear final : GTL::Transformation<GTL::Point3D<double>> {
    void Apply(GTL::Point3D<double>& point) const override {
        point.z += 10 * point.x - 100 * point.y;
        point.x -= point.z;
    }
};

TEST(Extents3D, BoundsItsEightTransformedCorners) {
    auto box = Box<double>({0, 0, 0}, {1, 2, 3});
    box.Transform(Shear());
    // z reaches from 0 - 200 to 3 + 10; x - z from 0 - 3 (or 1 - 13) to 0 + 200.
    EXPECT_EQ(box, Box<double>({-12, 0, -200}, {200, 2, 13}));
    GTL::Extents3D<double> empty;
    empty.Transform(Shear());
    EXPECT_EQ(empty, GTL::Extents3D<double>());
}

TEST(Extents3D, IsEqualOnlyExactly) {
    const auto box = Box<double>({0, 0, 0}, {1, 1, 1});
    EXPECT_NE(box, Box<double>({0, 0, 1e-15}, {1, 1, 1}));
    EXPECT_NE(box, Box<double>({0, 0, 0}, {std::nextafter(1.0, 2.0), 1, 1}));
}

}  // namespace
