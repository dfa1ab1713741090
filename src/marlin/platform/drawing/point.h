// SPDX-License-Identifier: MIT
#pragma once

/// A position in device units, 32 bits a coordinate.
struct POINT {
    int x = 0;
    int y = 0;
};

/// The framework's own point over `POINT`. Default (0, 0).
class CPoint : public POINT {
public:
    constexpr CPoint() noexcept = default;
    constexpr CPoint(int initialX, int initialY) noexcept : POINT{initialX, initialY} {}
    constexpr CPoint(POINT point) noexcept : POINT{point} {}

    [[nodiscard]] constexpr bool operator==(const CPoint& other) const noexcept {
        return x == other.x && y == other.y;
    }
};
