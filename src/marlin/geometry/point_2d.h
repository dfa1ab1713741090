// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/math.h>
#include <marlin/core/export.h>
#include <marlin/geometry/coordinate.h>
#include <marlin/geometry/transformation.h>
#include <marlin/geometry/vector_2d.h>

#include <cmath>
#include <concepts>
#include <type_traits>

namespace GTL {

/// A position in the plane, in the host's units. Default (0, 0); no value is checked or clamped,
/// and keeping integer results within 32 bits is up to the caller.
///
/// Equality is tolerant (`MATH::Equal` on each coordinate), the order is exact: x first, then
/// y where x is exactly equal. So two points may be equal and yet ordered; containers keyed by
/// points go by the exact order.
///
/// @code
/// const GTL::Point2D<double> here(3, 4);
/// const GTL::Vector2D<double> way = here - GTL::Point2D<double>();
/// assert(here + way == GTL::Point2D<double>(6, 8));
/// assert(here.Dist2D({0, 0}, false) == 5.0);
/// @endcode
template <Coordinate T>
class MARLIN_API Point2D {
public:
    T x{};  ///< Any value.
    T y{};  ///< Any value.

    constexpr Point2D() noexcept = default;
    /// The point (x, y).
    constexpr Point2D(T xValue, T yValue) noexcept : x(xValue), y(yValue) {}
    /// The end of the vector from (0, 0).
    constexpr Point2D(const Vector2D<T>& vector) noexcept : x(vector.x), y(vector.y) {}

    [[nodiscard]] constexpr T X() const noexcept { return x; }  ///< A copy.
    [[nodiscard]] constexpr T Y() const noexcept { return y; }  ///< A copy.

    /// The distance to the other point in the plane, or its square. For `int` the squares and
    /// their sum are formed in 32 bits, which a difference of 46,341 or more overflows; for
    /// `float` the differences are single, the rest double.
    [[nodiscard]] double Dist2D(const Point2D& other, bool squared) const noexcept {
        using Term = std::conditional_t<std::same_as<T, int>, int, double>;
        const Term dx = static_cast<T>(other.x - x);
        const Term dy = static_cast<T>(other.y - y);
        const double sum = dx * dx + dy * dy;
        return squared ? sum : std::sqrt(sum);
    }

    [[nodiscard]] constexpr T& X() noexcept { return x; }  ///< To be changed.
    [[nodiscard]] constexpr T& Y() noexcept { return y; }  ///< To be changed.
    constexpr void X(T value) noexcept { x = value; }      ///< Any value.
    constexpr void Y(T value) noexcept { y = value; }      ///< Any value.
    /// Has the transformation move this point.
    void Transform(const Transformation<Point2D>& transformation) { transformation.Apply(*this); }

    /// The way from (0, 0) to this point.
    constexpr operator Vector2D<T>() const noexcept { return {x, y}; }

    /// The point that the way leads to.
    constexpr Point2D operator+(const Vector2D<T>& v) const noexcept { return {x + v.x, y + v.y}; }
    /// The point from which the way leads here.
    constexpr Point2D operator-(const Vector2D<T>& v) const noexcept { return {x - v.x, y - v.y}; }
    /// The sum of the coordinates.
    constexpr Vector2D<T> operator+(const Point2D& p) const noexcept { return {x + p.x, y + p.y}; }
    /// The way from the other point to this one.
    constexpr Vector2D<T> operator-(const Point2D& p) const noexcept { return {x - p.x, y - p.y}; }
    /// Integers divide towards zero; a divisor of 0 is the caller's error.
    constexpr Point2D operator/(const T& divisor) const noexcept {
        return {x / divisor, y / divisor};
    }
    /// Moves by the way.
    constexpr Point2D& operator+=(const Vector2D<T>& v) noexcept { return *this = *this + v; }
    /// Moves back by the way.
    constexpr Point2D& operator-=(const Vector2D<T>& v) noexcept { return *this = *this - v; }

    /// With the tolerance of `MATH::Equal` in x and in y.
    [[nodiscard]] bool operator==(const Point2D& other) const noexcept {
        return MATH::Equal(x, other.x) && MATH::Equal(y, other.y);
    }
    /// Exactly by x, then by y.
    [[nodiscard]] constexpr bool operator<(const Point2D& other) const noexcept {
        return x < other.x || (x == other.x && y < other.y);
    }
    /// Exactly by x, then by y.
    [[nodiscard]] constexpr bool operator>(const Point2D& other) const noexcept {
        return x > other.x || (x == other.x && y > other.y);
    }
    /// Exactly by x, then by y.
    [[nodiscard]] constexpr bool operator<=(const Point2D& other) const noexcept {
        return x < other.x || (!(x > other.x) && y <= other.y);
    }
    /// Exactly by x, then by y.
    [[nodiscard]] constexpr bool operator>=(const Point2D& other) const noexcept {
        return x > other.x || (!(x < other.x) && y >= other.y);
    }
};

extern template class Point2D<int>;
extern template class Point2D<float>;
extern template class Point2D<double>;
extern template class Transformation<Point2D<double>>;

/// The points that shapes and their transformations are made of.
template <class P>
concept PlanePoint = std::same_as<P, Point2D<double>>;

}  // namespace GTL
