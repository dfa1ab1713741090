// SPDX-License-Identifier: MIT
#include <marlin/geometry/angle.h>

#include <cmath>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

namespace {

const double NOT_A_NUMBER = std::numeric_limits<double>::quiet_NaN();

TEST(Angle, IsReducedToOneTurn) {
    const struct {
        double degrees;
        double expected;
    } cases[] = {{0, 0},        {359.5, 359.5},      {360, 0},     {720, 0},
                 {-90, 270},    {-360, 0},           {-725, 355},  {1080.25, 0.25},
                 {-0.5, 359.5}, {3.6e17 + 128, 128}, {-1e-20, 360}};
    for (const auto& [degrees, expected] : cases) {
        EXPECT_EQ(Angle(degrees).Get(), expected) << degrees;
        EXPECT_FALSE(std::signbit(Angle(degrees).Get())) << degrees;
    }
    EXPECT_EQ(Angle().Get(), 0.0);
    EXPECT_FALSE(std::signbit(Angle(-0.0).Get()));
}

TEST(Angle, StaysNoNumberWhateverIsDoneWithIt) {
    const double infinity = std::numeric_limits<double>::infinity();
    const Angle broken(NOT_A_NUMBER);
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
    EXPECT_EQ((Angle(359.5) + Angle(1)).Get(), 0.5);
    EXPECT_EQ((Angle(10) - Angle(20)).Get(), 350.0);
    EXPECT_EQ((Angle(100) * 4).Get(), 40.0);
    EXPECT_EQ((Angle(100) * -1).Get(), 260.0);
    EXPECT_EQ((Angle(100) / 8).Get(), 12.5);
    EXPECT_EQ((-Angle(90)).Get(), 270.0);
    EXPECT_EQ((-Angle(0)).Get(), 0.0);
    EXPECT_FALSE(std::signbit((-Angle(0)).Get()));
}

TEST(Angle, CalculatesInPlace) {
    Angle angle(350);
    EXPECT_EQ(&(angle += Angle(30)), &angle);
    EXPECT_EQ(angle.Get(), 20.0);
    EXPECT_EQ((angle -= Angle(50)).Get(), 330.0);
    EXPECT_EQ((angle *= 2).Get(), 300.0);
    EXPECT_EQ((angle /= 3).Get(), 100.0);
}

TEST(Angle, SweepsInIncreasingDirection) {
    const struct {
        double from;
        double to;
        double expected;
    } cases[] = {{350, 10, 20},     {10, 350, 340}, {45, 45, 0},       {0.3, 0.3, 0},
                 {350, 10.1, 20.1}, {0.1, 0.1, 0},  {0, 359.5, 359.5}, {359.5, 0, 0.5}};
    for (const auto& [from, to, expected] : cases) {
        EXPECT_EQ(Angle(from).Difference(Angle(to)).Get(), expected) << from << ' ' << to;
    }
    for (double from = 0; from < 360; from += 7.25) {
        for (double to = 0; to < 360; to += 11.75) {
            EXPECT_EQ((Angle(from) + Angle(from).Difference(Angle(to))).Get(), to);
        }
    }
}

TEST(Angle, FallsIntoAQuadrant) {
    const struct {
        double degrees;
        int expected;
    } cases[] = {{0, 1},   {89.9, 1},  {90, 2},  {179.9, 2},
                 {180, 3}, {269.9, 3}, {270, 4}, {359.9, 4}};
    for (const auto& [degrees, expected] : cases) {
        EXPECT_EQ(Angle(degrees).Quadrant(), expected) << degrees;
    }
}

TEST(Angle, HasASineACosineAndATangent) {
    EXPECT_DOUBLE_EQ(Angle(180).Rad(), 3.141592653589793);
    EXPECT_DOUBLE_EQ(Angle(30).Sin(), 0.5);
    EXPECT_DOUBLE_EQ(Angle(60).Cos(), 0.5);
    EXPECT_DOUBLE_EQ(Angle(45).Tan(), 1.0);
    EXPECT_DOUBLE_EQ(Angle(-30).Sin(), -0.5);
    EXPECT_NEAR(Angle(90).Cos(), 0.0, 1e-15);
}

TEST(Angle, IsEqualAndUnequalToAnAngleNextToIt) {
    const Angle angle(100);
    const Angle near(100 + 5e-10);
    EXPECT_TRUE(angle == near);
    EXPECT_TRUE(angle != near);
    EXPECT_TRUE(angle < near);
    EXPECT_FALSE(angle == Angle(100 + 1e-6));
    EXPECT_FALSE(angle != Angle(460));
}

TEST(Angle, OrdersByDegreesExactly) {
    const std::vector<Angle> ascending{0, 1e-12, 90, 359};
    for (std::size_t i = 0; i < ascending.size(); ++i) {
        for (std::size_t k = 0; k < ascending.size(); ++k) {
            EXPECT_EQ(ascending[i] < ascending[k], i < k);
            EXPECT_EQ(ascending[i] > ascending[k], i > k);
            EXPECT_EQ(ascending[i] <= ascending[k], i <= k);
            EXPECT_EQ(ascending[i] >= ascending[k], i >= k);
        }
    }
}

}  // namespace
