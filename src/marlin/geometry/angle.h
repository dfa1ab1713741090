// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/math.h>
#include <marlin/core/export.h>

#include <cmath>

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
    constexpr Angle(double degrees) noexcept : m_Degrees(Reduce(degrees)) {}

    /// In degrees.
    [[nodiscard]] constexpr double Get() const noexcept { return m_Degrees; }
    [[nodiscard]] constexpr double Rad() const noexcept { return m_Degrees * MATH::DTR; }
    // Most texts and boxes are not turned; the exact values save them the calls.
    [[nodiscard]] double Sin() const noexcept { return m_Degrees == 0 ? 0 : std::sin(Rad()); }
    [[nodiscard]] double Cos() const noexcept { return m_Degrees == 0 ? 1 : std::cos(Rad()); }
    [[nodiscard]] double Tan() const noexcept { return std::tan(Rad()); }
    /// 1 for [0, 90) to 4 for [270, 360), 5 for 360 itself; 0 for what is not a number.
    [[nodiscard]] int Quadrant() const noexcept;
    /// The sweep from this angle to the other in increasing direction; 0 for equal ones.
    [[nodiscard]] Angle Difference(const Angle& other) const noexcept;

    constexpr Angle operator-() const noexcept { return -m_Degrees; }
    constexpr Angle operator+(const Angle& other) const noexcept {
        return m_Degrees + other.m_Degrees;
    }
    constexpr Angle operator-(const Angle& other) const noexcept {
        return m_Degrees - other.m_Degrees;
    }
    constexpr Angle operator*(double factor) const noexcept { return m_Degrees * factor; }
    constexpr Angle operator/(double divisor) const noexcept { return m_Degrees / divisor; }
    constexpr Angle& operator+=(const Angle& other) noexcept { return *this = *this + other; }
    constexpr Angle& operator-=(const Angle& other) noexcept { return *this = *this - other; }
    constexpr Angle& operator*=(double factor) noexcept { return *this = *this * factor; }
    constexpr Angle& operator/=(double divisor) noexcept { return *this = *this / divisor; }

    [[nodiscard]] bool operator==(const Angle& other) const noexcept {
        return MATH::Equal(other.m_Degrees, m_Degrees);
    }
    [[nodiscard]] constexpr bool operator!=(const Angle& other) const noexcept {
        return m_Degrees != other.m_Degrees;
    }
    [[nodiscard]] constexpr bool operator<(const Angle& other) const noexcept {
        return m_Degrees < other.m_Degrees;
    }
    [[nodiscard]] constexpr bool operator>(const Angle& other) const noexcept {
        return m_Degrees > other.m_Degrees;
    }
    [[nodiscard]] constexpr bool operator<=(const Angle& other) const noexcept {
        return m_Degrees <= other.m_Degrees;
    }
    [[nodiscard]] constexpr bool operator>=(const Angle& other) const noexcept {
        return m_Degrees >= other.m_Degrees;
    }

private:
    /// Degrees in range are their own remainder, so only others pay for it.
    static constexpr double Reduce(double degrees) noexcept {
        return degrees > 0 && degrees < 360 ? degrees : Remainder(degrees);
    }
    static double Remainder(double degrees) noexcept;

    double m_Degrees = 0;
};
