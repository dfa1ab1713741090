// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/geometry/coordinate.h>
#include <marlin/geometry/point_2d.h>
#include <marlin/geometry/transformation.h>
#include <marlin/geometry/vector_3d.h>

#include <cmath>

namespace GTL {

/// A position in space, in the host's units. Default (0, 0, 0); no value is checked or clamped.
///
/// Its base is a whole `Point2D` of its x and y: a reference to that base views and changes the
/// same object and leaves z alone. X, Y, `Dist2D` (z takes no part) and the conversion to
/// `Vector2D` (z is dropped) come from there. Unlike in the plane, equality is exact; the order
/// is exact too: x first, then y, then z.
template <RealCoordinate T>
class MARLIN_API Point3D : public Point2D<T> {
public:
    using Point2D<T>::x;
    using Point2D<T>::y;
    T z{};  ///< Any value, upwards or downwards as the host has it.

    constexpr Point3D() noexcept = default;
    /// The point (x, y, z).
    constexpr Point3D(T xValue, T yValue, T zValue) noexcept
        : Point2D<T>(xValue, yValue), z(zValue) {}
    /// The point of the plane, raised to z.
    constexpr Point3D(const Point2D<T>& point, T zValue) noexcept : Point2D<T>(point), z(zValue) {}
    /// The end of the vector from (0, 0, 0). Serves the assignment of a vector too.
    constexpr Point3D(const Vector3D<T>& vector) noexcept : Point3D(vector.x, vector.y, vector.z) {}

    [[nodiscard]] constexpr T Z() const noexcept { return z; }  ///< A copy.

    /// The distance to the other point, or its square. For `float` the differences are single and
    /// the sum of the squares double; the root is taken in single precision.
    [[nodiscard]] double Dist3D(const Point3D& other, bool squared) const noexcept {
        const double dx = x - other.x;
        const double dy = y - other.y;
        const double dz = z - other.z;
        const double sum = dx * dx + dy * dy + dz * dz;
        return squared ? sum : std::sqrt(static_cast<T>(sum));
    }

    [[nodiscard]] constexpr T& Z() noexcept { return z; }  ///< To be changed.
    constexpr void Z(T value) noexcept { z = value; }      ///< Any value.
    /// Has the transformation move this point.
    void Transform(const Transformation<Point3D>& transformation) { transformation.Apply(*this); }

    /// The way from (0, 0, 0) to this point.
    constexpr operator Vector3D<T>() const noexcept { return {x, y, z}; }

    /// The point that the way leads to.
    constexpr Point3D operator+(const Vector3D<T>& v) const noexcept {
        return {x + v.x, y + v.y, z + v.z};
    }
    /// The point from which the way leads here.
    constexpr Point3D operator-(const Vector3D<T>& v) const noexcept {
        return {x - v.x, y - v.y, z - v.z};
    }
    /// The way from the other point to this one.
    constexpr Vector3D<T> operator-(const Point3D& p) const noexcept {
        return {x - p.x, y - p.y, z - p.z};
    }
    /// Each coordinate divided.
    constexpr Point3D operator/(const T& divisor) const noexcept {
        return {x / divisor, y / divisor, z / divisor};
    }
    /// Moves by the way.
    constexpr Point3D& operator+=(const Vector3D<T>& v) noexcept { return *this = *this + v; }
    /// Moves back by the way.
    constexpr Point3D& operator-=(const Vector3D<T>& v) noexcept { return *this = *this - v; }

    /// Exact, in all three coordinates.
    [[nodiscard]] constexpr bool operator==(const Point3D& other) const noexcept {
        return x == other.x && y == other.y && z == other.z;
    }
    /// Exactly by x, then by y, then by z.
    [[nodiscard]] constexpr bool operator<(const Point3D& other) const noexcept {
        return x < other.x || (x == other.x && (y < other.y || (y == other.y && z < other.z)));
    }
    /// The mirror image of `<`.
    [[nodiscard]] constexpr bool operator>(const Point3D& other) const noexcept {
        return other < *this;
    }
    /// The negation of `>`, so true where a coordinate is not a number.
    [[nodiscard]] constexpr bool operator<=(const Point3D& other) const noexcept {
        return !(*this > other);
    }
    /// The negation of `<`, so true where a coordinate is not a number.
    [[nodiscard]] constexpr bool operator>=(const Point3D& other) const noexcept {
        return !(*this < other);
    }
};

extern template class Point3D<float>;
extern template class Point3D<double>;

}  // namespace GTL
