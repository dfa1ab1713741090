// SPDX-License-Identifier: MIT
#include <marlin/base/math.h>

#include <limits>
#include <utility>

#include <gtest/gtest.h>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

TEST(Math, ThePrecisionIsTheDecimalsOfTheShortestText) {
    const std::pair<double, int> table[] = {
        {0.0, 0},      {-0.0, 0},     {1.0, 0},      {2.5, 1},       {-0.125, 3},
        {0.1, 1},      {1e-7, 7},     {1.5e-7, 8},   {1e22, 0},      {1.25e300, 0},
        {1e-300, 300}, {5e-324, 324}, {infinity, 0}, {notANumber, 0}};
    for (const auto& [value, decimals] : table) {
        EXPECT_EQ(GetDoublePrecision(value), decimals) << value;
    }
}

TEST(Math, ValuesWithinTheToleranceAreEqual) {
    for (const auto& [a, b] : {std::pair(1.0, 1.0 + 9e-10), std::pair(-1e12, -1e12 - 0.5),
                               std::pair(infinity, infinity)}) {
        EXPECT_TRUE(MATH::Equal(a, b) && MATH::Equal(b, a)) << a;
    }
    for (const auto& [a, b] :
         {std::pair(1.0, 1.0 + 2e-9), std::pair(-1e12, -1e12 - 2.0), std::pair(infinity, -infinity),
          std::pair(infinity, 1e308), std::pair(notANumber, notANumber)}) {
        EXPECT_FALSE(MATH::Equal(a, b) || MATH::Equal(b, a)) << a;
    }
    EXPECT_DOUBLE_EQ(90.0 * MATH::DTR, std::acos(0.0));
}

}  // namespace
