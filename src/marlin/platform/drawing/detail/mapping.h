// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/drawing_constants.h>
#include <marlin/platform/drawing/point.h>
#include <marlin/platform/drawing/size.h>

namespace PLATFORM::detail {

/// The resolution of the display and of every surface.
inline constexpr int DotsPerInch = 96;

/// The mapping from logical to device coordinates. Default MM_TEXT. Extents are never 0.
struct Mapping {
    int Mode = MM_TEXT;
    SIZE WindowExtent{1, 1};
    SIZE ViewportExtent{1, 1};

    /// The mode before; 0, and nothing changed, for an unknown one.
    int SetMode(int mode) noexcept;
    /// The extent before. Nothing is changed for an extent of 0 and in a mode of a fixed unit.
    SIZE SetExtent(SIZE Mapping::*extent, SIZE value) noexcept;

    [[nodiscard]] POINT ToDevice(POINT logical) const noexcept;
    /// Device units per logical unit, without signs.
    [[nodiscard]] double ScaleX() const noexcept;
    [[nodiscard]] double ScaleY() const noexcept;

private:
    void MakeSquare() noexcept;
};

}  // namespace PLATFORM::detail
