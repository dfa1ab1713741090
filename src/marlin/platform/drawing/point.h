// SPDX-License-Identifier: MIT
#pragma once

/// A position in device or logical units.
struct POINT {
    int x = 0;  ///< to the right
    int y = 0;  ///< down on a device, up in most logical units
};

/// A `POINT` with constructors and comparison. Default (0, 0).
class CPoint : public POINT {
public:
    constexpr CPoint() noexcept = default;
    constexpr CPoint(int initialX, int initialY) noexcept : POINT{initialX, initialY} {}
    constexpr CPoint(POINT point) noexcept : POINT{point} {}

    [[nodiscard]] constexpr bool operator==(const CPoint& other) const noexcept {
        return x == other.x && y == other.y;
    }
};
