// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/geometry/coordinate.h>

namespace GTL {

/// A displacement in space. Default (0, 0, 0). `Point3D` has the arithmetic.
template <RealCoordinate T>
class MARLIN_API Vector3D {
public:
    T x{};
    T y{};
    T z{};

    constexpr Vector3D() noexcept = default;
    constexpr Vector3D(T xValue, T yValue, T zValue) noexcept : x(xValue), y(yValue), z(zValue) {}
};

extern template class Vector3D<float>;
extern template class Vector3D<double>;

}  // namespace GTL
