// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/geometry/classification.h>
#include <marlin/geometry/coordinate.h>
#include <marlin/geometry/extents_2d.h>
#include <marlin/geometry/point_3d.h>
#include <marlin/geometry/transformation.h>

#include <array>

namespace GTL {

/// A box along the axes of space that grows with the points given to it; both corners belong
/// to it.
///
/// A box is valid when max >= min in x and in y, else empty; z takes no part in that. A new or
/// reset box is empty, with min (1, 1, 0) and max (0, 0, 0). The stored corners can be read and
/// set in either state. Units are the host's.
///
/// The first point of an empty box sets all six coordinates. When its z is not a number, no later
/// point mends the box: `ExtentZ` stays not a number and every point is OUTSIDE until `Reset`.
template <RealCoordinate T>
class MARLIN_API Extents3D {
public:
    Point3D<T> min{1, 1, 0};  ///< The corner of the least x, y and z.
    Point3D<T> max{0, 0, 0};  ///< The corner of the greatest; in x or y less than min when empty.

    constexpr Extents3D() noexcept = default;

    /// Whether the box is not empty.
    [[nodiscard]] constexpr bool IsValid() const noexcept {
        return max.x >= min.x && max.y >= min.y;
    }
    [[nodiscard]] constexpr T MinX() const noexcept { return min.x; }  ///< 1 in a new box.
    [[nodiscard]] constexpr T MinY() const noexcept { return min.y; }  ///< 1 in a new box.
    [[nodiscard]] constexpr T MinZ() const noexcept { return min.z; }  ///< 0 in a new box.
    [[nodiscard]] constexpr T MaxX() const noexcept { return max.x; }  ///< 0 in a new box.
    [[nodiscard]] constexpr T MaxY() const noexcept { return max.y; }  ///< 0 in a new box.
    [[nodiscard]] constexpr T MaxZ() const noexcept { return max.z; }  ///< 0 in a new box.
    /// The stored corner, whether valid or not.
    [[nodiscard]] constexpr const Point3D<T>& MinPnt() const noexcept { return min; }
    /// The stored corner, whether valid or not.
    [[nodiscard]] constexpr const Point3D<T>& MaxPnt() const noexcept { return max; }
    /// The width, never negative; 0 for an empty box.
    [[nodiscard]] constexpr T ExtentX() const noexcept { return IsValid() ? max.x - min.x : T{}; }
    /// The height in the plane, never negative; 0 for an empty box.
    [[nodiscard]] constexpr T ExtentY() const noexcept { return IsValid() ? max.y - min.y : T{}; }
    /// The span of z, negative when a valid box has min.z above max.z; 0 for an empty box.
    [[nodiscard]] constexpr T ExtentZ() const noexcept { return IsValid() ? max.z - min.z : T{}; }
    /// min + (max - min) / 2, of the stored corners whether valid or not.
    [[nodiscard]] constexpr Point3D<T> Center() const noexcept {
        return {detail::Middle(min.x, max.x), detail::Middle(min.y, max.y),
                detail::Middle(min.z, max.z)};
    }
    /// NONE when one of the boxes is empty. Boxes that only touch OVERLAP.
    [[nodiscard]] constexpr CLS::CLASSIFICATION Classify(const Extents3D& box) const noexcept;
    /// NONE when this box is empty.
    [[nodiscard]] constexpr CLS::CLASSIFICATION Classify(const Point3D<T>& point) const noexcept;

    /// Empties the box.
    constexpr void Reset() noexcept { *this = Extents3D(); }
    /// Grows to include the point; an empty box becomes that point.
    constexpr void Update(const Point3D<T>& point) noexcept;
    /// Grows to include the point of these coordinates.
    constexpr void Update(T x, T y, T z) noexcept { Update(Point3D<T>(x, y, z)); }
    /// Grows to include the other box; an empty one changes nothing.
    constexpr void Update(const Extents3D& box) noexcept;
    /// Becomes the bound of its own eight corners transformed, which may be larger than the
    /// transformed box. An empty box stays as it is.
    void Transform(const Transformation<Point3D<T>>& transformation);

    /// The box without z; an empty one becomes the empty box of the plane.
    constexpr operator Extents2D<T>() const noexcept { return Plane(); }
    /// Grows to include the other box.
    constexpr Extents3D& operator+=(const Extents3D& box) noexcept {
        Update(box);
        return *this;
    }
    /// The box around both, which is the other one where one is empty.
    [[nodiscard]] constexpr Extents3D operator+(const Extents3D& box) const noexcept {
        return Extents3D(*this) += box;
    }
    /// Compares the stored corners exactly, in empty boxes too.
    [[nodiscard]] constexpr bool operator==(const Extents3D& other) const noexcept = default;

private:
    [[nodiscard]] constexpr Extents2D<T> Plane() const noexcept {
        Extents2D<T> box;
        if (IsValid()) {
            box.min = min;
            box.max = max;
        }
        return box;
    }
};

template <RealCoordinate T>
constexpr CLS::CLASSIFICATION Extents3D<T>::Classify(const Extents3D& box) const noexcept {
    const CLS::CLASSIFICATION inPlane = Plane().Classify(box.Plane());
    if (inPlane == CLS::INSIDE || inPlane == CLS::OVERLAP) {
        if (box.min.z > max.z || box.max.z < min.z) {
            return CLS::OUTSIDE;
        }
        return box.min.z >= min.z && box.max.z <= max.z ? inPlane : CLS::OVERLAP;
    }
    return inPlane;
}

template <RealCoordinate T>
constexpr CLS::CLASSIFICATION Extents3D<T>::Classify(const Point3D<T>& point) const noexcept {
    const CLS::CLASSIFICATION inPlane = Plane().Classify(point);
    if (inPlane == CLS::INSIDE) {
        return min.z <= point.z && point.z <= max.z ? CLS::INSIDE : CLS::OUTSIDE;
    }
    return inPlane;
}

template <RealCoordinate T>
constexpr void Extents3D<T>::Update(const Point3D<T>& point) noexcept {
    if (!IsValid()) {
        min = max = Point3D<T>(point);
        return;
    }
    detail::Widen(min.x, max.x, point.x);
    detail::Widen(min.y, max.y, point.y);
    detail::Widen(min.z, max.z, point.z);
}

template <RealCoordinate T>
constexpr void Extents3D<T>::Update(const Extents3D& box) noexcept {
    if (box.IsValid()) {
        Update(box.min);
        Update(box.max);
    }
}

template <RealCoordinate T>
void Extents3D<T>::Transform(const Transformation<Point3D<T>>& transformation) {
    if (!IsValid()) {
        return;
    }
    std::array<Point3D<T>, 8> corners;
    for (unsigned i = 0; i < corners.size(); ++i) {
        corners[i] = {(i & 1U) != 0 ? max.x : min.x, (i & 2U) != 0 ? max.y : min.y,
                      (i & 4U) != 0 ? max.z : min.z};
    }
    detail::BoundTransformed(*this, corners, transformation);
}

extern template class Extents3D<float>;
extern template class Extents3D<double>;

}  // namespace GTL
