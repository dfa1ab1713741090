// SPDX-License-Identifier: MIT
#include <marlin/base/colors/detail/hexcone.h>
#include <marlin/color/detail/dxf_palette.h>
#include <marlin/color/dxf_color.h>

#include <cstdlib>

namespace {

constexpr int hueCount = 24;

int NearestGrayIndex(int component) noexcept {
    int best = MARLINSUITE::detail::firstPaletteGray;
    for (int i = best + 1; i <= MARLINSUITE::detail::lastPaletteGray; ++i) {
        const auto distance = [component](int index) {
            return std::abs(RGBColor(DXFColor(index)).Red() - component);
        };
        if (distance(i) < distance(best)) {
            best = i;
        }
    }
    return best == MARLINSUITE::detail::lastPaletteGray ? static_cast<int>(DXFColor::_WHITE) : best;
}

// The thresholds are single-precision constants, compared with a single-precision value.
int ShadeOf(float saturation, float value) noexcept {
    const int steps = (value <= 0.8F ? 1 : 0) + (value <= 0.6F ? 1 : 0) + (value <= 0.4F ? 1 : 0) +
                      (value <= 0.2F ? 1 : 0);
    return 2 * steps + (saturation < 0.5F ? 1 : 0);
}

}  // namespace

// By the conversion of `HSVColor`, without a call of it.
unsigned char DXFColor::ChooseIndex(unsigned long color) noexcept {
    constexpr auto most = static_cast<float>(RGBColor::MAX_VALUE());
    const RGBColor rgb(color);
    const auto [hue, saturation, value] = MARLINSUITE::detail::ToHexcone(
        static_cast<float>(rgb.Red()) / most, static_cast<float>(rgb.Green()) / most,
        static_cast<float>(rgb.Blue()) / most);
    if (saturation == 0.0F) {
        return static_cast<unsigned char>(rgb.Red() == 0 ? 0 : NearestGrayIndex(rgb.Red()));
    }
    const int nearest = static_cast<int>(hue / 360.0F * 240.0F + 5.0F) / 10 % hueCount;
    return static_cast<unsigned char>((nearest + 1) * 10 + ShadeOf(saturation, value));
}

unsigned long DXFColor::PaletteColor(unsigned char index) noexcept {
    const unsigned int entry = MARLINSUITE::detail::dxfPalette[index];
    return (entry & 0xFFU) << 16U | (entry & 0xFF00U) | entry >> 16U;
}
