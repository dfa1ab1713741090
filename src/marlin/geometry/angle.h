// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/math.h>
#include <marlin/core/export.h>

#include <cmath>
#include <compare>
#include <limits>

/// A direction in degrees, kept in one turn. Default 0.
///
/// Every constructor and operation reduces its result once: the remainder by 360, plus 360 where
/// that is negative. The value lies in [0, 360), except that a tiny negative remainder rounds to
/// 360 itself. Infinities and what is not a number give an angle that is not a number, and so
/// does all arithmetic with it.
///
/// `==` is tolerant (`MATH::Equal` on the degrees); the other comparisons, `!=` too, are exact.
/// So two angles close to each other are equal and unequal at once.
///
/// @code
/// assert(Angle(-90).Get() == 270);
/// assert(Angle(350).Difference(Angle(10)) == Angle(20));
/// @endcode
class MARLIN_API Angle {
public:
    constexpr Angle() noexcept = default;
    /// From degrees, of any size.
    constexpr Angle(double degrees) noexcept : m_Degrees(Reduce(degrees)) {}

    /// In degrees, [0, 360].
    [[nodiscard]] constexpr double Get() const noexcept { return m_Degrees; }
    /// In radians.
    [[nodiscard]] constexpr double Rad() const noexcept { return m_Degrees * MATH::DTR; }
    // Most texts and boxes are not turned; the exact values save them the calls.
    /// The sine, from -1 to 1.
    [[nodiscard]] double Sin() const noexcept { return m_Degrees == 0 ? 0 : std::sin(Rad()); }
    /// The cosine, from -1 to 1.
    [[nodiscard]] double Cos() const noexcept { return m_Degrees == 0 ? 1 : std::cos(Rad()); }
    /// The tangent; huge, but finite, at 90 and 270 degrees.
    [[nodiscard]] double Tan() const noexcept { return std::tan(Rad()); }
    /// 1 for [0, 90) to 4 for [270, 360), 5 for 360 itself; 0 for what is not a number.
    [[nodiscard]] int Quadrant() const noexcept;
    /// The sweep from this angle to the other in increasing direction; 0 for equal ones.
    [[nodiscard]] Angle Difference(const Angle& other) const noexcept;

    /// 360 less the angle; 0 for 0.
    constexpr Angle operator-() const noexcept { return -m_Degrees; }
    /// The sum, reduced to one turn.
    constexpr Angle operator+(const Angle& a) const noexcept { return m_Degrees + a.m_Degrees; }
    /// The difference, reduced to one turn.
    constexpr Angle operator-(const Angle& a) const noexcept { return m_Degrees - a.m_Degrees; }
    /// The multiple, reduced to one turn.
    constexpr Angle operator*(double factor) const noexcept { return m_Degrees * factor; }
    /// The part, reduced to one turn; not a number for a divisor of 0.
    constexpr Angle operator/(double divisor) const noexcept { return m_Degrees / divisor; }
    /// Turns further.
    constexpr Angle& operator+=(const Angle& other) noexcept { return *this = *this + other; }
    /// Turns back.
    constexpr Angle& operator-=(const Angle& other) noexcept { return *this = *this - other; }
    /// Becomes the multiple.
    constexpr Angle& operator*=(double factor) noexcept { return *this = *this * factor; }
    /// Becomes the part.
    constexpr Angle& operator/=(double divisor) noexcept { return *this = *this / divisor; }

    /// With the tolerance of `MATH::Equal`. 359.9999999999 and 0 are far apart, not equal.
    [[nodiscard]] bool operator==(const Angle& other) const noexcept {
        return MATH::Equal(other.m_Degrees, m_Degrees);
    }
    /// Exact, and so not the opposite of `==`.
    [[nodiscard]] constexpr bool operator!=(const Angle& other) const noexcept {
        return m_Degrees != other.m_Degrees;
    }
    /// Orders exactly by the degrees.
    [[nodiscard]] constexpr std::partial_ordering operator<=>(const Angle& other) const noexcept {
        return m_Degrees <=> other.m_Degrees;
    }

private:
    /// Degrees in range are their own remainder, so only others pay for it.
    static constexpr double Reduce(double degrees) noexcept {
        return degrees > 0 && degrees < 360 ? degrees : Remainder(degrees);
    }
    /// As `std::fmod` finds it, which is no constant expression: every difference here is exact.
    /// A remainder of 0 has no sign, which would show in texts.
    static constexpr double Remainder(double degrees) noexcept {
        constexpr double most = std::numeric_limits<double>::max();
        if (!(degrees >= -most && degrees <= most)) {
            return std::numeric_limits<double>::quiet_NaN();
        }
        double rest = degrees > 0 ? degrees : 0 - degrees;
        double turns = 360;
        while (turns <= rest / 2) {
            turns *= 2;
        }
        for (; turns >= 360; turns /= 2) {
            rest -= rest >= turns ? turns : 0;
        }
        return degrees < 0 && rest > 0 ? 360 - rest : rest;
    }

    double m_Degrees = 0;
};
