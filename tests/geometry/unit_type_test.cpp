// SPDX-License-Identifier: MIT
#include <marlin/geometry/unit_type.h>

#include <gtest/gtest.h>

namespace {

using Type = UnitType::U_TYPE;

TEST(UnitType, ConvertsByTheFixedFactorsAndHasAName) {
    const double factors[5][5] = {
        {1.0, 0.1, 0.001, 0.03937007874015748, 0.0032808398950131237},
        {10.0, 1.0, 0.01, 0.39370078740157477, 0.03280839895013123},
        {1000.0, 100.0, 1.0, 39.37007874015748, 3.2808398950131235},
        {25.4, 2.54, 0.0254, 1.0, 0.08333333333333333},
        {304.79999999999995, 30.48, 0.3048, 12.0, 1.0},
    };
    const char* const names[] = {"mm", "cm", "m", "inches", "feet"};
    for (int from = UnitType::U_MM; from <= UnitType::U_FEET; ++from) {
        UnitType unit;
        unit.SetType(static_cast<Type>(from));
        EXPECT_EQ(unit, static_cast<Type>(from));
        EXPECT_EQ(unit.AsString(), names[from]);
        for (int to = UnitType::U_MM; to <= UnitType::U_FEET; ++to) {
            EXPECT_EQ(unit.Convert(static_cast<Type>(to), -2.5), -2.5 * factors[from][to])
                << from << ' ' << to;
        }
    }
    for (const int unknown : {5, 7, -1}) {
        const UnitType unit(static_cast<Type>(unknown));
        EXPECT_EQ(unit.AsString(), "UNKNOWN") << unknown;
        EXPECT_EQ(unit.Convert(unit.GetType(), 0.1 + 0.2), 0.1 + 0.2) << unknown;
    }
}

}  // namespace
