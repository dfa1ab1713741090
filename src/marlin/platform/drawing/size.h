// SPDX-License-Identifier: MIT
#pragma once

/// A width and a height in device or logical units.
struct SIZE {
    int cx = 0;  ///< the width
    int cy = 0;  ///< the height
};

/// A `SIZE` with constructors and comparison. Default (0, 0).
class CSize : public SIZE {
public:
    constexpr CSize() noexcept = default;
    constexpr CSize(int initialCX, int initialCY) noexcept : SIZE{initialCX, initialCY} {}
    constexpr CSize(SIZE size) noexcept : SIZE{size} {}

    [[nodiscard]] constexpr bool operator==(const CSize& other) const noexcept {
        return cx == other.cx && cy == other.cy;
    }
};
