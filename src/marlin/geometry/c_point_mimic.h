// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/geometry/point_2d.h>
#include <marlin/platform/drawing/point.h>

/// A point in device units, laid out as the framework's `CPoint` and used in its place.
/// Default (0, 0).
///
/// Coordinates that are not whole become floor(v + 0.5), so halves go up: 2.5 to 3, -2.5 to -2.
/// Values beyond 32 bits become the nearest 32-bit integer; a value that is not a number becomes 0.
class MARLIN_API CPointMimic {
public:
    constexpr CPointMimic() noexcept = default;
    /// The point (x, y).
    constexpr CPointMimic(int x, int y) noexcept : m_X(x), m_Y(y) {}
    /// The framework's point.
    constexpr CPointMimic(const CPoint& point) noexcept : m_X(point.x), m_Y(point.y) {}
    /// The same integers.
    constexpr CPointMimic(const GTL::Point2D<int>& point) noexcept : m_X(point.x), m_Y(point.y) {}
    /// Rounded.
    CPointMimic(const GTL::Point2D<float>& point) noexcept;
    /// Rounded.
    CPointMimic(const GTL::Point2D<double>& point) noexcept;

    [[nodiscard]] constexpr int X() const noexcept { return m_X; }  ///< In device units.
    [[nodiscard]] constexpr int Y() const noexcept { return m_Y; }  ///< In device units.

    constexpr void X(int x) noexcept { m_X = x; }  ///< In device units.
    constexpr void Y(int y) noexcept { m_Y = y; }  ///< In device units.

    /// The framework's point.
    constexpr operator CPoint() const noexcept { return {m_X, m_Y}; }

private:
    int m_X = 0;
    int m_Y = 0;
};

namespace GTL {
using ::CPointMimic;
}
