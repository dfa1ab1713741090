// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/geometry/coordinate.h>

namespace GTL {

/// A displacement in space. Default (0, 0, 0). `Point3D` has the arithmetic.
template <RealCoordinate T>
class MARLIN_API Vector3D {
public:
    T x{};  ///< Any value, in the unit of the points.
    T y{};  ///< Any value, in the unit of the points.
    T z{};  ///< Any value, in the unit of the points.

    constexpr Vector3D() noexcept = default;
    /// The displacement (x, y, z).
    constexpr Vector3D(T xValue, T yValue, T zValue) noexcept : x(xValue), y(yValue), z(zValue) {}
};

extern template class Vector3D<float>;
extern template class Vector3D<double>;

}  // namespace GTL
