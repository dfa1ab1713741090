// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>

namespace MARLINSUITE::detail {

/// A color of the hexcone model, whose hues run round a hexagon with the pure colors at its
/// corners. `Real` sets the precision of every step.
template <class Real>
struct Hexcone {
    Real Hue{};         ///< In degrees from red, [0, 360); 0 for a gray.
    Real Saturation{};  ///< 0 to 1; 0 for a gray.
    Real Value{};       ///< On the scale of red, green and blue.
};

/// From red, green and blue on any one scale from 0.
template <class Real>
[[nodiscard]] constexpr Hexcone<Real> ToHexcone(Real red, Real green, Real blue) noexcept {
    const Real largest = std::max({red, green, blue});
    const Real delta = largest - std::min({red, green, blue});
    if (delta == 0) {
        return {0, 0, largest};
    }
    const Real redShare = (largest - red) / delta;
    const Real greenShare = (largest - green) / delta;
    const Real blueShare = (largest - blue) / delta;
    Real sextants = 4 + greenShare - redShare;
    if (largest == red) {
        sextants = blueShare - greenShare;
    } else if (largest == green) {
        sextants = 2 + redShare - blueShare;
    }
    const Real hue = sextants * 60;
    return {hue < 0 ? hue + 360 : hue, delta / largest, largest};
}

/// Red, green and blue, 0 to the value, at a fraction of the way through a sextant; all 0 for a
/// sextant that is not 0 to 5.
template <class Real>
[[nodiscard]] constexpr std::array<Real, 3> FromHexcone(int sextant, Real fraction, Real saturation,
                                                        Real value) noexcept {
    const Real low = (1 - saturation) * value;
    const Real falling = (1 - saturation * fraction) * value;
    const Real rising = (1 - (1 - fraction) * saturation) * value;
    switch (sextant) {
        case 0:
            return {value, rising, low};
        case 1:
            return {falling, value, low};
        case 2:
            return {low, value, rising};
        case 3:
            return {low, falling, value};
        case 4:
            return {rising, low, value};
        case 5:
            return {value, low, falling};
        default:
            return {};
    }
}

}  // namespace MARLINSUITE::detail
