// SPDX-License-Identifier: MIT
#include <marlin/geometry/unit_type.h>

#include <utility>

#include <gtest/gtest.h>

namespace {

using enum UnitType::U_TYPE;

constexpr UnitType::U_TYPE UNITS[] = {U_MM, U_CM, U_M, U_INCHES, U_FEET};

TEST(UnitType, HasANameToShow) {
    const std::pair<int, const char*> cases[] = {
        {U_MM, "mm"},     {U_CM, "cm"},   {U_M, "m"},     {U_INCHES, "inches"},
        {U_FEET, "feet"}, {7, "UNKNOWN"}, {5, "UNKNOWN"}, {-1, "UNKNOWN"},
    };
    for (const auto& [type, name] : cases) {
        EXPECT_EQ(UnitType(static_cast<UnitType::U_TYPE>(type)).AsString(), name) << type;
    }
}

TEST(UnitType, ConvertsByTheFixedFactors) {
    const double factors[5][5] = {
        {1.0, 0.1, 0.001, 0.03937007874015748, 0.0032808398950131237},
        {10.0, 1.0, 0.01, 0.39370078740157477, 0.03280839895013123},
        {1000.0, 100.0, 1.0, 39.37007874015748, 3.2808398950131235},
        {25.4, 2.54, 0.0254, 1.0, 0.08333333333333333},
        {304.79999999999995, 30.48, 0.3048, 12.0, 1.0},
    };
    for (const auto from : UNITS) {
        for (const auto to : UNITS) {
            EXPECT_EQ(UnitType(from).Convert(to, -2.5), -2.5 * factors[from][to])
                << from << ' ' << to;
        }
    }
    // A value in its own unit stays as it is, also in one that is not known.
    const auto unknown = static_cast<UnitType::U_TYPE>(9);
    EXPECT_EQ(UnitType::Convert(unknown, unknown, 0.1 + 0.2), 0.1 + 0.2);
}

}  // namespace
