// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/geometry/coordinate.h>

namespace GTL {

/// A displacement in the plane. Default (0, 0). `Point2D` gives the arithmetic.
template <Coordinate T>
class MARLIN_API Vector2D {
public:
    T x{};
    T y{};

    constexpr Vector2D() noexcept = default;
    constexpr Vector2D(T xValue, T yValue) noexcept : x(xValue), y(yValue) {}
};

extern template class Vector2D<int>;
extern template class Vector2D<float>;
extern template class Vector2D<double>;

}  // namespace GTL
