// SPDX-License-Identifier: MIT
#include <marlin/color/detail/dxf_palette.h>
#include <marlin/color/dxf_color.h>
#include <marlin/color/hsv_color.h>

#include <algorithm>
#include <array>
#include <cstdint>

namespace {

constexpr int componentCount = 256;
constexpr int hueCount = 24;
constexpr int firstHueIndex = 10;
constexpr int indicesPerHue = 10;

template <class Value, std::size_t Size = componentCount, class Function>
constexpr std::array<Value, Size> Tabulated(Function function) {
    std::array<Value, Size> table{};
    for (std::size_t i = 0; i < Size; ++i) {
        table[i] = static_cast<Value>(function(static_cast<int>(i)));
    }
    return table;
}

constexpr int NearestGrayIndex(int component) {
    if (component == 0) {
        return DXFColor::_BLACK;
    }
    int best = MARLINSUITE::firstPaletteGray;
    int bestDistance = componentCount;
    for (int i = MARLINSUITE::firstPaletteGray; i <= MARLINSUITE::lastPaletteGray; ++i) {
        const int gray =
            static_cast<int>(MARLINSUITE::dxfPalette[static_cast<std::size_t>(i)] & 255U);
        const int distance = gray < component ? component - gray : gray - component;
        if (distance < bestDistance) {
            bestDistance = distance;
            best = i;
        }
    }
    return best == MARLINSUITE::lastPaletteGray ? static_cast<int>(DXFColor::_WHITE) : best;
}

// The thresholds are single-precision constants, compared with a single-precision value.
constexpr int ShadeOf(float value) {
    const int steps = (value <= 0.8F ? 1 : 0) + (value <= 0.6F ? 1 : 0) + (value <= 0.4F ? 1 : 0) +
                      (value <= 0.2F ? 1 : 0);
    return 2 * steps;
}

constexpr auto colorWords = Tabulated<std::uint32_t>([](int index) {
    const unsigned int entry = MARLINSUITE::dxfPalette[static_cast<std::size_t>(index)];
    return (entry & 0xFFU) << 16U | (entry & 0xFF00U) | entry >> 16U;
});
constexpr auto grayIndices = Tabulated<unsigned char>(NearestGrayIndex);
constexpr auto shades = Tabulated<unsigned char>([](int largestComponent) {
    return ShadeOf(static_cast<float>(largestComponent) /
                   static_cast<float>(RGBColor::MAX_VALUE()));
});

// x / (2 * delta) is x * halfReciprocals[delta] >> reciprocalBits for 0 <= x <= 17 * delta.
constexpr int reciprocalBits = 22;
constexpr auto halfReciprocals = Tabulated<std::uint32_t>([](int delta) {
    return delta == 0 ? 0 : ((1 << reciprocalBits) + 2 * delta - 1) / (2 * delta);
});

// By the number of the hue + 4, so that the hues below red, -4 to -1, count from 0.
constexpr int hueOffset = 4;
constexpr auto hueIndices = Tabulated<unsigned char, hueCount + 1>([](int shifted) {
    return firstHueIndex + (shifted - hueOffset + hueCount) % hueCount * indicesPerHue;
});

// Free of branches, which random colors would make the processor mispredict.
constexpr int Selected(bool first, int a, int b) noexcept {
    return b ^ ((a ^ b) & -static_cast<int>(first));
}

// The rule as it stands, for hues that lie midway between two of the palette, where the rounding
// of single precision decides.
[[gnu::noinline]] unsigned char IndexByRounding(unsigned long color) noexcept {
    const HSVColor hsv(color);
    const int nearest = static_cast<int>(hsv.Hue() / 360.0F * 240.0F + 5.0F) / 10;
    const int shade = ShadeOf(hsv.Value()) + (hsv.Saturation() < 0.5F ? 1 : 0);
    return static_cast<unsigned char>(firstHueIndex + nearest % hueCount * indicesPerHue + shade);
}

}  // namespace

// Hue and saturation are compared in whole numbers: a hue step begins at an odd multiple of an
// eighth of a sextant, so with the difference d of two components it is floor((8d + delta) /
// (2 delta)) steps from the sextant's main color, and only an exact tie can be rounded either way.
unsigned char DXFColor::ChooseIndex(unsigned long color) noexcept {
    const int red = static_cast<int>(color & 255U);
    const int green = static_cast<int>(color >> 8U & 255U);
    const int blue = static_cast<int>(color >> 16U & 255U);
    // Paired unlike each other, so that no comparison is shared and turned into a branch.
    const int largest = std::max(std::max(green, blue), red);
    const int delta = largest - std::min(std::min(red, green), blue);
    const auto at = static_cast<std::size_t>(largest);
    if (delta == 0) {
        return grayIndices[at];
    }
    const bool isRed = red == largest;
    const bool isGreen = green == largest;
    const int difference =
        Selected(isRed, green - blue, Selected(isGreen, blue - red, red - green));
    const int mainHue = Selected(isRed, 0, Selected(isGreen, 8, 16));
    const int scaled = 8 * difference + (1 + 2 * hueOffset) * delta;
    const auto step = static_cast<int>(static_cast<std::uint64_t>(scaled) *
                                           halfReciprocals[static_cast<std::size_t>(delta)] >>
                                       reciprocalBits);
    if (step * 2 * delta == scaled) {
        return IndexByRounding(color);
    }
    const int hueIndex = hueIndices[static_cast<std::size_t>(mainHue + step)];
    return static_cast<unsigned char>(hueIndex + shades[at] + (2 * delta < largest ? 1 : 0));
}

unsigned long DXFColor::PaletteColor(unsigned char index) noexcept {
    return colorWords[index];
}
