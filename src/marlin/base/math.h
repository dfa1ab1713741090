// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace MATH {

/// Degrees to radians.
inline constexpr double DTR = std::numbers::pi / 180.0;

/// Equality within a tolerance: a == b, or both finite and |a - b| <= 1e-9 + 1e-12 * max(|a|, |b|).
/// Never true for a value that is not a number.
[[nodiscard]] inline bool Equal(double a, double b) noexcept {
    if (a == b) {
        return true;
    }
    const double magnitude = std::max(std::fabs(a), std::fabs(b));
    return std::isfinite(magnitude) && std::fabs(a - b) <= 1e-9 + 1e-12 * magnitude;
}

}  // namespace MATH

/// The number of decimals of the shortest fixed-point text that reads back to the value;
/// 0 for a value that is not finite.
[[nodiscard]] MARLIN_API int GetDoublePrecision(double value);
