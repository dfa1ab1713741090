// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/geometry/coordinate.h>

namespace GTL {

/// A displacement in the plane. Default (0, 0). `Point2D` has the arithmetic.
///
/// @code
/// const GTL::Vector2D<int> way(2, -1);
/// assert(GTL::Point2D<int>(1, 1) + way == GTL::Point2D<int>(3, 0));
/// @endcode
template <Coordinate T>
class MARLIN_API Vector2D {
public:
    T x{};  ///< Any value, in the unit of the points.
    T y{};  ///< Any value, in the unit of the points.

    constexpr Vector2D() noexcept = default;
    /// The displacement (x, y).
    constexpr Vector2D(T xValue, T yValue) noexcept : x(xValue), y(yValue) {}
};

extern template class Vector2D<int>;
extern template class Vector2D<float>;
extern template class Vector2D<double>;

}  // namespace GTL
