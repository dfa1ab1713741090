// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/drawing_constants.h>
#include <marlin/platform/drawing/point.h>
#include <marlin/platform/drawing/size.h>

namespace PLATFORM::detail {

/// The resolution of the display and of every surface.
inline constexpr int DotsPerInch = 96;

/// The mapping between logical and device coordinates. Default MM_TEXT. Extents are never 0.
struct Mapping {
    int Mode = MM_TEXT;
    POINT WindowOrigin;
    POINT ViewportOrigin;
    SIZE WindowExtent{1, 1};
    SIZE ViewportExtent{1, 1};

    [[nodiscard]] bool SetMode(int mode) noexcept;
    [[nodiscard]] bool IsFree() const noexcept {
        return Mode == MM_ISOTROPIC || Mode == MM_ANISOTROPIC;
    }
    /// False, and nothing changed, for an extent of 0. True, and nothing changed, in a fixed mode.
    [[nodiscard]] bool SetExtent(SIZE Mapping::*extent, SIZE value) noexcept;

    [[nodiscard]] POINT ToDevice(POINT logical) const noexcept;
    [[nodiscard]] POINT ToLogical(POINT device) const noexcept;
    /// Device units per logical unit, without signs.
    [[nodiscard]] double ScaleX() const noexcept;
    [[nodiscard]] double ScaleY() const noexcept;

private:
    void MakeSquare() noexcept;
};

}  // namespace PLATFORM::detail
