// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/geometry/classification.h>
#include <marlin/geometry/coordinate.h>
#include <marlin/geometry/point_2d.h>
#include <marlin/geometry/transformation.h>

#include <algorithm>
#include <array>

namespace GTL {

namespace detail {

template <RealCoordinate T>
constexpr T Middle(T low, T high) noexcept {
    return low + static_cast<T>(0.5) * (high - low);
}

/// Widens one axis of a box to a coordinate; one that is not a number changes nothing.
template <RealCoordinate T>
constexpr void Widen(T& low, T& high, T coordinate) noexcept {
    low = std::min(low, coordinate);
    high = std::max(high, coordinate);
}

/// Makes a box the bound of its transformed corners. All of them are transformed before the box
/// changes, which the transformation may look at, or keep by throwing.
template <class Box, class Corners, class T>
void BoundTransformed(Box& box, Corners corners, const T& transformation) {
    for (auto& corner : corners) {
        transformation.Apply(corner);
    }
    box.Reset();
    for (const auto& corner : corners) {
        box.Update(corner);
    }
}

}  // namespace detail

/// A box along the axes that grows with the points given to it; both corners belong to it.
///
/// A box is valid when max >= min on both axes, else empty. A new or reset box is empty, with
/// min (1, 1) and max (0, 0). The stored corners can be read and set in either state. Units are
/// the host's. A coordinate that is not a number widens nothing; in the first point of a box, in x
/// or y, it leaves the box empty for the next point.
///
/// @code
/// GTL::Extents2D<double> box;
/// box.Update(0, 0);
/// box.Update(10, 5);
/// assert(box.ExtentX() == 10);
/// assert(box.Classify(GTL::Point2D<double>(10, 5)) == GTL::CLS::INSIDE);
/// @endcode
template <RealCoordinate T>
class MARLIN_API Extents2D {
public:
    Point2D<T> min{1, 1};  ///< The corner of the least x and y.
    Point2D<T> max{0, 0};  ///< The corner of the greatest x and y; less than min when empty.

    constexpr Extents2D() noexcept = default;

    /// Whether the box is not empty.
    [[nodiscard]] constexpr bool IsValid() const noexcept {
        return max.x >= min.x && max.y >= min.y;
    }
    [[nodiscard]] constexpr T MinX() const noexcept { return min.x; }  ///< 1 in a new box.
    [[nodiscard]] constexpr T MinY() const noexcept { return min.y; }  ///< 1 in a new box.
    [[nodiscard]] constexpr T MaxX() const noexcept { return max.x; }  ///< 0 in a new box.
    [[nodiscard]] constexpr T MaxY() const noexcept { return max.y; }  ///< 0 in a new box.
    /// The stored corner, whether valid or not.
    [[nodiscard]] constexpr const Point2D<T>& MinPnt() const noexcept { return min; }
    /// The stored corner, whether valid or not.
    [[nodiscard]] constexpr const Point2D<T>& MaxPnt() const noexcept { return max; }
    /// The width, never negative; 0 for an empty box.
    [[nodiscard]] constexpr T ExtentX() const noexcept { return IsValid() ? max.x - min.x : T{}; }
    /// The height, never negative; 0 for an empty box.
    [[nodiscard]] constexpr T ExtentY() const noexcept { return IsValid() ? max.y - min.y : T{}; }
    /// min + (max - min) / 2, of the stored corners whether valid or not.
    [[nodiscard]] constexpr Point2D<T> Center() const noexcept {
        return {detail::Middle(min.x, max.x), detail::Middle(min.y, max.y)};
    }
    /// NONE when one of the boxes is empty. Boxes that only touch OVERLAP.
    [[nodiscard]] constexpr CLS::CLASSIFICATION Classify(const Extents2D& box) const noexcept;
    /// NONE when this box is empty.
    [[nodiscard]] constexpr CLS::CLASSIFICATION Classify(const Point2D<T>& point) const noexcept;

    /// Empties the box.
    constexpr void Reset() noexcept { *this = Extents2D(); }
    /// Grows to include the point; an empty box becomes that point.
    constexpr void Update(const Point2D<T>& point) noexcept;
    /// Grows to include the point of these coordinates.
    constexpr void Update(T x, T y) noexcept { Update(Point2D<T>(x, y)); }
    /// Grows to include the other box; an empty one changes nothing.
    constexpr void Update(const Extents2D& box) noexcept;
    /// Becomes the bound of its own four corners transformed, which may be larger than the
    /// transformed box. An empty box stays as it is.
    void Transform(const Transformation<Point2D<T>>& transformation);

    /// Grows to include the other box.
    constexpr Extents2D& operator+=(const Extents2D& box) noexcept {
        Update(box);
        return *this;
    }
    /// The box around both, which is the other one where one is empty.
    [[nodiscard]] constexpr Extents2D operator+(const Extents2D& box) const noexcept {
        return Extents2D(*this) += box;
    }
    /// Compares the stored corners with the tolerance of `Point2D`, in empty boxes too.
    [[nodiscard]] bool operator==(const Extents2D& other) const noexcept {
        return min == other.min && max == other.max;
    }
};

template <RealCoordinate T>
constexpr CLS::CLASSIFICATION Extents2D<T>::Classify(const Extents2D& box) const noexcept {
    if (!IsValid() || !box.IsValid()) {
        return CLS::NONE;
    }
    if (box.min.x > max.x || box.min.y > max.y || box.max.x < min.x || box.max.y < min.y) {
        return CLS::OUTSIDE;
    }
    const bool within =
        box.min.x >= min.x && box.min.y >= min.y && box.max.x <= max.x && box.max.y <= max.y;
    return within ? CLS::INSIDE : CLS::OVERLAP;
}

template <RealCoordinate T>
constexpr CLS::CLASSIFICATION Extents2D<T>::Classify(const Point2D<T>& point) const noexcept {
    if (!IsValid()) {
        return CLS::NONE;
    }
    const bool within =
        min.x <= point.x && point.x <= max.x && min.y <= point.y && point.y <= max.y;
    return within ? CLS::INSIDE : CLS::OUTSIDE;
}

template <RealCoordinate T>
constexpr void Extents2D<T>::Update(const Point2D<T>& point) noexcept {
    if (!IsValid()) {
        min = max = Point2D<T>(point);
        return;
    }
    detail::Widen(min.x, max.x, point.x);
    detail::Widen(min.y, max.y, point.y);
}

template <RealCoordinate T>
constexpr void Extents2D<T>::Update(const Extents2D& box) noexcept {
    if (box.IsValid()) {
        Update(box.min);
        Update(box.max);
    }
}

template <RealCoordinate T>
void Extents2D<T>::Transform(const Transformation<Point2D<T>>& transformation) {
    if (IsValid()) {
        using P = Point2D<T>;
        const std::array<P, 4> corners{min, P{max.x, min.y}, max, P{min.x, max.y}};
        detail::BoundTransformed(*this, corners, transformation);
    }
}

extern template class Extents2D<float>;
extern template class Extents2D<double>;

}  // namespace GTL
