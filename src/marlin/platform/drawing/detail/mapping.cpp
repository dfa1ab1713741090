// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/detail/mapping.h>
#include <marlin/platform/drawing/detail/rounding.h>

#include <cmath>

namespace PLATFORM::detail {

namespace {

// Logical units per inch; 0 for modes without a fixed unit.
int UnitsPerInch(int mode) noexcept {
    switch (mode) {
        case MM_LOMETRIC:
            return 254;
        case MM_HIMETRIC:
            return 2540;
        case MM_LOENGLISH:
            return 100;
        case MM_HIENGLISH:
            return 1000;
        case MM_TWIPS:
            return 1440;
        default:
            return 0;
    }
}

int Map(int value, int fromOrigin, int fromExtent, int toOrigin, int toExtent) noexcept {
    // In double precision, which 32-bit coordinates neither overflow nor lose digits in.
    const double offset = static_cast<double>(value) - fromOrigin;
    return RoundToInt(offset * toExtent / fromExtent + toOrigin);
}

}  // namespace

bool Mapping::SetMode(int mode) noexcept {
    if (mode < MM_TEXT || mode > MM_ANISOTROPIC) {
        return false;
    }
    Mode = mode;
    // The free mode of square units starts with tenths of a millimetre; the other keeps what is
    // set.
    if (mode == MM_TEXT) {
        WindowExtent = ViewportExtent = {1, 1};
    } else if (mode != MM_ANISOTROPIC) {
        const int units = mode == MM_ISOTROPIC ? UnitsPerInch(MM_LOMETRIC) : UnitsPerInch(mode);
        WindowExtent = {units, units};
        ViewportExtent = {DotsPerInch, -DotsPerInch};
    }
    return true;
}

bool Mapping::SetExtent(SIZE Mapping::*extent, SIZE value) noexcept {
    if (!IsFree()) {
        return true;
    }
    if (value.cx == 0 || value.cy == 0) {
        return false;
    }
    this->*extent = value;
    if (Mode == MM_ISOTROPIC) {
        MakeSquare();
    }
    return true;
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
    return {Map(logical.x, WindowOrigin.x, WindowExtent.cx, ViewportOrigin.x, ViewportExtent.cx),
            Map(logical.y, WindowOrigin.y, WindowExtent.cy, ViewportOrigin.y, ViewportExtent.cy)};
}

POINT Mapping::ToLogical(POINT device) const noexcept {
    return {Map(device.x, ViewportOrigin.x, ViewportExtent.cx, WindowOrigin.x, WindowExtent.cx),
            Map(device.y, ViewportOrigin.y, ViewportExtent.cy, WindowOrigin.y, WindowExtent.cy)};
}

}  // namespace PLATFORM::detail
