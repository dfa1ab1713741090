// SPDX-License-Identifier: MIT
#include <marlin/geometry/angle.h>

#include <array>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>
#include <support/order.h>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

TEST(Angle, IsReducedToOneTurnAndFallsIntoAQuadrant) {
    struct Case {
        double Degrees;
        double Reduced;
        int Quadrant;
        Angle Made = Degrees;
    };
    static constexpr Case cases[] = {
        {0, 0, 1},     {-0.0, 0, 1},      {360, 0, 1},        {720, 0, 1},
        {-360, 0, 1},  {359.5, 359.5, 4}, {1080.25, 0.25, 1}, {89.9, 89.9, 1},
        {90, 90, 2},   {-725, 355, 4},    {180, 180, 3},      {269.9, 269.9, 3},
        {-90, 270, 4}, {179.9, 179.9, 2}, {-1e-20, 360, 5},   {3.6e17 + 128, 128, 2},
    };
    for (const auto& [degrees, reduced, quadrant, made] : cases) {
        EXPECT_EQ(made.Get(), reduced) << degrees;
        EXPECT_FALSE(std::signbit(made.Get())) << degrees;
        EXPECT_EQ(made.Quadrant(), quadrant) << degrees;
    }
    for (double degrees = 1e-300; std::fabs(degrees) < 1e306; degrees *= -7.3) {
        const double rest = std::fmod(degrees, 360);
        EXPECT_EQ(Angle(degrees).Get(), rest < 0 ? rest + 360 : rest) << degrees;
    }
}

TEST(Angle, StaysNoNumberWhateverIsDoneWithIt) {
    static constexpr Angle made[] = {nan, infinity, -infinity};
    const Angle broken = made[0];
    const Angle angles[] = {broken,     made[1],    made[2], broken + 1,  broken * 0,
                            broken / 2, broken - 1, -broken, Angle(0) / 0};
    for (const Angle& angle : angles) {
        EXPECT_TRUE(std::isnan(angle.Get()));
    }
    EXPECT_TRUE(std::isnan(broken.Difference(1).Get()));
    EXPECT_TRUE(std::isnan(Angle(1).Difference(broken).Get()));
    EXPECT_EQ(broken.Quadrant(), 0);
    EXPECT_FALSE(broken == broken || broken < Angle(1) || broken >= Angle(1));
}

TEST(Angle, Calculates) {
    Angle angle(350);
    EXPECT_EQ((angle += 30).Get(), 20.0);
    EXPECT_EQ((angle -= 50).Get(), 330.0);
    EXPECT_EQ((angle *= 2).Get(), 300.0);
    EXPECT_EQ((angle /= 3).Get(), 100.0);
    EXPECT_EQ((-angle).Get(), 260.0);
    EXPECT_DOUBLE_EQ(Angle(180).Rad(), 3.141592653589793);
    EXPECT_DOUBLE_EQ(Angle(-30).Sin(), -0.5);
    EXPECT_DOUBLE_EQ(Angle(60).Cos(), 0.5);
    EXPECT_DOUBLE_EQ(Angle(45).Tan(), 1.0);
}

TEST(Angle, SweepsInIncreasingDirection) {
    const std::array<double, 3> cases[] = {
        {350, 10, 20}, {10, 350, 340},    {45, 45, 0},
        {0.3, 0.3, 0}, {350, 10.1, 20.1}, {359.5, 0, 0.5},
    };
    for (const auto& [from, to, expected] : cases) {
        EXPECT_EQ(Angle(from).Difference(to).Get(), expected) << from << ' ' << to;
    }
}

TEST(Angle, IsEqualAndUnequalToAnAngleNextToItAndOrderedExactly) {
    const Angle angle(100);
    const Angle near(100 + 5e-10);
    EXPECT_TRUE(angle == near && angle != near && angle < near && near > angle);
    EXPECT_FALSE(angle != Angle(460));
    ExpectAscending<Angle>({0, 1e-6, 90, 359});
}

}  // namespace
