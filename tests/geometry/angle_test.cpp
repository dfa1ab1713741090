// SPDX-License-Identifier: MIT
#include <marlin/geometry/angle.h>

#include <array>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>
#include <support/order.h>

namespace {

TEST(Angle, IsReducedToOneTurnAndFallsIntoAQuadrant) {
    const std::array<double, 3> cases[] = {
        {0, 0, 1},         {-0.0, 0, 1},     {360, 0, 1},
        {720, 0, 1},       {-360, 0, 1},     {1080.25, 0.25, 1},
        {89.9, 89.9, 1},   {90, 90, 2},      {3.6e17 + 128, 128, 2},
        {179.9, 179.9, 2}, {180, 180, 3},    {269.9, 269.9, 3},
        {-90, 270, 4},     {-725, 355, 4},   {359.5, 359.5, 4},
        {-0.5, 359.5, 4},  {-1e-20, 360, 5},
    };
    for (const auto& [degrees, reduced, quadrant] : cases) {
        EXPECT_EQ(Angle(degrees).Get(), reduced) << degrees;
        EXPECT_FALSE(std::signbit(Angle(degrees).Get())) << degrees;
        EXPECT_EQ(Angle(degrees).Quadrant(), quadrant) << degrees;
    }
}

TEST(Angle, StaysNoNumberWhateverIsDoneWithIt) {
    const double infinity = std::numeric_limits<double>::infinity();
    const Angle broken(std::numeric_limits<double>::quiet_NaN());
    for (const Angle& angle :
         {broken, Angle(infinity), Angle(-infinity), broken + Angle(1), broken * 0, -broken,
          Angle(1) / 0, Angle(0) / 0, broken.Difference(Angle(1)), Angle(1).Difference(broken)}) {
        EXPECT_TRUE(std::isnan(angle.Get()));
    }
    EXPECT_EQ(broken.Quadrant(), 0);
    EXPECT_FALSE(broken == broken);
    EXPECT_FALSE(broken < Angle(1) || broken > Angle(1) || broken <= Angle(1) ||
                 broken >= Angle(1));
}

TEST(Angle, Calculates) {
    EXPECT_EQ((-Angle(90)).Get(), 270.0);
    EXPECT_FALSE(std::signbit((-Angle(0)).Get()));
    Angle angle(350);
    EXPECT_EQ((angle += Angle(30)).Get(), 20.0);
    EXPECT_EQ((angle -= Angle(50)).Get(), 330.0);
    EXPECT_EQ((angle *= 2).Get(), 300.0);
    EXPECT_EQ((angle /= 3).Get(), 100.0);
}

TEST(Angle, SweepsInIncreasingDirection) {
    const std::array<double, 3> cases[] = {
        {350, 10, 20},     {10, 350, 340}, {45, 45, 0},       {0.3, 0.3, 0},
        {350, 10.1, 20.1}, {0.1, 0.1, 0},  {0, 359.5, 359.5}, {359.5, 0, 0.5},
    };
    for (const auto& [from, to, expected] : cases) {
        EXPECT_EQ(Angle(from).Difference(Angle(to)).Get(), expected) << from << ' ' << to;
    }
    for (double from = 0; from < 360; from += 7.25) {
        for (double to = 0; to < 360; to += 11.75) {
            EXPECT_EQ((Angle(from) + Angle(from).Difference(Angle(to))).Get(), to) << from;
        }
    }
}

TEST(Angle, HasASineACosineAndATangent) {
    EXPECT_DOUBLE_EQ(Angle(180).Rad(), 3.141592653589793);
    EXPECT_DOUBLE_EQ(Angle(-30).Sin(), -0.5);
    EXPECT_DOUBLE_EQ(Angle(60).Cos(), 0.5);
    EXPECT_DOUBLE_EQ(Angle(45).Tan(), 1.0);
}

TEST(Angle, IsEqualAndUnequalToAnAngleNextToItAndOrderedExactly) {
    const Angle angle(100);
    const Angle near(100 + 5e-10);
    EXPECT_TRUE(angle == near && angle != near);
    EXPECT_TRUE(angle < near && near > angle && !(near <= angle) && !(angle >= near));
    EXPECT_FALSE(angle != Angle(460));
    ExpectAscending<Angle>({0, 1e-6, 90, 359});
}

}  // namespace
