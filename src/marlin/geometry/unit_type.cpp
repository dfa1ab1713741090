// SPDX-License-Identifier: MIT
#include <marlin/geometry/unit_type.h>

#include <array>
#include <cassert>
#include <cstddef>
#include <limits>

namespace {

constexpr std::size_t NUM_UNITS = 5;

constexpr std::array<const char*, NUM_UNITS> NAMES{"mm", "cm", "m", "inches", "feet"};

// Row: the unit of the value, column: the unit wanted. Some factors are not the doubles nearest
// to the exact ratios; stored drawings rely on them as they are.
constexpr double FACTORS[NUM_UNITS][NUM_UNITS] = {
    {1.0, 0.1, 0.001, 0.03937007874015748, 0.0032808398950131237},
    {10.0, 1.0, 0.01, 0.39370078740157477, 0.03280839895013123},
    {1000.0, 100.0, 1.0, 39.37007874015748, 3.2808398950131235},
    {25.4, 2.54, 0.0254, 1.0, 0.08333333333333333},
    {304.79999999999995, 30.48, 0.3048, 12.0, 1.0},
};

// Negative values become large ones.
std::size_t Index(UnitType::U_TYPE type) noexcept {
    return static_cast<unsigned>(type);
}

}  // namespace

std::string UnitType::AsString() const {
    return Index(m_Type) < NUM_UNITS ? NAMES[Index(m_Type)] : "UNKNOWN";
}

double UnitType::Convert(U_TYPE from, U_TYPE to, double value) noexcept {
    if (from == to) {
        return value;
    }
    const bool known = Index(from) < NUM_UNITS && Index(to) < NUM_UNITS;
    assert(known);
    return known ? value * FACTORS[Index(from)][Index(to)]
                 : std::numeric_limits<double>::quiet_NaN();
}
