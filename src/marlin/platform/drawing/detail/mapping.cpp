// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/detail/mapping.h>
#include <marlin/platform/drawing/detail/rounding.h>

#include <cmath>
#include <utility>

namespace PLATFORM::detail {

namespace {

// In double precision, which 32-bit coordinates neither overflow nor lose digits in.
int Map(int value, int fromExtent, int toExtent) noexcept {
    return RoundToInt(static_cast<double>(value) * toExtent / fromExtent);
}

}  // namespace

int Mapping::SetMode(int mode) noexcept {
    if (mode == MM_TEXT) {
        WindowExtent = ViewportExtent = {1, 1};
    } else if (mode == MM_HIMETRIC || mode == MM_ISOTROPIC) {
        // Hundredths of a millimetre an inch; the free mode starts with tenths.
        const int units = mode == MM_HIMETRIC ? 2540 : 254;
        WindowExtent = {units, units};
        ViewportExtent = {DotsPerInch, -DotsPerInch};
    } else {
        return 0;
    }
    return std::exchange(Mode, mode);
}

SIZE Mapping::SetExtent(SIZE Mapping::*extent, SIZE value) noexcept {
    if (Mode != MM_ISOTROPIC || value.cx == 0 || value.cy == 0) {
        return this->*extent;
    }
    const SIZE before = std::exchange(this->*extent, value);
    MakeSquare();
    return before;
}

// Shrinks the axis of larger units, so that the picture stays within the viewport that was asked.
void Mapping::MakeSquare() noexcept {
    const double scaleX = ScaleX();
    const double scaleY = ScaleY();
    const auto shrink = [](int& extent, double factor) {
        const int shrunk = RoundToInt(extent * factor);
        extent = shrunk != 0 ? shrunk : (extent < 0 ? -1 : 1);
    };
    if (scaleX > scaleY) {
        shrink(ViewportExtent.cx, scaleY / scaleX);
    } else {
        shrink(ViewportExtent.cy, scaleX / scaleY);
    }
}

double Mapping::ScaleX() const noexcept {
    return std::fabs(static_cast<double>(ViewportExtent.cx) / WindowExtent.cx);
}

double Mapping::ScaleY() const noexcept {
    return std::fabs(static_cast<double>(ViewportExtent.cy) / WindowExtent.cy);
}

POINT Mapping::ToDevice(POINT logical) const noexcept {
    return {Map(logical.x, WindowExtent.cx, ViewportExtent.cx),
            Map(logical.y, WindowExtent.cy, ViewportExtent.cy)};
}

}  // namespace PLATFORM::detail
