// SPDX-License-Identifier: MIT
#include <marlin/geometry/unit_type.h>

#include <string>

#include <gtest/gtest.h>

namespace {

using enum UnitType::U_TYPE;

constexpr UnitType::U_TYPE UNITS[] = {U_MM, U_CM, U_M, U_INCHES, U_FEET};

TEST(UnitType, StartsAsMillimetres) {
    UnitType unit;
    EXPECT_EQ(unit.GetType(), U_MM);
    unit.SetType(U_FEET);
    EXPECT_EQ(unit.GetType(), 4);
    EXPECT_EQ(unit, UnitType(U_FEET));
    EXPECT_NE(unit, UnitType(U_INCHES));
}

TEST(UnitType, HasANameToShow) {
    const std::string names[] = {"mm", "cm", "m", "inches", "feet"};
    for (const auto type : UNITS) {
        EXPECT_EQ(UnitType(type).AsString(), names[type]);
    }
    for (const int other : {7, 5, -1}) {
        EXPECT_EQ(UnitType(static_cast<UnitType::U_TYPE>(other)).AsString(), "UNKNOWN") << other;
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
            EXPECT_EQ(UnitType::Convert(from, to, 1.0), factors[from][to]) << from << ' ' << to;
            EXPECT_EQ(UnitType(from).Convert(to, -2.5), -2.5 * factors[from][to]);
            const double there = UnitType::Convert(from, to, 1234.5);
            EXPECT_NEAR(UnitType::Convert(to, from, there), 1234.5, 1e-9) << from << ' ' << to;
        }
    }
    EXPECT_EQ(UnitType::Convert(U_INCHES, U_MM, 2.0), 50.8);
}

TEST(UnitType, LeavesAValueInItsOwnUnitUnchanged) {
    const double value = 0.1 + 0.2;
    for (const auto type : UNITS) {
        EXPECT_EQ(UnitType(type).Convert(type, value), value);
    }
    const auto unknown = static_cast<UnitType::U_TYPE>(9);
    EXPECT_EQ(UnitType::Convert(unknown, unknown, value), value);
}

}  // namespace
