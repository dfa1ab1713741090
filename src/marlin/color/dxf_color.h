// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/color/rgb_color.h>
#include <marlin/core/export.h>

/// One index, 0 to 255, into the palette of DXF drawings. Default 0 (black). Equality is that of
/// indices: 0 and 7 differ though both are black.
///
/// A color becomes the index of the nearest of 24 hues, in steps of 15 degrees, in one of five
/// brightnesses and two saturations (10 to 249); a gray that of the nearest palette gray (250 to
/// 254); black becomes 0 and white, with what is nearest to it, 7. The indices 1 to 6, 8 and 9
/// are never chosen.
///
/// @code
/// assert(DXFColor(RGBColor(255, 0, 0)).Index() == 10);
/// assert(DXFColor(RGBColor(250, 250, 250)) == DXFColor::_WHITE);
/// assert(RGBColor(DXFColor(170)) == RGBColor(0, 0, 255));
/// @endcode
class MARLIN_API DXFColor {
public:
    static const DXFColor _BLACK;
    static const DXFColor _RED;
    static const DXFColor _YELLOW;
    static const DXFColor _GREEN;
    static const DXFColor _CYAN;
    static const DXFColor _BLUE;
    static const DXFColor _MAGENTA;
    static const DXFColor _WHITE;

    constexpr DXFColor() noexcept = default;
    /// 0 for an index outside 0 to 255.
    constexpr DXFColor(int i) noexcept
        : m_Index(i >= 0 && i <= 255 ? static_cast<unsigned char>(i) : 0U) {}
    DXFColor(const RGBColor& color) noexcept : m_Index(ChooseIndex(color)) {}
    /// From a color word, whose bits above 23 are ignored.
    DXFColor(unsigned long color) noexcept : m_Index(ChooseIndex(color)) {}

    [[nodiscard]] constexpr operator int() const noexcept { return m_Index; }
    [[nodiscard]] constexpr int Index() const noexcept { return m_Index; }

    /// The palette entry of the index.
    [[nodiscard]] operator RGBColor() const noexcept { return PaletteColor(m_Index); }
    [[nodiscard]] operator unsigned long() const noexcept { return PaletteColor(m_Index); }

    constexpr bool operator==(const DXFColor& other) const noexcept = default;
    constexpr bool operator==(int index) const noexcept { return m_Index == index; }

private:
    [[nodiscard]] static unsigned char ChooseIndex(unsigned long color) noexcept;
    [[nodiscard]] static unsigned long PaletteColor(unsigned char index) noexcept;

    unsigned char m_Index = 0;
};

inline constexpr DXFColor DXFColor::_BLACK{0};
inline constexpr DXFColor DXFColor::_RED{1};
inline constexpr DXFColor DXFColor::_YELLOW{2};
inline constexpr DXFColor DXFColor::_GREEN{3};
inline constexpr DXFColor DXFColor::_CYAN{4};
inline constexpr DXFColor DXFColor::_BLUE{5};
inline constexpr DXFColor DXFColor::_MAGENTA{6};
inline constexpr DXFColor DXFColor::_WHITE{7};

static_assert(sizeof(DXFColor) == 1);
