// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <limits>

namespace PLATFORM::detail {

/// The nearest whole number, halves away from 0; the nearest that fits 32 bits; 0 for NaN.
[[nodiscard]] constexpr int RoundToInt(double value) noexcept {
    constexpr double limit = std::numeric_limits<int>::max();
    const double away = value < 0 ? value - 0.5 : value + 0.5;
    if (!(away < limit)) {
        return away >= limit ? std::numeric_limits<int>::max() : 0;
    }
    return away <= -limit - 1 ? std::numeric_limits<int>::min() : static_cast<int>(away);
}

}  // namespace PLATFORM::detail
