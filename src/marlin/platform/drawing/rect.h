// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/point.h>
#include <marlin/platform/drawing/size.h>

/// A rectangle in device or logical units; the right and bottom edges are not part of it.
struct RECT {
    int left = 0;    ///< the first column
    int top = 0;     ///< the first row
    int right = 0;   ///< the column after the last
    int bottom = 0;  ///< the row after the last
};

/// A `RECT` with constructors, comparison and its sizes. Default all 0. Corners stay as they are
/// given, so a rectangle may be upside down and its width or height negative.
class CRect : public RECT {
public:
    constexpr CRect() noexcept = default;
    constexpr CRect(int l, int t, int r, int b) noexcept : RECT{l, t, r, b} {}
    constexpr CRect(const RECT& rect) noexcept : RECT{rect} {}

    [[nodiscard]] constexpr int Width() const noexcept { return right - left; }
    [[nodiscard]] constexpr int Height() const noexcept { return bottom - top; }
    [[nodiscard]] constexpr operator const RECT*() const noexcept { return this; }

    [[nodiscard]] constexpr bool operator==(const CRect& other) const noexcept {
        return left == other.left && top == other.top && right == other.right &&
               bottom == other.bottom;
    }
};
